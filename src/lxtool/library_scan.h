// All entries of a library file's bytes, deleted and damaged ones too, with the place of each.
#pragma once

#include <optional>
#include <string>

#include "composition/library_entries.h"
#include "lxtool/session.h"

namespace lx::lxtool {

class LibraryScan {
public:
    explicit LibraryScan(std::string_view bytes) : m_bytes(bytes) {}

    // Moves to the next entry; false at the end of the file.
    bool next();
    // From 1, as they stand in the file.
    std::size_t number() const { return m_number; }
    std::size_t position() const { return m_start; }
    // All of its bytes that are there, its length field first.
    std::string_view whole() const { return m_bytes.substr(m_start, m_next - m_start); }
    // Whether it has a project id and a label. Without them it is nobody's.
    bool hasHeader() const { return m_body.size() >= library_entry::header; }
    // Cut short by the end of the file, or of an impossible length: the last one.
    bool torn() const { return m_torn; }
    bool isDeleted() const;
    std::int32_t project() const;
    // As stored, and without the blanks behind it.
    Text label() const;
    Text shownLabel() const;
    std::string_view design() const { return m_body.substr(library_entry::header); }
    // What is wrong with it; none when nothing is. The design of a deleted one counts for nothing.
    std::optional<std::string> damage() const;

private:
    std::optional<std::string> damageOfDesign() const;

    std::string_view m_bytes;
    std::string_view m_body;  // what is there of it behind its length
    std::size_t m_number = 0;
    std::size_t m_start = 0;
    std::size_t m_next = 0;
    std::int32_t m_length = 0;
    bool m_torn = false;
};

// All that is wrong with the bytes of a library file, and of a project file, is told.
void tellDesignDamage(Session& session, std::string_view name, std::string_view bytes);
void tellProjectDamage(Session& session, std::string_view name, std::string_view bytes);

}  // namespace lx::lxtool
