// The system's loader, and calls whose convention nobody wrote down.
#include <windows.h>

#include <cstdint>
#include <cstring>

#include "platform/modules.h"
#include "platform/windows/make_platform.h"

namespace lx {
namespace {

HMODULE native(ModuleHandle module) {
    return static_cast<HMODULE>(module);
}

// The libraries that it needs in turn come from its own folder, the program's or the system's. A
// system too old to be told so (Windows 7 without its updates) looks into the current folder for
// what it finds in none of them.
ModuleHandle loadFrom(const Path& folder, const char* name) {
    const Path file = folder + name;
    if (file.size() >= MAX_PATH) return nullptr;
    constexpr DWORD folders = LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS;
    if (const HMODULE module = LoadLibraryExA(file.c_str(), nullptr, folders)) return module;
    if (GetLastError() != ERROR_INVALID_PARAMETER) return nullptr;
    return LoadLibraryExA(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

class WindowsModules final : public Modules {
public:
    ModuleHandle loaded(const char* name) override { return GetModuleHandleA(name); }

    Path fileName(ModuleHandle module) override {
        char buffer[261] = {};
        const DWORD length = GetModuleFileNameA(native(module), buffer, 260);
        return Path(buffer, length < 260 ? length : std::strlen(buffer));
    }

    void* symbol(ModuleHandle module, const char* name) override {
        if (!module) return nullptr;
        // Between function and data pointers only a copy of the bytes is portable.
        const FARPROC procedure = GetProcAddress(native(module), name);
        void* address = nullptr;
        static_assert(sizeof address == sizeof procedure);
        std::memcpy(&address, &procedure, sizeof address);
        return address;
    }

    ModuleHandle load(const char* name, const Path& beside) override {
        if (!beside.empty()) {
            if (ModuleHandle module = loadFrom(beside, name)) return module;
        }
        const Path program = fileName(nullptr);
        const std::size_t separator = program.find_last_of("\\/");
        if (separator != Path::npos) {
            if (ModuleHandle module = loadFrom(program.substr(0, separator + 1), name)) {
                return module;
            }
        }
        char folder[MAX_PATH + 1] = {};
        const UINT length = GetSystemDirectoryA(folder, sizeof folder);
        if (length == 0 || length >= sizeof folder) return nullptr;
        return loadFrom(Path(folder, length) + "\\", name);
    }
};

}  // namespace

Modules& systemModules() {
    static WindowsModules modules;
    return modules;
}

#if defined(__i386__)

int callAnyConvention(void* function, const std::uintptr_t* arguments, std::size_t count) {
    int result = 0;
    // esi and the saved stack pointer in it survive every call, whoever removes the arguments.
    asm volatile(
        "movl %%esp, %%esi\n\t"
        "leal 0(,%%ecx,4), %%eax\n\t"
        "subl %%eax, %%esp\n\t"
        "andl $-16, %%esp\n\t"
        "jecxz 2f\n"
        "1:\n\t"
        "movl -4(%%edi,%%ecx,4), %%eax\n\t"
        "movl %%eax, -4(%%esp,%%ecx,4)\n\t"
        "decl %%ecx\n\t"
        "jnz 1b\n"
        "2:\n\t"
        "call *%%ebx\n\t"
        "movl %%esi, %%esp\n\t"
        : "=&a"(result), "+c"(count), "+D"(arguments)
        : "b"(function)
        : "edx", "esi", "cc", "memory", "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6",
          "xmm7");
    return result;
}

#else

// The 64-bit system knows one convention only, in which the caller removes the arguments.
int callAnyConvention(void* function, const std::uintptr_t* arguments, std::size_t count) {
    using Word = std::uintptr_t;
    using Function = int (*)(Word, Word, Word, Word, Word, Word, Word, Word);
    Word words[8] = {};
    for (std::size_t i = 0; i < count && i < 8; ++i) words[i] = arguments[i];
    Function call = nullptr;
    static_assert(sizeof call == sizeof function);
    std::memcpy(&call, &function, sizeof call);
    // Surplus arguments do no harm: they lie where the callee may write anyway.
    return call(words[0], words[1], words[2], words[3], words[4], words[5], words[6], words[7]);
}

#endif

}  // namespace lx
