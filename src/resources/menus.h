// The menus of the dialogs.
#pragma once

#include "platform/dialog_template.h"

namespace lx {

// Commands on the design; opens over the section preview.
Menu designMenu();

}  // namespace lx
