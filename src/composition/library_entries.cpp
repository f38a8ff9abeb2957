#include "composition/library_entries.h"

#include "platform/binary.h"

namespace lx {

using namespace library_entry;

bool LibraryEntries::next() {
    while (m_next < m_bytes.size()) {
        m_start = m_next;
        m_torn = true;
        const std::string_view rest = m_bytes.substr(m_start);
        if (rest.size() < lengthField) return false;
        const std::int32_t length = BinaryReader(rest).int32();
        if (length < static_cast<std::int32_t>(projectField)) return false;
        m_body = rest.substr(lengthField, static_cast<std::size_t>(length));
        m_torn = m_body.size() < static_cast<std::size_t>(length);
        m_next = m_start + lengthField + m_body.size();
        if (m_body.size() >= header) return true;
        // Too short for a label: nobody's design, but what stands behind it can be reached.
        if (m_torn) return false;
    }
    return false;
}

std::int32_t LibraryEntries::project() const {
    return BinaryReader(m_body).int32();
}

Text LibraryEntries::label() const {
    const std::string_view bytes = m_body.substr(projectField, labelLength);
    return Text(bytes.substr(0, bytes.find('\0')));
}

std::string_view LibraryEntries::design() const {
    return m_body.substr(header);
}

}  // namespace lx
