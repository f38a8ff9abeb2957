// Version of the module, for its version resource. Plain macros, since the resource compiler reads
// them.
#pragma once

#define LX_VERSION_MAJOR 1
#define LX_VERSION_MINOR 0
#define LX_VERSION_PATCH 0
#define LX_VERSION_TEXT "1.0.0"
