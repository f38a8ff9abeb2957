// What every control keeps, and the simple kinds: buttons, boxes, tabs, pictures.
#include <algorithm>
#include <stdexcept>

#include "platform/headless/headless_platform.h"
#include "platform/numbers.h"

namespace lx {

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

// ---- buttons and boxes

void HeadlessButton::press() {
    pressButton(*m_dialog, *this);
}

void HeadlessButton::userClick() {
    if (kind() == ControlKind::icon) refuse("an icon cannot be pressed");
    checkReachable("be pressed");
    clickFocus();
    // The field that lost the focus may have disabled the button or closed the dialog: the click is
    // lost then, as on a screen.
    if (m_dialog->root().running() && shown() && usable()) press();
    settle();
}

void HeadlessCheckBox::press() {
    m_checked = !m_checked;
    callCopy(onClick);
}

void HeadlessCheckBox::userClick() {
    checkReachable("be ticked");
    clickFocus();
    if (m_dialog->root().running() && shown() && usable()) press();
    settle();
}

void HeadlessRadioButton::check(bool on) {
    if (on) {
        for (HeadlessControl* member : m_dialog->focusOrder().radioGroup(*this)) {
            static_cast<HeadlessRadioButton*>(member)->m_checked = false;
        }
    }
    m_checked = on;
}

void HeadlessRadioButton::press() {
    if (m_checked) return;
    check(true);
    callCopy(onClick);
}

void HeadlessRadioButton::userClick() {
    checkReachable("be chosen");
    clickFocus();
    if (m_dialog->root().running() && shown() && usable()) press();
    settle();
}

// ---- tabs

void HeadlessTabControl::addTab(std::string_view title) {
    m_titles.emplace_back(title);
    if (m_selected < 0) m_selected = 0;
}

Text HeadlessTabControl::tabTitle(int index) const {
    return index >= 0 && index < count() ? m_titles[static_cast<std::size_t>(index)] : Text();
}

void HeadlessTabControl::select(int index) {
    if (index >= 0 && index < count()) m_selected = index;
}

Rect HeadlessTabControl::displayArea() const {
    constexpr int edge = 4;
    return {m_area.left + edge, m_area.top + headerHeight + edge, m_area.right - edge,
            m_area.bottom - edge};
}

void HeadlessTabControl::choose(int index) {
    if (index == m_selected) return;
    m_selected = index;
    callCopy(onSelect);
}

void HeadlessTabControl::userSelect(int index) {
    checkReachable("change its tab");
    if (index < 0 || index >= count()) refuse("there is no tab " + formatInt(index));
    if (index == m_selected) clickFocus();
    choose(index);
    settle();
}

bool HeadlessTabControl::keyDown(const KeyEvent& event) {
    const int step = event.key == key::right ? 1 : event.key == key::left ? -1 : 0;
    if (step == 0 || event.ctrl || event.alt) return false;
    const int next = m_selected + step;
    if (next >= 0 && next < count()) choose(next);
    return true;
}

// ---- pictures

Size HeadlessPicture::size() const {
    return {std::max(0, m_area.width() - 2 * sunkenEdge()),
            std::max(0, m_area.height() - 2 * sunkenEdge())};
}

void HeadlessPicture::checkPoint(const char* act, Point p) const {
    checkReachable(act);
    const Size inside = size();
    if (!Rect{0, 0, inside.width, inside.height}.contains(p)) {
        refuse("the point (" + formatInt(p.x) + "," + formatInt(p.y) + ") is outside, it is " +
               formatInt(inside.width) + " by " + formatInt(inside.height));
    }
}

bool HeadlessPicture::covered(Point p) const {
    const auto controls = m_dialog->root().allControls();
    return std::any_of(controls.begin(), controls.end(), [&](const HeadlessControl* other) {
        return other->container() == this && other->shown() && other->control().area().contains(p);
    });
}

void HeadlessPicture::checkPress(Point p) const {
    checkPoint("be clicked", p);
    if (covered(p)) refuse("a control stands at that point of it");
}

// Over a control that stands in the picture, moves and releases are that control's.
void HeadlessPicture::userMouseMove(Point p, bool leftDown) {
    checkPoint("be reached by the mouse", p);
    if (!covered(p)) callCopy(onMouseMove, p, leftDown);
    settle();
}

void HeadlessPicture::userLeftDown(Point p) {
    checkPress(p);
    clickFocus();
    if (m_dialog->root().running()) callCopy(onLeftDown, p);
    settle();
}

void HeadlessPicture::userLeftUp(Point p) {
    checkPoint("be reached by the mouse", p);
    if (!covered(p)) callCopy(onLeftUp, p);
    settle();
}

void HeadlessPicture::userRightDown(Point p) {
    checkPress(p);
    clickFocus();
    if (m_dialog->root().running()) callCopy(onRightDown, p);
    settle();
}

bool HeadlessPicture::keyDown(const KeyEvent& event) {
    const bool menu = event.key == key::apps || (event.key == key::f10 && event.shift);
    if (!menu || !onContext) return false;
    callCopy(onContext);
    return true;
}

void HeadlessPicture::paintIfDue() {
    if (!m_dirty || !shown()) return;
    m_dirty = false;
    auto canvas = std::make_unique<RecordingCanvas>(platform().paintIcon);
    callCopy(onPaint, *canvas);
    m_drawing = std::move(canvas);
}

}  // namespace lx
