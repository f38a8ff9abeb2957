// What a test stands on: a platform, a user who acts on it, a host whose answers can be set, and a
// folder of its own. The same source runs on the headless platform and on real windows.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/driver/driver.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/platform.h"
#include "tests/support/session.h"

namespace lx {

using host::Driver;
using host::DriverError;
using host::RowLook;
using host::ScreenArea;
using host::ScreenPoint;
using host::ScreenSize;

// With the system's own separators.
inline constexpr std::string_view separator =
#if defined(_WIN32)
    "\\";
#else
    "/";
#endif

// A host of plain members: tests set what it answers and read what it was asked.
class FakeHost : public Host {
public:
    using Lock = std::pair<HostResource, int>;  // with the mode, or the code of a release

    // ---- answers
    bool hasServices = true;        // false: no service table, so nothing below but data is told
    std::optional<Path> library;    // none: the folder lookup fails
    std::optional<Path> catalogue;  // none: the folder lookup fails
    Path data;
    std::map<HostResource, int> lockAnswer{{HostResource::library, 1},
                                           {HostResource::catalogue, 1}};
    Text titleText = "Stand-in";
    std::map<std::string, Text> variables;
    int units = 1000;
    std::vector<Text> styles;
    std::function<void()> beforeLock = [] {};  // what happens until it is granted

    // ---- what it was asked, in order
    std::vector<Lock> lockRequests;
    std::vector<Lock> lockReleases;
    std::vector<int> helpTopics;

    std::optional<Path> folderWithin(HostFolder id, int) override {
        if (!hasServices) return std::nullopt;
        return id == HostFolder::library ? library : catalogue;
    }
    const Path& dataFolder() const override { return data; }
    bool present() override { return hasServices; }
    int requestLock(HostResource resource, int mode) override {
        beforeLock();
        lockRequests.emplace_back(resource, mode);
        return lockAnswer[resource];
    }
    void releaseLock(HostResource resource, int code) override {
        lockReleases.emplace_back(resource, code);
    }
    Text hostTitle() override { return hasServices ? titleText : "ERROR"; }
    Text variable(const char* name) override { return hasServices ? variables[name] : Text(); }
    int unitsPerMetre() override { return hasServices ? units : 0; }
    std::vector<Text> textStyles() override { return hasServices ? styles : std::vector<Text>(); }
    int showHelp(int topic) override {
        helpTopics.push_back(topic);
        return 1;
    }
};

// Makes its folder, fresh and empty, with the subfolders below; makes temporary files of this
// process go there; removes all of it at the end. The host answers with these folders at first.
// Make one Bench at a time.
class Bench {
public:
    Bench();
    ~Bench();
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    Platform& platform() { return *m_platform; }
    Files& files() { return systemFiles(); }
    FakeHost& host() { return m_host; }
    // The user: steps to be done in the dialogs that the test is about to open.
    Session& user() { return *m_user; }
    Driver& driver() { return *m_driver; }

    // Each ends in a separator.
    const Path& folder() const { return m_folder; }
    Path dataFolder() const { return subfolder("DAT"); }
    Path libraryFolder() const { return subfolder("library"); }
    Path catalogueFolder() const { return subfolder("catalogue"); }
    Path temporaryFolder() const { return subfolder("temp"); }

    // Whole files; write creates or replaces. read gives none when there is no such file.
    void write(const Path& path, std::string_view bytes);
    std::optional<Bytes> read(const Path& path);

private:
    Path subfolder(const char* name) const { return m_folder + name + std::string(separator); }

    Path m_before;  // the temporary folder
    Path m_folder;
    FakeHost m_host;
    std::unique_ptr<Platform> m_platform;
    std::unique_ptr<Driver> m_driver;
    std::unique_ptr<Session> m_user;
};

// Types over the whole text of a field.
inline void retype(Driver& d, std::string_view field, std::string_view text) {
    d.focus(field);
    d.key("Ctrl+A");
    d.key("Delete");
    d.type(text);
}

// Of this platform.
std::unique_ptr<Platform> makeTestPlatform();
std::unique_ptr<Driver> makeTestDriver(Platform& platform);
// Sets (or, with none, removes) the environment variables that name the system's temporary folder.
void setTemporaryFolder(const std::optional<Path>& folder);
// A number that no other process has now.
unsigned long processNumber();

}  // namespace lx
