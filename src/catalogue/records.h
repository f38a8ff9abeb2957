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

    std::int32_t rowNo = 0;   // number in the browser's current list; never stored
    std::int32_t group = -1;  // type k: -k; item of type k: k
    std::int32_t length =
        0;  // mm; negative: opening plus that much at each end; steel type: shape number
    std::int32_t width = 0;       // mm
    std::int32_t height = 0;      // mm
    std::int32_t maxOpening = 0;  // mm
    double weight = 0.0;          // kg per piece, steel: kg per metre
    double qu = 0.0;              // kN/m; 0 or less = none given
    std::optional<Text> designation;
    std::optional<Text> description;
    char compositionMark = ' ';  // letter that the rules file uses; blank = none
    std::unique_ptr<CPreklItem> next;
};

using Catalogue = std::unique_ptr<CPreklItem>;

}  // namespace lx
