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

// The state of a file whose bytes come piece by piece, of whatever lengths.
class CatalogueHash {
public:
    void add(std::string_view bytes);
    CatalogueState state(bool damaged) const;

private:
    std::uint64_t m_size = 0;
    std::uint64_t m_hash = 0;
    std::uint64_t m_word = 0;  // the bytes behind the last whole eight
};

CatalogueState stateOf(std::string_view bytes, bool damaged);

}  // namespace lx
