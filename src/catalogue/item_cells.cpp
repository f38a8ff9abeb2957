#include "catalogue/item_cells.h"

#include <cstddef>

#include "platform/numbers.h"
#include "resources/strings.h"

namespace lx {

namespace {

enum class Field {
    designation,
    length,
    width,
    height,
    maxOpening,
    weight,
    qu,
    description,
    compositionMark
};

struct Column {
    Field field;
    int heading;  // number of its text
};

constexpr int noText = 0;
constexpr int notGiven = 16;

constexpr Column precastColumns[] = {
    {Field::designation, 5}, {Field::length, 11},      {Field::width, 6},
    {Field::height, 7},      {Field::maxOpening, 12},  {Field::weight, 13},
    {Field::qu, 9},          {Field::description, 10}, {Field::compositionMark, noText}};
constexpr Column steelColumns[] = {{Field::designation, 5}, {Field::width, 6},
                                   {Field::height, 7},      {Field::weight, 8},
                                   {Field::qu, 9},          {Field::description, 10}};

std::span<const Column> columnsOf(CatalogueKind kind) {
    if (kind == CatalogueKind::steel) return steelColumns;
    return precastColumns;
}

const Column* findColumn(int column, CatalogueKind kind) {
    const std::span<const Column> columns = columnsOf(kind);
    if (column < 0 || static_cast<std::size_t>(column) >= columns.size()) return nullptr;
    return &columns[static_cast<std::size_t>(column)];
}

Text markText(char mark) {
    return mark == '\0' ? Text() : Text(1, mark);
}

}  // namespace

int itemColumnCount(CatalogueKind kind) {
    return static_cast<int>(columnsOf(kind).size());
}

std::string_view itemHeading(int column, CatalogueKind kind) {
    const Column* found = findColumn(column, kind);
    if (!found) return {};
    return found->field == Field::compositionMark ? "X" : str(found->heading);
}

Text cellText(const CPreklItem& record, int column, CatalogueKind kind) {
    const Column* found = findColumn(column, kind);
    if (!found) return {};
    switch (found->field) {
        case Field::designation:
            return Text(record.nameOrEmpty());
        case Field::length:
            return formatInt(record.length);
        case Field::width:
            return formatInt(record.width);
        case Field::height:
            return formatInt(record.height);
        case Field::maxOpening:
            return formatInt(record.maxOpening);
        case Field::weight:
            return formatFixed(record.weight, 1);
        case Field::qu:
            return record.qu > 0 ? formatFixed(record.qu, 3) : Text(str(notGiven));
        case Field::description:
            return record.description.value_or(Text());
        case Field::compositionMark:
            return markText(record.compositionMark);
    }
    return {};
}

Text rowsAsText(std::span<const CPreklItem* const> records, CatalogueKind kind) {
    constexpr std::string_view separator = " | ";
    const int columns = itemColumnCount(kind);
    Text text;
    for (int column = 0; column < columns; ++column) {
        text.append(itemHeading(column, kind)).append(separator);
    }
    text.append("\r\n\r\n");
    for (const CPreklItem* record : records) {
        for (int column = 0; column < columns; ++column) {
            text.append(cellText(*record, column, kind)).append(separator);
        }
        text.append("\r\n");
    }
    return text;
}

}  // namespace lx
