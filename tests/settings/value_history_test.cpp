#include "settings/value_history.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/support/memory_files.h"

namespace lx {
namespace {

class ValueHistoryTest : public ::testing::Test {
protected:
    MemoryFiles files;
    Profile profile{files, "dialog.dat"};
    ValueHistory history{profile, "COMBO_SIRKA"};

    void hold(std::string_view lines) {
        files.content["dialog.dat"] = "[COMBO_SIRKA]\n" + Bytes(lines) + "[X]\n0=9\n";
    }
    Text value(std::string_view key) { return profile.read("COMBO_SIRKA", key, "none"); }
};

using Texts = std::vector<Text>;

TEST_F(ValueHistoryTest, ShowsWhatDoesNotBeginWithMinusAndAddsBehindIt) {
    EXPECT_EQ(history.shown(), Texts{});
    hold("nr=4\n0=1200\n1=-5\n3=1500\n4=7\n");
    EXPECT_EQ(history.shown(), (Texts{"1200", "0", "1500"}));
    EXPECT_TRUE(history.add("-2.500"));
    EXPECT_EQ(value("4"), "-2.500");
    EXPECT_EQ(value("nr"), "5");
    EXPECT_EQ(history.shown(), (Texts{"1200", "0", "1500"}));
    EXPECT_TRUE(history.add("1800"));
    EXPECT_EQ(history.shown(), (Texts{"1200", "0", "1500", "1800"}));
}

TEST_F(ValueHistoryTest, RemovingMovesLaterValuesDown) {
    hold("0=1200\n1=1500\n2=1500\n4=1800\nnr=5\n");
    EXPECT_TRUE(history.remove("1500"));
    EXPECT_EQ(value("nr"), "4");
    EXPECT_EQ(value("0"), "1200");
    EXPECT_EQ(value("1"), "1500");
    EXPECT_EQ(value("2"), "none");
    EXPECT_EQ(value("3"), "1800");
    EXPECT_EQ(value("4"), "none");
    EXPECT_TRUE(history.remove("150"));
    EXPECT_EQ(value("nr"), "4");
    EXPECT_EQ(profile.read("X", "0", ""), "9");
}

TEST_F(ValueHistoryTest, BearsADamagedCount) {
    hold("nr=-3\n0=5\n");
    EXPECT_EQ(history.shown(), Texts{});
    EXPECT_TRUE(history.add("7"));
    EXPECT_EQ(history.shown(), Texts{"7"});
    hold("nr\nnr=2\n0\n0=5\n");
    EXPECT_EQ(history.shown(), Texts{}) << "of doubled lines the first counts";
    EXPECT_TRUE(history.add("7"));
    EXPECT_EQ(history.shown(), Texts{"7"});
    hold("nr=2000000000\n0=5\n");
    EXPECT_LE(history.shown().size(), 200000U);
    EXPECT_TRUE(history.remove("5"));
    EXPECT_EQ(history.shown().front(), "0");
}

// A file that was not clicked together: every third value is missing, and one is there twice.
TEST_F(ValueHistoryTest, RemovingOneOfAHundredThousandTakesNoTime) {
    constexpr int many = 100000;
    Bytes lines = "nr=" + std::to_string(many) + "\n";
    const auto written = [](int number) {
        const std::string text = std::to_string(number);
        return text + "=" + text + "mm\n";
    };
    for (int i = 0; i < many; ++i) {
        if (i % 3 != 1) lines += written(i);
    }
    hold(lines + "5=doubled\n");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(history.remove("2mm"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_EQ(value("nr"), std::to_string(many - 1));
    std::vector<Text> wanted;
    for (int i = 0; i < many; ++i) {
        if (i != 2) wanted.push_back(i % 3 == 1 ? "0" : std::to_string(i) + "mm");
    }
    EXPECT_EQ(history.shown(), wanted);
    for (const char* added : {"12", "13"}) {
        EXPECT_TRUE(history.add(added));
        EXPECT_EQ(history.shown().back(), added);
    }
}

}  // namespace
}  // namespace lx
