#include <windows.h>

#include "host/driver/windows/windows_driver.h"
#include "platform/windows/make_platform.h"
#include "tests/support/bench.h"

namespace lx {

std::unique_ptr<Platform> makeTestPlatform() {
    return makeWindowsPlatform(GetModuleHandleW(nullptr));
}

std::unique_ptr<Driver> makeTestDriver(Platform&) {
    return std::make_unique<host::WindowsDriver>();
}

void setTemporaryFolder(const std::optional<Path>& folder) {
    for (const char* name : {"TMP", "TEMP"}) {
        SetEnvironmentVariableA(name, folder ? folder->c_str() : nullptr);
    }
}

unsigned long processNumber() {
    return GetCurrentProcessId();
}

}  // namespace lx
