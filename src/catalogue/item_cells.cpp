#include "catalogue/item_cells.h"

#include <cstddef>

#include "platform/numbers.h"
#include "resources/strings.h"

namespace lx {

namespace {

Text shown(std::int32_t value) {
    return formatInt(value);
}
Text shown(const std::optional<Text>& value) {
    return value.value_or(Text());
}
Text shown(char mark) {
    return mark == '\0' ? Text() : Text(1, mark);
}

template <auto field>
Text cell(const CPreklItem& record) {
    return shown(record.*field);
}
Text weightCell(const CPreklItem& record) {
    return formatFixed(record.weight, weightDecimals);
}
Text quCell(const CPreklItem& record) {
    return record.qu > 0 ? formatFixed(record.qu, quDecimals) : Text(text::notGiven);
}

struct Column {
    Text (*cell)(const CPreklItem& record);
    std::string_view heading;
};

constexpr Column precastColumns[] = {{cell<&CPreklItem::designation>, text::designation},
                                     {cell<&CPreklItem::length>, text::itemLength},
                                     {cell<&CPreklItem::width>, text::itemWidth},
                                     {cell<&CPreklItem::height>, text::itemHeight},
                                     {cell<&CPreklItem::maxOpening>, text::itemMaxOpening},
                                     {weightCell, text::itemWeight},
                                     {quCell, text::itemQu},
                                     {cell<&CPreklItem::description>, text::description},
                                     {cell<&CPreklItem::compositionMark>, text::compositionMark}};
constexpr Column steelColumns[] = {{cell<&CPreklItem::designation>, text::designation},
                                   {cell<&CPreklItem::width>, text::itemWidth},
                                   {cell<&CPreklItem::height>, text::itemHeight},
                                   {weightCell, text::weightPerMetre},
                                   {quCell, text::itemQu},
                                   {cell<&CPreklItem::description>, text::description}};

std::span<const Column> columnsOf(CatalogueKind kind) {
    if (kind == CatalogueKind::steel) return steelColumns;
    return precastColumns;
}

const Column* findColumn(int column, CatalogueKind kind) {
    const std::span<const Column> columns = columnsOf(kind);
    if (column < 0 || static_cast<std::size_t>(column) >= columns.size()) return nullptr;
    return &columns[static_cast<std::size_t>(column)];
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
    return found ? found->cell(record) : Text();
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
