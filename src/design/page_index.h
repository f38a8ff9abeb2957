// The pages of the design dialog in the order of their tabs; the settings store these numbers.
#pragma once

namespace lx::page {

inline constexpr int geometry = 0;
inline constexpr int precast = 1;
inline constexpr int steel = 2;
inline constexpr int monolith = 3;
inline constexpr int library = 4;
inline constexpr int count = 5;

}  // namespace lx::page
