// A window's placement as the list of integers that is stored: left, top, width, height of the
// normal state, the screen's pixels per inch, the show state; dividers follow.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/platform.h"

namespace lx {

// Entries in front of the dividers' pairs.
inline constexpr std::size_t placementEntries = 6;

// initial stands in for a window that sticks out of the screen to the right or below.
std::vector<std::int32_t> placementList(const WindowPlacement& now, const WindowPlacement& initial,
                                        const Screen& screen);
// Pulled onto the screen, then not smaller than minimum. None when the list has fewer than 5
// entries or is from a screen with other pixels per inch. Any numbers.
std::optional<WindowPlacement> placementFrom(std::span<const std::int32_t> list, Size minimum,
                                             const Screen& screen);

}  // namespace lx
