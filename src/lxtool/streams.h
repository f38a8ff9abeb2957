// What the systems do differently about the standard streams.
#pragma once

namespace lx::lxtool {

// Line ends go through as they are.
void makeStreamsBinary();
bool errorIsTerminal();

}  // namespace lx::lxtool
