// Between the module's bytes in code page 1250 and the system's UTF-16. One byte is always one
// UTF-16 unit, so positions and lengths in a text are the same on both sides.
#pragma once

#include <string>
#include <string_view>

#include "platform/text.h"

namespace lx {

std::wstring wide(std::string_view text);
// Units that code page 1250 lacks are left out.
Text narrow(std::wstring_view text);
// True when narrow loses nothing of the text.
bool fitsCodePage(std::wstring_view text);

}  // namespace lx
