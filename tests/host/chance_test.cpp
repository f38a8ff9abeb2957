// What is left to chance in a scenario.
#include "host/chance.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace lx::host {
namespace {

std::vector<ScenarioLine> linesOf(const std::string& text) {
    return readScenario("main", [&text](const std::string&) { return std::optional(text); });
}

std::string draw(const std::string& text, unsigned seed = 1, int calls = 4) {
    std::string words;
    for (const ScenarioLine& line : drawn(linesOf(text), {seed, calls})) {
        for (const std::string& word : line.words) words += word + " ";
    }
    return words;
}

TEST(Chance, DealsEachAlternativeOnceBeforeAnyComesAgain) {
    const std::string text = "random calls\nor\na\nor\nrandom 1\nor\nb\nend\nor\nc\nor\nend\nz\n";
    bool orders[2] = {};
    for (unsigned seed = 1; seed <= 20; ++seed) {
        std::string once = draw(text, seed);
        EXPECT_EQ(once, draw(text, seed));
        orders[once.starts_with("a")] = true;
        const std::string twice = draw(text, seed, 8);
        EXPECT_EQ(twice.substr(0, once.size() - 2), once.substr(0, once.size() - 2));
        std::sort(once.begin(), once.end());
        EXPECT_EQ(once, "    abcz");
        EXPECT_EQ(std::count(twice.begin(), twice.end(), 'b'), 2);
    }
    EXPECT_TRUE(orders[0] && orders[1]);
}

TEST(Chance, NumbersStayWithinTheirBounds) {
    bool seen[3] = {};
    for (unsigned seed = 1; seed <= 30; ++seed) {
        const int number = std::stoi(draw("any:7:9\n", seed));
        ASSERT_TRUE(number >= 7 && number <= 9);
        seen[number - 7] = true;
    }
    EXPECT_TRUE(seen[0] && seen[1] && seen[2]);
    EXPECT_EQ(draw("any:0:0\n"), "0 ");
}

TEST(Chance, WhatCannotBeTriedEndsItsAlternativeOrItsCall) {
    const auto lines =
        drawn(linesOf("call\nrandom 1\nor\ntry a\nb\nend\ntry c\nd\nreturns\ntry e\n"), Chance());
    // call, try a, b, try c, d, returns, try e
    ASSERT_EQ(lines.size(), 7U);
    EXPECT_EQ(lines[1].goesOnAt, 3U);
    EXPECT_EQ(lines[3].goesOnAt, 5U);
    EXPECT_EQ(lines[6].goesOnAt, 7U);
}

TEST(Chance, LinesThatCannotBeMeantAreTold) {
    for (const char* wrong : {"or\n", "end\n", "random 1\nor\na\n", "random 1\na\nend\n",
                              "random x\nor\na\nend\n", "random\nor\nend\n", "random -1\nor\nend\n",
                              "any:3:2\n", "any:\n", "any:3\n", "any:a:5\n"}) {
        EXPECT_THROW(draw(wrong), ScenarioError) << wrong;
    }
}

}  // namespace
}  // namespace lx::host
