#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "lxtool/file_lock.h"

namespace lx::lxtool {

namespace {

bool sameFile(int descriptor, const Path& path) {
    struct stat held {};
    struct stat there {};
    return ::fstat(descriptor, &held) == 0 && ::stat(path.c_str(), &there) == 0 &&
           held.st_dev == there.st_dev && held.st_ino == there.st_ino;
}

}  // namespace

// Advisory. Who waited for the opening while another run put a new file in its place holds the old
// one, and tries again.
bool FileLock::take(const Path& path) {
    for (int attempt = 0; attempt < 10; ++attempt) {
        release();
        m_descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (m_descriptor < 0) return true;
        if (::flock(m_descriptor, LOCK_EX | LOCK_NB) != 0) return errno != EWOULDBLOCK;
        if (sameFile(m_descriptor, path)) return true;
    }
    return false;
}

void FileLock::releaseToReplace() {}

void FileLock::release() {
    if (m_descriptor >= 0) ::close(std::exchange(m_descriptor, -1));
}

}  // namespace lx::lxtool
