#include "catalogue/item_cells.h"

#include <cstddef>
#include <variant>

#include "platform/numbers.h"
#include "resources/strings.h"

namespace lx {

namespace {

struct Column {
    std::string_view heading;
    std::variant<std::int32_t CPreklItem::*, double CPreklItem::*,
                 std::optional<Text> CPreklItem::*, char CPreklItem::*>
        field;
    int decimals = 0;
};

// The text of a field.
struct Cell {
    const CPreklItem& record;
    int decimals;

    Text operator()(std::int32_t CPreklItem::*field) const { return formatInt(record.*field); }
    Text operator()(double CPreklItem::*field) const {
        if (field == &CPreklItem::qu && !(record.qu > 0)) return Text(text::notGiven);
        return formatFixed(record.*field, decimals);
    }
    Text operator()(std::optional<Text> CPreklItem::*field) const {
        return (record.*field).value_or(Text());
    }
    Text operator()(char CPreklItem::*field) const {
        return record.*field == '\0' ? Text() : Text(1, record.*field);
    }
};

constexpr Column designation{text::designation, &CPreklItem::designation};
constexpr Column width{text::itemWidth, &CPreklItem::width};
constexpr Column height{text::itemHeight, &CPreklItem::height};
constexpr Column qu{text::itemQu, &CPreklItem::qu, quDecimals};
constexpr Column description{text::description, &CPreklItem::description};

constexpr Column precastColumns[] = {designation,
                                     {text::itemLength, &CPreklItem::length},
                                     width,
                                     height,
                                     {text::itemMaxOpening, &CPreklItem::maxOpening},
                                     {text::itemWeight, &CPreklItem::weight, weightDecimals},
                                     qu,
                                     description,
                                     {text::compositionMark, &CPreklItem::compositionMark}};
constexpr Column steelColumns[] = {
    designation, width,      height, {text::weightPerMetre, &CPreklItem::weight, weightDecimals},
    qu,          description};

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
    return found ? std::visit(Cell{record, found->decimals}, found->field) : Text();
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
