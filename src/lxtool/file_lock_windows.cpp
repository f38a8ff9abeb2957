#include <windows.h>

#include <utility>

#include "lxtool/file_lock.h"

namespace lx::lxtool {

// Held open for writing, which two cannot do at once when each lets others only read. Nothing is
// written that way.
bool FileLock::take(const Path& path) {
    release();
    HANDLE const file = CreateFileA(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) m_handle = file;
    return m_handle != nullptr || GetLastError() != ERROR_SHARING_VIOLATION;
}

void FileLock::releaseToReplace() {
    release();
}

void FileLock::release() {
    if (m_handle != nullptr) CloseHandle(std::exchange(m_handle, nullptr));
}

}  // namespace lx::lxtool
