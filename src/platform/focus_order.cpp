#include "platform/focus_order.h"

namespace lx {

namespace {

bool isButton(ControlKind kind) {
    return kind == ControlKind::button || kind == ControlKind::iconButton;
}

}  // namespace

bool takesFocus(ControlKind kind, unsigned style) {
    switch (kind) {
        case ControlKind::label:
        case ControlKind::groupBox:
        case ControlKind::icon:
            return false;
        case ControlKind::picture:
            return (style & style::focusable) != 0;
        default:
            return true;
    }
}

bool takesTab(ControlKind kind, unsigned style) {
    return takesFocus(kind, style) && (style & style::noTabStop) == 0;
}

bool FocusOrder::focusable(std::size_t control) const {
    const ControlFacts& facts = m_controls[control];
    return takesFocus(facts.kind, facts.style) && facts.shown && facts.usable;
}

bool FocusOrder::isStop(std::size_t control) const {
    const ControlFacts& facts = m_controls[control];
    if (!focusable(control) || !takesTab(facts.kind, facts.style)) return false;
    if (facts.kind != ControlKind::radioButton) return true;
    std::size_t first = nowhere;
    for (const std::size_t member : radioGroup(control)) {
        if (!focusable(member)) continue;
        if (m_controls[member].checked) return member == control;
        if (first == nowhere) first = member;
    }
    return first == control;
}

std::size_t FocusOrder::nextStop(std::size_t from, bool backward) const {
    const std::size_t count = m_controls.size();
    const std::vector<std::size_t> left = radioGroup(from);
    // One before the first to be looked at.
    std::size_t at = from < count ? from : backward ? 0 : count - 1;
    for (std::size_t step = 0; step < count; ++step) {
        at = (at + (backward ? count - 1 : 1)) % count;
        const bool same = at == from || std::find(left.begin(), left.end(), at) != left.end();
        if (!same && isStop(at)) return at;
    }
    return nowhere;
}

std::vector<std::size_t> FocusOrder::radioGroup(std::size_t member) const {
    std::vector<std::size_t> group;
    const auto isMate = [&](std::size_t other) {
        return m_controls[other].kind == ControlKind::radioButton &&
               m_controls[other].page == m_controls[member].page;
    };
    if (member >= m_controls.size() || !isMate(member)) return group;
    std::size_t at = member;
    while (at > 0 && isMate(at - 1)) --at;
    for (; at < m_controls.size() && isMate(at); ++at) group.push_back(at);
    return group;
}

std::size_t FocusOrder::defaultButton(std::size_t focused) const {
    if (focused < m_controls.size() && isButton(m_controls[focused].kind)) return focused;
    for (std::size_t i = 0; i < m_controls.size(); ++i) {
        if (isButton(m_controls[i].kind) && (m_controls[i].style & style::defaultButton)) return i;
    }
    return nowhere;
}

FocusOrder::Step FocusOrder::tab(std::size_t focused, bool backward) const {
    const std::size_t next = nextStop(focused, backward);
    if (next == nowhere) return {FocusAct::used, nowhere};
    return {FocusAct::focus, next};
}

FocusOrder::Step FocusOrder::enter(std::size_t focused) const {
    const std::size_t button = defaultButton(focused);
    if (button == nowhere || !focusable(button)) return {FocusAct::used, nowhere};
    return {FocusAct::press, button};
}

FocusOrder::Step FocusOrder::escape() const {
    for (std::size_t i = 0; i < m_controls.size(); ++i) {
        const ControlFacts& facts = m_controls[i];
        if (facts.page != 0 || facts.id != id::cancel || !isButton(facts.kind)) continue;
        if (!facts.usable) return {FocusAct::used, nowhere};
        return {FocusAct::press, i};
    }
    return {FocusAct::cancel, nowhere};
}

// Round the group, past what cannot have the focus.
FocusOrder::Step FocusOrder::arrow(std::size_t radio, bool backward) const {
    const std::vector<std::size_t> group = radioGroup(radio);
    const std::size_t count = group.size();
    const std::size_t start = radio - group.front();
    for (std::size_t step = 1; step < count; ++step) {
        const std::size_t next = group[(start + (backward ? count - step : step)) % count];
        if (focusable(next)) return {FocusAct::choose, next};
    }
    return {FocusAct::used, nowhere};
}

FocusOrder::Step FocusOrder::key(const KeyEvent& event, std::size_t focused) const {
    constexpr Step used = {FocusAct::used, nowhere};
    constexpr Step notOurs = {FocusAct::none, nowhere};
    if (event.alt) return notOurs;
    switch (event.key) {
        case key::tab:
            return event.ctrl ? used : tab(focused, event.shift);
        case key::enter:
            return enter(focused);
        case key::escape:
            return event.ctrl ? used : escape();
        case key::left:
        case key::up:
        case key::right:
        case key::down:
            break;
        default:
            return notOurs;
    }
    const bool inGroup =
        focused < m_controls.size() && m_controls[focused].kind == ControlKind::radioButton;
    if (event.ctrl || !inGroup) return notOurs;
    return arrow(focused, event.key == key::left || event.key == key::up);
}

void pressButton(Dialog& dialog, const Button& button) {
    const auto handler = button.onClick;  // it may replace itself
    if (handler) {
        handler();
    } else if (button.id() == id::ok || button.id() == id::cancel) {
        dialog.end(button.id());
    }
}

}  // namespace lx
