#include "tests/entry/fake_modules.h"

#include <algorithm>
#include <cstring>

namespace lx {

namespace {

void copyText(const Path& text, char* buffer, int size) {
    hostSide().sizesGiven.push_back(size);
    const std::size_t count = std::min(text.size() + 1, static_cast<std::size_t>(size));
    std::memcpy(buffer, text.c_str(), count);
}

int getProfilePath(std::uintptr_t, char* buffer, std::uintptr_t size) {
    copyText(hostSide().profile, buffer, static_cast<int>(size));
    return 0;
}

void* const* getExport2D() {
    return hostSide().noTable ? nullptr : hostSide().table.data();
}

// A host that answers with a C++ bool leaves the rest of the register as it was.
int LX_CDECL folder(int id, char* buffer, int size) {
    copyText(id == LX_FOLDER_LIBRARY ? hostSide().libraryFolder : hostSide().catalogueFolder,
             buffer, size);
    return hostSide().folderAnswer;
}

const char* LX_CDECL variable(const char*) {
    return nullptr;
}

int LX_CDECL lock(int, int) {
    return 1;
}

const char* const* LX_CDECL styles(int* count) {
    static const char* const names[] = {"Standard", nullptr, "Iso"};
    *count = 3;
    return names;
}

int help(std::uintptr_t owner, const char* file, std::uintptr_t command, std::uintptr_t topic) {
    hostSide().helpRequest = std::to_string(owner) + " " + file + " " + std::to_string(command) +
                             " " + std::to_string(topic);
    return 77;
}

}  // namespace

HostSide& hostSide() {
    static HostSide side;
    return side;
}

void installHost(FakeModules& modules, const char* name, const Path& folderName) {
    hostSide() = HostSide();
    auto& table = hostSide().table;
    table[LX_SERVICE_FOLDER] = address(folder);
    table[LX_SERVICE_VARIABLE] = address(variable);
    table[LX_SERVICE_LOCK] = address(lock);
    table[LX_SERVICE_TEXT_STYLES] = address(styles);
    modules.loadedModules[name] = {
        folderName + name,
        {{"GetProfilePath", address(getProfilePath)}, {"GetExport2D", address(getExport2D)}}};
    modules.libraries[folderName + "vdhelp.dll"] = {folderName + "vdhelp.dll",
                                                    {{"vdHtmlHelp", address(help)}}};
}

LoadedModule::LoadedModule() : app(bench.platform(), bench.files(), modules) {
    installHost(modules, host_module::application, bench.folder());
    hostSide().profile = bench.folder();
    hostSide().libraryFolder = bench.libraryFolder();
    hostSide().catalogueFolder = bench.catalogueFolder();
    app.InitInstance();
    setApplication(&app);
}

}  // namespace lx
