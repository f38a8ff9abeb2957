// A dialog of the headless platform as a picture to look at.
#pragma once

#include <string>

#include "platform/headless/headless_dialog.h"

namespace lx {

// The window with its controls, rows, shown pages and pictures as an SVG document.
std::string dialogSvg(const HeadlessDialog& dialog);

}  // namespace lx
