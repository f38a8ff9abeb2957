// Focus and keys of a dialog, in the order in which a real one tries them.
#include <algorithm>

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
    for (HeadlessControl* control : allControls()) {
        if (!control->tabStop()) continue;
        root().moveFocusByProgram(control);
        control->enteredByKey();
        return;
    }
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
    moveFocusByProgram(nextStop(m_focus, false));
}

HeadlessControl* HeadlessDialog::nextStop(const HeadlessControl* from, bool backward) const {
    std::vector<HeadlessControl*> order = allControls();
    if (backward) std::reverse(order.begin(), order.end());
    const auto place = std::find(order.begin(), order.end(), from);
    if (place != order.end()) std::rotate(order.begin(), place + 1, order.end());
    const auto* radio = dynamic_cast<const HeadlessRadioButton*>(from);
    std::vector<HeadlessRadioButton*> group;
    if (radio) group = radio->dialog().radioGroup(*radio);
    for (HeadlessControl* control : order) {
        const bool sameStop =
            control == from || std::find(group.begin(), group.end(), control) != group.end();
        if (!sameStop && control->tabStop()) return control;
    }
    return nullptr;
}

std::vector<HeadlessRadioButton*> HeadlessDialog::radioGroup(
    const HeadlessRadioButton& member) const {
    std::vector<HeadlessRadioButton*> group;
    bool found = false;
    for (const auto& control : m_controls) {
        auto* radio = dynamic_cast<HeadlessRadioButton*>(control.get());
        if (radio) {
            group.push_back(radio);
            found = found || radio == &member;
        } else {
            if (found) break;
            group.clear();
        }
    }
    return group;
}

const HeadlessRadioButton* HeadlessDialog::stopOfGroup(const HeadlessRadioButton& member) const {
    const HeadlessRadioButton* first = nullptr;
    for (const HeadlessRadioButton* radio : radioGroup(member)) {
        if (!radio->focusable()) continue;
        if (radio->checked()) return radio;
        if (!first) first = radio;
    }
    return first;
}

void HeadlessDialog::stepFocus(bool backward) {
    if (HeadlessControl* next = nextStop(m_focus, backward)) moveFocusByUser(next, true);
}

// ---- buttons by keys

HeadlessButton* HeadlessDialog::defaultButton() const {
    const auto pressable = [](HeadlessControl* control) -> HeadlessButton* {
        const bool icon = !control || control->kind() == ControlKind::icon;
        return icon ? nullptr : dynamic_cast<HeadlessButton*>(control);
    };
    if (HeadlessButton* focused = pressable(root().m_focus)) return focused;
    for (HeadlessControl* control : root().allControls()) {
        if (control->style() & style::defaultButton) return pressable(control);
    }
    return nullptr;
}

void HeadlessDialog::pressButton(HeadlessButton& button) {
    if (button.onClick) {
        callCopy(button.onClick);
    } else if (button.controlId() == id::ok || button.controlId() == id::cancel) {
        end(button.controlId());
    }
}

void HeadlessDialog::pressEnter() {
    HeadlessButton* button = defaultButton();
    if (button && button->focusable()) pressButton(*button);
}

void HeadlessDialog::pressEscape() {
    for (const auto& control : m_controls) {
        auto* button = dynamic_cast<HeadlessButton*>(control.get());
        if (!button || button->controlId() != id::cancel) continue;
        if (button->usable()) pressButton(*button);
        return;
    }
    end(id::cancel);
}

void HeadlessDialog::userClose() {
    checkOnTop("be closed");
    pressEscape();
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
        stepFocus(false);
        return;
    }
    const bool forControl = m_focus && m_focus->wantsKey(event);
    if (!forControl && (dialogKey(event) || mnemonicKey(event, typed))) return;
    HeadlessControl* target = m_focus;
    if (!target || target->keyDown(event) || !m_running) return;
    if (typed && event.alt == event.ctrl && m_focus == target) target->character(typed);
}

bool HeadlessDialog::dialogKey(const KeyEvent& event) {
    switch (event.key) {
        case key::tab:
            if (event.ctrl || event.alt) return false;
            stepFocus(event.shift);
            return true;
        case key::enter:
            if (event.alt) return false;
            pressEnter();
            return true;
        case key::escape:
            if (event.alt || event.ctrl) return false;
            pressEscape();
            return true;
        case key::f4:
            if (!event.alt) return false;
            pressEscape();
            return true;
        case key::space:
            if (event.ctrl || event.alt || !m_focus || m_focus->wantsCharacters()) return false;
            m_focus->press();
            return true;
        default:
            return false;
    }
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
        } else if (HeadlessControl* next = nextStop(control, false)) {
            moveFocusByUser(next, true);
        }
        return true;
    }
    return false;
}

}  // namespace lx
