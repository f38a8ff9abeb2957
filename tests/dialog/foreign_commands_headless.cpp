#include <stdexcept>

#include "platform/headless/headless_buttons.h"
#include "platform/headless/headless_list_box.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/headless_tab_control.h"
#include "tests/dialog/foreign_commands.h"

namespace lx {

namespace {

void send(const std::function<void()>& act) {
    try {
        act();
    } catch (const std::logic_error&) {
        // Refused.
    }
}

}  // namespace

void sendEverything(Platform& platform) {
    HeadlessDialog& dialog = *dynamic_cast<HeadlessPlatform&>(platform).topDialog();
    for (HeadlessControl* control : dialog.allControls()) {
        if (auto* button = dynamic_cast<HeadlessButton*>(control))
            send([=] { button->userClick(); });
        if (auto* box = dynamic_cast<HeadlessCheckBox*>(control)) send([=] { box->userClick(); });
        if (auto* list = dynamic_cast<HeadlessListBox*>(control))
            send([=] { list->userSelect(0); });
        if (auto* tabs = dynamic_cast<HeadlessTabControl*>(control)) {
            send([=] { tabs->userSelect(1); });
        }
    }
    for (const int key : {key::tab, key::pageDown}) {
        send([&] { dialog.userKey({key, true, false, false}); });
    }
    send([&] { dialog.userKey({key::enter, false, false, false}); });
    send([&] { dialog.userClose(); });
}

}  // namespace lx
