// The entries of a library file's bytes, one after another by their lengths, without parsing what
// they hold.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace lx {

// An entry: its length, which counts what follows; then project id, label and design.
namespace library_entry {
inline constexpr std::size_t lengthField = 4;  // bytes
inline constexpr std::size_t projectField = 4;
inline constexpr std::size_t labelField = 4;
inline constexpr std::size_t labelLength = 3;                     // of its field
inline constexpr std::size_t header = projectField + labelField;  // behind the length
}  // namespace library_entry

class LibraryEntries {
public:
    explicit LibraryEntries(std::string_view bytes) : m_bytes(bytes) {}

    // Moves to the next entry that has a project id and a label; false when there is none.
    bool next();
    // Of the entry moved to.
    std::size_t projectPosition() const { return m_start + library_entry::lengthField; }
    std::int32_t project() const;
    Text label() const;
    std::string_view design() const;

    // After the last entry: where an entry starts that is cut short or has an impossible length,
    // which nothing behind can be reached over; the end of the file when there is none.
    std::size_t tornStart() const { return m_torn ? m_start : m_bytes.size(); }
    bool torn() const { return m_torn; }

private:
    std::string_view m_bytes;
    std::string_view m_body;  // what is there of the entry behind its length
    std::size_t m_start = 0;
    std::size_t m_next = 0;
    bool m_torn = false;
};

}  // namespace lx
