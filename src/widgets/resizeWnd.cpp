#include "widgets/resizeWnd.h"

#include "platform/numbers.h"
#include "widgets/placement_list.h"

namespace lx {

resizeWnd::resizeWnd(Platform& platform, Dialog& dialog)
    : m_platform(platform),
      m_dialog(dialog),
      m_rules([this](int control) { return m_dialog.item(control).visible(); }) {}

void resizeWnd::addControl(const Control& control, int rule, bool replace) {
    m_rules.addControl(control.id(), control.area(), rule, replace);
}

void resizeWnd::addDivider(const Control* control, Side side, const Control* partner) {
    if (!control || !partner) return;
    m_rules.addDivider(control->id(), control->area(), side, partner->id(), partner->area());
}

void resizeWnd::setSize(const Control& control, int width, int height) {
    m_rules.setSize(control.id(), width, height);
}

void resizeWnd::initialise() {
    m_minimum = m_dialog.windowArea().size();
    m_initial = m_dialog.placement();
    m_rules.initialise(m_dialog.clientArea().size());
    m_dialog.setMinimumSize(m_minimum);
    m_dialog.onSize = [this](Size client) {
        if (m_dialog.placement().state != ShowState::minimized) move(m_rules.relayout(client));
    };
    m_dialog.onLeftDown = [this](Point p) { return onLeftDown(p); };
    m_dialog.onMouseMove = [this](Point p) { return onMouseMove(p); };
    m_dialog.onLeftUp = [this](Point p) { return onLeftUp(p); };
    m_dialog.onCaptureLost = [this] { m_rules.endDrag(); };
    m_dialog.onCursor = [this](Point p) { return cursorOver(p); };
}

void resizeWnd::move(const ControlMoves& moves) {
    for (const ControlMove& move : moves) m_dialog.item(move.control).setArea(move.area);
}

bool resizeWnd::onLeftDown(Point p) {
    if (!m_rules.beginDrag(p)) return false;
    m_dialog.captureMouse(true);
    return true;
}

bool resizeWnd::onMouseMove(Point p) {
    if (m_rules.dragging() == Side::none) return false;
    move(m_rules.drag(p));
    return true;
}

bool resizeWnd::onLeftUp(Point) {
    if (m_rules.dragging() == Side::none) return false;
    m_rules.endDrag();
    m_dialog.captureMouse(false);
    return true;
}

std::optional<CursorShape> resizeWnd::cursorOver(Point p) const {
    const Side side = m_rules.dragging();
    switch (side != Side::none ? side : m_rules.dividerAt(p).value_or(Side::none)) {
        case Side::left:
        case Side::right:
            return CursorShape::splitLeftRight;
        case Side::top:
        case Side::bottom:
            return CursorShape::splitUpDown;
        default:
            return std::nullopt;
    }
}

// ---- the stored placement

Text resizeWnd::keyOf(int number) {
    return "#" + formatInt(number) + "_WINDOW_SIZE";
}

void resizeWnd::savePlacement(ini_store& store, std::string_view key) const {
    if (!m_rules.initialised()) return;
    std::vector<std::int32_t> list =
        placementList(m_dialog.placement(), m_initial, m_platform.screen());
    const std::vector<std::int32_t> dividers = m_rules.surpluses();
    list.insert(list.end(), dividers.begin(), dividers.end());
    store.set_int_array(key, list);
}

void resizeWnd::restorePlacement(ini_store& store, std::string_view key) {
    std::vector<std::int32_t> list;
    if (!store.get_int_array(key, list)) return;
    const auto placement = placementFrom(list, m_minimum, m_platform.screen());
    if (!placement) return;
    // The dividers belong to the layout of the normal size, also when the window opens minimised.
    m_dialog.setWindowArea(placement->normal);
    m_dialog.setPlacement(*placement);
    if (list.size() < placementEntries) return;
    list.erase(list.begin(), list.begin() + placementEntries);
    move(m_rules.restoreSurpluses(list));
    // A window that is not shown yet becomes large only when it is.
    if (placement->state == ShowState::maximized) {
        m_dialog.post([this, list] { move(m_rules.restoreSurpluses(list)); });
    }
}

}  // namespace lx
