#include <unistd.h>

#include "lxtool/console.h"
#include "lxtool/streams.h"

namespace lx::lxtool {

void makeStreamsBinary() {}

bool errorIsTerminal() {
    return ::isatty(STDERR_FILENO) != 0;
}

std::vector<std::string> programArguments(int argc, char** argv) {
    return {argv + 1, argv + argc};
}

std::optional<Path> systemPath(std::string_view utf8) {
    return Path(utf8);
}

}  // namespace lx::lxtool
