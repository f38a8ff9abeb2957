#include "catalogue/natural_order.h"

#include <gtest/gtest.h>

#include <random>

namespace lx {
namespace {

constexpr std::string_view collation =
    "#*-_/aAáÁbBcCčČdDďĎeEéÉěĚfFgGhHiIíÍjJkKlLmMnNoOóÓpPqQrRřŘsSšŠtTťŤuUúÚůŮvVwWxXyYýÝzZžŽ"_cz;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// The comparison as a walk through both texts, for runs of digits that fit an integer.
int walked(std::string_view a, std::string_view b) {
    const auto run = [](std::string_view text, std::size_t& i) {
        std::int64_t value = 0;
        for (;; ++i) {
            value = value * 10 + (text[i] - '0');
            if (i + 1 == text.size() || !isDigit(text[i + 1])) return value;
        }
    };
    const auto rank = [](char c) {
        const std::size_t at = collation.find(c);
        return at == std::string_view::npos ? -1 : static_cast<int>(at);
    };
    std::size_t i = 0;
    std::size_t j = 0;
    for (; i < a.size() && j < b.size(); ++i, ++j) {
        const bool numberA = isDigit(a[i]);
        const bool numberB = isDigit(b[j]);
        if (numberA != numberB) return numberB ? 1 : 0;
        const std::int64_t left = numberA ? run(a, i) : rank(a[i]);
        const std::int64_t right = numberB ? run(b, j) : rank(b[j]);
        if (left != right) return left > right ? 1 : 0;
    }
    return i < a.size() ? 1 : 0;
}

// Strictly: the other way round it does not hold.
bool before(std::string_view a, std::string_view b) {
    return compareNatural(a, b) == 0 && compareNatural(b, a) == 1;
}
bool alike(std::string_view a, std::string_view b) {
    return compareNatural(a, b) == 0 && compareNatural(b, a) == 0;
}

TEST(NaturalOrder, AgreesWithTheWalkOnRandomTexts) {
    constexpr std::string_view alphabet = "0019a#AáňŇžŽ.- "_cz;
    std::mt19937 random(1);
    const auto text = [&] {
        Text result(random() % 7, ' ');
        for (char& c : result) c = alphabet[random() % alphabet.size()];
        return result;
    };
    for (int n = 0; n < 20000; ++n) {
        const Text a = text();
        const Text b = text();
        ASSERT_EQ(compareNatural(a, b), walked(a, b)) << toUtf8(a) << '|' << toUtf8(b);
    }
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

TEST(NaturalOrder, ComparesRunsOfDigitsByValue) {
    EXPECT_TRUE(before("L 2", "L 10"));
    EXPECT_TRUE(before("L 1", "L 1a"));
    EXPECT_TRUE(before("L 1a", "L 2"));
    EXPECT_TRUE(before("12.5", "12.10"));
    EXPECT_TRUE(alike("L 012", "L 12"));
    EXPECT_TRUE(alike("000", "0"));
    EXPECT_TRUE(before("0", "01"));
    EXPECT_TRUE(before("012a", "12b"));
    EXPECT_TRUE(before("abc", "abcd"));
    EXPECT_TRUE(before("", "0"));
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

}  // namespace
}  // namespace lx
