#include "tests/faults/system_calls.h"

#include <windows.h>

namespace lx::faults {

void refuseWith(Refusal refused) {
    constexpr DWORD codes[] = {ERROR_DISK_FULL, ERROR_ACCESS_DENIED, ERROR_IO_DEVICE};
    SetLastError(codes[static_cast<int>(refused)]);
}

int inOwnProcess(const std::function<void()>&, const std::vector<std::string>& arguments) {
    char program[MAX_PATH];
    if (GetModuleFileNameA(nullptr, program, MAX_PATH) == 0) return -1;
    std::string line = std::string("\"") + program + "\"";
    for (const std::string& argument : arguments) line += " \"" + argument + "\"";
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (!CreateProcessA(program, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
        return -1;
    }
    DWORD status = 0;
    const bool ended = WaitForSingleObject(process.hProcess, 60000) == WAIT_OBJECT_0 &&
                       GetExitCodeProcess(process.hProcess, &status);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return ended ? static_cast<int>(status) : -1;
}

void endProcess() {
    TerminateProcess(GetCurrentProcess(), killedStatus);
    // It ends this very process.
    for (;;) Sleep(INFINITE);
}

// A call is made through its entry in the import table; the linker gives the file layer those of
// this file instead.
#define LX_REAL(call) extern "C" const decltype(&::call) __real___imp_##call
#define LX_WRAPPED(call, function)                          \
    extern "C" const decltype(&::call) __wrap___imp_##call; \
    const decltype(&::call) __wrap___imp_##call = function

// One that fails or is made as it is.
#define LX_CALL(kind, call, parameters, arguments)                        \
    LX_REAL(call);                                                        \
    static BOOL WINAPI tried##call parameters {                           \
        return fails(Call::kind) ? FALSE : __real___imp_##call arguments; \
    }                                                                     \
    LX_WRAPPED(call, tried##call)

LX_CALL(reading, GetFileInformationByHandle, (HANDLE file, LPBY_HANDLE_FILE_INFORMATION about),
        (file, about));
LX_CALL(reading, GetFileSizeEx, (HANDLE file, PLARGE_INTEGER size), (file, size));
LX_CALL(reading, ReadFile,
        (HANDLE file, LPVOID buffer, DWORD size, LPDWORD got, LPOVERLAPPED overlapped),
        (file, buffer, size, got, overlapped));
LX_CALL(changing, SetEndOfFile, (HANDLE file), (file));
LX_CALL(changing, MoveFileExA, (LPCSTR from, LPCSTR to, DWORD flags), (from, to, flags));
LX_CALL(changing, DeleteFileA, (LPCSTR path), (path));

LX_REAL(CreateFileA);
LX_REAL(CloseHandle);
LX_REAL(SetFilePointerEx);
LX_REAL(WriteFile);
LX_REAL(GetFileAttributesA);

namespace {

FileId idOf(HANDLE file) {
    return reinterpret_cast<FileId>(file);
}

HANDLE WINAPI createFile(LPCSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                         DWORD disposition, DWORD attributes, HANDLE like) {
    const Call call = disposition == OPEN_EXISTING ? Call::reading : Call::writing;
    if (fails(call)) return INVALID_HANDLE_VALUE;
    return __real___imp_CreateFileA(path, access, sharing, security, disposition, attributes, like);
}

BOOL WINAPI seek(HANDLE file, LARGE_INTEGER distance, PLARGE_INTEGER now, DWORD from) {
    leaving(idOf(file));
    return !fails(Call::reading) && __real___imp_SetFilePointerEx(file, distance, now, from);
}

BOOL WINAPI closeHandle(HANDLE handle) {
    leaving(idOf(handle));
    const auto refused = refusal(Call::reading);
    const BOOL closed = __real___imp_CloseHandle(handle);
    if (!refused) return closed;
    refuseWith(*refused);
    return FALSE;
}

BOOL WINAPI writeFile(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written,
                      LPOVERLAPPED overlapped) {
    const WritePlan plan = planWrite(idOf(file), size);
    const bool making = plan.cut || !plan.refusal;
    const BOOL done = making && __real___imp_WriteFile(file, bytes, static_cast<DWORD>(plan.part),
                                                       written, overlapped);
    if (plan.cut) cutWriteDone();
    if (!plan.refusal) return done;
    refuseWith(*plan.refusal);
    return FALSE;
}

// What reached the system is enough here; waiting for the disk would take most of the time.
BOOL WINAPI flushFile(HANDLE file) {
    flushed(idOf(file));
    return fails(Call::reading) ? FALSE : TRUE;
}

DWORD WINAPI attributesOf(LPCSTR path) {
    return fails(Call::reading) ? INVALID_FILE_ATTRIBUTES : __real___imp_GetFileAttributesA(path);
}

}  // namespace

LX_WRAPPED(CreateFileA, createFile);
LX_WRAPPED(CloseHandle, closeHandle);
LX_WRAPPED(SetFilePointerEx, seek);
LX_WRAPPED(WriteFile, writeFile);
LX_WRAPPED(FlushFileBuffers, flushFile);
LX_WRAPPED(GetFileAttributesA, attributesOf);

}  // namespace lx::faults
