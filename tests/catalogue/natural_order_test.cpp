#include "catalogue/natural_order.h"

#include <gtest/gtest.h>

namespace lx {
namespace {

constexpr std::string_view collation =
    "#*-_/aAáÁbBcCčČdDďĎeEéÉěĚfFgGhHiIíÍjJkKlLmMnNoOóÓpPqQrRřŘsSšŠtTťŤuUúÚůŮvVwWxXyYýÝzZžŽ"_cz;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Strictly: the other way round it does not hold.
bool before(std::string_view a, std::string_view b) {
    return compareNatural(NaturalText(a), NaturalText(b)) == 0 &&
           compareNatural(NaturalText(b), NaturalText(a)) == 1;
}
bool alike(std::string_view a, std::string_view b) {
    return !before(a, b) && !before(b, a);
}

TEST(NaturalOrder, KnowsTheCzechLettersAndPutsTheOthersBeforeThem) {
    for (std::size_t i = 1; i < collation.size(); ++i) {
        EXPECT_TRUE(before(collation.substr(i - 1, 1), collation.substr(i, 1))) << i;
    }
    // Every byte that is neither a digit nor listed.
    for (int byte = 1; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        if (isDigit(c) || collation.find(c) != std::string_view::npos) continue;
        EXPECT_TRUE(alike({&c, 1}, " ")) << byte;
        EXPECT_TRUE(before({&c, 1}, "#")) << byte;
        EXPECT_TRUE(before("9", {&c, 1})) << byte;
    }
}

TEST(NaturalOrder, TheFirstDifferenceDecidesRunsOfDigitsByValue) {
    const char* const ascending[] = {"",       "0",     "01",    "9z",    "12.5", "12.10", "12a1",
                                     "12a01b", "12b",   "012c9", "12c10", "L",    "L1",    "L 1",
                                     "L 1a",   "L 1aa", "L 2",   "L 10",  "L-2"};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        EXPECT_TRUE(alike(ascending[i], ascending[i])) << ascending[i];
        for (std::size_t k = 0; k < i; ++k) {
            EXPECT_TRUE(before(ascending[k], ascending[i])) << ascending[k] << '|' << ascending[i];
        }
    }
    EXPECT_TRUE(alike("L 012", "L 12"));
    EXPECT_TRUE(alike("000", "0"));
}

TEST(NaturalOrder, ComparesRunsOfDigitsOfAnyLength) {
    for (const std::size_t digits : {9U, 10U, 19U, 254U, 255U, 256U, 510U, 70000U}) {
        const Text nines(digits, '9');
        const Text next = "1" + Text(digits, '0');
        EXPECT_TRUE(before(nines, next)) << digits;
        EXPECT_TRUE(before(nines + "z", Text(300, '0') + next + "a")) << digits;
        EXPECT_TRUE(before(next, next.substr(0, digits) + "1")) << digits;
        EXPECT_TRUE(alike(next, "0" + next)) << digits;
        EXPECT_TRUE(before(nines, nines + "#")) << digits;
    }
}

TEST(PlainOrder, DigitsAreCharactersAndLetterCaseIsNone) {
    // "CH" stays among those with "C".
    const std::string_view ascending[] = {"",    "A  ", "A1 ",    "A10", "A19",    "A2 ",
                                          "A9 ", "A_1", "aa ",    "aB ", "Á  "_cz, "c  ",
                                          "cH ", "CI ", "Č  "_cz, "d  ", "Ž  "_cz};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t k = 0; k < std::size(ascending); ++k) {
            EXPECT_EQ(plainLess(ascending[k], ascending[i]), k < i)
                << toUtf8(ascending[k]) << '|' << toUtf8(ascending[i]);
        }
    }
    for (std::size_t i = 0; i + 1 < collation.size(); ++i) {
        const char upper = collation[i + 1];
        const bool pair = static_cast<unsigned char>(collation[i]) ==
                          lowerCase(static_cast<unsigned char>(upper));
        EXPECT_EQ(plainLess(collation.substr(i, 1), collation.substr(i + 1, 1)), !pair) << i;
    }
    EXPECT_FALSE(plainLess("!", ".") || plainLess(".", "!"));
}

}  // namespace
}  // namespace lx
