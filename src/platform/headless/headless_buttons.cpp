#include "platform/headless/headless_buttons.h"

#include <algorithm>

#include "platform/headless/headless_dialog.h"
#include "platform/headless/svg_area.h"

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

// ---- looks

void HeadlessButton::draw(SvgArea& area) const {
    if (kind() != ControlKind::icon) {
        area.fill(SvgArea::pressable);
        area.frameOfField(focused() || m_dialog->defaultButton() == this);
    }
    if (kind() == ControlKind::button) {
        area.centred(plainText(), ink());
    } else if (m_icon) {
        const int side = std::min({area.width() - 4, area.height() - 4, 32});
        area.icon(m_icon, {(area.width() - side) / 2, (area.height() - side) / 2}, {side, side});
        if (!usable()) area.line({0, area.height()}, {area.width(), 0}, SvgArea::grey);
    }
}

namespace {

// Of a check box or radio button.
constexpr int textLeft = 17;

// The box before the text of what can be ticked or chosen; answers its top.
int drawBox(SvgArea& area, Color ink) {
    const int top = (area.height() - 13) / 2;
    const Rect box{1, top, 13, top + 12};
    area.fill(box, SvgArea::paper);
    area.frame(box, ink);
    return top;
}

}  // namespace

void HeadlessCheckBox::draw(SvgArea& area) const {
    const int top = drawBox(area, ink());
    if (m_checked) {
        area.line({3, top + 6}, {6, top + 10}, ink());
        area.line({6, top + 10}, {11, top + 2}, ink());
    }
    area.text({textLeft, area.middleLine()}, plainText(), ink());
}

void HeadlessRadioButton::draw(SvgArea& area) const {
    const int top = drawBox(area, ink());
    if (m_checked) area.fill({4, top + 3, 10, top + 9}, ink());
    area.text({textLeft, area.middleLine()}, plainText(), ink());
}

}  // namespace lx
