#include "lxtool/target.h"

namespace lx::lxtool {

std::optional<FileRead> Target::open() {
    if (isStream()) return FileRead();
    const std::optional<Path> path = pathOf(m_session, m_name);
    if (!path) return std::nullopt;
    m_path = *path;
    if (!m_lock.take(m_path)) {
        m_session.messages.tell(m_name,
                                "another program works with this file; wanted is a run "
                                "when it has ended");
        return std::nullopt;
    }
    FileRead before = m_session.files.read(m_path);
    if (before.status == ReadStatus::failed) {
        m_session.messages.tell(m_name, "cannot be read, and is not written over unread");
        return std::nullopt;
    }
    m_before = before.status;
    m_state = stateOf(before.bytes, false);
    return before;
}

bool Target::write(const NextPiece& next, bool keepOld) {
    if (isStream()) return writeStream(next);
    const std::size_t told = m_session.messages.count();
    const bool done =
        m_session.files.replaceByPieces(m_path, [&]() -> std::optional<std::string_view> {
            const std::optional<std::string_view> piece = next();
            if (!piece || !piece->empty()) return piece;
            if (!asItWas()) return std::nullopt;
            if (keepOld && !m_session.files.keepAsBackup(m_path)) {
                m_session.messages.tell(m_name + ".bak", "cannot be written");
                return std::nullopt;
            }
            m_lock.releaseToReplace();
            return piece;
        });
    m_lock.release();
    if (!done && m_session.messages.count() == told) m_session.messages.tell(m_name, cannotWrite());
    return done;
}

bool Target::writeStream(const NextPiece& next) {
    for (;;) {
        const std::optional<std::string_view> piece = next();
        if (!piece) return false;
        if (piece->empty()) return true;
        if (!m_session.console.output(*piece)) {
            m_session.messages.tell(m_name, "standard output cannot be written");
            return false;
        }
    }
}

bool Target::asItWas() {
    const FileRead now = m_session.files.read(m_path);
    if (now.status == m_before && m_state.holds(now.bytes)) return true;
    m_session.messages.tell(m_name,
                            "another program has changed this file meanwhile; wanted is a "
                            "run when it has ended");
    return false;
}

std::string Target::cannotWrite() const {
    return "cannot be written; wanted is a folder that is there, with room, and a file that is not "
           "read-only";
}

}  // namespace lx::lxtool
