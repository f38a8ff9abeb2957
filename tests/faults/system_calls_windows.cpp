#include "tests/faults/system_calls.h"

#include <windows.h>

namespace lx::faults {

namespace {

void refuseWith(Refusal refused) {
    switch (refused) {
        case Refusal::noSpace:
            return SetLastError(ERROR_DISK_FULL);
        case Refusal::denied:
            return SetLastError(ERROR_ACCESS_DENIED);
        case Refusal::broken:
            return SetLastError(ERROR_IO_DEVICE);
    }
}

bool fails(Call call) {
    const auto refused = refusal(call);
    if (refused) refuseWith(*refused);
    return refused.has_value();
}

}  // namespace

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

LX_REAL(CreateFileA);
LX_REAL(CloseHandle);
LX_REAL(GetFileInformationByHandle);
LX_REAL(GetFileSizeEx);
LX_REAL(SetFilePointerEx);
LX_REAL(ReadFile);
LX_REAL(WriteFile);
LX_REAL(SetEndOfFile);
LX_REAL(GetFileAttributesA);
LX_REAL(MoveFileExA);
LX_REAL(DeleteFileA);

namespace {

HANDLE WINAPI createFile(LPCSTR path, DWORD access, DWORD sharing, LPSECURITY_ATTRIBUTES security,
                         DWORD disposition, DWORD attributes, HANDLE like) {
    const Call call = disposition == OPEN_EXISTING ? Call::reading : Call::writing;
    if (fails(call)) return INVALID_HANDLE_VALUE;
    return __real___imp_CreateFileA(path, access, sharing, security, disposition, attributes, like);
}

BOOL WINAPI closeHandle(HANDLE handle) {
    const auto refused = refusal(Call::reading);
    const BOOL closed = __real___imp_CloseHandle(handle);
    if (!refused) return closed;
    refuseWith(*refused);
    return FALSE;
}

BOOL WINAPI aboutFile(HANDLE file, LPBY_HANDLE_FILE_INFORMATION about) {
    return fails(Call::reading) ? FALSE : __real___imp_GetFileInformationByHandle(file, about);
}

BOOL WINAPI fileSize(HANDLE file, PLARGE_INTEGER size) {
    return fails(Call::reading) ? FALSE : __real___imp_GetFileSizeEx(file, size);
}

BOOL WINAPI setPointer(HANDLE file, LARGE_INTEGER distance, PLARGE_INTEGER now, DWORD from) {
    return fails(Call::reading) ? FALSE : __real___imp_SetFilePointerEx(file, distance, now, from);
}

BOOL WINAPI readFile(HANDLE file, LPVOID buffer, DWORD size, LPDWORD got, LPOVERLAPPED overlapped) {
    return fails(Call::reading) ? FALSE
                                : __real___imp_ReadFile(file, buffer, size, got, overlapped);
}

BOOL WINAPI writeFile(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written,
                      LPOVERLAPPED overlapped) {
    const WritePlan plan = planWrite(size);
    const bool making = plan.cut || !plan.refusal;
    const BOOL done = making && __real___imp_WriteFile(file, bytes, static_cast<DWORD>(plan.part),
                                                       written, overlapped);
    if (plan.cut) cutWriteDone();
    if (!plan.refusal) return done;
    refuseWith(*plan.refusal);
    return FALSE;
}

// What reached the system is enough here; waiting for the disk would take most of the time.
BOOL WINAPI flushFile(HANDLE) {
    return fails(Call::reading) ? FALSE : TRUE;
}

BOOL WINAPI setEnd(HANDLE file) {
    return fails(Call::changing) ? FALSE : __real___imp_SetEndOfFile(file);
}

DWORD WINAPI attributesOf(LPCSTR path) {
    return fails(Call::reading) ? INVALID_FILE_ATTRIBUTES : __real___imp_GetFileAttributesA(path);
}

BOOL WINAPI moveFile(LPCSTR from, LPCSTR to, DWORD flags) {
    return fails(Call::changing) ? FALSE : __real___imp_MoveFileExA(from, to, flags);
}

BOOL WINAPI deleteFile(LPCSTR path) {
    return fails(Call::changing) ? FALSE : __real___imp_DeleteFileA(path);
}

}  // namespace

LX_WRAPPED(CreateFileA, createFile);
LX_WRAPPED(CloseHandle, closeHandle);
LX_WRAPPED(GetFileInformationByHandle, aboutFile);
LX_WRAPPED(GetFileSizeEx, fileSize);
LX_WRAPPED(SetFilePointerEx, setPointer);
LX_WRAPPED(ReadFile, readFile);
LX_WRAPPED(WriteFile, writeFile);
LX_WRAPPED(FlushFileBuffers, flushFile);
LX_WRAPPED(SetEndOfFile, setEnd);
LX_WRAPPED(GetFileAttributesA, attributesOf);
LX_WRAPPED(MoveFileExA, moveFile);
LX_WRAPPED(DeleteFileA, deleteFile);

}  // namespace lx::faults
