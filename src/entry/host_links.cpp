#include "entry/host_links.h"

#include <lxdata6dlg.h>

#include <array>
#include <bit>

namespace lx {

namespace {

constexpr char helpLibrary[] = "vdhelp.dll";
// The help library's command "show the topic with this context number".
constexpr std::uintptr_t helpContext = 1;

Text orEmpty(const char* text) {
    return text ? Text(text) : Text();
}

}  // namespace

HostLinks::HostLinks(Modules& modules, const Path& dataFolder, const Path& helpFile)
    : m_modules(modules), m_dataFolder(dataFolder), m_helpFile(helpFile) {}

HostLinks::Services HostLinks::getHostServices() {
    ModuleHandle host = m_modules.loaded(host_module::application);
    if (!host) host = m_modules.loaded(host_module::extension);
    void* const entry = host ? m_modules.symbol(host, "GetExport2D") : nullptr;
    if (!entry) return nullptr;
    using GetExport2D = Services(LX_CDECL*)();
    return std::bit_cast<GetExport2D>(entry)();
}

template <class Function>
Function HostLinks::service(int position) {
    const Services table = getHostServices();
    return table ? std::bit_cast<Function>(table[position]) : nullptr;
}

std::optional<Path> HostLinks::folderWithin(HostFolder id, int bufferSize) {
    const auto ask = service<LxFolderService>(LX_SERVICE_FOLDER);
    if (!ask) return std::nullopt;
    // One byte more than the service may use, so that a folder that fills it still ends.
    Path buffer(static_cast<std::size_t>(bufferSize) + 1, '\0');
    if (ask(static_cast<int>(id), buffer.data(), bufferSize) == 0) return std::nullopt;
    buffer.back() = '\0';
    buffer.resize(buffer.find('\0'));
    return buffer;
}

int HostLinks::requestLock(HostResource resource, int mode) {
    const auto ask = service<LxLockService>(LX_SERVICE_LOCK);
    return ask ? ask(static_cast<int>(resource), mode) : -1;
}

void HostLinks::releaseLock(HostResource resource, int code) {
    if (const auto ask = service<LxLockService>(LX_SERVICE_LOCK)) {
        ask(static_cast<int>(resource), code);
    }
}

Text HostLinks::hostTitle() {
    const auto ask = service<LxTitleService>(LX_SERVICE_TITLE);
    const char* const answer = ask ? ask() : nullptr;
    return answer ? Text(answer) : Text("ERROR");
}

Text HostLinks::variable(const char* name) {
    const auto ask = service<LxVariableService>(LX_SERVICE_VARIABLE);
    return ask ? orEmpty(ask(name)) : Text();
}

int HostLinks::unitsPerMetre() {
    const auto ask = service<LxUnitsService>(LX_SERVICE_UNITS_PER_METRE);
    return ask ? ask() : 0;
}

std::vector<Text> HostLinks::textStyles() {
    const auto ask = service<LxTextStylesService>(LX_SERVICE_TEXT_STYLES);
    if (!ask) return {};
    int count = 0;
    const char* const* const names = ask(&count);
    std::vector<Text> styles;
    for (int i = 0; names && i < count; ++i) {
        if (names[i]) styles.emplace_back(names[i]);
    }
    return styles;
}

int HostLinks::showHelp(int topic) {
    // A host that has loaded it already may keep it in a folder that only the host knows.
    ModuleHandle library = m_modules.loaded(helpLibrary);
    if (!library) {
        const Path hostFolder = m_helpFile.substr(0, m_helpFile.find_last_of("\\/") + 1);
        library = m_modules.load(helpLibrary, hostFolder);
    }
    void* const entry = library ? m_modules.symbol(library, "vdHtmlHelp") : nullptr;
    if (!entry) return 0;
    const std::array<std::uintptr_t, 4> arguments{0,
                                                  std::bit_cast<std::uintptr_t>(m_helpFile.c_str()),
                                                  helpContext, static_cast<std::uintptr_t>(topic)};
    return callAnyConvention(entry, arguments.data(), arguments.size());
}

}  // namespace lx
