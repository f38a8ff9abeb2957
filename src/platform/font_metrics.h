// Text metrics of a font that is made up: the same on every machine, so that a layout without a
// screen, and what is drawn without one, can be compared.
#pragma once

#include "platform/canvas.h"

namespace lx {

// px
int fontHeight(const Font& font);

// Each character has its share of the height, narrow, normal or wide; a font with a width of its
// own scales them. px
Size measuredText(const Font& font, std::string_view text);

}  // namespace lx
