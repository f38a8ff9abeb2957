#include "catalogue/catalogue_state.h"

namespace lx {

namespace {

// FNV-1a.
std::uint64_t hashOf(std::string_view bytes) {
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char byte : bytes) {
        hash ^= static_cast<unsigned char>(byte);
        hash *= 0x100000001B3U;
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
