#include "host/host_services.h"

#include <cstring>
#include <filesystem>

#include "host/paths.h"
#include "platform/text.h"

namespace lx::host {

namespace {

// The table's functions have no argument that could say for whom they answer.
HostServices* g_current = nullptr;

// Entries of the table, by position.
constexpr std::size_t folderEntry = 1;
constexpr std::size_t variableEntry = 29;
constexpr std::size_t unitsEntry = 33;
constexpr std::size_t lockEntry = 44;
constexpr std::size_t stylesEntry = 59;
constexpr std::size_t titleEntry = 94;
constexpr std::size_t tableSize = 128;

constexpr int libraryId = 2;
constexpr int catalogueId = 3;
constexpr int lockMode = 9;

bool copyInto(char* buffer, int size, const std::string& text) {
    if (buffer == nullptr || size <= 0 || text.size() >= static_cast<std::size_t>(size))
        return false;
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    return true;
}

}  // namespace

struct ServiceEntries {
    static int folder(int id, char* buffer, int size) {
        if (g_current == nullptr) return 0;
        const HostSettings& settings = g_current->settings;
        const std::optional<std::string>& path = id == libraryId     ? settings.library
                                                 : id == catalogueId ? settings.catalogue
                                                                     : std::optional<std::string>();
        return path && copyInto(buffer, size, systemPath(asFolder(*path))) ? 1 : 0;
    }

    static const char* variable(const char* name) {
        if (g_current == nullptr || name == nullptr || std::strcmp(name, "DWGNAME") != 0) return "";
        g_current->m_variable = fromUtf8(g_current->settings.drawing.value_or("")).value_or("");
        return g_current->m_variable.c_str();
    }

    static int units() { return g_current == nullptr ? 0 : g_current->settings.units.value_or(0); }

    static int lock(int resource, int mode) {
        if (g_current == nullptr) return 0;
        const HostSettings& settings = g_current->settings;
        const bool isRequest = mode == lockMode;
        int answer = !isRequest              ? 0
                     : resource == libraryId ? settings.libraryLock
                                             : settings.catalogueLock;
        if (settings.sharedLocks && isRequest) answer = g_current->requestShared(resource);
        if (settings.sharedLocks && !isRequest) g_current->releaseShared(resource);
        g_current->lockCalls.push_back({resource, mode, answer});
        return answer;
    }

    static const char** styles(int* count) {
        if (g_current == nullptr || count == nullptr) return nullptr;
        HostServices& host = *g_current;
        host.m_styles.clear();
        host.m_stylePointers.clear();
        for (const std::string& style : host.settings.styles.value_or(std::vector<std::string>())) {
            host.m_styles.push_back(fromUtf8(style).value_or(""));
        }
        for (const std::string& style : host.m_styles)
            host.m_stylePointers.push_back(style.c_str());
        *count = static_cast<int>(host.m_stylePointers.size());
        host.m_stylePointers.push_back(nullptr);
        return host.m_stylePointers.data();
    }

    static const char* title() {
        if (g_current == nullptr) return "";
        g_current->m_title = fromUtf8(g_current->settings.title.value_or("")).value_or("");
        return g_current->m_title.c_str();
    }
};

HostServices::HostServices() : m_table(tableSize, nullptr) {
    g_current = this;
}

HostServices::~HostServices() {
    while (!m_held.empty()) releaseShared(*m_held.begin());
    g_current = nullptr;
}

std::string HostServices::sharedLock(int resource) const {
    const std::optional<std::string>& folder =
        resource == libraryId ? settings.library : settings.catalogue;
    return asFolder(folder.value_or("")) + "lock-" + std::to_string(resource);
}

int HostServices::requestShared(int resource) {
    std::error_code error;
    if (!std::filesystem::create_directory(pathFromUtf8(sharedLock(resource)), error)) return 0;
    m_held.insert(resource);
    return 1;
}

void HostServices::releaseShared(int resource) {
    if (m_held.erase(resource) == 0) return;
    std::error_code error;
    std::filesystem::remove(pathFromUtf8(sharedLock(resource)), error);
}

void HostServices::clearLogs() {
    lockCalls.clear();
    helpTopics.clear();
    helpFile.clear();
}

std::vector<std::string> HostServices::lockLog() const {
    std::vector<std::string> lines;
    for (const LockCall& call : lockCalls) {
        const std::string resource = std::to_string(call.resource);
        const std::string mode = std::to_string(call.mode);
        lines.push_back(call.mode == lockMode ? "request " + resource + " mode " + mode +
                                                    " answer " + std::to_string(call.answer)
                                              : "release " + resource + " code " + mode);
    }
    return lines;
}

void** HostServices::table() {
    if (!settings.services) return nullptr;
    const auto fill = [this](std::size_t entry, bool present, auto function) {
        m_table[entry] = present ? reinterpret_cast<void*>(function) : nullptr;
    };
    fill(folderEntry, settings.folderEntry, &ServiceEntries::folder);
    fill(variableEntry, settings.drawing.has_value(), &ServiceEntries::variable);
    fill(unitsEntry, settings.units.has_value(), &ServiceEntries::units);
    fill(lockEntry, settings.lockEntry, &ServiceEntries::lock);
    fill(stylesEntry, settings.styles.has_value(), &ServiceEntries::styles);
    fill(titleEntry, settings.title.has_value(), &ServiceEntries::title);
    return m_table.data();
}

void** exportTable() {
    return g_current == nullptr ? nullptr : g_current->table();
}

int profilePath(int, char* buffer, int size) {
    if (g_current == nullptr) return 0;
    return copyInto(buffer, size, systemPath(g_current->settings.profile)) ? 1 : 0;
}

int arxProfilePath(int reserved, char* buffer, int size) {
    if (g_current == nullptr || !g_current->settings.arxProfile) {
        return profilePath(reserved, buffer, size);
    }
    return copyInto(buffer, size, systemPath(*g_current->settings.arxProfile)) ? 1 : 0;
}

int htmlHelp(void*, const char* file, unsigned command, std::uintptr_t topic) {
    constexpr unsigned showTopic = 1;
    if (g_current == nullptr || command != showTopic) return 0;
    g_current->helpFile = file == nullptr ? "" : file;
    g_current->helpTopics.push_back(static_cast<int>(topic));
    return 1;
}

}  // namespace lx::host
