// The types and items of a catalogue's bytes by their names. Holds places in the bytes, which must
// outlive it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "lxtool/session.h"

namespace lx::lxtool {

// A type, or an item.
struct IndexedRecord {
    std::string_view name;     // the designation
    std::size_t position = 0;  // of its first byte
    std::size_t line = 0;      // of the catalogue's table
    std::int32_t group = 0;    // as it is stored
    // The place among the types of the item's type, which is where the user sees it, whatever
    // number that type has; noType when there is none there.
    std::size_t type = 0;
};

struct CatalogueIndex {
    static constexpr std::size_t noType = SIZE_MAX;

    std::vector<IndexedRecord> types;
    std::vector<IndexedRecord> items;
};

// None when a record is cut short or has a text too long, which is told.
std::optional<CatalogueIndex> indexOf(Session& session, std::string_view name,
                                      std::string_view bytes);

}  // namespace lx::lxtool
