// The menus of the dialogs.
#pragma once

#include "platform/dialog_template.h"

namespace lx {

// Commands on the design; opens over the section preview.
Menu designMenu();

// The catalogue browser's menu bar.
Menu precastCatalogueMenu();
Menu steelCatalogueMenu();
// The popup menus of its two lists.
Menu typesPopup();
Menu itemsPopup();

}  // namespace lx
