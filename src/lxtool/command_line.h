// The program: what its arguments mean, and the command that they name.
#pragma once

#include <string>
#include <vector>

#include "lxtool/session.h"

namespace lx::lxtool {

// Arguments in UTF-8, without the program's name.
Result run(const std::vector<std::string>& arguments, const Console& console, Files& files);

}  // namespace lx::lxtool
