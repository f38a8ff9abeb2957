// The records of a catalogue file's bytes one after another, exactly as they stand there, with the
// place of each. Needs the memory of one.
#pragma once

#include <optional>
#include <string>

#include "catalogue/CPreklItem.h"
#include "platform/binary.h"

namespace lx::lxtool {

class CatalogueRecords {
public:
    explicit CatalogueRecords(std::string_view bytes) : m_reader(bytes), m_size(bytes.size()) {}

    // Moves to the next record; false at the end, which damage may have brought early.
    bool next();
    const CPreklItem& record() const { return *m_record; }
    CPreklItem& record() { return *m_record; }
    // Of the catalogue's table, whose first line names the columns.
    std::size_t line() const { return m_line; }
    // Of the record's first byte in the file.
    std::size_t position() const { return m_position; }
    std::size_t end() const { return m_size - m_reader.remaining(); }
    // What is wrong with the record that next moved to, or that ended it; empty when nothing is.
    const std::string& damage() const { return m_damage; }

private:
    BinaryReader m_reader;
    std::size_t m_size;
    std::optional<CPreklItem> m_record;
    std::size_t m_line = 1;
    std::size_t m_position = 0;
    std::string m_damage;
};

}  // namespace lx::lxtool
