// lxhost: the stand-in host without a screen. Plays scenarios, or makes one call that nobody acts
// in.
#include <iostream>

#include "host/driver/headless/headless_driver.h"
#include "host/headless/headless_module.h"
#include "host/options.h"
#include "host/paths.h"

int main(int argc, char** argv) {
    using namespace lx::host;
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    std::error_code noLink;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", noLink);
    const std::string folder =
        utf8FromPath(noLink ? std::filesystem::current_path() : program.parent_path());
    const Options options = parseOptions(arguments, folder);
    if (options.help) {
        std::cout << optionsHelp("lxhost");
        return 0;
    }
    if (!options.error.empty()) {
        std::cerr << options.error << "\nlxhost --help tells what there is." << std::endl;
        return 2;
    }
    if (options.firstPaint > 0) {
        std::cerr << "--first-paint is for VORDANLT.EXE: nothing is painted here" << std::endl;
        return 2;
    }
    lx::HeadlessPlatform platform;
    HeadlessDriver driver(platform);
    HostServices services;
    return runStandIn(options, services, headlessModule(platform, folder), driver, std::cout,
                      std::cerr);
}
