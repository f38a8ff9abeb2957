// The zigzag that fills insulation in the folded section.
#pragma once

#include "platform/canvas.h"

namespace lx {

// To the left from start, on the layer's first edge, in steps of that many pixels down to end: a
// step along the edge, then across to the other side (two steps up) and back in turn; nothing for
// steps under 8. What lies beside a picture of that width is left out, so that no layer takes long.
void drawPlanZigzag(Canvas& canvas, Point start, int end, int step, int pictureWidth);

}  // namespace lx
