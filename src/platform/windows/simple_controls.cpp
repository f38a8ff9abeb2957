#include "platform/windows/simple_controls.h"

#include <algorithm>

#include "platform/windows/gdi_canvas.h"
#include "platform/windows/windows_dialog.h"

namespace lx {

WindowClass WindowsLabel::windowClass() const {
    return {L"STATIC", SS_LEFT};
}

WindowClass WindowsGroupBox::windowClass() const {
    // It paints its frame alone: the dialog's ground leaves out all controls but this kind.
    return {L"BUTTON", BS_GROUPBOX, WS_EX_TRANSPARENT};
}

// ---- push buttons

DWORD WindowsButton::buttonStyle(bool asDefault) const {
    DWORD bits = asDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    if (kind() == ControlKind::iconButton) bits |= BS_ICON;
    return bits;
}

WindowClass WindowsButton::windowClass() const {
    return {L"BUTTON", buttonStyle(hasStyle(style::defaultButton))};
}

void WindowsButton::setIcon(int number) {
    m_icon = number;
    applyIcon();
}

void WindowsButton::applyIcon() {
    if (!window() || kind() != ControlKind::iconButton) return;
    constexpr int margin = 3;  // edge and focus frame
    const Size size = doArea().size();
    const int side =
        std::min({size.width - 2 * margin, size.height - 2 * margin, GetSystemMetrics(SM_CXICON)});
    const HICON icon = side > 0 ? dialog().icons().get(m_icon, {side, side}) : nullptr;
    send(BM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon));
}

void WindowsButton::showAsDefault(bool on) {
    send(BM_SETSTYLE, buttonStyle(on), TRUE);
}

void WindowsButton::command(WORD code) {
    if (code == BN_CLICKED) pressButton(dialog(), *this);
}

LRESULT WindowsButton::message(UINT message, WPARAM wParam, LPARAM lParam) {
    // A second quick press is a press; the system would report it as a double click and drop it.
    if (message == WM_LBUTTONDBLCLK) message = WM_LBUTTONDOWN;
    return ControlCore::message(message, wParam, lParam);
}

Text WindowsButton::describe(DescribeQuestion question, const DescribeRequest&) {
    return question == DescribeQuestion::icon && m_icon ? std::to_string(m_icon) : Text();
}

// ---- icons

WindowClass WindowsIcon::windowClass() const {
    return {L"STATIC", SS_OWNERDRAW};
}

void WindowsIcon::setIcon(int number) {
    m_icon = number;
    redraw();
}

void WindowsIcon::drawItem(const DRAWITEMSTRUCT& item) {
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
    const Size size = portableRect(item.rcItem).size();
    const int side = std::min(size.width, size.height);
    if (m_icon && side > 0) {
        GdiCanvas canvas(item.hDC, dialog().drawingTools());
        canvas.drawIcon(m_icon, {(size.width - side) / 2, (size.height - side) / 2}, {side, side});
    }
}

Text WindowsIcon::describe(DescribeQuestion question, const DescribeRequest&) {
    return question == DescribeQuestion::icon && m_icon ? std::to_string(m_icon) : Text();
}

// ---- check boxes

WindowClass WindowsCheckBox::windowClass() const {
    return {L"BUTTON", BS_AUTOCHECKBOX};
}

void WindowsCheckBox::check(bool on) {
    m_checked = on;
    const Setting guard(*this);
    send(BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED);
}

bool WindowsCheckBox::checked() const {
    return window() ? send(BM_GETCHECK) == BST_CHECKED : m_checked;
}

void WindowsCheckBox::command(WORD code) {
    if (code == BN_CLICKED) fire(onClick);
}

// ---- radio buttons

WindowClass WindowsRadioButton::windowClass() const {
    return {L"BUTTON", BS_RADIOBUTTON};
}

void WindowsRadioButton::attached() {
    send(BM_SETDONTCLICK, TRUE);
    mark(m_checked);
}

void WindowsRadioButton::mark(bool on) {
    m_checked = on;
    const Setting guard(*this);
    send(BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED);
}

void WindowsRadioButton::check(bool on) {
    if (on) {
        for (ControlCore* member : dialog().focusOrder().radioGroup(*this)) {
            if (member != this) static_cast<WindowsRadioButton*>(member)->mark(false);
        }
    }
    mark(on);
}

void WindowsRadioButton::choose() {
    if (m_checked) return;
    check(true);
    fire(onClick);
}

void WindowsRadioButton::command(WORD code) {
    if (code == BN_CLICKED) choose();
}

}  // namespace lx
