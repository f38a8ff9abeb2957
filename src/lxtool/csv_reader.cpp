#include "lxtool/csv_reader.h"

#include <algorithm>

namespace lx::lxtool {

namespace {

std::size_t lineEnds(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool pair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (text[i] == '\n' || (text[i] == '\r' && !pair)) ++count;
    }
    return count;
}

}  // namespace

CsvReader::CsvReader(std::string_view bytes, char separator, std::size_t mostCells)
    : m_bytes(bytes), m_separator(separator), m_mostCells(mostCells), m_joined(mostCells + 1) {}

bool CsvReader::next() {
    if (m_position == m_bytes.size()) return false;
    m_cells.clear();
    m_surplus = false;
    m_rowLine = m_line;
    for (std::size_t place = 0;; ++place) {
        const CsvCell cell = takeCell(std::min(place, m_mostCells));
        if (place < m_mostCells) {
            m_cells.push_back(cell);
        } else {
            m_surplus = m_surplus || !cell.text.empty();
        }
        if (!at(m_separator)) break;
        ++m_position;
    }
    takeLineEnd();
    return true;
}

CsvCell CsvReader::takeCell(std::size_t place) {
    CsvCell cell;
    cell.line = m_line;
    if (at('"')) {
        takeQuoted(cell, m_joined[place]);
    } else {
        cell.text = takePlain();
    }
    if (cell.text.size() > longestCell) {
        cell.tooLong = true;
        cell.text = cell.text.substr(0, longestCell);
    }
    return cell;
}

// A text that stands in the file as it is needs no copy.
void CsvReader::takeQuoted(CsvCell& cell, std::string& joined) {
    const std::size_t start = m_position++;
    joined.clear();
    for (bool inOnePiece = true;; inOnePiece = false) {
        const std::size_t quote = std::min(m_bytes.find('"', m_position), m_bytes.size());
        std::string_view part = m_bytes.substr(m_position, quote - m_position);
        m_position = std::min(quote + 1, m_bytes.size());
        cell.unfinished = quote == m_bytes.size();
        const bool doubled = at('"');
        if (doubled) part = m_bytes.substr(quote - part.size(), part.size() + 1);
        // A byte more than is allowed tells as much as all of them.
        if (!inOnePiece || doubled) joined.append(part.substr(0, longestCell + 1 - joined.size()));
        if (doubled) {
            ++m_position;
            continue;
        }
        cell.text = inOnePiece ? part : joined;
        break;
    }
    m_line += lineEnds(m_bytes.substr(start, m_position - start));
    const std::string_view behind = takePlain();
    cell.behindQuote = behind.find_first_not_of(' ') != std::string_view::npos;
}

std::string_view CsvReader::takePlain() {
    const std::size_t start = m_position;
    while (m_position < m_bytes.size() && !at(m_separator) && !at('\r') && !at('\n')) ++m_position;
    return m_bytes.substr(start, m_position - start);
}

void CsvReader::takeLineEnd() {
    if (m_position == m_bytes.size()) return;
    ++m_line;
    const bool carriageReturn = at('\r');
    ++m_position;
    if (carriageReturn && at('\n')) ++m_position;
}

}  // namespace lx::lxtool
