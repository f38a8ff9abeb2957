// Programs and libraries loaded into the process: what the module asks of the system's loader.
#pragma once

#include "platform/text.h"

namespace lx {

// Opaque; null = not loaded.
using ModuleHandle = void*;

class Modules {
public:
    Modules() = default;
    Modules(const Modules&) = delete;
    Modules& operator=(const Modules&) = delete;
    virtual ~Modules() = default;

    // The module of that file name (such as "VORDANLT.EXE") if it is loaded already, else null.
    virtual ModuleHandle loaded(const char* name) = 0;
    // Full file name of a module; null = the process's own program. At most 260 bytes.
    virtual Path fileName(ModuleHandle module) = 0;
    // Address of an export, or null.
    virtual void* symbol(ModuleHandle module, const char* name) = 0;
    // Loads a library from that folder (ends in a separator), else from the program's folder or the
    // system's, never from the current folder; null when there is none. It stays loaded.
    virtual ModuleHandle load(const char* name, const Path& folder) = 0;
};

// Calls a function whose calling convention is not known (callee or caller removes the arguments):
// the stack pointer is restored either way. Each argument is one machine word; the result is an
// int.
int callAnyConvention(void* function, const std::uintptr_t* arguments, std::size_t count);

}  // namespace lx
