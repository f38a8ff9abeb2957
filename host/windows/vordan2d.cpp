// VORDAN2D.ARX of the stand-in host: the other module in which lxdata6dlg.dll looks for its host.
#include "host/windows/stand_in_link.h"

extern "C" __declspec(dllexport) void** __cdecl GetExport2D() {
    auto* const table = lx::host::ofProgram<void**()>("GetExport2D");
    return table != nullptr ? table() : nullptr;
}

// Removes its arguments itself, as against the program's own: nothing says which of the two a host
// does, so the module has to bear both.
extern "C" __declspec(dllexport) int __stdcall GetProfilePath(int reserved, char* buffer,
                                                              int size) {
    auto* const path = lx::host::ofProgram<int(int, char*, int)>("StandInArxProfilePath");
    return path != nullptr ? path(reserved, buffer, size) : 0;
}
