#include "platform/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace lx {

namespace {

bool isSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::size_t skipSpaces(std::string_view text) {
    std::size_t i = 0;
    while (i < text.size() && isSpace(text[i])) ++i;
    return i;
}

std::size_t skipDigits(std::string_view text, std::size_t i) {
    while (i < text.size() && isDigit(text[i])) ++i;
    return i;
}

Text fixedText(double value, int decimals) {
    // The longest has 309 digits in front of its point.
    char buffer[330];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals);
    return {buffer, written.ptr};
}

// Whether a number of that notation is too large for a double or too small for one: the place of
// its first significant digit decides.
bool tooLarge(std::string_view number) {
    long long place = 0;
    bool significant = false;
    bool behindPoint = false;
    std::size_t i = 0;
    for (; i < number.size() && number[i] != 'e' && number[i] != 'E'; ++i) {
        if (number[i] == '.') {
            behindPoint = true;
        } else {
            significant = significant || number[i] != '0';
            if (significant && !behindPoint) ++place;
            if (!significant && behindPoint) --place;
        }
    }
    if (i < number.size()) place += leadingInt(number.substr(i + 1));
    return significant && place > 0;
}

}  // namespace

Text formatInt(std::int64_t value) {
    char buffer[24];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, value);
    return {buffer, written.ptr};
}

Text formatFixed(double value, int decimals) {
    if (!std::isfinite(value)) value = 0.0;
    decimals = std::clamp(decimals, 0, 9);
    // Only a value of so few binary places can lie half way between two texts; one more decimal
    // then shows it whole. The library rounds such a one to the even digit.
    const double scaled = std::ldexp(value, decimals + 1);
    if (scaled == std::trunc(scaled)) {
        Text half = fixedText(value, decimals + 1);
        if (half.back() == '5') {
            half.resize(half.size() - (decimals == 0 ? 2 : 1));
            if ((half.back() - '0') % 2 == 0) {
                ++half.back();
                return half;
            }
        }
    }
    return fixedText(value, decimals);
}

Text formatGeneral(double value) {
    char buffer[32];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 6);
    return {buffer, written.ptr};
}

std::int32_t leadingInt(std::string_view text) {
    constexpr std::int64_t limit = std::int64_t{1} << 31;
    std::size_t i = skipSpaces(text);
    const bool negative = i < text.size() && text[i] == '-';
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
    std::int64_t value = 0;
    for (; i < text.size() && isDigit(text[i]); ++i) {
        value = std::min(value * 10 + (text[i] - '0'), limit);
    }
    return static_cast<std::int32_t>(negative ? -value : std::min(value, limit - 1));
}

double leadingDouble(std::string_view text, std::size_t* consumed) {
    if (consumed) *consumed = 0;
    std::size_t begin = skipSpaces(text);
    const bool negative = begin < text.size() && text[begin] == '-';
    if (begin < text.size() && (text[begin] == '-' || text[begin] == '+')) ++begin;

    const std::size_t point = skipDigits(text, begin);
    std::size_t end = point;
    if (end < text.size() && text[end] == '.') end = skipDigits(text, end + 1);
    if (point == begin && end <= point + 1) return 0.0;
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        std::size_t digits = end + 1;
        if (digits < text.size() && (text[digits] == '-' || text[digits] == '+')) ++digits;
        const std::size_t behind = skipDigits(text, digits);
        if (behind > digits) end = behind;
    }

    if (consumed) *consumed = end;
    const std::string_view number = text.substr(begin, end - begin);
    double value = 0.0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (read.ec == std::errc::result_out_of_range) {
        value = tooLarge(number) ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return negative ? -value : value;
}

std::int32_t truncateToInt(double value) {
    if (std::isnan(value)) return 0;
    if (value >= 2147483647.0) return std::numeric_limits<std::int32_t>::max();
    if (value <= -2147483648.0) return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

}  // namespace lx
