// How a resizable dialog moves its controls: glued to its edges by a rule each, and by dividers
// that the user drags between neighbours. All in numbers; resizeWnd binds it to a dialog.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "platform/geometry.h"

namespace lx {

// Bits of an edge rule. Without keepTop and keepLeft that edge moves with the dialog's bottom or
// right edge; without moveBottom and moveRight it stays.
namespace edge {
inline constexpr int keepTop = 1;
inline constexpr int keepLeft = 2;
inline constexpr int moveBottom = 4;
inline constexpr int moveRight = 8;
inline constexpr int staysInPlace = keepTop | keepLeft;
inline constexpr int stretchesDown = staysInPlace | moveBottom;
inline constexpr int stretches = stretchesDown | moveRight;
inline constexpr int staysInCorner = moveBottom | moveRight;  // the bottom right one
}  // namespace edge

// The edge of a control that borders a divider; none for an ordinary registration.
enum class Side { none = 0, top = 1, left = 2, bottom = 3, right = 4 };

// A control may be registered more than once.
struct resizeCtrl {
    int control = 0;  // id
    Rect area;        // in the dialog's client area, kept up to date
    int rule = 0;     // bits of edge
    int minimumWidth = 0;
    int minimumHeight = 0;
    int partner = 0;  // id of the control on the other side of the divider
    Side side = Side::none;
};

struct ControlMove {
    int control = 0;
    Rect area;
    bool operator==(const ControlMove&) const = default;
};
// Each control at most once, with the place where it ends up.
using ControlMoves = std::vector<ControlMove>;

class ResizeRules {
public:
    // Tells whether the control of that id is shown now.
    explicit ResizeRules(std::function<bool(int control)> shown) : m_shown(std::move(shown)) {}

    // replace: earlier registrations of the control go. Its size now is its minimum size.
    void addControl(int control, const Rect& area, int rule, bool replace);
    // A divider at that side of the first control, whose neighbour is the second one.
    void addDivider(int control, const Rect& area, Side side, int partner, const Rect& partnerArea);
    // Other minimum sizes for all registrations of a control; a negative one leaves what there is.
    void setSize(int control, int width, int height);

    // The client size that the registered areas belong to. Before it sizes are ignored.
    void initialise(Size client) { m_client = client; }
    bool initialised() const { return m_client.has_value(); }
    // The client area has this size now. When it shrank, dividers are pushed back until the
    // controls beside them have their minimum sizes.
    ControlMoves relayout(Size client);

    // The side of the registration whose divider lies under the point, edges included.
    std::optional<Side> dividerAt(Point p) const;
    // True when a drag began.
    bool beginDrag(Point p);
    // The side of the divider that is dragged; none when there is no drag.
    Side dragging() const {
        return m_dragging ? m_registrations[m_dragging->divider].side : Side::none;
    }
    ControlMoves drag(Point p);
    void endDrag() { m_dragging.reset(); }

    // For each divider at a top or left side: the control's id, with the high bit for a top side,
    // and how much larger than its minimum it is.
    std::vector<std::int32_t> surpluses() const;
    // Moves the dividers to where such pairs had them, as far as the minimum sizes allow. Any
    // numbers.
    ControlMoves restoreSurpluses(std::span<const std::int32_t> pairs);

private:
    // Indices of registrations.
    using Group = std::vector<std::size_t>;
    struct Drag {
        std::size_t divider = 0;
        Point from;
    };

    std::optional<std::size_t> registrationAt(Point p) const;
    bool isUnder(Point p, const resizeCtrl& divider) const;
    Group groupOf(const resizeCtrl& divider) const;
    int allowed(const Group& group, std::int64_t wanted) const;
    int moveDivider(const resizeCtrl& divider, std::int64_t wanted, ControlMoves& moves);

    std::function<bool(int control)> m_shown;
    std::vector<resizeCtrl> m_registrations;
    std::optional<Size> m_client;
    std::optional<Drag> m_dragging;
};

}  // namespace lx
