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
    std::string_view heading;
};

constexpr Column precastColumns[] = {{Field::designation, text::designation},
                                     {Field::length, text::itemLength},
                                     {Field::width, text::itemWidth},
                                     {Field::height, text::itemHeight},
                                     {Field::maxOpening, text::itemMaxOpening},
                                     {Field::weight, text::itemWeight},
                                     {Field::qu, text::itemQu},
                                     {Field::description, text::description},
                                     {Field::compositionMark, text::compositionMark}};
constexpr Column steelColumns[] = {{Field::designation, text::designation},
                                   {Field::width, text::itemWidth},
                                   {Field::height, text::itemHeight},
                                   {Field::weight, text::weightPerMetre},
                                   {Field::qu, text::itemQu},
                                   {Field::description, text::description}};

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
    return found ? found->heading : std::string_view();
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
            return record.qu > 0 ? formatFixed(record.qu, 3) : Text(text::notGiven);
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
