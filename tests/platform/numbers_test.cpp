#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lx {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double notANumber = std::nan("");

TEST(Numbers, FixedRoundsDecimalTiesAwayFromZero) {
    EXPECT_EQ(formatFixed(12.25, 1), "12.3");
    EXPECT_EQ(formatFixed(-12.25, 1), "-12.3");
    EXPECT_EQ(formatFixed(0.05, 1), "0.1");
    EXPECT_EQ(formatFixed(0.15, 1), "0.2") << "the nearest double is below 0.15";
    EXPECT_EQ(formatFixed(1.0005, 3), "1.001");
    EXPECT_EQ(formatFixed(2.5, 0), "3");
    EXPECT_EQ(formatFixed(0.5, 0), "1");
    EXPECT_EQ(formatFixed(0.49999999999999994, 0), "0");
}

TEST(Numbers, FixedCarriesAndPads) {
    EXPECT_EQ(formatFixed(9.96, 1), "10.0");
    EXPECT_EQ(formatFixed(999.9996, 3), "1000.000");
    EXPECT_EQ(formatFixed(0.00049, 3), "0.000");
    EXPECT_EQ(formatFixed(0.0005, 3), "0.001");
    EXPECT_EQ(formatFixed(1e-300, 3), "0.000");
    EXPECT_EQ(formatFixed(0.0, 3), "0.000");
    EXPECT_EQ(formatFixed(-0.04, 1), "-0.0");
    EXPECT_EQ(formatFixed(74.3, 3), "74.300");
    EXPECT_EQ(formatFixed(1234567.0, 0), "1234567");
    EXPECT_EQ(formatFixed(1e300, 1), "1" + std::string(300, '0') + ".0");
    EXPECT_EQ(formatFixed(notANumber, 3), "0.000");
    EXPECT_EQ(formatFixed(-infinity, 1), "0.0");
}

TEST(Numbers, GeneralIsThatOfTheCLibrary) {
    EXPECT_EQ(formatGeneral(2.5), "2.5");
    EXPECT_EQ(formatGeneral(100000.0), "100000");
    EXPECT_EQ(formatGeneral(1000000.0), "1e+06");
    EXPECT_EQ(formatGeneral(0.0001), "0.0001");
    EXPECT_EQ(formatGeneral(0.00001), "1e-05");
    EXPECT_EQ(formatGeneral(1.0 / 3.0), "0.333333");
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

struct Leading {
    const char* text;
    double value;
    std::size_t consumed;
};

TEST(Numbers, LeadingDoubleReadsDecimalNotationOnly) {
    const Leading cases[] = {{"12.5kg", 12.5, 4},
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
    for (const Leading& expected : cases) {
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
