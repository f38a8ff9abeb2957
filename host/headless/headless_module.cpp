#include "host/headless/headless_module.h"

#include "entry/CLXdata6dlgApp.h"
#include "entry/exports.h"
#include "host/paths.h"
#include "platform/headless/headless_modules.h"

namespace lx::host {

namespace {

template <class F>
void* address(F* function) {
    return reinterpret_cast<void*>(function);
}

// What the process of the host would hold, and the module's application in it.
class LoadedModule {
public:
    LoadedModule(HeadlessPlatform& platform, const std::string& programFolder)
        : m_platform(platform), m_folder(asFolder(programFolder)) {}
    ~LoadedModule() { unload(); }
    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    ModuleCalls load(const HostSettings& settings) {
        unload();
        m_modules.clear();
        m_modules.setProgram({"lxhost", systemPath(m_folder + "lxhost"), {}, true, true});
        if (settings.host) {
            m_modules.add({"VORDANLT.EXE",
                           systemPath(m_folder + "VORDANLT.EXE"),
                           {{"GetExport2D", address(&exportTable)},
                            {"GetProfilePath", address(&profilePath)}},
                           true,
                           true});
        }
        if (settings.arx) {
            m_modules.add({"VORDAN2D.ARX",
                           systemPath(m_folder + "VORDAN2D.ARX"),
                           {{"GetExport2D", address(&exportTable)},
                            {"GetProfilePath", address(&arxProfilePath)}},
                           true,
                           true});
        }
        m_modules.add({"vdhelp.dll",
                       systemPath(m_folder + "vdhelp.dll"),
                       {{"vdHtmlHelp", address(&htmlHelp)}},
                       false,
                       settings.helpLibrary});
        m_application = std::make_unique<CLXdata6dlgApp>(m_platform, systemFiles(), m_modules);
        m_application->InitInstance();
        setApplication(m_application.get());
        return {&::CallLXdata6, &::CallLXdata6Base, &::LintelErase, &::mergeLibraryFiles};
    }

    void unload() {
        if (!m_application) return;
        m_application->ExitInstance();
        setApplication(nullptr);
        m_application.reset();
    }

private:
    HeadlessPlatform& m_platform;
    std::string m_folder;
    HeadlessModules m_modules;
    std::unique_ptr<CLXdata6dlgApp> m_application;
};

}  // namespace

ModuleSource headlessModule(HeadlessPlatform& platform, const std::string& programFolder) {
    const auto module = std::make_shared<LoadedModule>(platform, programFolder);
    return {[module](const HostSettings& settings) { return module->load(settings); },
            [module] { module->unload(); },
            {},
            {}};
}

}  // namespace lx::host
