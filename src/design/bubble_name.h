// The name in the bubble that stands beside a lintel in the drawing.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace lx {

// The name after the last one: its trailing number plus one, of any length.
Text proposeBubbleName(std::string_view last);

// Must begin with a printable ASCII character other than a blank; byte 127 passes.
bool bubbleNameAccepted(std::string_view name);

}  // namespace lx
