#include "lxtool/catalogue_records.h"

namespace lx::lxtool {

bool CatalogueRecords::next() {
    m_damage.clear();
    m_position = end();
    if (m_reader.atEnd()) return false;
    ++m_line;
    bool textTooLong = false;
    m_record.emplace();
    if (!m_record->readRecord(m_reader, textTooLong)) {
        m_damage = "the record at byte " + std::to_string(m_position) +
                   " is cut short by the end of the file at byte " + std::to_string(m_size);
        return false;
    }
    if (textTooLong) {
        m_damage = "the record at byte " + std::to_string(m_position) +
                   " has a text of more than 99 bytes";
    }
    return true;
}

}  // namespace lx::lxtool
