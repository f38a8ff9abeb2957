#include "lxtool/library_scan.h"

#include "composition/library.h"
#include "composition/projects.h"
#include "composition/stored_form.h"

namespace lx::lxtool {

using namespace library_entry;

bool LibraryScan::next() {
    if (m_next >= m_bytes.size()) return false;
    m_start = m_next;
    ++m_number;
    const std::string_view rest = m_bytes.substr(m_start);
    BinaryReader reader(rest);
    m_length = reader.int32();
    const bool possible = !reader.cutShort() && m_length >= static_cast<std::int32_t>(projectField);
    m_body = {};
    if (possible) m_body = rest.substr(lengthField, static_cast<std::size_t>(m_length));
    m_torn = !possible || m_body.size() < static_cast<std::size_t>(m_length);
    // Nothing behind a torn one can be reached.
    m_next = m_torn ? m_bytes.size() : m_start + lengthField + m_body.size();
    return true;
}

bool LibraryScan::isDeleted() const {
    return hasHeader() && project() == deletedProject;
}

std::int32_t LibraryScan::project() const {
    return BinaryReader(m_body).int32();
}

Text LibraryScan::label() const {
    const std::string_view bytes = m_body.substr(projectField, labelLength);
    return Text(bytes.substr(0, bytes.find('\0')));
}

Text LibraryScan::shownLabel() const {
    Text text = label();
    text.resize(text.find_last_not_of(' ') + 1);
    return text;
}

std::optional<std::string> LibraryScan::damage() const {
    const std::string entry =
        "entry " + std::to_string(m_number) + " at byte " + std::to_string(m_start);
    const std::string there =
        std::to_string(whole().size() - std::min(whole().size(), lengthField));
    if (m_torn && m_body.empty()) {
        return entry + " has no possible length; wanted are at least " + std::to_string(header) +
               " bytes within the " + there + " that are there";
    }
    if (m_torn) {
        return entry + " is cut short; wanted are " + std::to_string(m_length) +
               " bytes, of which " + there + " are there";
    }
    if (!hasHeader()) {
        return entry + " is too short for its project and label; wanted are at least " +
               std::to_string(header) + " bytes";
    }
    if (isDeleted()) return std::nullopt;
    const std::optional<std::string> design = damageOfDesign();
    if (!design) return std::nullopt;
    return entry + " (" + inQuotes(toUtf8(shownLabel())) + ") " + *design;
}

std::optional<std::string> LibraryScan::damageOfDesign() const {
    BinaryReader reader(design());
    const DesignRead read = readDesign(reader);
    if (!read.damaged && !read.design.empty()) return std::nullopt;
    const std::size_t stopped =
        m_start + lengthField + header + design().size() - reader.remaining();
    return (read.headWhole ? "is damaged behind its head" : "holds no whole head") +
           (", read up to byte " + std::to_string(stopped)) +
           "; wanted are a head and layers up to its end";
}

void tellDesignDamage(Session& session, std::string_view name, std::string_view bytes) {
    for (LibraryScan scan(bytes); scan.next();) {
        if (const auto damage = scan.damage()) session.messages.tell(name, scan.number(), *damage);
    }
}

void tellProjectDamage(Session& session, std::string_view name, std::string_view bytes) {
    constexpr std::size_t headerSize = 8;
    constexpr std::size_t idSize = 4;
    constexpr std::size_t entrySize = idSize + projectNameLimit + 1;
    if (bytes.empty()) return;
    BinaryReader reader(bytes);
    const std::int32_t selected = reader.int32();
    const std::int32_t count = reader.int32();
    const std::uint64_t wanted = headerSize + entrySize * static_cast<std::uint64_t>(count);
    if (reader.cutShort() || count < 0 || wanted != bytes.size()) {
        session.messages.tell(name, "holds " + std::to_string(bytes.size()) + " bytes for " +
                                        std::to_string(count) + " projects; wanted are " +
                                        std::to_string(headerSize) + " and " +
                                        std::to_string(entrySize) + " for each");
    }
    if (count > 0 && (selected < 0 || selected >= count)) {
        session.messages.tell(name, "the current project at byte 0 is number " +
                                        std::to_string(selected) + "; wanted is one from 0 to " +
                                        std::to_string(count - 1));
    }
    for (std::int32_t i = 0; i < count && reader.remaining() >= entrySize; ++i) {
        const std::size_t position = bytes.size() - reader.remaining();
        const std::string project = "project " + std::to_string(i + 1) + " at byte ";
        const auto line = static_cast<std::size_t>(i) + 1;
        if (reader.int32() == deletedProject) {
            session.messages.tell(name, line,
                                  project + std::to_string(position) +
                                      " has the id -1, which marks deleted designs; "
                                      "wanted is another one");
        }
        if (reader.raw(projectNameLimit + 1).find('\0') == std::string_view::npos) {
            session.messages.tell(name, line,
                                  project + std::to_string(position + idSize) +
                                      " has a name without an end; wanted are at most " +
                                      std::to_string(projectNameLimit) + " letters");
        }
    }
}

}  // namespace lx::lxtool
