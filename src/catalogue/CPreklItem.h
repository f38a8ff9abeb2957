// A catalogue as a chain of records: types (product groups) and items (products).
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "platform/text.h"

namespace lx {

class BinaryReader;
class BinaryWriter;

// Which catalogue: 1 = steel sections, any other value = precast lintels.
enum class CatalogueKind : std::int32_t { precast = 0, steel = 1 };

// Longest text of a record, in bytes, without its terminating zero.
inline constexpr std::size_t catalogueTextLimit = 99;

inline constexpr int weightDecimals = 1;
inline constexpr int quDecimals = 3;

// The stored fields of a record, each told once and in the order in which files hold them:
// field(type, name, value at first, decimals where it is shown). The list makes the members, the
// texts of the item editor, and eachField, by which records are read, written, merged and printed.
#define LX_ITEM_FIELDS(field)                                              \
    field(std::int32_t, group, -1, 0); /* type k: -k; item of type k: k */ \
    LX_ITEM_VALUES(field)
// Those that a user types. A negative length is the opening plus that much at each end; of a steel
// type it is the number of the shape.
#define LX_ITEM_VALUES(field)                                                           \
    field(std::int32_t, length, 0, 0);          /* mm */                                \
    field(std::int32_t, width, 0, 0);           /* mm */                                \
    field(std::int32_t, height, 0, 0);          /* mm */                                \
    field(std::int32_t, maxOpening, 0, 0);      /* mm */                                \
    field(double, weight, 0.0, weightDecimals); /* kg per piece, steel: kg per metre */ \
    field(double, qu, 0.0, quDecimals);         /* kN/m; 0 or less = none given */      \
    field(std::optional<Text>, designation, {}, 0);                                     \
    field(std::optional<Text>, description, {}, 0);                                     \
    field(char, compositionMark, ' ', 0); /* letter in the rules file; blank = none */

// One record. Owns the rest of the chain; destroyed without recursion.
class CPreklItem {
public:
    CPreklItem() = default;
    CPreklItem(const CPreklItem&) = delete;
    CPreklItem& operator=(const CPreklItem&) = delete;
    virtual ~CPreklItem();

    // Reads the record at the reader's position into one that is fresh. False when fewer than 4
    // bytes are left, or when the record is cut short (reader.cutShort() tells); it is then not to
    // be kept. A text longer than catalogueTextLimit is cut to it, the reader moves on behind its
    // zero, and damaged is set.
    bool readRecord(BinaryReader& reader, bool& damaged);
    // Texts are cut to catalogueTextLimit.
    void writeRecord(BinaryWriter& writer) const;

    bool isType() const { return group < 0; }
    // designation, or an empty text where there is none
    std::string_view nameOrEmpty() const {
        if (!designation) return {};
        return *designation;
    }

#define LX_MEMBER(type, name, initial, decimals) type name = initial
    LX_ITEM_FIELDS(LX_MEMBER)
#undef LX_MEMBER
    std::int32_t rowNo = 0;  // number in the browser's current list; never stored
    std::unique_ptr<CPreklItem> next;

    // visit(name, the field of each record)
    template <class Visit, class... Records>
    static void eachField(Visit&& visit, Records&... records) {
#define LX_VISIT(type, name, ...) visit(#name, records.name...)
        LX_ITEM_FIELDS(LX_VISIT)
#undef LX_VISIT
    }
};

using Catalogue = std::unique_ptr<CPreklItem>;

}  // namespace lx
