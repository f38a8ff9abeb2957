// Where the module's own data and the help file lie, worked out once while the module is being
// loaded.
#pragma once

#include "platform/modules.h"

namespace lx {

struct Locations {
    ModuleHandle host = nullptr;  // the host module that was found, or null
    Path dataFolder;              // ends in "DAT" and a separator
    Path helpFile;
};

// Looks modules up, asks the host for the user's profile folder and makes texts, nothing else: it
// runs inside the system's loader.
Locations findLocations(Modules& modules);

}  // namespace lx
