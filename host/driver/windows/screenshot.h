// Takes a picture of the screen.
#pragma once

#include <windows.h>

#include <string>

namespace lx::host {

// The part of the screen in which windows of this process stand, with a little around them:
// dialogs, message boxes, popup menus and tooltips. The whole screen when there are none. A PNG
// file's bytes;
// "" when the screen cannot be read.
std::string pictureOfOurWindows();

}  // namespace lx::host
