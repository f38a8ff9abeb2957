// The modal loop of a dialog, the keys it knows, and the focus.
#include "platform/windows/simple_controls.h"
#include "platform/windows/windows_dialog.h"
#include "platform/windows/windows_platform.h"

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
    if (answer == KeyAnswer::asTab && m_running) perform(focusOrder().tab(m_focus, false));
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
    const bool menuKey =
        event.key == key::apps || (event.key == key::f10 && event.shift && !event.ctrl);
    if (!menuKey || event.alt) return perform(focusOrder().key(event, m_focus));
    openContextMenu();
    return true;
}

// As the system does it, only that every version does it at the same moment.
void WindowsDialog::openContextMenu() {
    const HWND window = GetFocus();
    if (m_focus && window) {
        SendMessageW(window, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window), -1);
    }
}

bool WindowsDialog::perform(const FocusStep<ControlCore*>& step) {
    switch (step.act) {
        case FocusAct::none:
            return false;
        case FocusAct::used:
            break;
        case FocusAct::focus:
            focusByUser(step.control);
            break;
        case FocusAct::choose:
            SetFocus(step.control->window());
            static_cast<WindowsRadioButton&>(*step.control).choose();
            break;
        case FocusAct::press:
            pressButton(*this, static_cast<WindowsButton&>(*step.control));
            break;
        case FocusAct::cancel:
            end(id::cancel);
            break;
    }
    return true;
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

// By the keyboard; a click goes straight to the control's window.
void WindowsDialog::focusByUser(ControlCore* control) {
    if (!control || !control->isEnabled() || !control->isReachable()) return;
    SetFocus(control->window());
    if (root().m_focus == control) control->enteredByTab();
}

void WindowsDialog::focusFirst() {
    ControlCore* first = focusOrder().nextStop(nullptr, false);
    if (!first) return;
    root().moveFocusQuietly(first);
    first->enteredByTab();
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
    return dynamic_cast<WindowsButton*>(focusOrder().defaultButton(m_focus));
}

void WindowsDialog::showDefaultButton() {
    WindowsButton* now = defaultButton();
    if (now == m_defaultShown) return;
    if (m_defaultShown) m_defaultShown->showAsDefault(false);
    m_defaultShown = now;
    if (now) now->showAsDefault(true);
}

}  // namespace lx
