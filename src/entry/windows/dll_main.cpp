// The module being loaded into the host's process and unloaded from it.
#include <windows.h>

#include <memory>

#include "entry/exports.h"
#include "platform/windows/make_platform.h"

namespace {

// Lives from load to unload.
struct Loaded {
    explicit Loaded(HINSTANCE instance)
        : platform(lx::makeWindowsPlatform(instance)),
          app(*platform, lx::systemFiles(), lx::systemModules()) {}

    std::unique_ptr<lx::Platform> platform;
    lx::CLXdata6dlgApp app;
};

Loaded* g_loaded = nullptr;

bool attach(HINSTANCE instance) {
    try {
        auto loaded = std::make_unique<Loaded>(instance);
        if (!loaded->app.InitInstance()) return false;
        lx::setApplication(&loaded->app);
        g_loaded = loaded.release();
        return true;
    } catch (...) {
        return false;
    }
}

void detach() {
    lx::setApplication(nullptr);
    const std::unique_ptr<Loaded> loaded(g_loaded);
    g_loaded = nullptr;
    if (loaded) loaded->app.ExitInstance();
}

}  // namespace

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID processEnds) {
    if (reason == DLL_PROCESS_ATTACH) return attach(instance) ? TRUE : FALSE;
    // When the process ends, windows and modules around this one may be gone already, and the
    // system takes everything back.
    if (reason == DLL_PROCESS_DETACH && !processEnds) detach();
    return TRUE;
}
