#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lx {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::nan("");

std::string fixed(int decimals, std::initializer_list<double> values) {
    std::string texts;
    for (const double value : values) texts += formatFixed(value, decimals) + " ";
    return texts;
}

TEST(Numbers, FixedRoundsWhatTheDoubleIsAndTiesAwayFromZero) {
    EXPECT_EQ(fixed(0, {2.5, 3.5, 0.5, 0.49999999999999994, 1234567.0}), "3 4 1 0 1234567 ");
    // Most decimals have no double of their own, so that their ties are none.
    EXPECT_EQ(fixed(1, {2.15, 0.35, 0.05, 0.15, 2.25, 12.25, -12.25, 12.75, 9.75, 9.96, 0.5}),
              "2.1 0.3 0.1 0.1 2.3 12.3 -12.3 12.8 9.8 10.0 0.5 ");
    EXPECT_EQ(fixed(1, {99.95, 9.95, -0.04, -infinity, notANumber, 4503599627370495.5}),
              "100.0 9.9 -0.0 0.0 0.0 4503599627370495.5 ");
    EXPECT_EQ(fixed(3, {0.0625, 0.1875, 1.0005, 1.0015, 999.9996, 0.0005, 0.00049, 1e-300, 74.3}),
              "0.063 0.188 1.000 1.002 1000.000 0.001 0.000 0.000 74.300 ");
    EXPECT_EQ(formatFixed(1e300, 1).substr(0, 20), "10000000000000000525");
    EXPECT_EQ(formatFixed(-std::numeric_limits<double>::max(), 9).size(), 320U);
}

TEST(Numbers, GeneralIsThatOfTheCLibrary) {
    std::string texts;
    for (const double value : {2.5, 1e5, 1e6, 1e-4, 1e-5, 1.0 / 3.0}) {
        texts += formatGeneral(value) + " ";
    }
    EXPECT_EQ(texts, "2.5 100000 1e+06 0.0001 1e-05 0.333333 ");
    EXPECT_EQ(formatInt(std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
}

TEST(Numbers, LeadingIntStopsAndSaturates) {
    EXPECT_EQ(leadingInt(" \t\r\n12abc"), 12);
    EXPECT_EQ(leadingInt("-7.9"), -7);
    EXPECT_EQ(leadingInt("+5"), 5);
    for (const char* none : {"", "x1", "- 5", "+-5", "."}) EXPECT_EQ(leadingInt(none), 0) << none;
    EXPECT_EQ(leadingInt("2147483647"), 2147483647);
    EXPECT_EQ(leadingInt("2147483648"), 2147483647);
    EXPECT_EQ(leadingInt("-2147483648"), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(leadingInt("-99999999999999999999999"), std::numeric_limits<std::int32_t>::min());
}

TEST(Numbers, LeadingDoubleReadsDecimalNotationOnly) {
    const struct {
        const char* text;
        double value;
        std::size_t consumed;
    } cases[] = {{"12.5kg", 12.5, 4},
                 {" -0.5", -0.5, 5},
                 {"+3", 3.0, 2},
                 {".25", 0.25, 3},
                 {"5.", 5.0, 2},
                 {"1e3x", 1000.0, 3},
                 {"1e", 1.0, 1},
                 {"1e+", 1.0, 1},
                 {"2.5E-1", 0.25, 6},
                 {"12,5", 12.0, 2},
                 {"0x10", 0.0, 1},
                 {"", 0.0, 0},
                 {".", 0.0, 0},
                 {"-.e1", 0.0, 0},
                 {"inf", 0.0, 0},
                 {"nan", 0.0, 0},
                 {"1.2.3", 1.2, 3},
                 {"1e999", infinity, 5},
                 {"-1e999", -infinity, 6},
                 {"1e-999", 0.0, 6},
                 {"0e99999999999", 0.0, 13}};
    for (const auto& expected : cases) {
        std::size_t consumed = 99;
        EXPECT_EQ(leadingDouble(expected.text, &consumed), expected.value) << expected.text;
        EXPECT_EQ(consumed, expected.consumed) << expected.text;
    }
    const std::string manyDigits = std::string(400, '9');
    EXPECT_EQ(leadingDouble(manyDigits), infinity);
    EXPECT_EQ(leadingDouble("0." + std::string(400, '0') + "1"), 0.0);
    EXPECT_EQ(leadingDouble("0." + std::string(400, '0') + "1e401"), 1.0);
}

TEST(Numbers, TruncatesTowardsZeroWithinTheRange) {
    EXPECT_EQ(truncateToInt(2.3 * 1000), 2300);
    EXPECT_EQ(truncateToInt(-1.9), -1);
    EXPECT_EQ(truncateToInt(1e300), 2147483647);
    EXPECT_EQ(truncateToInt(-infinity), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(truncateToInt(notANumber), 0);
}

}  // namespace
}  // namespace lx
