// The window of a dialog: its controls, placement, menus, timers, mouse.
#include "platform/headless/headless_dialog.h"

#include <algorithm>
#include <stdexcept>

#include "platform/headless/headless_buttons.h"
#include "platform/headless/headless_combo_box.h"
#include "platform/headless/headless_edit.h"
#include "platform/headless/headless_labels.h"
#include "platform/headless/headless_list_box.h"
#include "platform/headless/headless_list_view.h"
#include "platform/headless/headless_picture.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/headless_tab_control.h"
#include "platform/numbers.h"

namespace lx {

namespace {

constexpr int baseUnitX = 6;
constexpr int baseUnitY = 13;
constexpr int menuHeight = 20;
constexpr Rect iconified{-32000, -32000, -31840, -31976};

// value * factor / divisor, rounded half away from zero.
int scaled(int value, int factor, int divisor) {
    const int half = value < 0 ? -divisor / 2 : divisor / 2;
    return (value * factor + half) / divisor;
}

std::vector<HeadlessMenuEntry> entriesOf(const Menu& menu) {
    std::vector<HeadlessMenuEntry> entries;
    for (const MenuItem& item : menu) {
        entries.push_back({Text(item.text), item.command, true, entriesOf(item.items)});
    }
    return entries;
}

void setEnabled(std::vector<HeadlessMenuEntry>& entries,
                const std::function<bool(int command)>& enabled) {
    for (HeadlessMenuEntry& entry : entries) {
        if (entry.command != 0) entry.enabled = enabled(entry.command);
        setEnabled(entry.items, enabled);
    }
}

bool canChoose(const std::vector<HeadlessMenuEntry>& entries, int command) {
    return std::any_of(entries.begin(), entries.end(), [command](const HeadlessMenuEntry& entry) {
        const bool itself = command != 0 && entry.command == command;
        return entry.enabled && (itself || canChoose(entry.items, command));
    });
}

}  // namespace

bool HeadlessPopup::canChoose(int command) const {
    return lx::canChoose(entries, command);
}

HeadlessDialog::HeadlessDialog(HeadlessPlatform& platform, const DialogTemplate& layout,
                               Owner owner)
    : m_platform(platform),
      m_owner(dynamic_cast<HeadlessDialog*>(owner.dialog)),
      m_name(layout.name),
      m_style(layout.style),
      m_title(layout.title) {
    for (const ControlTemplate& control : layout.controls) makeControl(control);
    const Rect client = toPixels({0, 0, layout.width, layout.height});
    if (isPage()) {
        m_pageArea = client;
        if (m_owner) m_owner->m_pages.push_back(this);
    } else {
        const Size frame = frameSize();
        m_placement.normal = {0, 0, client.width() + frame.width, client.height() + frame.height};
        centre();
    }
}

HeadlessDialog::~HeadlessDialog() {
    m_platform.forget(*this);
    HeadlessDialog& top = root();
    if (&top != this) {
        if (top.m_focus && &top.m_focus->dialog() == this) top.m_focus = nullptr;
        top.sendGuestsHome(*this);
    }
    if (isPage() && m_owner) std::erase(m_owner->m_pages, this);
    for (HeadlessDialog* page : m_pages) page->m_owner = nullptr;
}

// Without memory of its own: windows go away when there is none left, too.
void HeadlessDialog::sendGuestsHome(const HeadlessDialog& gone) {
    for (const auto& control : m_controls) {
        const HeadlessControl* host = control->m_container;
        if (host && &host->dialog() == &gone) control->m_container = nullptr;
    }
    for (HeadlessDialog* page : m_pages) page->sendGuestsHome(gone);
}

void HeadlessDialog::makeControl(const ControlTemplate& layout) {
    const auto make = [&]<class C>(C*) {
        m_controls.push_back(std::make_unique<C>(*this, layout));
    };
    switch (layout.kind) {
        case ControlKind::label:
            return make(static_cast<HeadlessLabel*>(nullptr));
        case ControlKind::groupBox:
            return make(static_cast<HeadlessGroupBox*>(nullptr));
        case ControlKind::button:
        case ControlKind::iconButton:
        case ControlKind::icon:
            return make(static_cast<HeadlessButton*>(nullptr));
        case ControlKind::checkBox:
            return make(static_cast<HeadlessCheckBox*>(nullptr));
        case ControlKind::radioButton:
            return make(static_cast<HeadlessRadioButton*>(nullptr));
        case ControlKind::edit:
        case ControlKind::multilineEdit:
            return make(static_cast<HeadlessEdit*>(nullptr));
        case ControlKind::listBox:
            return make(static_cast<HeadlessListBox*>(nullptr));
        case ControlKind::dropDownList:
        case ControlKind::editableCombo:
            return make(static_cast<HeadlessComboBox*>(nullptr));
        case ControlKind::listView:
            return make(static_cast<HeadlessListView*>(nullptr));
        case ControlKind::tabControl:
            return make(static_cast<HeadlessTabControl*>(nullptr));
        case ControlKind::picture:
            return make(static_cast<HeadlessPicture*>(nullptr));
    }
}

Control& HeadlessDialog::item(int controlId) {
    for (const auto& control : m_controls) {
        if (control->controlId() == controlId) return control->control();
    }
    throw std::logic_error(m_name + " has no control #" + formatInt(controlId));
}

HeadlessDialog& HeadlessDialog::root() {
    return isPage() && m_owner ? m_owner->root() : *this;
}

std::vector<HeadlessControl*> HeadlessDialog::allControls() const {
    std::vector<HeadlessControl*> result;
    addInTabOrder(*this, result);
    return result;
}

// ---- running

int HeadlessDialog::runModal() {
    if (isPage() || m_running || m_closed) return -1;
    return m_platform.runDialog(*this);
}

void HeadlessDialog::end(int result) {
    if (isPage() && m_owner) return root().end(result);
    if (!m_running) return;
    m_running = false;
    m_result = result;
    m_platform.forget(*this);
}

void HeadlessDialog::closeWindow() {
    m_closed = true;
    m_visible = false;
    callCopy(onDestroy);
    for (HeadlessDialog* page : std::vector(m_pages)) callCopy(page->onDestroy);
    m_timers.clear();
}

void HeadlessDialog::checkOnTop(const char* act) const {
    const bool active = m_platform.activeDialog() == this;
    if (active && m_visible) return;
    const std::string what = "cannot " + std::string(act) + " in " + m_name + ": ";
    if (active) throw std::logic_error(what + "the dialog does not stand yet");
    if (m_closed || !m_running) throw std::logic_error(what + "the dialog is not open");
    if (m_platform.openPopup()) throw std::logic_error(what + "a popup menu is open");
    if (const HeadlessMessageBox* box = m_platform.openMessageBox()) {
        throw std::logic_error(what + "the message box \"" + toUtf8(box->message) + "\" is open");
    }
    const HeadlessDialog* top = m_platform.activeDialog();
    throw std::logic_error(what + (top ? top->name() + " stands before it"
                                       : "what stood before it is only just closing"));
}

void HeadlessDialog::settle() const {
    m_platform.settle();
}

// ---- placement

Size HeadlessDialog::frameSize() const {
    if (isPage()) return {};
    Size frame = m_style == DialogStyle::resizable ? Size{16, 39} : Size{6, 29};
    if (!m_menu.empty()) frame.height += menuHeight;
    return frame;
}

// In the middle of the dialog it stands in front of, else of the screen, wholly on the screen.
void HeadlessDialog::centre() {
    const Size screen = m_platform.screenSize();
    const Size size = m_placement.normal.size();
    const HeadlessDialog* before = m_owner ? &m_owner->root() : nullptr;
    const Rect around = before && before->visible() ? before->windowArea()
                                                    : Rect{0, 0, screen.width, screen.height};
    const int left = (around.left + around.right - size.width) / 2;
    const int top = (around.top + around.bottom - size.height) / 2;
    m_placement.normal.left = std::max(0, std::min(left, screen.width - size.width));
    m_placement.normal.top = std::max(0, std::min(top, screen.height - size.height));
    m_placement.normal.right = m_placement.normal.left + size.width;
    m_placement.normal.bottom = m_placement.normal.top + size.height;
}

Rect HeadlessDialog::clientArea() const {
    if (isPage()) return {0, 0, m_pageArea.width(), m_pageArea.height()};
    if (m_placement.state == ShowState::minimized) return {};
    const Size outer = windowArea().size();
    const Size frame = frameSize();
    return {0, 0, std::max(0, outer.width - frame.width), std::max(0, outer.height - frame.height)};
}

Rect HeadlessDialog::windowArea() const {
    if (isPage()) {
        const HeadlessDialog& top = root();
        const Rect outer = top.windowArea();
        const Size frame = top.frameSize();
        const Point origin = originInRoot();
        const int left = outer.left + frame.width / 2 + origin.x;
        const int above = outer.top + frame.height - frame.width / 2 + origin.y;
        return {left, above, left + m_pageArea.width(), above + m_pageArea.height()};
    }
    if (m_placement.state == ShowState::minimized) return iconified;
    const Size screen = m_platform.screenSize();
    if (m_placement.state == ShowState::maximized) return {0, 0, screen.width, screen.height};
    return m_placement.normal;
}

void HeadlessDialog::setWindowArea(const Rect& area) {
    if (isPage()) return;
    setPlacement({area, ShowState::normal});
}

void HeadlessDialog::setPlacement(const WindowPlacement& placement) {
    if (isPage()) return;
    const Rect before = clientArea();
    m_placement = placement;
    m_placed = true;
    const bool told = !m_closed && placement.state != ShowState::minimized;
    if (told && clientArea() != before) callCopy(onSize, clientArea().size());
}

Rect HeadlessDialog::toPixels(const UnitRect& units) const {
    return {scaled(units.x, baseUnitX, 4), scaled(units.y, baseUnitY, 8),
            scaled(units.x + units.width, baseUnitX, 4),
            scaled(units.y + units.height, baseUnitY, 8)};
}

void HeadlessDialog::setArea(const Rect& area) {
    if (!isPage()) return;
    const Size before = m_pageArea.size();
    m_pageArea = area;
    if (area.size() != before) callCopy(onSize, area.size());
}

void HeadlessDialog::show(bool on) {
    m_visible = on;
    root().leaveFocusIfLost();
}

bool HeadlessDialog::flagsShown() const {
    if (!isPage()) return true;
    return m_visible && m_owner && m_owner->flagsShown();
}

Point HeadlessDialog::originInRoot() const {
    if (!isPage() || !m_owner) return {};
    const Point around = m_owner->originInRoot();
    return {around.x + m_pageArea.left, around.y + m_pageArea.top};
}

void HeadlessDialog::userResize(Size outer) {
    checkOnTop("be resized");
    if (m_style != DialogStyle::resizable || m_placement.state != ShowState::normal) {
        throw std::logic_error(m_name + " has no frame to drag now");
    }
    const Rect& old = m_placement.normal;
    const int width = std::max(outer.width, m_minimumSize.width);
    const int height = std::max(outer.height, m_minimumSize.height);
    setPlacement({{old.left, old.top, old.left + width, old.top + height}, ShowState::normal});
    settle();
}

void HeadlessDialog::userMove(Point topLeft) {
    checkOnTop("be moved");
    if (m_placement.state != ShowState::normal) {
        throw std::logic_error(m_name + " cannot be moved now");
    }
    const Size size = m_placement.normal.size();
    m_placement.normal = {topLeft.x, topLeft.y, topLeft.x + size.width, topLeft.y + size.height};
    settle();
}

void HeadlessDialog::userShowState(ShowState state) {
    checkOnTop("change its state");
    if (m_style != DialogStyle::resizable) {
        throw std::logic_error(m_name + " has no box to minimise or maximise it");
    }
    setPlacement({m_placement.normal, state});
    settle();
}

// ---- menus

void HeadlessDialog::setMenuBar(const Menu& menu) {
    // The frame grows with its menu; the client area stays.
    const bool had = !m_menu.empty();
    m_menu = entriesOf(menu);
    const bool has = !m_menu.empty();
    if (has != had) m_placement.normal.bottom += has ? menuHeight : -menuHeight;
}

void HeadlessDialog::enableMenu(int position, bool on) {
    if (position >= 0 && static_cast<std::size_t>(position) < m_menu.size()) {
        m_menu[static_cast<std::size_t>(position)].enabled = on;
    }
}

int HeadlessDialog::popupMenu(const Menu& menu, Control& control, Point p,
                              const std::function<bool(int command)>& enabled) {
    if (!root().m_running) return 0;
    HeadlessPopup popup{entriesOf(menu), dynamic_cast<HeadlessControl*>(&control), p};
    if (enabled) setEnabled(popup.entries, enabled);
    return m_platform.runPopup(std::move(popup));
}

void HeadlessDialog::userMenu(int command) {
    checkOnTop("choose from the menu");
    if (!canChoose(m_menu, command)) {
        throw std::logic_error("the menu of " + m_name + " offers no command " +
                               formatInt(command) + " now");
    }
    callCopy(onCommand, command);
    settle();
}

// ---- timers, posted actions

void HeadlessDialog::startTimer(int timer, int milliseconds) {
    stopTimer(timer);
    const int period = std::max(1, milliseconds);
    m_timers.push_back({timer, period, m_platform.clock() + period});
}

void HeadlessDialog::stopTimer(int timer) {
    std::erase_if(m_timers, [timer](const Timer& other) { return other.id == timer; });
}

void HeadlessDialog::post(std::function<void()> action) {
    if (!root().m_closed) m_platform.post(*this, std::move(action));
}

// ---- the mouse over the dialog's own client area

HeadlessControl* HeadlessDialog::controlAt(Point p) const {
    for (HeadlessControl* control : allControls()) {
        const bool letsThrough =
            control->kind() == ControlKind::label || control->kind() == ControlKind::groupBox;
        if (!letsThrough && control->shown() && control->areaInDialog().contains(p)) {
            return control;
        }
    }
    return nullptr;
}

CursorShape HeadlessDialog::cursorAt(Point p) const {
    if (!m_captured && controlAt(p)) return CursorShape::arrow;
    return callCopy(onCursor, p).value_or(CursorShape::arrow);
}

void HeadlessDialog::userLeftDown(Point p) {
    checkOnTop("be clicked");
    const HeadlessControl* covered = m_captured ? nullptr : controlAt(p);
    if (covered) covered->refuse("it stands where the dialog itself was to be clicked");
    if (!clientArea().contains(p)) throw std::logic_error(m_name + ": the point is outside");
    callCopy(onLeftDown, p);
    settle();
}

void HeadlessDialog::userMouseMove(Point p, bool) {
    checkOnTop("be reached by the mouse");
    if (m_captured || !controlAt(p)) callCopy(onMouseMove, p);
    settle();
}

void HeadlessDialog::userLeftUp(Point p) {
    checkOnTop("be reached by the mouse");
    if (m_captured || !controlAt(p)) callCopy(onLeftUp, p);
    settle();
}

void HeadlessDialog::loseCapture() {
    if (!m_captured) return;
    m_captured = false;
    callCopy(onCaptureLost);
}

void HeadlessDialog::userLoseCapture() {
    loseCapture();
    settle();
}

}  // namespace lx
