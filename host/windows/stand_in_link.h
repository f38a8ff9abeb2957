// How the small modules of the stand-in host reach the program that loaded them.
#pragma once

#include <windows.h>

#include <cstring>

namespace lx::host {

// A function that the program exports; null when the program is another one.
template <class Function>
Function* ofProgram(const char* name) {
    const FARPROC address = GetProcAddress(GetModuleHandleW(nullptr), name);
    Function* function = nullptr;
    static_assert(sizeof function == sizeof address);
    std::memcpy(&function, &address, sizeof address);
    return function;
}

}  // namespace lx::host
