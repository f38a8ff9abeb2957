// The module's icons, drawn by code at any size and found by their resource numbers.
#pragma once

#include "platform/canvas.h"
#include "platform/controls.h"

namespace lx {

namespace icon {
// Section shapes: shape n is icon shapeBase + n for n from 1 to 6.
inline constexpr int shapeBase = 1000;

// Bend presets of the lintel head, none to 5 bends.
inline constexpr int bends[] = {1991, 2066, 2070, 2071, 2017, 2018};

inline constexpr int add = 1997;
inline constexpr int remove = 1998;
inline constexpr int space = 1999;
inline constexpr int steel = 2004;
inline constexpr int ascending = ascendingIcon;
inline constexpr int descending = descendingIcon;
inline constexpr int module = 2019;
inline constexpr int insulation = 2063;
inline constexpr int monolith = 2073;
inline constexpr int mirror = 2100;  // the section preview's mirror button
}  // namespace icon

bool iconExists(int number);
// Draws the icon into (0, 0, size); false when there is none of that number. Only the strokes and
// areas of the icon are drawn: what lies between them keeps the canvas's ground.
bool paintIcon(Canvas& canvas, int number, Size size);

}  // namespace lx
