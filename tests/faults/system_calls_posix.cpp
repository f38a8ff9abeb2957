#include "tests/faults/system_calls_posix.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>

namespace lx::faults {

namespace {

bool watching = false;
Trouble trouble;
Course course;

bool refusedWith(int error) {
    course.struck = true;
    errno = error;
    return true;
}

// Whether this call is to fail; writing: it needs room on the disk.
bool fails(bool writing) {
    if (!watching) return false;
    const int call = ++course.calls;
    const bool from = trouble.call != 0 && call >= trouble.call;
    switch (trouble.fault) {
        case Fault::noSpace:
            return writing && from && refusedWith(ENOSPC);
        case Fault::denied:
            return call == trouble.call && refusedWith(EACCES);
        case Fault::deniedTwice:
            return (call == trouble.call || call == trouble.second) && refusedWith(EACCES);
        case Fault::shortWrite:
            return writing && course.struck && refusedWith(ENOSPC);
        case Fault::gone:
            return from && refusedWith(EIO);
        case Fault::killed:
            if (call == trouble.call) ::_exit(killedStatus);
            return false;
        case Fault::killedInWrite:
            return false;
    }
    return false;
}

// Told before a call that changes files.
void changing() {
    if (watching) course.changes.push_back(course.calls + 1);
}

// Whether this write is the one to be cut.
bool cutsWrite() {
    const bool cutting = trouble.fault == Fault::shortWrite || trouble.fault == Fault::gone ||
                         trouble.fault == Fault::killedInWrite;
    return watching && cutting && course.calls + 1 == trouble.call;
}

}  // namespace

void begin(const Trouble& wanted) {
    trouble = wanted;
    course = {};
    watching = true;
}

Course end() {
    watching = false;
    return course;
}

extern "C" {

int __real_open(const char* path, int flags, ...);
ssize_t __real_read(int file, void* buffer, size_t size);
ssize_t __real_write(int file, const void* bytes, size_t size);
int __real_close(int file);
int __real_ftruncate(int file, off_t length);
off_t __real_lseek(int file, off_t offset, int from);
int __real_rename(const char* from, const char* to);
int __real_unlink(const char* path);
int __real_stat(const char* path, struct stat* about);
int __real_fstat(int file, struct stat* about);
int __real_fchmod(int file, mode_t mode);

int __wrap_open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const int mode = (flags & O_CREAT) != 0 ? va_arg(arguments, int) : 0;
    va_end(arguments);
    if ((flags & O_CREAT) != 0) changing();
    return fails((flags & O_CREAT) != 0) ? -1 : __real_open(path, flags, mode);
}

ssize_t __wrap_read(int file, void* buffer, size_t size) {
    return fails(false) ? -1 : __real_read(file, buffer, size);
}

ssize_t __wrap_write(int file, const void* bytes, size_t size) {
    changing();
    if (watching) course.writes.push_back(course.calls + 1);
    if (!cutsWrite()) return fails(true) ? -1 : __real_write(file, bytes, size);
    ++course.calls;
    course.struck = true;
    const ssize_t stored = __real_write(file, bytes, size * trouble.cut / 100);
    if (trouble.fault == Fault::killedInWrite) ::_exit(killedStatus);
    if (trouble.fault == Fault::shortWrite && stored > 0) return stored;
    errno = ENOSPC;
    return -1;
}

// What reached the system is enough here; waiting for the disk would take most of the time.
int __wrap_fdatasync(int) {
    return fails(false) ? -1 : 0;
}

int __wrap_close(int file) {
    const bool failing = fails(false);
    const int result = __real_close(file);
    return failing ? -1 : result;
}

int __wrap_ftruncate(int file, off_t length) {
    changing();
    return fails(false) ? -1 : __real_ftruncate(file, length);
}

off_t __wrap_lseek(int file, off_t offset, int from) {
    return fails(false) ? -1 : __real_lseek(file, offset, from);
}

int __wrap_rename(const char* from, const char* to) {
    changing();
    return fails(false) ? -1 : __real_rename(from, to);
}

int __wrap_unlink(const char* path) {
    changing();
    return fails(false) ? -1 : __real_unlink(path);
}

int __wrap_stat(const char* path, struct stat* about) {
    return fails(false) ? -1 : __real_stat(path, about);
}

int __wrap_fstat(int file, struct stat* about) {
    return fails(false) ? -1 : __real_fstat(file, about);
}

int __wrap_fchmod(int file, mode_t mode) {
    changing();
    return fails(false) ? -1 : __real_fchmod(file, mode);
}

}  // extern "C"

}  // namespace lx::faults
