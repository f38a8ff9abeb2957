// Keeps other runs of the tool from a file while one changes it.
#pragma once

#include "platform/text.h"

namespace lx::lxtool {

class FileLock {
public:
    FileLock() = default;
    ~FileLock() { release(); }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    // False when another program holds the file. A file that is missing, or on a disk without
    // locks, cannot be held and is taken as free.
    bool take(const Path& path);
    // Where a file that is held cannot be replaced it is let go for that moment.
    void releaseToReplace();
    void release();

private:
#if defined(_WIN32)
    void* m_handle = nullptr;
#else
    int m_descriptor = -1;
#endif
};

}  // namespace lx::lxtool
