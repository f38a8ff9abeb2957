#include <unistd.h>

#include <cstdlib>

#include "host/driver/headless/headless_driver.h"
#include "platform/headless/headless_platform.h"
#include "tests/support/bench.h"

namespace lx {

std::unique_ptr<Platform> makeTestPlatform() {
    return std::make_unique<HeadlessPlatform>();
}

std::unique_ptr<Driver> makeTestDriver(Platform& platform) {
    return std::make_unique<host::HeadlessDriver>(dynamic_cast<HeadlessPlatform&>(platform));
}

void setTemporaryFolder(const std::optional<Path>& folder) {
    if (folder) {
        setenv("TMPDIR", folder->c_str(), 1);
    } else {
        unsetenv("TMPDIR");
    }
}

unsigned long processNumber() {
    return static_cast<unsigned long>(getpid());
}

}  // namespace lx
