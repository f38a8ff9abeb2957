#include "platform/headless/headless_buttons.h"

#include "platform/headless/headless_dialog.h"

namespace lx {

void HeadlessButton::press() {
    pressButton(*m_dialog, *this);
}

void HeadlessButton::userClick() {
    if (kind() == ControlKind::icon) refuse("an icon cannot be pressed");
    checkReachable("be pressed");
    clickFocus();
    // The field that lost the focus may have disabled the button or closed the dialog: the click is
    // lost then, as on a screen.
    if (m_dialog->root().running() && shown() && usable()) press();
    settle();
}

void HeadlessCheckBox::press() {
    m_checked = !m_checked;
    callCopy(onClick);
}

void HeadlessCheckBox::userClick() {
    checkReachable("be ticked");
    clickFocus();
    if (m_dialog->root().running() && shown() && usable()) press();
    settle();
}

void HeadlessRadioButton::check(bool on) {
    if (on) {
        for (HeadlessControl* member : m_dialog->focusOrder().radioGroup(*this)) {
            static_cast<HeadlessRadioButton*>(member)->m_checked = false;
        }
    }
    m_checked = on;
}

void HeadlessRadioButton::press() {
    if (m_checked) return;
    check(true);
    callCopy(onClick);
}

void HeadlessRadioButton::userClick() {
    checkReachable("be chosen");
    clickFocus();
    if (m_dialog->root().running() && shown() && usable()) press();
    settle();
}

}  // namespace lx
