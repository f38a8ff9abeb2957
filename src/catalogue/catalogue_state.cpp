#include "catalogue/catalogue_state.h"

#include <algorithm>
#include <cstring>

namespace lx {

namespace {

constexpr std::size_t wordSize = sizeof(std::uint64_t);

// Every step can be undone, so that files that differ in one place alone never have the same hash.
std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
    hash = (hash ^ word) * factor;
    return hash ^ hash >> 32U;
}

}  // namespace

// Eight bytes at a time: files of a hundred megabytes are hashed when they are opened.
void CatalogueHash::add(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t held = m_size % wordSize;
        const std::size_t taken = std::min(bytes.size(), wordSize - held);
        std::memcpy(reinterpret_cast<char*>(&m_word) + held, bytes.data(), taken);
        bytes.remove_prefix(taken);
        m_size += taken;
        if (m_size % wordSize != 0) return;
        m_hash = mixed(m_hash, m_word);
        m_word = 0;
    }
}

CatalogueState CatalogueHash::state(bool damaged) const {
    return {m_size, mixed(m_hash, m_word), damaged};
}

bool CatalogueState::holds(std::string_view bytes) const {
    return bytes.size() == size && stateOf(bytes, damaged).hash == hash;
}

CatalogueState stateOf(std::string_view bytes, bool damaged) {
    CatalogueHash hash;
    hash.add(bytes);
    return hash.state(damaged);
}

}  // namespace lx
