// What every command works with, and what it ends with.
#pragma once

#include "lxtool/messages.h"
#include "platform/files.h"

namespace lx::lxtool {

// The program's exit code.
enum class Result { done = 0, failed = 1, wrongUse = 2 };

struct Session {
    Files& files;
    const Console& console;
    Messages messages{console};
};

// The name of standard input and output.
inline constexpr std::string_view standardStream = "-";

// The bytes of a file or of standard input; none when they cannot be read, which is told.
std::optional<Bytes> readInput(Session& session, std::string_view name);
// The name as the system takes it; none, told, when it cannot be one there.
std::optional<Path> pathOf(Session& session, std::string_view name);

}  // namespace lx::lxtool
