#include "platform/headless/headless_control.h"

#include <stdexcept>

#include "platform/headless/headless_platform.h"
#include "platform/headless/svg_area.h"
#include "platform/numbers.h"

namespace lx {

bool isContextKey(const KeyEvent& event) {
    return event.key == key::apps || (event.key == key::f10 && event.shift);
}

HeadlessControl::HeadlessControl(HeadlessDialog& dialog, const ControlTemplate& layout)
    : m_dialog(&dialog),
      m_kind(layout.kind),
      m_id(layout.id),
      m_style(layout.style),
      m_text(layout.text),
      m_area(dialog.toPixels(layout.area)),
      m_enabled((layout.style & style::disabled) == 0),
      m_visible((layout.style & style::hidden) == 0) {}

HeadlessControl::~HeadlessControl() = default;

HeadlessPlatform& HeadlessControl::platform() const {
    return m_dialog->platform();
}

bool HeadlessControl::flagsShown() const {
    if (!m_visible) return false;
    return m_container ? m_container->flagsShown() : m_dialog->flagsShown();
}

bool HeadlessControl::shown() const {
    return flagsShown() && m_dialog->root().visible();
}

bool HeadlessControl::usable() const {
    return m_enabled && (!m_container || m_container->usable());
}

Rect HeadlessControl::areaInDialog() const {
    Point origin = m_dialog->originInRoot();
    if (m_container) {
        const Rect around = m_container->areaInDialog();
        origin = {around.left + m_container->sunkenEdge(), around.top + m_container->sunkenEdge()};
    }
    return {m_area.left + origin.x, m_area.top + origin.y, m_area.right + origin.x,
            m_area.bottom + origin.y};
}

bool HeadlessControl::takesFocus() const {
    return lx::takesFocus(m_kind, m_style);
}

bool HeadlessControl::focusable() const {
    return takesFocus() && flagsShown() && usable();
}

ControlFacts HeadlessControl::facts() const {
    const auto* radio = dynamic_cast<const RadioButton*>(this);
    return {m_kind, m_id, m_style, 0, flagsShown(), usable(), radio && radio->checked()};
}

Color HeadlessControl::ink() const {
    return usable() ? SvgArea::ink : SvgArea::grey;
}

Text HeadlessControl::plainText() const {
    return withoutMnemonic(control().text());
}

unsigned char HeadlessControl::mnemonic() const {
    switch (m_kind) {
        case ControlKind::label:
        case ControlKind::groupBox:
        case ControlKind::button:
        case ControlKind::iconButton:
        case ControlKind::checkBox:
        case ControlKind::radioButton:
            break;
        default:
            return 0;
    }
    for (std::size_t i = 0; i + 1 < m_text.size(); ++i) {
        if (m_text[i] != '&') continue;
        if (m_text[++i] != '&') return lowerCase(static_cast<unsigned char>(m_text[i]));
    }
    return 0;
}

void HeadlessControl::refuse(const std::string& why) const {
    throw std::logic_error("control #" + formatInt(m_id) + " \"" + toUtf8(plainText()) + "\" of " +
                           m_dialog->name() + ": " + why);
}

void HeadlessControl::checkReachable(const char* act) const {
    m_dialog->root().checkOnTop(act);
    const std::string what = std::string("cannot ") + act + ", ";
    if (!shown()) refuse(what + "it is hidden");
    if (!usable()) refuse(what + "it is disabled");
}

void HeadlessControl::clickFocus() {
    if (takesFocus()) m_dialog->root().moveFocusByUser(this, false);
}

void HeadlessControl::settle() const {
    platform().settle();
}

void HeadlessControl::userFocus() {
    checkReachable("take the focus");
    if (!takesFocus()) refuse("it never takes the focus");
    m_dialog->root().moveFocusByUser(this, true);
    settle();
}

void HeadlessControl::doEnable(bool on) {
    m_enabled = on;
    m_dialog->root().leaveFocusIfLost();
}

void HeadlessControl::doShow(bool on) {
    m_visible = on;
    m_dialog->root().leaveFocusIfLost();
}

void HeadlessControl::doFocus() {
    if (focusable()) m_dialog->root().moveFocusByProgram(this);
}

bool HeadlessControl::doFocused() const {
    return m_dialog->root().focusedItem() == this;
}

void HeadlessControl::doMoveInto(Control* parent) {
    m_container = parent ? dynamic_cast<HeadlessControl*>(parent) : nullptr;
    m_dialog->root().leaveFocusIfLost();
}

}  // namespace lx
