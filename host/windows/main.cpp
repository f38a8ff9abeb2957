// VORDANLT.EXE: the stand-in host on Windows. Loads lxdata6dlg.dll from its own folder, plays
// scenarios in its dialogs, or makes one call that is the user's to act in.
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <iostream>

#include "host/driver/windows/windows_driver.h"
#include "host/options.h"
#include "host/paths.h"
#include "host/windows/first_paint.h"
#include "host/windows/host_window.h"
#include "host/windows/loaded_module.h"

// What the module looks for in its host's program.
extern "C" __declspec(dllexport) void** __cdecl GetExport2D() {
    return lx::host::exportTable();
}

extern "C" __declspec(dllexport) int __cdecl GetProfilePath(int reserved, char* buffer, int size) {
    return lx::host::profilePath(reserved, buffer, size);
}

// What VORDAN2D.ARX and vdhelp.dll of this host hand on to it.
extern "C" __declspec(dllexport) int __cdecl StandInArxProfilePath(int reserved, char* buffer,
                                                                   int size) {
    return lx::host::arxProfilePath(reserved, buffer, size);
}

extern "C" __declspec(dllexport) int __cdecl StandInHelp(void* owner, const char* file,
                                                         unsigned command, std::uintptr_t topic) {
    return lx::host::htmlHelp(owner, file, command, topic);
}

extern "C" __declspec(dllexport) int __cdecl StandInHelpWanted() {
    return lx::host::helpLibraryWanted() ? 1 : 0;
}

namespace {

using namespace lx::host;

// In UTF-8, without the program's name.
std::vector<std::string> commandLine() {
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i) arguments.push_back(utf8FromPath(words[i]));
    LocalFree(words);
    return arguments;
}

std::string programFolder() {
    std::wstring name(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()))) ==
           name.size()) {
        name.resize(name.size() * 2);
    }
    name.resize(length);
    return utf8FromPath(std::filesystem::path(name).parent_path());
}

}  // namespace

int main() {
    // As CAD programs are: without it the system would tell the dialogs of 96 dpi and stretch them.
    SetProcessDPIAware();
    SetConsoleOutputCP(CP_UTF8);
    // Line ends as on every platform.
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    const std::string folder = programFolder();
    const Options options = parseOptions(commandLine(), folder);
    if (options.help) {
        std::cout << optionsHelp("VORDANLT.EXE");
        return 0;
    }
    if (!options.error.empty()) {
        std::cerr << options.error << "\nVORDANLT.EXE --help tells what there is." << std::endl;
        return 2;
    }
    if (!options.scenarios.empty()) std::cout << "code page " << GetACP() << std::endl;
    HostWindow window;
    HostServices services;
    WindowsDriver driver;
    ModuleSource module = moduleFromFile(folder);
    module.callFrom = [&window](const HostSettings& settings, const auto& call) {
        window.call(settings, call);
    };
    module.windows = [&window] { return window.look(); };
    return options.firstPaint > 0
               ? tellFirstPaint(options, services, module, std::cout, std::cerr)
               : runStandIn(options, services, module, driver, std::cout, std::cerr);
}
