// Whole millimetres from files may be any 32-bit number; sums of them are taken in 64 bits and held
// to the range.
#pragma once

#include <cstdint>
#include <limits>

namespace lx {

constexpr std::int32_t saturated(std::int64_t value) {
    constexpr std::int64_t low = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t high = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(value < low ? low : value > high ? high : value);
}

}  // namespace lx
