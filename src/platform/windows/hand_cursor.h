// The module's own cursor: a pointing hand.
#pragma once

#include <windows.h>

namespace lx {

// The caller destroys it; null when the system refuses.
HCURSOR makeHandCursor(HINSTANCE instance);

}  // namespace lx
