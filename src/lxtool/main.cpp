#include "lxtool/command_line.h"

int main(int argc, char** argv) {
    using namespace lx::lxtool;
    const Console console = systemConsole();
    return static_cast<int>(run(programArguments(argc, argv), console, lx::systemFiles()));
}
