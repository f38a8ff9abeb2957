// A catalogue as a chain of records: types (product groups) and items (products).
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "platform/text.h"

namespace lx {

// Which catalogue: 1 = steel sections, any other value = precast lintels.
enum class CatalogueKind : std::int32_t { precast = 0, steel = 1 };

// One record. Owns the rest of the chain; copied and destroyed without recursion.
class CPreklItem {
public:
    CPreklItem() = default;
    // Copies every field, both texts and the whole rest of the chain.
    CPreklItem(const CPreklItem& other);
    CPreklItem& operator=(const CPreklItem&) = delete;
    virtual ~CPreklItem();

    bool isType() const { return group < 0; }
    // designation, or an empty text where there is none
    std::string_view nameOrEmpty() const {
        if (!designation) return {};
        return *designation;
    }
    // A copy of this record alone, without the rest of the chain.
    std::unique_ptr<CPreklItem> copyAlone() const;

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

private:
    struct Alone {};
    CPreklItem(const CPreklItem& other, Alone);
};

using Catalogue = std::unique_ptr<CPreklItem>;

}  // namespace lx
