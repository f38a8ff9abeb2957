#include "catalogue/catalogue_state.h"

#include <cstring>

namespace lx {

namespace {

// Eight bytes at a time: files of a hundred megabytes are hashed when they are opened. Every step
// can be undone, so that files that differ in one place alone never have the same hash.
std::uint64_t hashOf(std::string_view bytes) {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = bytes.size();
    while (!bytes.empty()) {
        std::uint64_t word = 0;
        const std::string_view next = bytes.substr(0, sizeof word);
        std::memcpy(&word, next.data(), next.size());
        bytes.remove_prefix(next.size());
        hash = (hash ^ word) * factor;
        hash ^= hash >> 32U;
    }
    return hash;
}

}  // namespace

bool CatalogueState::holds(std::string_view bytes) const {
    return bytes.size() == size && hashOf(bytes) == hash;
}

CatalogueState stateOf(std::string_view bytes, bool damaged) {
    return {bytes.size(), hashOf(bytes), damaged};
}

}  // namespace lx
