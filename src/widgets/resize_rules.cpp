#include "widgets/resize_rules.h"

#include <algorithm>
#include <utility>

namespace lx {

namespace {

// Stored surpluses may be any number; no edge goes further than this many pixels.
constexpr std::int64_t farthest = 1'000'000;
constexpr std::uint32_t topSideBit = 0x80000000U;

void move(int& edge, std::int64_t by) {
    edge = static_cast<int>(std::clamp(edge + by, -farthest, farthest));
}

void applyRule(Rect& area, int rule, int dx, int dy) {
    if (!(rule & edge::keepTop)) move(area.top, dy);
    if (!(rule & edge::keepLeft)) move(area.left, dx);
    if (rule & edge::moveBottom) move(area.bottom, dy);
    if (rule & edge::moveRight) move(area.right, dx);
}

int& edgeAt(Rect& area, Side side) {
    switch (side) {
        case Side::top:
            return area.top;
        case Side::left:
            return area.left;
        case Side::bottom:
            return area.bottom;
        default:
            return area.right;
    }
}

Side opposite(Side side) {
    switch (side) {
        case Side::top:
            return Side::bottom;
        case Side::left:
            return Side::right;
        case Side::bottom:
            return Side::top;
        case Side::right:
            return Side::left;
        default:
            return Side::none;
    }
}

bool isUpright(Side side) {
    return side == Side::left || side == Side::right;
}

// What the control is larger than its minimum.
int surplusWidth(const resizeCtrl& item) {
    return item.area.width() - item.minimumWidth;
}
int surplusHeight(const resizeCtrl& item) {
    return item.area.height() - item.minimumHeight;
}

void note(ControlMoves& moves, int control, const Rect& area) {
    const auto known = std::find_if(moves.begin(), moves.end(), [control](const ControlMove& move) {
        return move.control == control;
    });
    if (known == moves.end()) {
        moves.push_back({control, area});
    } else {
        known->area = area;
    }
}

}  // namespace

void ResizeRules::addControl(int control, const Rect& area, int rule, bool replace) {
    if (replace) {
        endDrag();
        std::erase_if(m_registrations,
                      [control](const resizeCtrl& item) { return item.control == control; });
    }
    m_registrations.push_back({control, area, rule, area.width(), area.height(), 0, Side::none});
}

void ResizeRules::addDivider(int control, const Rect& area, Side side, int partner,
                             const Rect& partnerArea) {
    if (side == Side::none) return;
    m_registrations.push_back(
        {control, area, edge::staysInPlace, area.width(), area.height(), partner, side});
    m_registrations.push_back({partner, partnerArea, edge::staysInPlace, partnerArea.width(),
                               partnerArea.height(), control, opposite(side)});
}

void ResizeRules::setSize(int control, int width, int height) {
    for (resizeCtrl& item : m_registrations) {
        if (item.control != control) continue;
        if (width >= 0) item.minimumWidth = width;
        if (height >= 0) item.minimumHeight = height;
    }
}

ControlMoves ResizeRules::relayout(Size client) {
    ControlMoves moves;
    if (!m_client) return moves;
    const int dx = client.width - m_client->width;
    const int dy = client.height - m_client->height;
    m_client = client;
    for (resizeCtrl& item : m_registrations) {
        if (item.side != Side::none) continue;
        applyRule(item.area, item.rule, dx, dy);
        note(moves, item.control, item.area);
        // Other ordinary registrations of the control follow their own rule.
        for (resizeCtrl& other : m_registrations) {
            if (other.side != Side::none && other.control == item.control) other.area = item.area;
        }
    }
    if (dx >= 0 && dy >= 0) return moves;
    for (const resizeCtrl& item : m_registrations) {
        if (item.side != Side::none) moveDivider(item, 0, moves);
    }
    return moves;
}

// ---- dividers

// Everything whose edge lies on the same divider: the control's own registrations on that side,
// their partners' on the other side, and so on.
ResizeRules::Group ResizeRules::groupOf(const resizeCtrl& divider) const {
    Group group;
    const auto take = [&](int control, Side side) {
        for (std::size_t i = 0; i < m_registrations.size(); ++i) {
            const resizeCtrl& item = m_registrations[i];
            const bool member = item.control == control && item.side == side;
            if (member && std::find(group.begin(), group.end(), i) == group.end()) {
                group.push_back(i);
            }
        }
    };
    take(divider.control, divider.side);
    for (std::size_t i = 0; i < group.size(); ++i) {
        const resizeCtrl& member = m_registrations[group[i]];
        take(member.partner, opposite(member.side));
    }
    return group;
}

// A move that makes no shown control smaller than its minimum. Controls that are too small already
// decide it themselves, hidden ones too: the divider then goes where they have their minimum, or,
// when not all of them can have it, nowhere.
int ResizeRules::allowed(const Group& group, std::int64_t wanted) const {
    std::int64_t lowest = -2 * farthest;
    std::int64_t highest = 2 * farthest;
    for (const std::size_t index : group) {
        const resizeCtrl& member = m_registrations[index];
        const bool upright = isUpright(member.side);
        const bool shown = m_shown(member.control);
        const std::int64_t room = upright ? surplusWidth(member) : surplusHeight(member);
        const int across = upright ? surplusHeight(member) : surplusWidth(member);
        if (shown && across < 0) return 0;
        if (!shown && room >= 0) continue;
        const bool growsWithMove = member.side == Side::right || member.side == Side::bottom;
        if (growsWithMove) {
            lowest = std::max(lowest, -room);
        } else {
            highest = std::min(highest, room);
        }
    }
    if (lowest > highest) return 0;
    if (lowest > 0) return static_cast<int>(lowest);
    if (highest < 0) return static_cast<int>(highest);
    return static_cast<int>(std::clamp(wanted, lowest, highest));
}

int ResizeRules::moveDivider(const resizeCtrl& divider, std::int64_t wanted, ControlMoves& moves) {
    const Group group = groupOf(divider);
    const int distance = allowed(group, wanted);
    if (distance == 0) return 0;
    std::vector<std::pair<int, Side>> moved;
    for (const std::size_t index : group) {
        const resizeCtrl member = m_registrations[index];
        const std::pair own(member.control, member.side);
        if (std::find(moved.begin(), moved.end(), own) != moved.end()) continue;
        moved.push_back(own);
        Rect area = member.area;
        move(edgeAt(area, member.side), distance);
        for (resizeCtrl& item : m_registrations) {
            if (item.control == member.control) item.area = area;
        }
        note(moves, member.control, area);
    }
    return distance;
}

bool ResizeRules::isUnder(Point p, const resizeCtrl& divider) const {
    const auto partner = std::find_if(
        m_registrations.begin(), m_registrations.end(),
        [&divider](const resizeCtrl& item) { return item.control == divider.partner; });
    if (partner == m_registrations.end() || !m_shown(divider.control)) return false;
    const Rect& own = divider.area;
    const Rect& other = partner->area;
    const bool beside =
        p.y >= std::max(own.top, other.top) && p.y <= std::min(own.bottom, other.bottom);
    const bool inLine =
        p.x >= std::max(own.left, other.left) && p.x <= std::min(own.right, other.right);
    switch (divider.side) {
        case Side::top:
            return inLine && p.y >= other.bottom && p.y <= own.top;
        case Side::left:
            return beside && p.x >= other.right && p.x <= own.left;
        case Side::bottom:
            return inLine && p.y >= own.bottom && p.y <= other.top;
        case Side::right:
            return beside && p.x >= own.right && p.x <= other.left;
        default:
            return false;
    }
}

std::optional<std::size_t> ResizeRules::registrationAt(Point p) const {
    for (std::size_t i = 0; i < m_registrations.size(); ++i) {
        if (isUnder(p, m_registrations[i])) return i;
    }
    return std::nullopt;
}

std::optional<Side> ResizeRules::dividerAt(Point p) const {
    const auto index = registrationAt(p);
    return index ? std::optional(m_registrations[*index].side) : std::nullopt;
}

bool ResizeRules::beginDrag(Point p) {
    const auto index = registrationAt(p);
    if (index) m_dragging = Drag{*index, p};
    return index.has_value();
}

ControlMoves ResizeRules::drag(Point p) {
    ControlMoves moves;
    if (!m_dragging) return moves;
    const bool upright = isUpright(dragging());
    int& from = upright ? m_dragging->from.x : m_dragging->from.y;
    const int to = upright ? p.x : p.y;
    from += moveDivider(m_registrations[m_dragging->divider], std::int64_t{to} - from, moves);
    return moves;
}

// ---- stored surpluses

std::vector<std::int32_t> ResizeRules::surpluses() const {
    std::vector<std::int32_t> pairs;
    for (const resizeCtrl& item : m_registrations) {
        if (item.side == Side::top) {
            const auto number = static_cast<std::uint32_t>(item.control) | topSideBit;
            pairs.push_back(static_cast<std::int32_t>(number));
            pairs.push_back(surplusHeight(item));
        } else if (item.side == Side::left) {
            pairs.push_back(item.control);
            pairs.push_back(surplusWidth(item));
        }
    }
    return pairs;
}

ControlMoves ResizeRules::restoreSurpluses(std::span<const std::int32_t> pairs) {
    ControlMoves moves;
    for (; pairs.size() >= 2; pairs = pairs.subspan(2)) {
        const auto number = static_cast<std::uint32_t>(pairs[0]);
        const Side side = (number & topSideBit) != 0 ? Side::top : Side::left;
        const auto control = static_cast<int>(number & ~topSideBit);
        for (const resizeCtrl& item : m_registrations) {
            if (item.side != side || item.control != control) continue;
            const std::int64_t now = side == Side::top ? surplusHeight(item) : surplusWidth(item);
            moveDivider(item, now - pairs[1], moves);
        }
    }
    return moves;
}

}  // namespace lx
