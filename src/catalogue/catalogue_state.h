// What a catalogue file held when it was last loaded or written: tells whether somebody else has
// changed it since.
#pragma once

#include <cstdint>
#include <string_view>

namespace lx {

struct CatalogueState {
    std::uint64_t size = 0;  // bytes
    std::uint64_t hash = 0;
    bool damaged = false;  // to be kept as .bak before it is first written over

    bool holds(std::string_view bytes) const;
};

CatalogueState stateOf(std::string_view bytes, bool damaged);

}  // namespace lx
