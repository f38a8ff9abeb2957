// What the pages have in common: their child window, icon buttons with a tooltip.
#pragma once

#include <memory>

#include "design/design_services.h"

namespace lx {

std::unique_ptr<Dialog> makePageWindow(DesignServices& services, const DialogTemplate& layout);

// The tooltip must be a text that lasts.
void dress(Button& button, int icon, std::string_view tooltip);

// Enables the button or, when it goes, first leads the focus from it to another control.
void enableOrLeave(Button& button, bool on, Control& instead);

}  // namespace lx
