// Where a dialog's window stands, its title, icon and menus, timers and the mouse.
#include <algorithm>

#include "platform/windows/wide_text.h"
#include "platform/windows/windows_dialog.h"
#include "platform/windows/windows_platform.h"

namespace lx {
namespace {

MONITORINFO monitorOf(const RECT& area) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    if (!GetMonitorInfoW(MonitorFromRect(&area, MONITOR_DEFAULTTONEAREST), &info)) {
        info.rcMonitor = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
        info.rcWork = info.rcMonitor;
    }
    return info;
}

// Placements of the system count from the work area, beside the task bar.
POINT workOrigin(const RECT& area) {
    const MONITORINFO monitor = monitorOf(area);
    return {monitor.rcWork.left - monitor.rcMonitor.left,
            monitor.rcWork.top - monitor.rcMonitor.top};
}

}  // namespace

void WindowsDialog::setTitle(std::string_view title) {
    m_title = title;
    if (m_window) SetWindowTextW(m_window, wide(title).c_str());
}

void WindowsDialog::setIcon(int number) {
    m_icon = number;
    if (!m_window) return;
    const Size large{GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
    const Size little{GetSystemMetrics(SM_CXSMICON), GetSystemMetrics(SM_CYSMICON)};
    SendMessageW(m_window, WM_SETICON, ICON_BIG,
                 reinterpret_cast<LPARAM>(icons().get(number, large)));
    SendMessageW(m_window, WM_SETICON, ICON_SMALL,
                 reinterpret_cast<LPARAM>(icons().get(number, little)));
}

Rect WindowsDialog::clientArea() const {
    if (!m_window) return {0, 0, m_clientSize.width, m_clientSize.height};
    RECT area = {};
    GetClientRect(m_window, &area);
    return portableRect(area);
}

Rect WindowsDialog::windowArea() const {
    if (!m_window) return m_windowArea;
    RECT area = {};
    GetWindowRect(m_window, &area);
    return portableRect(area);
}

void WindowsDialog::setWindowArea(const Rect& area) {
    m_placed = true;
    m_windowArea = area;
    if (!m_window) return;
    SetWindowPos(m_window, nullptr, area.left, area.top, area.width(), area.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

WindowPlacement WindowsDialog::placement() const {
    if (!m_window) return m_placement;
    if (!m_shown) return {windowArea(), m_showState};
    WINDOWPLACEMENT native = {};
    native.length = sizeof native;
    if (!GetWindowPlacement(m_window, &native)) return m_placement;
    if (!IsZoomed(m_window) && !IsIconic(m_window)) return {windowArea(), ShowState::normal};
    RECT normal = native.rcNormalPosition;
    const POINT origin = workOrigin(normal);
    OffsetRect(&normal, origin.x, origin.y);
    return {portableRect(normal), IsZoomed(m_window) ? ShowState::maximized : ShowState::minimized};
}

void WindowsDialog::setPlacement(const WindowPlacement& placement) {
    m_placed = true;
    m_showState = placement.state;
    m_placement = placement;
    if (!m_window) return;
    const bool plain = !IsZoomed(m_window) && !IsIconic(m_window);
    if (!m_shown || (plain && placement.state == ShowState::normal)) {
        setWindowArea(placement.normal);
        return;
    }
    WINDOWPLACEMENT native = {};
    native.length = sizeof native;
    GetWindowPlacement(m_window, &native);
    native.rcNormalPosition = nativeRect(placement.normal);
    const POINT origin = workOrigin(native.rcNormalPosition);
    OffsetRect(&native.rcNormalPosition, -origin.x, -origin.y);
    native.showCmd = placement.state == ShowState::maximized   ? SW_SHOWMAXIMIZED
                     : placement.state == ShowState::minimized ? SW_SHOWMINIMIZED
                                                               : SW_SHOWNORMAL;
    SetWindowPlacement(m_window, &native);
}

// In the middle of the window it stands in front of, else of the screen, wholly on one monitor.
void WindowsDialog::centre() {
    const HWND owner = ownerWindow(m_owner);
    RECT around = {};
    const bool visibleOwner = owner && IsWindowVisible(owner) && !IsIconic(owner);
    if (!visibleOwner || !GetWindowRect(owner, &around)) around = monitorOf(around).rcWork;
    const RECT work = monitorOf(around).rcWork;
    const Size size = windowArea().size();
    LONG left = (around.left + around.right - size.width) / 2;
    LONG top = (around.top + around.bottom - size.height) / 2;
    left = std::max(work.left, std::min(left, work.right - size.width));
    top = std::max(work.top, std::min(top, work.bottom - size.height));
    SetWindowPos(m_window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

Rect WindowsDialog::toPixels(const UnitRect& units) const {
    const auto across = [this](int x) { return MulDiv(x, m_unitScale.width(), 400); };
    const auto down = [this](int y) { return MulDiv(y, m_unitScale.height(), 800); };
    return {across(units.x), down(units.y), across(units.x + units.width),
            down(units.y + units.height)};
}

void WindowsDialog::setArea(const Rect& area) {
    if (!isPage()) return;
    m_windowArea = area;
    if (!m_window) return;
    SetWindowPos(m_window, nullptr, area.left, area.top, area.width(), area.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void WindowsDialog::show(bool on) {
    if (!isPage() || on == m_pageVisible) return;
    m_pageVisible = on;
    WindowsDialog& top = root();
    if (!on && top.m_focus && !top.m_focus->isReachable()) {
        top.moveFocusQuietly(top.focusOrder().nextStop(top.m_focus, false));
    }
    if (!m_window) return;
    if (on) {
        // Above the tab control, which covers the same place.
        SetWindowPos(m_window, HWND_TOP, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    } else {
        ShowWindow(m_window, SW_HIDE);
    }
}

bool WindowsDialog::visible() const {
    return isPage() ? m_pageVisible : m_window && IsWindowVisible(m_window);
}

void WindowsDialog::bringToFront() {
    const HWND top = root().m_window;
    if (!top || !IsWindowVisible(top) || !IsWindowEnabled(top)) return;
    SetActiveWindow(top);
    BringWindowToTop(top);
}

// ---- menus

// The window grows by the bar, so that the client area keeps its size.
void WindowsDialog::setMenuBar(const Menu& menu) {
    MenuHandle made = makeMenuBar(menu);
    if (!m_window || !made.get()) return;
    const bool ready = std::exchange(m_ready, false);
    const int before = clientArea().height();
    if (SetMenu(m_window, made.get())) {
        m_menu = std::move(made);
        const Rect area = windowArea();
        SetWindowPos(m_window, nullptr, 0, 0, area.width(),
                     area.height() + before - clientArea().height(),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    m_ready = ready;
}

void WindowsDialog::enableMenu(int position, bool on) {
    if (!m_menu.get()) return;
    EnableMenuItem(m_menu.get(), static_cast<UINT>(position),
                   MF_BYPOSITION | (on ? MF_ENABLED : MF_GRAYED));
    if (m_window) DrawMenuBar(m_window);
}

int WindowsDialog::popupMenu(const Menu& menu, Control& control, Point p,
                             const std::function<bool(int command)>& enabled) {
    const auto* core = dynamic_cast<ControlCore*>(&control);
    const HWND top = root().m_window;
    const MenuHandle popup = makePopup(menu, enabled);
    if (!core || !core->window() || !top || !popup.get()) return 0;
    POINT at = {p.x, p.y};
    ClientToScreen(core->window(), &at);
    const int command = TrackPopupMenu(
        popup.get(), TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTBUTTON | TPM_LEFTALIGN | TPM_TOPALIGN,
        at.x, at.y, 0, top, nullptr);
    return commandAvailable(popup.get(), command) ? command : 0;
}

// ---- timers, posted actions, mouse

void WindowsDialog::startTimer(int timer, int milliseconds) {
    if (m_window) {
        SetTimer(m_window, static_cast<UINT_PTR>(timer), static_cast<UINT>(milliseconds), nullptr);
    }
}

void WindowsDialog::stopTimer(int timer) {
    if (m_window) KillTimer(m_window, static_cast<UINT_PTR>(timer));
}

void WindowsDialog::post(std::function<void()> action) {
    if (isPage()) {
        root().post(std::move(action));
        return;
    }
    if (m_closed) return;
    m_posted.push_back(std::move(action));
    if (m_window) PostMessageW(m_window, WM_NULL, 0, 0);
}

void WindowsDialog::captureMouse(bool on) {
    if (!m_window || on == m_capturing) return;
    m_capturing = on;
    if (on) {
        SetCapture(m_window);
    } else if (GetCapture() == m_window) {
        ReleaseCapture();
    }
}

}  // namespace lx
