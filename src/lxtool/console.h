// Standard input, output and error of the program, as the commands see them.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text.h"

namespace lx::lxtool {

struct Console {
    std::function<std::optional<Bytes>()> input;  // all of it; none when it cannot be read
    std::function<bool(std::string_view)> output;
    std::function<void(std::string_view)> error;
    bool terminal = false;  // a person sees the standard error
};

// Bytes go through unchanged on every system.
Console systemConsole();

// The program's arguments behind its name, in UTF-8.
std::vector<std::string> programArguments(int argc, char** argv);
// The name of a file as the system's calls take it; none when its code page lacks a character.
std::optional<Path> systemPath(std::string_view utf8);

}  // namespace lx::lxtool
