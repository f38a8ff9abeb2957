// lxdata6dlg.dll in this process, as a host loads it, with the host's other modules beside it.
#pragma once

#include <string>

#include "host/player.h"

namespace lx::host {

// The modules lie in programFolder (UTF-8). One is loaded at a time.
ModuleSource moduleFromFile(const std::string& programFolder);

// False while a scenario wants no vdhelp.dll: that library then refuses to be loaded.
bool helpLibraryWanted();

}  // namespace lx::host
