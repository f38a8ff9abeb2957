// What a dialog's window is told by the system.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdlib>

#include "platform/windows/simple_controls.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_dialog.h"
#include "platform/windows/windows_platform.h"

namespace lx {

INT_PTR CALLBACK WindowsDialog::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        SetWindowLongPtrW(window, DWLP_USER, lParam);
        reinterpret_cast<WindowsDialog*>(lParam)->m_window = window;
        return FALSE;  // the focus is not the system's to give
    }
    auto* self = reinterpret_cast<WindowsDialog*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!self) return FALSE;
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(window, DWLP_USER, 0);
        self->m_window = nullptr;
        return FALSE;
    }
    try {
        LRESULT result = 0;
        if (!self->handle(message, wParam, lParam, result)) return FALSE;
        SetWindowLongPtrW(window, DWLP_MSGRESULT, result);
        return TRUE;
    } catch (...) {
        self->failed();
    }
    return FALSE;
}

bool WindowsDialog::handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (message == WM_DESTROY) {
        aboutToGo();
        return false;
    }
    if (!m_ready) return false;
    if (message != 0 && message == m_platform.describeMessage()) {
        const auto* request = reinterpret_cast<const DescribeRequest*>(lParam);
        if (!request) return false;
        result =
            answerDescribe(*request, describeSelf(static_cast<DescribeQuestion>(wParam), *request));
        return true;
    }
    const auto answer = m_answers.find(message);
    if (answer != m_answers.end()) {
        result = answer->second;
        return true;
    }
    return root().reflect(message, wParam, lParam, result) ||
           handleState(message, wParam, lParam, result) || handleMouse(message, lParam);
}

bool WindowsDialog::handleState(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
        case WM_COMMAND:
            handleCommand(LOWORD(wParam));
            return true;
        case WM_NOTIFY:
            return handleNotify(*reinterpret_cast<NMHDR*>(lParam), result);
        case WM_NEXTDLGCTL:
            if (LOWORD(lParam)) {
                focusByUser(root().controlOf(reinterpret_cast<HWND>(wParam)));
            } else {
                WindowsDialog& top = root();
                top.perform(top.focusOrder().tab(top.m_focus, wParam != 0));
            }
            return true;
        case WM_CLOSE:
            if (!isPage() && stands() && IsWindowEnabled(m_window)) perform(focusOrder().escape());
            return true;
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) sizeChanged();
            return false;
        case WM_ACTIVATE:
            return LOWORD(wParam) != WA_INACTIVE && !HIWORD(wParam) && activated();
        case WM_TIMER:
            if (stands()) fire(onTimer, static_cast<int>(wParam));
            return true;
        case WM_GETMINMAXINFO:
            if (m_minimumSize.width > 0) {
                reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {m_minimumSize.width,
                                                                         m_minimumSize.height};
            }
            return true;
        case WM_SETCURSOR:
            result = TRUE;
            return reinterpret_cast<HWND>(wParam) == m_window && LOWORD(lParam) == HTCLIENT &&
                   showCursor();
        case DM_GETDEFID: {
            const WindowsButton* button = root().defaultButton();
            result = button ? MAKELRESULT(button->id(), DC_HASDEFID) : 0;
            return true;
        }
        default:
            return false;
    }
}

// A command that no control's window sent: a menu's, or a button's number from elsewhere, which
// then works like a click.
void WindowsDialog::handleCommand(int command) {
    if (!stands() || !IsWindowEnabled(root().m_window)) return;
    if (m_menu.get() &&
        GetMenuState(m_menu.get(), static_cast<UINT>(command), MF_BYCOMMAND) != ~0U) {
        if (commandAvailable(m_menu.get(), command)) fire(onCommand, command);
        return;
    }
    const auto found =
        std::find_if(m_controls.begin(), m_controls.end(), [command](const auto& control) {
            return control->number() == command && dynamic_cast<WindowsButton*>(control.get());
        });
    if (found != m_controls.end()) {
        if ((*found)->isEnabled() && (*found)->isReachable()) (*found)->commandArrived(BN_CLICKED);
    } else if (command == id::cancel && !isPage()) {
        perform(focusOrder().escape());
    }
}

bool WindowsDialog::reflect(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
        case WM_COMMAND: {
            ControlCore* control = controlOf(reinterpret_cast<HWND>(lParam));
            if (!control) return false;
            // Buttons cannot be pressed by a message either while the user could not press them.
            const bool pressable = dynamic_cast<WindowsButton*>(control) ||
                                   control->kind() == ControlKind::checkBox ||
                                   control->kind() == ControlKind::radioButton;
            if (pressable && HIWORD(wParam) == BN_CLICKED &&
                (!control->isEnabled() || !control->isReachable() || !IsWindowEnabled(m_window))) {
                return true;
            }
            control->commandArrived(HIWORD(wParam));
            return true;
        }
        case WM_NOTIFY: {
            const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
            ControlCore* control = controlOf(header.hwndFrom);
            const auto answer = control ? control->notified(header) : std::nullopt;
            result = answer.value_or(0);
            return answer.has_value();
        }
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
            ControlCore* control = item.CtlType == ODT_MENU ? nullptr : controlOf(item.hwndItem);
            if (!control) return false;
            control->drawItem(item);
            result = TRUE;
            return true;
        }
        case WM_NOTIFYFORMAT:
            if (lParam != NF_QUERY) return false;
            result = NFR_UNICODE;
            return true;
        default:
            return false;
    }
}

bool WindowsDialog::handleNotify(NMHDR& header, LRESULT& result) {
    WindowsDialog& top = root();
    if (header.hwndFrom != top.m_tooltip || header.code != TTN_GETDISPINFOW) return false;
    const ControlCore* control = top.controlOf(reinterpret_cast<HWND>(header.idFrom));
    top.m_tooltipText = wide(control ? control->tooltipText() : Text());
    reinterpret_cast<NMTTDISPINFOW&>(header).lpszText = top.m_tooltipText.data();
    result = 0;
    return true;
}

void WindowsDialog::sizeChanged() {
    const Size now = clientArea().size();
    if (now == m_clientSize) return;
    m_clientSize = now;
    fire(onSize, now);
}

// The window came to the front: the focus goes where it was, or where it was sent meanwhile.
bool WindowsDialog::activated() {
    if (!m_focus || !m_focus->isEnabled() || !m_focus->isReachable()) return false;
    SetFocus(m_focus->window());
    return true;
}

bool WindowsDialog::handleMouse(UINT message, LPARAM lParam) {
    const Point p{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    const auto ask = [this, &p](const std::function<bool(Point)>& handler) {
        const auto copy = handler;
        return stands() && copy && copy(p);
    };
    switch (message) {
        case WM_LBUTTONDOWN:
            return ask(onLeftDown);
        case WM_LBUTTONUP:
            return ask(onLeftUp);
        case WM_MOUSEMOVE:
            return ask(onMouseMove);
        case WM_CAPTURECHANGED:
            if (std::exchange(m_capturing, false)) fire(onCaptureLost);
            return true;
        default:
            return false;
    }
}

CursorShape WindowsDialog::cursorAt(Point p) const {
    const auto ask = onCursor;
    const std::optional<CursorShape> shape = ask ? ask(p) : std::nullopt;
    return shape.value_or(CursorShape::arrow);
}

bool WindowsDialog::showCursor() {
    POINT at = {};
    GetCursorPos(&at);
    ScreenToClient(m_window, &at);
    const CursorShape shape = cursorAt({static_cast<int>(at.x), static_cast<int>(at.y)});
    if (shape == CursorShape::arrow) return false;
    SetCursor(platform().cursor(shape));
    return true;
}

// point: "x y" in the client area, or null.
CursorShape WindowsDialog::cursorOver(const char* point) const {
    if (!point) return CursorShape::arrow;
    char* rest = nullptr;
    const long x = std::strtol(point, &rest, 10);
    const long y = std::strtol(rest, nullptr, 10);
    return cursorAt({static_cast<int>(x), static_cast<int>(y)});
}

Text WindowsDialog::describeSelf(DescribeQuestion question, const DescribeRequest& request) {
    switch (question) {
        case DescribeQuestion::isOurs:
            return m_name;
        case DescribeQuestion::icon:
            return m_icon ? std::to_string(m_icon) : Text();
        case DescribeQuestion::cursor:
            return cursorName(cursorOver(request.topic));
        case DescribeQuestion::topic: {
            const auto ask = onDescribe;
            return ask && request.topic ? ask(request.topic) : Text();
        }
        default:
            return {};
    }
}

}  // namespace lx
