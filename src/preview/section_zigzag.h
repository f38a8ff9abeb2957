// The zigzag that fills insulation.
#pragma once

#include "platform/canvas.h"

namespace lx {

// Upward from start in steps of that many pixels, touching the right side (two steps away) and the
// left side in turn, as long as it stays below top; nothing for steps under 8. What lies above or
// below a picture of that height is left out, so that no layer takes long.
void drawZigzag(Canvas& canvas, Point start, int top, int step, int pictureHeight);

}  // namespace lx
