// Focus and keys of a dialog, in the order in which a real one tries them.
#include "platform/headless/headless_buttons.h"
#include "platform/headless/headless_platform.h"

namespace lx {

namespace {

// The key of a character; letters and digits have their own codes, anything else stands on some
// key of its own.
int keyOf(char32_t character) {
    if (character == '\n') return key::enter;
    if (character == '\r' || character == '\t' || character == '\b' || character == ' ') {
        return static_cast<int>(character);
    }
    if (character >= 'a' && character <= 'z') return static_cast<int>(character - 'a' + 'A');
    if ((character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9')) {
        return static_cast<int>(character);
    }
    constexpr int comma = 0xBC;
    constexpr int minus = 0xBD;
    constexpr int period = 0xBE;
    constexpr int other = 0xDE;
    return character == ',' ? comma : character == '-' ? minus : character == '.' ? period : other;
}

}  // namespace

// ---- focus

Control* HeadlessDialog::focusedControl() {
    HeadlessControl* focus = root().m_focus;
    if (!focus || (isPage() && &focus->dialog() != this)) return nullptr;
    return &focus->control();
}

void HeadlessDialog::focusFirst() {
    HeadlessControl* first = focusOrder().nextStop(nullptr, false);
    if (!first) return;
    root().moveFocusByProgram(first);
    first->enteredByKey();
}

void HeadlessDialog::moveFocusByProgram(HeadlessControl* control) {
    if (m_focus && m_focus != control) m_focus->focusLost();
    m_focus = control;
}

void HeadlessDialog::moveFocusByUser(HeadlessControl* control, bool byKey) {
    HeadlessControl* before = m_focus;
    moveFocusByProgram(control);
    if (byKey) control->enteredByKey();
    if (before && before != control) callCopy(before->control().onBlur);
}

void HeadlessDialog::leaveFocusIfLost() {
    if (!m_focus || m_focus->focusable()) return;
    moveFocusByProgram(focusOrder().nextStop(m_focus, false));
}

HeadlessButton* HeadlessDialog::defaultButton() const {
    return dynamic_cast<HeadlessButton*>(focusOrder().defaultButton(root().m_focus));
}

bool HeadlessDialog::perform(const FocusStep<HeadlessControl*>& step) {
    switch (step.act) {
        case FocusAct::none:
            return false;
        case FocusAct::used:
            break;
        case FocusAct::focus:
            moveFocusByUser(step.control, true);
            break;
        case FocusAct::choose:
            moveFocusByUser(step.control, true);
            if (m_running) step.control->press();
            break;
        case FocusAct::press:
            step.control->press();
            break;
        case FocusAct::cancel:
            end(id::cancel);
            break;
    }
    return true;
}

void HeadlessDialog::userClose() {
    checkOnTop("be closed");
    perform(focusOrder().escape());
    settle();
}

// ---- keys

void HeadlessDialog::userKey(const KeyEvent& event, char32_t typed) {
    HeadlessDialog& top = root();
    top.checkOnTop("take a key");
    top.handleKey(event, typed);
    settle();
}

void HeadlessDialog::userType(char32_t character) {
    const bool capital = character >= 'A' && character <= 'Z';
    userKey({keyOf(character), false, capital, false}, character == '\n' ? U'\r' : character);
}

void HeadlessDialog::handleKey(const KeyEvent& event, char32_t typed) {
    KeyAnswer answer = callCopy(onKey, event);
    if (m_running && answer == KeyAnswer::pass && m_focus) {
        answer = callCopy(m_focus->control().onKey, event);
    }
    if (!m_running || answer == KeyAnswer::swallow) return;
    if (answer == KeyAnswer::asTab) {
        perform(focusOrder().tab(m_focus, false));
        return;
    }
    const bool forControl = m_focus && m_focus->wantsKey(event);
    if (!forControl && (dialogKey(event) || mnemonicKey(event, typed))) return;
    HeadlessControl* target = m_focus;
    if (!target || target->keyDown(event) || !m_running) return;
    if (typed && event.alt == event.ctrl && m_focus == target) target->character(typed);
}

bool HeadlessDialog::dialogKey(const KeyEvent& event) {
    const FocusOrderOf<HeadlessControl> order = focusOrder();
    if (event.key == key::f4 && event.alt) return perform(order.escape());
    if (event.key != key::space) return perform(order.key(event, m_focus));
    if (event.ctrl || event.alt || !m_focus || m_focus->wantsCharacters()) return false;
    m_focus->press();
    return true;
}

bool HeadlessDialog::mnemonicKey(const KeyEvent& event, char32_t typed) {
    const bool plain = !event.alt && typed > ' ';
    if (event.ctrl) return false;
    if (!event.alt && !(plain && m_focus && !m_focus->wantsCharacters())) return false;
    const bool names =
        (event.key >= 'A' && event.key <= 'Z') || (event.key >= '0' && event.key <= '9');
    if (!typed && !names) return false;
    const int byte = cp1250FromUnicode(typed ? typed : static_cast<char32_t>(event.key));
    if (byte <= ' ') return false;
    const unsigned char wanted = lowerCase(static_cast<unsigned char>(byte));
    const std::vector<HeadlessControl*> order = allControls();
    for (HeadlessControl* control : order) {
        if (control->mnemonic() != wanted || !control->flagsShown() || !control->usable()) continue;
        if (control->takesFocus()) {
            moveFocusByUser(control, true);
            if (m_running && control->focusable()) control->press();
        } else if (HeadlessControl* next = focusOrder().nextStop(control, false)) {
            moveFocusByUser(next, true);
        }
        return true;
    }
    return false;
}

}  // namespace lx
