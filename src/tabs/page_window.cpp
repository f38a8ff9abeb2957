#include "tabs/page_window.h"

namespace lx {

std::unique_ptr<Dialog> makePageWindow(DesignServices& services, const DialogTemplate& layout) {
    return services.context().platform.createDialog(layout, Owner{&services.window(), nullptr});
}

void dress(Button& button, int icon, std::string_view tooltip) {
    button.setIcon(icon);
    button.setTooltip([tooltip] { return Text(tooltip); });
}

void enableOrLeave(Button& button, bool on, Control& instead) {
    if (!on && button.focused() && instead.enabled()) instead.focus();
    button.enable(on);
}

}  // namespace lx
