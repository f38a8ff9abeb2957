// The module inside this process: its functions over the headless platform, with the host's own
// modules registered instead of loaded, so that it finds the host as it does in the host's process.
#pragma once

#include <string>

#include "host/player.h"
#include "platform/headless/headless_platform.h"

namespace lx::host {

// programFolder: where VORDANLT.EXE is said to lie. The platform must outlive what is returned, and
// one module is loaded at a time.
ModuleSource headlessModule(HeadlessPlatform& platform, const std::string& programFolder);

}  // namespace lx::host
