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

void refuseWith(Refusal refused) {
    constexpr int codes[] = {ENOSPC, EACCES, EIO};
    errno = codes[static_cast<int>(refused)];
}

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

static FileId idOf(int file) {
    return static_cast<FileId>(file);
}

extern "C" {

// A call that fails or is made as it is.
#define LX_CALL(kind, result, name, parameters, arguments)       \
    result __real_##name parameters;                             \
    result __wrap_##name parameters {                            \
        return fails(Call::kind) ? -1 : __real_##name arguments; \
    }

LX_CALL(reading, ssize_t, read, (int file, void* buffer, size_t size), (file, buffer, size))
LX_CALL(reading, int, stat, (const char* path, struct stat* about), (path, about))
LX_CALL(reading, int, fstat, (int file, struct stat* about), (file, about))
LX_CALL(changing, int, ftruncate, (int file, off_t length), (file, length))
LX_CALL(changing, int, rename, (const char* from, const char* to), (from, to))
LX_CALL(changing, int, unlink, (const char* path), (path))
LX_CALL(changing, int, fchmod, (int file, mode_t mode), (file, mode))

int __real_open(const char* path, int flags, ...);
ssize_t __real_write(int file, const void* bytes, size_t size);
int __real_close(int file);
off_t __real_lseek(int file, off_t offset, int from);

int __wrap_open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const int mode = (flags & O_CREAT) != 0 ? va_arg(arguments, int) : 0;
    va_end(arguments);
    const Call call = (flags & O_CREAT) != 0 ? Call::writing : Call::reading;
    return fails(call) ? -1 : __real_open(path, flags, mode);
}

ssize_t __wrap_write(int file, const void* bytes, size_t size) {
    const WritePlan plan = planWrite(idOf(file), size);
    const bool making = plan.cut || !plan.refusal;
    const ssize_t stored = making ? __real_write(file, bytes, plan.part) : -1;
    if (plan.cut) cutWriteDone();
    if (!plan.refusal) return stored;
    refuseWith(*plan.refusal);
    return -1;
}

// What reached the system is enough here; waiting for the disk would take most of the time.
int __wrap_fdatasync(int file) {
    flushed(idOf(file));
    return fails(Call::reading) ? -1 : 0;
}

off_t __wrap_lseek(int file, off_t offset, int from) {
    leaving(idOf(file));
    return fails(Call::reading) ? -1 : __real_lseek(file, offset, from);
}

int __wrap_close(int file) {
    leaving(idOf(file));
    const bool failing = fails(Call::reading);
    const int result = __real_close(file);
    return failing ? -1 : result;
}

}  // extern "C"

}  // namespace lx::faults
