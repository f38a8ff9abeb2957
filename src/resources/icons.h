// The module's icons, drawn by code at any size and found by their resource numbers.
#pragma once

#include "platform/canvas.h"

namespace lx {

bool iconExists(int number);
// Draws the icon into (0, 0, size); false when there is none of that number. White or transparent
// ground is the canvas's business.
bool paintIcon(Canvas& canvas, int number, Size size);

}  // namespace lx
