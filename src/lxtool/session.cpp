#include "lxtool/session.h"

namespace lx::lxtool {

std::optional<Path> pathOf(Session& session, std::string_view name) {
    std::optional<Path> path = systemPath(name);
    if (!path) session.messages.tell(name, "the system's code page lacks a letter of this name");
    return path;
}

std::optional<Bytes> readInput(Session& session, std::string_view name) {
    if (name == standardStream) {
        std::optional<Bytes> bytes = session.console.input();
        if (!bytes) session.messages.tell(name, "standard input cannot be read");
        return bytes;
    }
    const std::optional<Path> path = pathOf(session, name);
    if (!path) return std::nullopt;
    FileRead file = session.files.read(*path);
    if (file.status == ReadStatus::ok) return std::move(file.bytes);
    session.messages.tell(name, file.status == ReadStatus::missing
                                    ? "there is no such file"
                                    : "cannot be read; wanted is a plain file below 2 GB");
    return std::nullopt;
}

}  // namespace lx::lxtool
