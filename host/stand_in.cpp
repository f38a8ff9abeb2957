// A stand-in program from its options to its exit code.
#include <filesystem>
#include <ostream>
#include <stdexcept>

#include "host/options.h"
#include "host/player.h"

namespace lx::host {

namespace {

constexpr int allHeld = 0;
constexpr int expectationFailed = 1;
constexpr int nothingRun = 2;

int playAll(const Options& options, HostServices& services, const ModuleSource& module,
            Driver& driver, std::ostream& output, std::ostream& errors) {
    Player player(services, module, driver, {options.out, options.data}, output, options.chance);
    int code = allHeld;
    for (const std::string& scenario : options.scenarios) {
        output << scenario << std::endl;
        if (player.play(scenario)) {
            output << "held\n" << std::flush;
        } else {
            errors << player.failure() << std::endl;
            code = expectationFailed;
        }
    }
    return code;
}

// This host has no drawing to keep the design in, and the next call would take up what lies there.
void takeHandOver() {
    std::error_code ignored;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(ignored);
    std::filesystem::remove(folder / "LXDATA6I.tmp", ignored);
}

int callOnce(Options& options, HostServices& services, const ModuleSource& module, Driver& driver,
             std::ostream& output, std::ostream& errors) {
    const std::string problem = prepareFolders(options);
    if (!problem.empty()) {
        errors << problem << std::endl;
        return nothingRun;
    }
    services.settings = options.host;
    try {
        const ModuleCalls calls = module.load(services.settings);
        module.call(services.settings, [&](void* owner) {
            const CallOutcome outcome = run(calls, *options.call, owner);
            output << report(outcome);
            const bool designed = outcome.function == Function::design;
            if (designed && outcome.result == LX_DIALOG_OK) takeHandOver();
        });
        for (const int topic : services.helpTopics) output << "help topic " << topic << "\n";
        for (const std::string& line : services.lockLog()) output << "lock " << line << "\n";
        output << std::flush;
        // Without a screen there is no user but a scenario.
        const std::string abandoned = driver.abandoned();
        if (!abandoned.empty()) errors << "cancelled, as nobody acts: " << abandoned << std::endl;
    } catch (const std::runtime_error& error) {
        errors << error.what() << std::endl;
        return nothingRun;
    }
    module.unload();
    return allHeld;
}

}  // namespace

int runStandIn(Options options, HostServices& services, const ModuleSource& module, Driver& driver,
               std::ostream& output, std::ostream& errors) {
    if (options.scenarios.empty())
        return callOnce(options, services, module, driver, output, errors);
    return playAll(options, services, module, driver, output, errors);
}

}  // namespace lx::host
