// Rows and cells of a table by RFC 4180, from any bytes. Line ends are CR, LF or both; a quote
// within a cell that does not begin with one is a character like others. Needs the memory of a row.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lx::lxtool {

inline constexpr std::size_t longestCell = 65536;  // bytes

struct CsvCell {
    std::string_view text;     // good until the next row
    std::size_t line = 0;      // where it begins, from 1
    bool tooLong = false;      // the text is then its beginning
    bool unfinished = false;   // the file ends within its quotes
    bool behindQuote = false;  // something stands behind its closing quote
};

class CsvReader {
public:
    // Cells of a row behind mostCells are not kept.
    CsvReader(std::string_view bytes, char separator, std::size_t mostCells);

    // Moves to the next row; false at the end of the file.
    bool next();
    const std::vector<CsvCell>& cells() const { return m_cells; }
    // Whether a cell that was not kept holds something.
    bool surplus() const { return m_surplus; }
    std::size_t line() const { return m_rowLine; }
    // Bytes that are read.
    std::size_t position() const { return m_position; }

private:
    CsvCell takeCell(std::size_t place);
    void takeQuoted(CsvCell& cell, std::string& joined);
    std::string_view takePlain();
    void takeLineEnd();
    bool at(char c) const { return m_position < m_bytes.size() && m_bytes[m_position] == c; }

    std::string_view m_bytes;
    char m_separator;
    std::size_t m_mostCells;
    std::size_t m_position = 0;
    std::size_t m_line = 1;
    std::size_t m_rowLine = 1;
    bool m_surplus = false;
    std::vector<CsvCell> m_cells;
    std::vector<std::string> m_joined;  // texts with doubled quotes, by the place of their cell
};

}  // namespace lx::lxtool
