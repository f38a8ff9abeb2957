#include "widgets/placement_list.h"

#include <algorithm>

namespace lx {

namespace {

constexpr std::int32_t storedMinimized = 2;
constexpr std::int32_t storedMaximized = 3;
constexpr std::int32_t storedNormal = 8;
// No window is wider or higher, whatever was stored.
constexpr int largest = 1'000'000;

std::int32_t stored(ShowState state) {
    switch (state) {
        case ShowState::maximized:
            return storedMaximized;
        case ShowState::minimized:
            return storedMinimized;
        default:
            return storedNormal;
    }
}

ShowState stateFrom(std::int32_t number) {
    switch (number) {
        case storedMaximized:
            return ShowState::maximized;
        case storedMinimized:
            return ShowState::minimized;
        default:
            return ShowState::normal;
    }
}

// Where an extent that begins at start begins on a screen of that size; one that is too long for it
// begins at 0.
int pulledIn(int start, int length, int screen) {
    const std::int64_t excess = std::int64_t{start} + length - screen;
    const std::int64_t pulled = excess > 0 ? start - excess : start;
    return static_cast<int>(std::max<std::int64_t>(0, pulled));
}

}  // namespace

std::vector<std::int32_t> placementList(const WindowPlacement& now, const WindowPlacement& initial,
                                        const Screen& screen) {
    const Size size = screen.size;
    const bool within = now.normal.left <= size.width && now.normal.right <= size.width &&
                        now.normal.top <= size.height && now.normal.bottom <= size.height;
    const Rect& area = within ? now.normal : initial.normal;
    return {area.left,     area.top,           area.width(),
            area.height(), screen.verticalDpi, stored(now.state)};
}

std::optional<WindowPlacement> placementFrom(std::span<const std::int32_t> list, Size minimum,
                                             const Screen& screen) {
    if (list.size() < placementEntries - 1 || list[4] != screen.verticalDpi) return std::nullopt;
    Size size{std::clamp(list[2], 0, largest), std::clamp(list[3], 0, largest)};
    const int left = pulledIn(list[0], size.width, screen.size.width);
    const int top = pulledIn(list[1], size.height, screen.size.height);
    if (size.width < minimum.width || size.height < minimum.height) size = minimum;
    const ShowState state =
        list.size() >= placementEntries ? stateFrom(list[5]) : ShowState::normal;
    return WindowPlacement{{left, top, left + size.width, top + size.height}, state};
}

}  // namespace lx
