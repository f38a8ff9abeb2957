// Plays scenarios: reads one line after another, sets the host up, calls the module, acts in its
// dialogs and compares what is there with what is expected.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "host/calls.h"
#include "host/chance.h"
#include "host/driver/driver.h"
#include "host/host_services.h"

namespace lx::host {

// How the module comes into the process. load is called before the first call of a scenario and
// after each "unload", when folders and host are set up; it may throw std::runtime_error.
struct ModuleSource {
    std::function<ModuleCalls(const HostSettings& settings)> load;
    std::function<void()> unload;
    // Makes a call as this host does, owned by the window that the settings name, which it hands
    // on; without a function there is none.
    std::function<void(const HostSettings& settings, const std::function<void(void* owner)>& call)>
        callFrom;
    // What the host's own windows are like, one an item: "window disabled", "dialog enabled
    // active".
    std::function<std::vector<std::string>()> windows;

    void call(const HostSettings& settings, const std::function<void(void* owner)>& make) const {
        callFrom ? callFrom(settings, make) : make(nullptr);
    }
};

struct PlayerFolders {
    std::string out;   // a scenario "first.scenario" works in out/first, which is emptied first
    std::string data;  // the sample data
};

class Player {
public:
    Player(HostServices& services, ModuleSource module, Driver& driver, PlayerFolders folders,
           std::ostream& output, const Chance& chance = {});
    ~Player();
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    // Plays one file (UTF-8 name); the module is unloaded at its end. False when an expectation or
    // a line failed: failure() then says "file:line: what was expected, what was there", and the
    // rest of that scenario was left out.
    bool play(const std::string& file);
    const std::string& failure() const;

private:
    class Run;

    HostServices& m_services;
    ModuleSource m_module;
    Driver& m_driver;
    PlayerFolders m_folders;
    std::ostream& m_output;
    Chance m_chance;
    std::string m_failure;
};

// The whole of a stand-in program behind its platform: plays the scenarios or makes the call of the
// options, prints what came out, and gives the process's exit code: 0 all held, 1 a scenario
// failed, 2 the call could not be made.
struct Options;
int runStandIn(Options options, HostServices& services, const ModuleSource& module, Driver& driver,
               std::ostream& output, std::ostream& errors);

}  // namespace lx::host
