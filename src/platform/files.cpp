#include "platform/files.h"

namespace lx {

bool Files::replace(const Path& path, std::string_view bytes) {
    return replaceByPieces(path, [&bytes] { return std::optional(std::exchange(bytes, {})); });
}

// A copy, so that the name itself never lacks its file.
bool Files::keepAsBackup(const Path& path) {
    const FileRead original = read(path);
    if (original.status == ReadStatus::missing) return true;
    return original.status == ReadStatus::ok && replace(path + ".bak", original.bytes);
}

}  // namespace lx
