// Cells and rows of a table by RFC 4180.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace lx::lxtool {

class CsvWriter {
public:
    explicit CsvWriter(char separator) : m_separator(separator) {}

    void cell(std::string_view text);
    void endRow();
    // What is no cell.
    void raw(std::string_view bytes) { m_bytes += bytes; }
    const Bytes& bytes() const { return m_bytes; }
    // Keeps the memory for what comes next.
    void clear() { m_bytes.clear(); }

private:
    Bytes m_bytes;
    char m_separator;
    bool m_rowBegun = false;
};

}  // namespace lx::lxtool
