// How long the design dialog takes from the host's call until it stands on the screen.
#pragma once

#include <iosfwd>

#include "host/host_services.h"
#include "host/options.h"
#include "host/player.h"

namespace lx::host {

// Makes options.firstPaint design calls, cancels each once nothing is left to be painted, and
// writes the least, median and greatest time from the call to the end of the last paint before
// that. The program's exit code.
int tellFirstPaint(Options options, HostServices& services, const ModuleSource& module,
                   std::ostream& output, std::ostream& errors);

}  // namespace lx::host
