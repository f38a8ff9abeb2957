#include "lxtool/catalogue_columns.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>

#include "platform/numbers.h"

namespace lx::lxtool {

namespace {

constexpr std::size_t valuesOfItems() {
    std::size_t count = 0;
#define LX_COUNT(...) ++count
    LX_ITEM_VALUES(LX_COUNT)
#undef LX_COUNT
    return count;
}
static_assert(std::size(fieldColumns) == valuesOfItems(), "each value of an item has a column");

std::string shownMark(char mark) {
    if (mark == ' ') return {};
    if (mark == '\0') return std::string(zeroMark);
    return toUtf8(std::string_view(&mark, 1));
}

}  // namespace

std::string shownNumber(double value, char decimalSign) {
    // The smallest has 1074 decimals, of which at most 17 are needed behind its zeros.
    char buffer[400];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed);
    std::replace(buffer, written.ptr, '.', decimalSign);
    return {buffer, written.ptr};
}

std::string shownField(const CPreklItem& record, const CatalogueField& field, char decimalSign) {
    if (const auto whole = std::get_if<std::int32_t CPreklItem::*>(&field)) {
        return formatInt(record.**whole);
    }
    if (const auto number = std::get_if<double CPreklItem::*>(&field)) {
        return shownNumber(record.**number, decimalSign);
    }
    if (const auto text = std::get_if<std::optional<Text> CPreklItem::*>(&field)) {
        return record.**text ? toUtf8(*(record.**text)) : std::string();
    }
    return shownMark(record.*std::get<char CPreklItem::*>(field));
}

bool isNumber(const CatalogueField& field) {
    return field.index() < 2;
}

bool isUnwritable(const CPreklItem& record, const CatalogueField& field) {
    const auto number = std::get_if<double CPreklItem::*>(&field);
    return number && !std::isfinite(record.**number);
}

}  // namespace lx::lxtool
