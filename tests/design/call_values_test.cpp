// What the host's call becomes: names, dimensions, bends.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "design/bend_presets.h"
#include "design/bubble_name.h"
#include "design/opening.h"
#include "tests/support/designs.h"

namespace lx {
namespace {

TEST(BubbleName, TheProposalCountsOnInTheTrailingNumber) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "0"},         {"A99", "A100"},
        {"0099", "0100"},  {"P", "P1"},
        {"1A9B", "1A9B1"}, {"A1 9", "A1 10"},
        {"0", "1"},        {"99999999999999999999", "100000000000000000000"}};
    for (const auto& [last, next] : cases) EXPECT_EQ(proposeBubbleName(last), next) << last;
}

TEST(BubbleName, OnlyItsFirstByteDecides) {
    for (const char* name : {"!", "A b", "1", "\x7f", "P\xC8"}) {
        EXPECT_TRUE(bubbleNameAccepted(name)) << name;
    }
    for (const char* name : {"", " A", "\t", "\x80", "\xC8\x31", "\xFF"}) {
        EXPECT_FALSE(bubbleNameAccepted(name)) << name;
    }
}

TEST(Opening, LengthsOfTheCallBecomeWholeMillimetres) {
    const std::int32_t most = std::numeric_limits<std::int32_t>::max();
    for (const auto& [length, whole] :
         {std::pair{300.05, 300}, {300.1, 301}, {1e300, most}, {std::nan(""), 0}}) {
        EXPECT_EQ(wholeMillimetres(length), whole);
    }
    for (const auto& [width, shown] : {std::pair{1200.5, 1200}, {1200.51, 1201}, {1e300, most}}) {
        EXPECT_EQ(shownOpening(width), shown);
    }
    EXPECT_EQ(shownBearing(1450, 1200.6), 124);
    EXPECT_EQ(shownBearing(1450, 1200.5), 125);
    EXPECT_EQ(shownBearing(1199, 1200), 0);
    EXPECT_EQ(shownBearing(1197, 1200), -1);
    EXPECT_EQ(shownBearing(std::numeric_limits<std::int32_t>::min(), 1e300), -most);

    const auto head = headFromCall(1200.1, 300.1, 2.3);
    EXPECT_EQ(head->kind, Kind::head);
    EXPECT_EQ(head->length, 1201);
    EXPECT_EQ(head->width, 301);
    EXPECT_EQ(head->height, 2300);
    EXPECT_EQ(headFromCall(1, 1, -0.0019)->height, -1);
    EXPECT_EQ(headFromCall(1, 1, 74.3)->height, 74300);
}

OpeningBlock blockOf(std::int16_t shape, double step1, double run1, double step2, double run2,
                     double step3 = 0) {
    OpeningBlock block{};
    block.headShape = shape;
    block.bend1Step = step1;
    block.bend1Run = run1;
    block.bend2Step = step2;
    block.bend2Run = run2;
    block.bend3Step = step3;
    return block;
}

std::string bendsOf(const OpeningBlock& block) {
    const auto head = headOf(300);
    head->addBend(1, 1, true);
    bendsFromBlock(*head, block);
    return bendsOf(*head);
}

TEST(Opening, EachHeadShapeMakesItsBends) {
    const double none = 0;
    EXPECT_EQ(bendsOf(blockOf(4, 100.9, 150.9, -50.9, 70, 9)), "150,100 70,-50! ");
    EXPECT_EQ(bendsOf(blockOf(4, none, none, none, none)), "0,0 0,0! ");
    EXPECT_EQ(bendsOf(blockOf(3, -100, 150, none, 70)), "150,-100 ");
    EXPECT_EQ(bendsOf(blockOf(1, none, 150, 50, 70)), "");
    EXPECT_EQ(bendsOf(blockOf(0, std::nan(""), 1e300, none, 0)), "2147483647,0 ");
}

std::string presetBends(std::int32_t wall, int shape) {
    const auto head = headOf(wall);
    head->addBend(1, 2, true);
    setBends(*head, shape);
    return bendsOf(*head);
}

TEST(BendPresets, RunsDivideTheWallAndTheLastBendOfTheLastTwoShapesSlopes) {
    EXPECT_EQ(presetBends(365, 0), "");
    EXPECT_EQ(presetBends(365, 1), "182,100 ");
    EXPECT_EQ(presetBends(365, 2), "121,100 121,100 ");
    EXPECT_EQ(presetBends(300, 3), "100,-100 100,200 ");
    EXPECT_EQ(presetBends(365, 4), "182,100 182,100! ");
    EXPECT_EQ(presetBends(299, 5), "99,100 99,100 99,100! ");
    EXPECT_EQ(presetBends(-5, 2), "-1,100 -1,100 ");
    for (const int unknown : {-1, 6}) EXPECT_EQ(presetBends(300, unknown), "");
}

TEST(Opening, DrawingUnitsScaleTheBendsAlone) {
    OpeningBlock block = blockOf(5, 1, 2, 3, 4, 5);
    block.width1 = 1100;
    block.width2 = 1300;
    const auto metres = blockInMillimetres(block, 1);
    ASSERT_TRUE(metres);
    EXPECT_EQ(bendsOf(*metres), "2000,1000 4000,3000 3000,5000! ");
    EXPECT_EQ(metres->width2, 1300);
    // 1000 / 300 is 3, 1000 / 2000 is 0.
    EXPECT_EQ(bendsOf(*blockInMillimetres(block, 300)), "6,3 12,9 9,15! ");
    EXPECT_EQ(bendsOf(*blockInMillimetres(block, 2000)), "0,0 0,0 0,0! ");
    EXPECT_FALSE(blockInMillimetres(block, 0));

    EXPECT_FALSE(widerOpening(block));
    block.openingKind = 8;
    EXPECT_EQ(widerOpening(block), 1300.0);
    block.width1 = 1300;
    EXPECT_FALSE(widerOpening(block));
}

}  // namespace
}  // namespace lx
