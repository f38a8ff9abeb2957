#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "host/driver/windows/keyboard.h"
#include "host/driver/windows/lists.h"
#include "host/driver/windows/menu_paths.h"
#include "host/driver/windows/stepper.h"
#include "host/driver/windows/window_tools.h"
#include "host/driver/windows/windows_driver.h"

// What a user does to controls: everything is posted, so that the modal loop that is running sees
// it as it sees a user.
namespace lx::host {

namespace {

LPARAM asPosition(POINT p) {
    return MAKELPARAM(p.x, p.y);
}

void postClick(HWND window, POINT p, WPARAM held = 0) {
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON | held, asPosition(p));
    PostMessageW(window, WM_LBUTTONUP, held, asPosition(p));
}

void postDoubleClick(HWND window, POINT p) {
    postClick(window, p);
    PostMessageW(window, WM_LBUTTONDBLCLK, MK_LBUTTON, asPosition(p));
    PostMessageW(window, WM_LBUTTONUP, 0, asPosition(p));
}

void postRightClick(HWND window, POINT p) {
    PostMessageW(window, WM_RBUTTONDOWN, MK_RBUTTON, asPosition(p));
    PostMessageW(window, WM_RBUTTONUP, 0, asPosition(p));
}

// One Enter for each line end, however it is written.
std::wstring withSingleLineEnds(std::wstring_view text) {
    std::wstring result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != L'\r' || i + 1 == text.size() || text[i + 1] != L'\n') result += text[i];
    }
    return result;
}

// The control in that window that the mouse would meet there; labels and frames let it through.
HWND childAt(HWND window, POINT p) {
    MapWindowPoints(window, nullptr, &p, 1);
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        RECT area{};
        GetWindowRect(child, &area);
        const Kind kind = kindOf(child);
        if (IsWindowVisible(child) && PtInRect(&area, p) && kind != Kind::label &&
            kind != Kind::groupBox && kind != Kind::icon) {
            return child;
        }
    }
    return nullptr;
}

bool isChecked(HWND box) {
    return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

}  // namespace

// ---- buttons and boxes

void WindowsDriver::press(ControlName button) {
    const HWND window = reachable(button, "press");
    if (!isPushButton(window) && kindOf(window) != Kind::checkBox &&
        kindOf(window) != Kind::radioButton) {
        throw DriverError("press " + quotedName(button) + ": a " + kindName(kindOf(window)) +
                          " cannot be pressed");
    }
    PostMessageW(window, BM_CLICK, 0, 0);
    m_stepper->rest();
}

void WindowsDriver::check(ControlName box, bool on) {
    const HWND window = reachable(box, "check");
    const Kind kind = kindOf(window);
    if (kind != Kind::checkBox && kind != Kind::radioButton) {
        throw DriverError("check " + quotedName(box) + ": a " + kindName(kind) +
                          " cannot be checked");
    }
    if (isChecked(window) == on) return;
    if (!on && kind == Kind::radioButton) {
        throw DriverError("check " + quotedName(box) + ": a radio button cannot be cleared");
    }
    PostMessageW(window, BM_CLICK, 0, 0);
    m_stepper->rest();
}

bool WindowsDriver::checked(ControlName box) {
    return isChecked(control(box));
}

// ---- lists

HWND WindowsDriver::list(ControlName name, int row) {
    const HWND window = control(name);
    if (!isList(window)) {
        throw DriverError(quotedName(name) + " is a " + kindName(kindOf(window)) + ", not a list");
    }
    if (row >= rowCountOf(window) || row < 0) {
        throw DriverError("row " + std::to_string(row) + " of " + quotedName(name) +
                          ": the list has " + std::to_string(rowCountOf(window)) + " rows");
    }
    return window;
}

HWND WindowsDriver::listView(ControlName name) {
    const HWND window = control(name);
    if (kindOf(window) != Kind::listView) {
        throw DriverError(quotedName(name) + " is a " + kindName(kindOf(window)) +
                          ", which has no headings");
    }
    return window;
}

void WindowsDriver::selectRow(ControlName name, std::string_view row) {
    const HWND window = control(name);
    if (isList(window)) {
        const int found = rowOf(window, row);
        if (found >= 0) {
            selectRowAt(name, found);
            return;
        }
        std::string rows;
        for (int i = 0; i < std::min(rowCountOf(window), 30); ++i) {
            rows += "\n" + rowTextOf(window, i);
        }
        throw DriverError("there is no row " + quotedName(row) + " in " + quotedName(name) +
                          "; its rows are" + rows);
    }
    throw DriverError(quotedName(name) + " is a " + kindName(kindOf(window)) + ", not a list");
}

void WindowsDriver::selectRowAt(ControlName name, int row) {
    reachable(name, "select a row of");
    const HWND window = list(name, row);
    if (kindOf(window) == Kind::comboBox) {
        pickInCombo(window, row);
        return;
    }
    postClick(window, pointInRow(window, row));
    m_stepper->rest();
}

// Opens the list and clicks the row.
void WindowsDriver::pickInCombo(HWND combo, int row) {
    if (GetFocus() != combo && !IsChild(combo, GetFocus())) {
        m_stepper->act([combo] { SetFocus(combo); });
    }
    m_stepper->act([combo] { SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0); });
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (!GetComboBoxInfo(combo, &info) || !IsWindowVisible(info.hwndList)) {
        throw DriverError("the list of " + describeControl(combo) + " did not open");
    }
    const POINT p = pointInRow(info.hwndList, row);
    PostMessageW(info.hwndList, WM_MOUSEMOVE, 0, asPosition(p));
    postClick(info.hwndList, p);
    m_stepper->rest();
}

void WindowsDriver::addRowAt(ControlName name, int row) {
    const HWND window = reachable(name, "select a row of");
    list(name, row);
    const HeldKeys held(KeyPress{0, true, false, false});
    postClick(window, pointInRow(window, row), MK_CONTROL);
    m_stepper->rest();
}

void WindowsDriver::doubleClickRow(ControlName name, int row) {
    const HWND window = reachable(name, "double-click a row of");
    list(name, row);
    postDoubleClick(window, pointInRow(window, row));
    m_stepper->rest();
}

void WindowsDriver::doubleClickGround(ControlName name) {
    const HWND window = listView(name);
    reachable(name, "double-click the ground of");
    const std::optional<POINT> p = pointBelowRows(window);
    if (!p) throw DriverError("the rows of " + quotedName(name) + " leave no ground");
    postDoubleClick(window, *p);
    m_stepper->rest();
}

void WindowsDriver::rightClickRow(ControlName name, int row) {
    const HWND window = reachable(name, "right-click a row of");
    list(name, row);
    postRightClick(window, pointInRow(window, row));
    m_stepper->rest();
}

void WindowsDriver::scrollToRow(ControlName name, int row) {
    const HWND window = reachable(name, "scroll");
    list(name, row);
    pointInRow(window, row);
    m_stepper->rest();
}

void WindowsDriver::clickHeading(ControlName name, std::string_view heading) {
    const HWND window = listView(name);
    reachable(name, "click a heading of");
    for (int column = 0; column < columnCountOf(window); ++column) {
        if (headingText(window, column) != heading) continue;
        postClick(headerOf(window), pointInHeading(window, column));
        m_stepper->rest();
        return;
    }
    throw DriverError("there is no heading " + quotedName(heading) + " in " + quotedName(name));
}

void WindowsDriver::setColumnWidth(ControlName name, int column, int pixels) {
    const HWND window = listView(name);
    reachable(name, "drag a heading of");
    m_stepper->act(
        [=] { SendMessageW(window, LVM_SETCOLUMNWIDTH, static_cast<WPARAM>(column), pixels); });
}

void WindowsDriver::setColumnOrder(ControlName name, const std::vector<int>& order) {
    const HWND window = listView(name);
    reachable(name, "drag a heading of");
    std::vector<int> columns = order;
    m_stepper->act([&] {
        SendMessageW(window, LVM_SETCOLUMNORDERARRAY, columns.size(),
                     reinterpret_cast<LPARAM>(columns.data()));
        InvalidateRect(window, nullptr, TRUE);
    });
}

void WindowsDriver::selectTab(std::string_view wanted) {
    for (const HWND window : controlsOf(actingDialog())) {
        if (kindOf(window) != Kind::tabControl) continue;
        const int tab = rowOf(window, wanted);
        if (tab < 0) throw DriverError("there is no tab " + quotedName(wanted));
        postClick(window, pointInRow(window, tab));
        m_stepper->rest();
        return;
    }
    throw DriverError("there are no tabs in " + dumpControls(m_stepper->dialog()));
}

// ---- focus and keys

void WindowsDriver::focus(ControlName name) {
    const HWND window = reachable(name, "focus");
    const HWND dialog = topDialog();
    m_stepper->act([=] {
        if (GetActiveWindow() != dialog) SetActiveWindow(dialog);
        SendMessageW(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
    });
}

HWND WindowsDriver::focusedWindow() {
    const HWND dialog = actingDialog();
    const auto inside = [&] {
        const HWND window = GetFocus();
        return window != nullptr && (window == dialog || IsChild(dialog, window));
    };
    if (!inside()) {
        // Another program may be in front; the keys are meant for this one.
        m_stepper->act([=] { SetActiveWindow(dialog); });
    }
    if (!inside()) {
        throw DriverError("nothing has the focus in " + quotedName(windowText(dialog)));
    }
    return GetFocus();
}

void WindowsDriver::type(std::string_view utf8) {
    // Key by key, as a keyboard gives them: what a key types is there before the next one is seen.
    for (const wchar_t character : withSingleLineEnds(toWide(utf8))) {
        const HWND window = focusedWindow();
        const std::optional<KeyPress> press = keyTyping(character);
        const HeldKeys held(press.value_or(KeyPress{}));
        if (press) {
            postKey(window, *press);
        } else {
            PostMessageW(window, WM_CHAR, character, 1);
        }
        m_stepper->rest();
    }
}

void WindowsDriver::key(std::string_view name) {
    const std::optional<KeyPress> press = keyNamed(name);
    if (!press) throw DriverError("there is no key " + quotedName(name));
    const HWND window = focusedWindow();
    const HeldKeys held(*press);
    postKey(window, *press);
    m_stepper->rest();
}

// ---- menus

void WindowsDriver::chooseMenu(std::string_view path) {
    const HWND dialog = actingDialog();
    const MenuPlace place = findMenuEntry(GetMenu(dialog), path);
    if (place.position < 0) throw DriverError("there is no menu entry " + quotedName(path));
    if (!place.enabled) throw DriverError("the menu entry " + quotedName(path) + " is grey");
    const UINT command = GetMenuItemID(place.menu, place.position);
    PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(command, 0), 0);
    m_stepper->rest();
}

void WindowsDriver::choosePopup(std::string_view path) {
    if (m_stepper->popup() == nullptr) {
        m_armedPopups.emplace_back(path);
        return;
    }
    chooseFromPopup(std::string(path));
}

// A popup menu takes keys of any window from the queue.
void WindowsDriver::chooseFromPopup(const std::string& path) {
    const auto postPopupKey = [this](int key) {
        postKey(m_stepper->popup(), KeyPress{key, false, false, false});
    };
    const std::vector<std::string> parts = split(path, '/');
    for (const std::string& part : parts) {
        const HWND menu = m_stepper->popup();
        if (menu == nullptr)
            throw DriverError("the popup menu has closed before " + quotedName(part));
        const MenuPlace place = findMenuEntry(menuOfPopup(menu), part);
        if (place.position < 0) throw DriverError("there is no popup entry " + quotedName(part));
        if (!place.enabled) throw DriverError("the popup entry " + quotedName(part) + " is grey");
        const int entries = GetMenuItemCount(place.menu);
        for (int i = 0; i <= entries && !isHighlighted(place); ++i) {
            postPopupKey(VK_DOWN);
            m_stepper->pause();
        }
        if (!isHighlighted(place)) {
            throw DriverError("the popup entry " + quotedName(part) + " cannot be reached");
        }
        postPopupKey(VK_RETURN);
        if (&part == &parts.back()) {
            m_stepper->rest();
        } else {
            m_stepper->pause();
        }
    }
}

void WindowsDriver::closePopup() {
    if (m_stepper->popup() == nullptr) throw DriverError("no popup menu is open");
    while (m_stepper->popup() != nullptr) {
        postKey(m_stepper->popup(), KeyPress{VK_ESCAPE, false, false, false});
        m_stepper->rest();
    }
}

std::vector<std::string> WindowsDriver::menu() {
    return menuPaths(GetMenu(topDialog()));
}

std::vector<std::string> WindowsDriver::popup() {
    if (!m_stepper->waitUntil([this] { return m_stepper->popup() != nullptr; })) {
        throw DriverError("waited for a popup menu, but none is open");
    }
    return menuPaths(menuOfPopup(m_stepper->popup()));
}

// ---- mouse

// Who gets the message for a point of that picture: whoever has captured the mouse.
HWND WindowsDriver::mouseTarget(ControlName picture, ScreenPoint& p, bool press) {
    const HWND dialog = actingDialog();
    const HWND window = picture.empty() ? dialog : reachable(picture, "use the mouse on");
    POINT point{p.x, p.y};
    RECT client{};
    GetClientRect(window, &client);
    if (press && !PtInRect(&client, point)) {
        throw DriverError("the point " + std::to_string(p.x) + " " + std::to_string(p.y) +
                          " lies outside " + quotedName(picture));
    }
    if (press && childAt(window, point) != nullptr) {
        throw DriverError("a control stands at the point " + std::to_string(p.x) + " " +
                          std::to_string(p.y) + " of " + quotedName(picture));
    }
    const HWND captor = GetCapture();
    if (captor == nullptr || captor == window) return window;
    MapWindowPoints(window, captor, &point, 1);
    p = {point.x, point.y};
    return captor;
}

void WindowsDriver::mouseMove(ControlName picture, ScreenPoint p, bool leftDown) {
    if (picture.empty()) m_mouseAt = std::to_string(p.x) + " " + std::to_string(p.y);
    const HWND window = mouseTarget(picture, p, false);
    // Over a control that stands there, the move is that control's, and so is the release below.
    if (GetCapture() != window && childAt(window, {p.x, p.y}) != nullptr) return;
    PostMessageW(window, WM_MOUSEMOVE, leftDown ? MK_LBUTTON : 0, MAKELPARAM(p.x, p.y));
    m_stepper->rest();
}

void WindowsDriver::mouseDown(ControlName picture, ScreenPoint p) {
    const HWND window = mouseTarget(picture, p, true);
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(p.x, p.y));
    m_stepper->rest();
}

void WindowsDriver::mouseUp(ControlName picture, ScreenPoint p) {
    const HWND window = mouseTarget(picture, p, false);
    if (GetCapture() != window && childAt(window, {p.x, p.y}) != nullptr) return;
    PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(p.x, p.y));
    m_stepper->rest();
}

void WindowsDriver::rightClick(ControlName picture, ScreenPoint p) {
    const HWND window = mouseTarget(picture, p, true);
    postRightClick(window, {p.x, p.y});
    m_stepper->rest();
}

}  // namespace lx::host
