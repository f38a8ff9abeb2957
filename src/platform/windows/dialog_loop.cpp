// The modal loop of a dialog, the keys it knows, and the focus.
#include <algorithm>

#include "platform/windows/platform_windows.h"
#include "platform/windows/simple_controls.h"
#include "platform/windows/windows_dialog.h"

namespace lx {
namespace {

bool held(int virtualKey) {
    return GetKeyState(virtualKey) < 0;
}

// Bit 29 of a key message: Alt was down, as the message itself says.
constexpr LPARAM altBit = LPARAM{1} << 29U;

}  // namespace

// ---- the loop

void WindowsDialog::loop() {
    while (m_running) {
        runPosted();
        if (!m_running) break;
        MSG message = {};
        const BOOL got = GetMessageW(&message, nullptr, 0, 0);
        if (got <= 0) {
            // The program is to end: so does the dialog, and the loops around it must learn of it.
            end(id::cancel);
            if (got == 0) PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        dispatch(message);
    }
}

void WindowsDialog::runPosted() {
    for (std::size_t left = m_posted.size(); left > 0 && !m_posted.empty(); --left) {
        const std::function<void()> action = std::move(m_posted.front());
        m_posted.pop_front();
        runGuarded(action);
    }
}

void WindowsDialog::dispatch(MSG& message) {
    const bool ours =
        m_window && (message.hwnd == m_window || IsChild(m_window, message.hwnd) != 0);
    Course course = Course::toControl;
    if (ours) runGuarded([&] { course = courseOf(message); });
    if (course == Course::done) return;
    if (course == Course::usual && m_window && IsDialogMessageW(m_window, &message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

WindowsDialog::Course WindowsDialog::courseOf(const MSG& message) {
    switch (message.message) {
        case WM_CHAR:
        case WM_SYSCHAR:
        case WM_DEADCHAR:
        case WM_SYSDEADCHAR:
            return m_swallowCharacter ? Course::done : Course::usual;
        case WM_TIMER:
        case WM_PAINT:
            return Course::toControl;
        case WM_KEYUP:
            m_swallowCharacter = false;
            // Its menu came with the key's way down.
            return message.wParam == VK_APPS ? Course::done : Course::usual;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            break;
        default:
            m_swallowCharacter = false;
            return Course::usual;
    }
    KeyEvent event;
    event.key = static_cast<int>(message.wParam);
    event.ctrl = held(VK_CONTROL);
    event.shift = held(VK_SHIFT);
    event.alt = message.message == WM_SYSKEYDOWN ? (message.lParam & altBit) != 0 : held(VK_MENU);
    m_swallowCharacter = true;
    const KeyAnswer answer = seenByHandlers(event);
    if (answer == KeyAnswer::asTab && m_running) stepFocus(false);
    if (answer != KeyAnswer::pass || !m_running) return Course::done;
    if (m_focus && m_focus->wantsKey(event.key)) {
        m_swallowCharacter = false;
        return Course::toControl;
    }
    if (dialogKey(event)) return Course::done;
    m_swallowCharacter = false;
    return Course::usual;
}

KeyAnswer WindowsDialog::seenByHandlers(const KeyEvent& event) {
    const auto dialogHandler = onKey;
    if (dialogHandler) {
        const KeyAnswer answer = dialogHandler(event);
        if (answer != KeyAnswer::pass || !m_running) return answer;
    }
    if (!m_focus) return KeyAnswer::pass;
    const auto controlHandler = m_focus->face().onKey;
    return controlHandler ? controlHandler(event) : KeyAnswer::pass;
}

// ---- keys

bool WindowsDialog::dialogKey(const KeyEvent& event) {
    if (event.alt) return false;
    switch (event.key) {
        case key::tab:
            if (!event.ctrl) stepFocus(event.shift);
            return true;
        case key::enter:
            pressEnter();
            return true;
        case key::escape:
            if (!event.ctrl) pressCancel();
            return true;
        case key::apps:
            openContextMenu();
            return true;
        case key::f10:
            if (!event.shift || event.ctrl) return false;
            openContextMenu();
            return true;
        default:
            return !event.ctrl && radioKey(event.key);
    }
}

// As the system does it, only that every version does it at the same moment.
void WindowsDialog::openContextMenu() {
    const HWND window = GetFocus();
    if (m_focus && window) {
        SendMessageW(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window), -1);
    }
}

void WindowsDialog::pressEnter() {
    WindowsButton* button = defaultButton();
    if (button && button->isEnabled() && button->isReachable()) press(*button);
}

void WindowsDialog::pressCancel() {
    const auto found = std::find_if(m_controls.begin(), m_controls.end(), [](const auto& control) {
        return control->number() == id::cancel && dynamic_cast<Button*>(&control->face());
    });
    if (found == m_controls.end()) {
        end(id::cancel);
    } else if ((*found)->isEnabled()) {
        press(static_cast<Button&>((*found)->face()));
    }
}

void WindowsDialog::press(Button& button) {
    if (button.onClick) {
        fire(button.onClick);
    } else if (button.id() == id::ok || button.id() == id::cancel) {
        end(button.id());
    }
}

// The arrows go round in the group and choose at once.
bool WindowsDialog::radioKey(int key) {
    auto* focused = dynamic_cast<WindowsRadioButton*>(m_focus);
    const bool forward = key == key::right || key == key::down;
    if (!focused || !(forward || key == key::left || key == key::up)) return false;
    const std::vector<ControlCore*> group = focused->dialog().radioGroup(*focused);
    const std::size_t count = group.size();
    std::size_t at = static_cast<std::size_t>(
        std::find(group.begin(), group.end(), static_cast<ControlCore*>(focused)) - group.begin());
    for (std::size_t step = 1; step < count; ++step) {
        at = (at + (forward ? 1 : count - 1)) % count;
        ControlCore* next = group[at];
        if (!next->isEnabled() || !next->isReachable()) continue;
        SetFocus(next->window());
        static_cast<WindowsRadioButton&>(*next).choose();
        break;
    }
    return true;
}

std::vector<ControlCore*> WindowsDialog::radioGroup(const ControlCore& member) const {
    std::vector<ControlCore*> group;
    bool found = false;
    for (const auto& control : m_controls) {
        if (control->kind() != ControlKind::radioButton) {
            if (found) break;
            group.clear();
            continue;
        }
        group.push_back(control.get());
        found = found || control.get() == &member;
    }
    return group;
}

void WindowsDialog::clearRadioGroup(const ControlCore& member) {
    for (ControlCore* control : radioGroup(member)) {
        if (control != &member) static_cast<WindowsRadioButton&>(*control).mark(false);
    }
}

// ---- focus

Control* WindowsDialog::focusedControl() {
    ControlCore* focused = root().m_focus;
    if (!focused) return nullptr;
    for (WindowsDialog* of = &focused->dialog(); of; of = of->m_parent) {
        if (of == this) return &focused->face();
    }
    return nullptr;
}

// One radio button of a group is a stop: the checked one, else the first that can be reached.
bool WindowsDialog::isStop(const ControlCore& control) const {
    const auto usable = [](const ControlCore& one) {
        return one.isEnabled() && one.isReachable() && (!one.host() || one.host()->isEnabled());
    };
    if (!control.wantsTabStop() || !usable(control)) return false;
    if (control.kind() != ControlKind::radioButton) return true;
    const std::vector<ControlCore*> group = control.dialog().radioGroup(control);
    const auto checked = std::find_if(group.begin(), group.end(), [&](ControlCore* one) {
        return usable(*one) && static_cast<WindowsRadioButton&>(*one).checked();
    });
    if (checked != group.end()) return *checked == &control;
    const auto first =
        std::find_if(group.begin(), group.end(), [&](ControlCore* one) { return usable(*one); });
    return first != group.end() && *first == &control;
}

ControlCore* WindowsDialog::nextStop(const ControlCore* from, bool backward) const {
    const std::vector<ControlCore*> all = allControls();
    const std::size_t count = all.size();
    std::vector<ControlCore*> group;  // one stop together
    if (from && from->kind() == ControlKind::radioButton) group = from->dialog().radioGroup(*from);
    const auto same = [&](const ControlCore* one) {
        return one == from || std::find(group.begin(), group.end(), one) != group.end();
    };
    if (count == 0) return nullptr;
    const auto found = std::find(all.begin(), all.end(), from);
    std::size_t at = found != all.end() ? static_cast<std::size_t>(found - all.begin())
                     : backward         ? 0
                                        : count - 1;
    for (std::size_t step = 0; step < count; ++step) {
        at = (at + (backward ? count - 1 : 1)) % count;
        if (!same(all[at]) && isStop(*all[at])) return all[at];
    }
    return nullptr;
}

void WindowsDialog::stepFocus(bool backward) {
    focusByUser(nextStop(m_focus, backward));
}

// By the keyboard; a click goes straight to the control's window.
void WindowsDialog::focusByUser(ControlCore* control) {
    if (!control || !control->isEnabled() || !control->isReachable()) return;
    SetFocus(control->window());
    if (root().m_focus == control) control->enteredByTab();
}

void WindowsDialog::focusFirst() {
    for (ControlCore* control : allControls()) {
        if (!isStop(*control)) continue;
        root().moveFocusQuietly(control);
        control->enteredByTab();
        return;
    }
}

void WindowsDialog::moveFocusQuietly(ControlCore* control) {
    m_focus = control;
    showDefaultButton();
    // A window that is not in front takes the focus when it comes there.
    if (!m_shown || !m_window || GetActiveWindow() != m_window) return;
    ++m_quietFocus;
    SetFocus(control ? control->window() : m_window);
    --m_quietFocus;
}

void WindowsDialog::focusArrived(ControlCore& control) {
    if (m_focus == &control) return;
    ControlCore* left = std::exchange(m_focus, &control);
    showDefaultButton();
    if (m_quietFocus > 0 || !stands()) return;
    if (left) fire(left->face().onBlur);
}

WindowsButton* WindowsDialog::defaultButton() const {
    if (auto* focused = dynamic_cast<WindowsButton*>(m_focus)) return focused;
    for (ControlCore* control : allControls()) {
        auto* button = dynamic_cast<WindowsButton*>(control);
        if (button && button->isDefault()) return button;
    }
    return nullptr;
}

void WindowsDialog::showDefaultButton() {
    WindowsButton* now = defaultButton();
    if (now == m_defaultShown) return;
    if (m_defaultShown) m_defaultShown->showAsDefault(false);
    m_defaultShown = now;
    if (now) now->showAsDefault(true);
}

}  // namespace lx
