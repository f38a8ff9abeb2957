#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

#include "tests/faults/system_calls.h"

namespace lx::faults {

namespace {

void refuseWith(Refusal refused) {
    switch (refused) {
        case Refusal::noSpace:
            errno = ENOSPC;
            return;
        case Refusal::denied:
            errno = EACCES;
            return;
        case Refusal::broken:
            errno = EIO;
            return;
    }
}

bool fails(Call call) {
    const auto refused = refusal(call);
    if (refused) refuseWith(*refused);
    return refused.has_value();
}

}  // namespace

int inOwnProcess(const std::function<void()>& act, const std::vector<std::string>&) {
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        act();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void endProcess() {
    ::_exit(killedStatus);
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
    const Call call = (flags & O_CREAT) != 0 ? Call::writing : Call::reading;
    return fails(call) ? -1 : __real_open(path, flags, mode);
}

ssize_t __wrap_read(int file, void* buffer, size_t size) {
    return fails(Call::reading) ? -1 : __real_read(file, buffer, size);
}

ssize_t __wrap_write(int file, const void* bytes, size_t size) {
    const WritePlan plan = planWrite(size);
    const bool making = plan.cut || !plan.refusal;
    const ssize_t stored = making ? __real_write(file, bytes, plan.part) : -1;
    if (plan.cut) cutWriteDone();
    if (!plan.refusal) return stored;
    refuseWith(*plan.refusal);
    return -1;
}

// What reached the system is enough here; waiting for the disk would take most of the time.
int __wrap_fdatasync(int) {
    return fails(Call::reading) ? -1 : 0;
}

int __wrap_close(int file) {
    const bool failing = fails(Call::reading);
    const int result = __real_close(file);
    return failing ? -1 : result;
}

int __wrap_ftruncate(int file, off_t length) {
    return fails(Call::changing) ? -1 : __real_ftruncate(file, length);
}

off_t __wrap_lseek(int file, off_t offset, int from) {
    return fails(Call::reading) ? -1 : __real_lseek(file, offset, from);
}

int __wrap_rename(const char* from, const char* to) {
    return fails(Call::changing) ? -1 : __real_rename(from, to);
}

int __wrap_unlink(const char* path) {
    return fails(Call::changing) ? -1 : __real_unlink(path);
}

int __wrap_stat(const char* path, struct stat* about) {
    return fails(Call::reading) ? -1 : __real_stat(path, about);
}

int __wrap_fstat(int file, struct stat* about) {
    return fails(Call::reading) ? -1 : __real_fstat(file, about);
}

int __wrap_fchmod(int file, mode_t mode) {
    return fails(Call::changing) ? -1 : __real_fchmod(file, mode);
}

}  // extern "C"

}  // namespace lx::faults
