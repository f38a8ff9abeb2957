#include "lxtool/csv_writer.h"

#include <algorithm>

namespace lx::lxtool {

void CsvWriter::cell(std::string_view text) {
    if (m_rowBegun) m_bytes += m_separator;
    m_rowBegun = true;
    const bool plain = std::none_of(text.begin(), text.end(), [this](char c) {
        return c == m_separator || c == '"' || c == '\r' || c == '\n';
    });
    // Programs cut blanks around a cell without quotes.
    if (plain && (text.empty() || (text.front() != ' ' && text.back() != ' '))) {
        m_bytes += text;
        return;
    }
    m_bytes += '"';
    for (const char c : text) {
        if (c == '"') m_bytes += c;
        m_bytes += c;
    }
    m_bytes += '"';
}

void CsvWriter::endRow() {
    m_bytes += "\r\n";
    m_rowBegun = false;
}

}  // namespace lx::lxtool
