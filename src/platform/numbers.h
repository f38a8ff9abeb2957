// Numbers to and from text, without the process locale (a host may have set a decimal comma).
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/text.h"

namespace lx {

// "%d".
Text formatInt(std::int64_t value);
// "%.Nf" for 0 to 9 decimals: what the double is decides (2.15 lies below and gives "2.1" with 1),
// and where it lies exactly half way it goes away from zero (12.25 gives "12.3"). Infinite or not a
// number: 0 so formatted.
Text formatFixed(double value, int decimals);
// "%g".
Text formatGeneral(double value);

// Leading whitespace, an optional sign and the leading decimal digits, 0 when there are none;
// saturates.
std::int32_t leadingInt(std::string_view text);
// The leading decimal number (whitespace, sign, digits, point, exponent); 0 when there is none,
// infinite when it is too large. consumed, when given, is the number of bytes read.
double leadingDouble(std::string_view text, std::size_t* consumed = nullptr);

// Truncation towards zero, saturating at the range of int32; not a number gives 0.
std::int32_t truncateToInt(double value);

}  // namespace lx
