#include "settings/value_history.h"

#include <gtest/gtest.h>

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
    EXPECT_LE(history.shown().size(), 10000U);
    EXPECT_TRUE(history.remove("5"));
    EXPECT_EQ(history.shown().front(), "0");
}

}  // namespace
}  // namespace lx
