// The columns of a catalogue's table, which are alike for both kinds: the names in its first row
// and what of a record stands below them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "catalogue/CPreklItem.h"

namespace lx::lxtool {

inline constexpr std::string_view recordColumn = "záznam";  // T a type, P an item
inline constexpr std::string_view groupColumn = "skupina";  // number of the type
inline constexpr std::string_view typeColumn = "typ";       // its name, for the reader alone
inline constexpr std::string_view typeRow = "T";
inline constexpr std::string_view itemRow = "P";
inline constexpr std::string_view zeroMark = "\xE2\x90\x80";  // "␀", a mark of the byte 0

using CatalogueField = std::variant<std::int32_t CPreklItem::*, double CPreklItem::*,
                                    std::optional<Text> CPreklItem::*, char CPreklItem::*>;

struct FieldColumn {
    std::string_view name;  // UTF-8
    CatalogueField field;
};

// In the order in which they are written, behind the three above.
inline constexpr FieldColumn fieldColumns[] = {
    {"označení", &CPreklItem::designation},
    {"délka", &CPreklItem::length},
    {"šířka", &CPreklItem::width},
    {"výška", &CPreklItem::height},
    {"max_otvor", &CPreklItem::maxOpening},
    {"hmotnost", &CPreklItem::weight},
    {"qu", &CPreklItem::qu},
    {"písmeno", &CPreklItem::compositionMark},
    {"popis", &CPreklItem::description},
};

// The fewest decimals that bring the same double back, which must be finite; never an exponent.
std::string shownNumber(double value, char decimalSign);
// The cell of a field in UTF-8. No mark is an empty cell, the mark of a zero byte "␀".
std::string shownField(const CPreklItem& record, const CatalogueField& field, char decimalSign);
bool isNumber(const CatalogueField& field);
// Whether the field holds a number that a table has no way to write.
bool isUnwritable(const CPreklItem& record, const CatalogueField& field);

}  // namespace lx::lxtool
