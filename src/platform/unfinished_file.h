// What both platforms' files do alike while they put a file in the place of another.
#pragma once

#include <utility>

#include "platform/files.h"

namespace lx {

// A file that goes away again unless it is kept. To be made before what holds it open: Windows
// deletes no open file.
class UnfinishedFile {
public:
    UnfinishedFile(Path path, void (*takeAway)(const Path&))
        : m_path(std::move(path)), m_takeAway(takeAway) {}
    ~UnfinishedFile() {
        if (made) m_takeAway(m_path);
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    const Path& path() const { return m_path; }
    bool made = false;

private:
    Path m_path;
    void (*m_takeAway)(const Path&);
};

// Hands the pieces to the file one by one; false when one is refused or does not come.
template <class OpenFile>
bool writePieces(OpenFile& file, const NextPiece& next) {
    for (;;) {
        const std::optional<std::string_view> piece = next();
        if (!piece || !file.write(*piece)) return false;
        if (piece->empty()) return true;
    }
}

}  // namespace lx
