// Another program that does not wait until a dialog is there.
#pragma once

#include "platform/platform.h"

namespace lx {

// Sends clicks, keys, choices and the end to the dialog made last and to all that stands in it.
void sendEverything(Platform& platform);

}  // namespace lx
