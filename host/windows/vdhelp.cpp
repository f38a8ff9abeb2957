// vdhelp.dll of the stand-in host: shows nothing, tells the program which topic was asked for.
#include <cstdint>

#include "host/windows/stand_in_link.h"

extern "C" __declspec(dllexport) int __stdcall vdHtmlHelp(void* owner, const char* file,
                                                          unsigned command, std::uintptr_t topic) {
    auto* const help =
        lx::host::ofProgram<int(void*, const char*, unsigned, std::uintptr_t)>("StandInHelp");
    return help != nullptr ? help(owner, file, command, topic) : 0;
}

// Refuses to be loaded where the program wants to be a host without a help library.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID) {
    if (reason != DLL_PROCESS_ATTACH) return TRUE;
    auto* const wanted = lx::host::ofProgram<int()>("StandInHelpWanted");
    return wanted == nullptr || wanted() != 0 ? TRUE : FALSE;
}
