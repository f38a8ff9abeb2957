#include "host/driver/windows/windows_driver.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <utility>

#include "host/driver/windows/layout_faults.h"
#include "host/driver/windows/screenshot.h"
#include "host/driver/windows/stepper.h"
#include "host/driver/windows/window_tools.h"

// Finding what is there, dialogs and message boxes as a whole, and running the steps.
namespace lx::host {

namespace {

constexpr int usualLimit = 10000;  // milliseconds

int limitFromEnvironment() {
    const char* factor = std::getenv("LX_DRIVER_LIMIT");
    const double number = factor != nullptr ? std::atof(factor) : 0;
    return number > 0 ? static_cast<int>(usualLimit * std::min(number, 1000.0)) : usualLimit;
}

struct ButtonName {
    int id;
    const char* name;
};
constexpr std::array<ButtonName, 4> messageButtons = {
    {{IDOK, "OK"}, {IDCANCEL, "Cancel"}, {IDYES, "Yes"}, {IDNO, "No"}}};

bool isMessageBox(HWND window) {
    // Its text has this id on every Windows.
    return window != nullptr && !isOurs(window) && GetDlgItem(window, 0xFFFF) != nullptr;
}

// Where no dialog opens under it: it would move over pictures and raise tooltips by itself.
void parkPointer() {
    SetCursorPos(GetSystemMetrics(SM_XVIRTUALSCREEN) + GetSystemMetrics(SM_CXVIRTUALSCREEN) - 1,
                 GetSystemMetrics(SM_YVIRTUALSCREEN) + GetSystemMetrics(SM_CYVIRTUALSCREEN) - 1);
}

std::string messageIcon(HWND box) {
    const std::array<std::pair<const wchar_t*, const char*>, 4> icons = {
        {{IDI_HAND, "stop"},
         {IDI_QUESTION, "question"},
         {IDI_EXCLAMATION, "warning"},
         {IDI_ASTERISK, "information"}}};
    for (const HWND part : controlsOf(box)) {
        if (kindOf(part) != Kind::icon) continue;
        const auto shown = reinterpret_cast<HICON>(SendMessageW(part, STM_GETICON, 0, 0));
        for (const auto& [resource, name] : icons) {
            if (shown != nullptr && shown == LoadIconW(nullptr, resource)) return name;
        }
    }
    return "none";
}

}  // namespace

WindowsDriver::WindowsDriver()
    : m_limit(limitFromEnvironment()), m_stepper(std::make_unique<Stepper>(m_limit)) {}

WindowsDriver::~WindowsDriver() = default;

// ---- finding

HWND WindowsDriver::topDialog() {
    if (!m_stepper->waitUntil([this] { return m_stepper->dialog() != nullptr; })) {
        throw DriverError("no dialog is open");
    }
    return m_stepper->dialog();
}

HWND WindowsDriver::actingDialog() {
    const HWND dialog = topDialog();
    if (m_stepper->popup() != nullptr) {
        throw DriverError("a popup menu is open in front of " + quotedName(windowText(dialog)));
    }
    return dialog;
}

HWND WindowsDriver::control(ControlName name) {
    const HWND dialog = topDialog();
    const HWND found = findControl(dialog, name);
    if (found == nullptr) {
        throw DriverError("there is no control " + quotedName(name) + " in " +
                          dumpControls(dialog));
    }
    return found;
}

HWND WindowsDriver::reachable(ControlName name, std::string_view act) {
    actingDialog();
    const HWND window = control(name);
    const std::string what = std::string(act) + " " + quotedName(name) + ": the control is ";
    if (!IsWindowVisible(window)) throw DriverError(what + "hidden");
    if (!IsWindowEnabled(window) || !IsWindowEnabled(GetParent(window))) {
        throw DriverError(what + "disabled");
    }
    return window;
}

bool WindowsDriver::exists(ControlName name) {
    return findControl(topDialog(), name) != nullptr;
}

bool WindowsDriver::enabled(ControlName name) {
    const HWND window = control(name);
    return IsWindowEnabled(window) != FALSE && IsWindowEnabled(GetParent(window)) != FALSE;
}

bool WindowsDriver::visible(ControlName name) {
    return IsWindowVisible(control(name)) != FALSE;
}

ScreenArea WindowsDriver::area(ControlName name) {
    RECT area = {};
    GetWindowRect(control(name), &area);
    MapWindowPoints(nullptr, topDialog(), reinterpret_cast<POINT*>(&area), 2);
    return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.right),
            static_cast<int>(area.bottom)};
}

// ---- the top dialog or message box

void WindowsDriver::expectDialog(std::string_view wanted) {
    const bool came = m_stepper->waitUntil([&] {
        const HWND dialog = m_stepper->dialog();
        return dialog != nullptr && windowText(dialog) == wanted && !isMessageBox(dialog);
    });
    if (came) return;
    const HWND dialog = m_stepper->dialog();
    const std::string there =
        dialog == nullptr ? std::string("no dialog is open") : "on top is " + dumpControls(dialog);
    throw DriverError("waited for the dialog " + quotedName(wanted) + ", but " + there);
}

bool WindowsDriver::anyDialogOpen() {
    return m_stepper->dialog() != nullptr;
}

std::string WindowsDriver::title() {
    return windowText(topDialog());
}

bool WindowsDriver::messageBoxOpen() {
    return isMessageBox(m_stepper->dialog());
}

MessageBoxLook WindowsDriver::messageBox() {
    if (!m_stepper->waitUntil([this] { return messageBoxOpen(); })) {
        const HWND dialog = m_stepper->dialog();
        throw DriverError("waited for a message box, but " +
                          (dialog == nullptr ? std::string("no dialog is open")
                                             : "on top is " + quotedName(windowText(dialog))));
    }
    const HWND box = m_stepper->dialog();
    MessageBoxLook look;
    look.caption = windowText(box);
    look.icon = messageIcon(box);
    for (const HWND part : controlsOf(box)) {
        if (kindOf(part) == Kind::label) look.text = windowText(part);
    }
    for (const ButtonName& button : messageButtons) {
        if (GetDlgItem(box, button.id) != nullptr) look.buttons.emplace_back(button.name);
    }
    return look;
}

void WindowsDriver::answer(std::string_view button) {
    const MessageBoxLook look = messageBox();
    for (const ButtonName& known : messageButtons) {
        const HWND window = GetDlgItem(m_stepper->dialog(), known.id);
        if (known.name != button || window == nullptr) continue;
        PostMessageW(window, BM_CLICK, 0, 0);
        m_stepper->rest();
        return;
    }
    throw DriverError("the message box " + quotedName(look.text) + " has no button " +
                      quotedName(button));
}

void WindowsDriver::closeDialog() {
    PostMessageW(actingDialog(), WM_SYSCOMMAND, SC_CLOSE, 0);
    m_stepper->rest();
}

void WindowsDriver::cancelTop() {
    if (m_stepper->popup() != nullptr) {
        m_stepper->act([] { EndMenu(); });
        return;
    }
    const HWND dialog = m_stepper->dialog();
    if (dialog == nullptr) return;
    const bool box = isMessageBox(dialog);
    for (const int id : {IDCANCEL, IDNO, IDOK}) {
        const HWND button = GetDlgItem(dialog, id);
        if (button == nullptr || (!box && id != IDCANCEL)) continue;
        m_stepper->act([button] { EnableWindow(button, TRUE); });
        PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                     reinterpret_cast<LPARAM>(button));
        m_stepper->rest();
        return;
    }
    PostMessageW(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
    m_stepper->rest();
}

ScreenSize WindowsDriver::dialogSize() {
    RECT area{};
    GetWindowRect(topDialog(), &area);
    return {area.right - area.left, area.bottom - area.top};
}

void WindowsDriver::resizeDialog(ScreenSize outer) {
    const HWND dialog = actingDialog();
    if ((GetWindowLongPtrW(dialog, GWL_STYLE) & WS_THICKFRAME) == 0) {
        throw DriverError("the dialog " + quotedName(windowText(dialog)) + " cannot be resized");
    }
    MINMAXINFO bounds{};
    SendMessageW(dialog, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&bounds));
    const int width = std::max<int>(outer.width, bounds.ptMinTrackSize.x);
    const int height = std::max<int>(outer.height, bounds.ptMinTrackSize.y);
    m_stepper->act([=] {
        SetWindowPos(dialog, nullptr, 0, 0, width, height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    });
}

void WindowsDriver::moveDialog(ScreenPoint topLeft) {
    const HWND dialog = actingDialog();
    m_stepper->act([=] {
        SetWindowPos(dialog, nullptr, topLeft.x, topLeft.y, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    });
}

void WindowsDriver::setDialogState(std::string_view state) {
    const WPARAM command = state == "maximized"   ? SC_MAXIMIZE
                           : state == "minimized" ? SC_MINIMIZE
                                                  : SC_RESTORE;
    PostMessageW(actingDialog(), WM_SYSCOMMAND, command, 0);
    m_stepper->rest();
}

std::string WindowsDriver::placement() {
    WINDOWPLACEMENT place{};
    place.length = sizeof place;
    GetWindowPlacement(topDialog(), &place);
    const RECT& area = place.rcNormalPosition;
    const char* state = place.showCmd == SW_SHOWMAXIMIZED   ? "maximized"
                        : place.showCmd == SW_SHOWMINIMIZED ? "minimized"
                                                            : "normal";
    return std::to_string(area.left) + " " + std::to_string(area.top) + " " +
           std::to_string(area.right - area.left) + " " + std::to_string(area.bottom - area.top) +
           " " + state;
}

std::string WindowsDriver::describe(std::string_view topic) {
    // Under a nested dialog or a message box the design is still there to be read.
    for (const HWND dialog : m_stepper->dialogs()) {
        const std::string answer =
            ask(dialog, DescribeQuestion::topic, 0, std::string(topic).c_str());
        if (!answer.empty()) return answer;
    }
    return {};
}

std::string WindowsDriver::dump() {
    return dumpControls(topDialog());
}

std::vector<std::string> WindowsDriver::layoutFaults() {
    return layoutFaultsOf(topDialog());
}

std::string WindowsDriver::screenshot(const std::string& fileWithoutExtension) {
    const std::string name = fileWithoutExtension + ".png";
    const std::string picture = pictureOfOurWindows();
    const std::filesystem::path path(toWide(name));
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(picture.data(), static_cast<std::streamsize>(picture.size()));
    file.close();
    if (picture.empty() || !file) throw DriverError("no picture could be written to " + name);
    return name;
}

// ---- running

void WindowsDriver::drive(std::function<bool(Driver&)> next) {
    m_stepper->drive(nullptr);
    m_abandoned.clear();
    m_armedPopups.clear();
    m_idleSince = 0;
    m_givenUp = false;
    if (!next) return;
    parkPointer();
    m_stepper->drive([this, run = std::move(next)] {
        try {
            m_idleSince = step(run) ? 0 : m_idleSince;
        } catch (const std::exception& error) {
            m_abandoned += (m_abandoned.empty() ? "" : "\n") + std::string(error.what());
            m_givenUp = true;
        }
    });
}

// False when there was nothing to do.
bool WindowsDriver::step(const std::function<bool(Driver&)>& next) {
    if (m_stepper->popup() != nullptr && !m_armedPopups.empty()) {
        const std::string path = m_armedPopups.front();
        m_armedPopups.erase(m_armedPopups.begin());
        chooseFromPopup(path);
        return true;
    }
    if (m_givenUp) {
        cancelTop();
        return true;
    }
    if (next(*this)) return true;
    const ULONGLONG now = GetTickCount64();
    if (m_idleSince == 0) m_idleSince = now;
    if (now - m_idleSince < static_cast<ULONGLONG>(m_limit)) return false;
    m_givenUp = true;
    if (!m_abandoned.empty()) m_abandoned += "\n";
    m_abandoned += m_stepper->popup() != nullptr ? std::string("a popup menu")
                                                 : quotedName(windowText(m_stepper->dialog()));
    return true;
}

void WindowsDriver::settle() {
    m_stepper->settle();
}

std::string WindowsDriver::abandoned() {
    return m_abandoned;
}

int WindowsDriver::limit() const {
    return m_limit;
}

void WindowsDriver::repaint() {
    const HWND dialog = actingDialog();
    m_stepper->act([=] {
        RedrawWindow(dialog, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    });
}

void WindowsDriver::wait(int milliseconds) {
    m_stepper->sleep(milliseconds);
}

}  // namespace lx::host
