#include "host/windows/loaded_module.h"

#include <windows.h>

#include <cstring>
#include <memory>
#include <stdexcept>

#include "host/paths.h"

namespace lx::host {

namespace {

// vdhelp.dll asks while it is being loaded, without an argument that could say for whom.
bool g_helpLibrary = true;

constexpr const char* moduleName = "lxdata6dlg.dll";
constexpr const wchar_t* helpName = L"vdhelp.dll";

class LoadedModule {
public:
    explicit LoadedModule(const std::string& programFolder) : m_folder(asFolder(programFolder)) {}
    ~LoadedModule() { unload(); }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    ModuleCalls load(const HostSettings& settings) {
        unload();
        if (!settings.host) {
            throw std::runtime_error("this program is the host itself: \"host off\" is for lxhost");
        }
        g_helpLibrary = settings.helpLibrary;
        if (settings.otherLibrary) m_other = open(*settings.otherLibrary);
        if (settings.arx) m_arx = open("VORDAN2D.ARX");
        m_module = open(moduleName);
        ModuleCalls calls;
        find(calls.CallLXdata6, "CallLXdata6");
        find(calls.CallLXdata6Base, "CallLXdata6Base");
        find(calls.LintelErase, "LintelErase");
        find(calls.mergeLibraryFiles, "mergeLibraryFiles");
        return calls;
    }

    void unload() {
        close(m_module);
        close(m_arx);
        close(m_other);
        // The module leaves it loaded; the next one is to find the process as this one did.
        while (const HMODULE help = GetModuleHandleW(helpName)) {
            if (!FreeLibrary(help)) break;
        }
    }

private:
    HMODULE open(const std::string& name) const {
        const std::wstring file = pathFromUtf8(m_folder + name).wstring();
        const HMODULE module = LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
        if (module == nullptr) {
            throw std::runtime_error(m_folder + name + " cannot be loaded (system error " +
                                     std::to_string(GetLastError()) + ")");
        }
        return module;
    }

    static void close(HMODULE& module) {
        if (module != nullptr) FreeLibrary(module);
        module = nullptr;
    }

    template <class Function>
    void find(Function& function, const char* name) const {
        const FARPROC address = GetProcAddress(m_module, name);
        if (address == nullptr) {
            throw std::runtime_error(std::string(moduleName) + " has no export " + name);
        }
        static_assert(sizeof function == sizeof address);
        std::memcpy(&function, &address, sizeof address);
    }

    std::string m_folder;
    HMODULE m_module = nullptr;
    HMODULE m_arx = nullptr;
    HMODULE m_other = nullptr;
};

}  // namespace

ModuleSource moduleFromFile(const std::string& programFolder) {
    const auto module = std::make_shared<LoadedModule>(programFolder);
    return {[module](const HostSettings& settings) { return module->load(settings); },
            [module] { module->unload(); },
            {},
            {}};
}

bool helpLibraryWanted() {
    return g_helpLibrary;
}

}  // namespace lx::host
