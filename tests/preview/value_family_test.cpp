// Which remembered values a number of the section preview offers.
#include "preview/value_family.h"

#include <gtest/gtest.h>

#include "tests/support/designs.h"

namespace lx {
namespace {

struct ValueFamily : testing::Test {
    RezChain design;
    HitRegions regions;  // newest first

    void SetUp() override { design.append(headOf(300)); }
    // As the drawing makes them: a run and a step of each bend from the left to the right.
    void bend(std::int32_t step, int x) {
        const int index = static_cast<int>(regions.size()) / 2;
        design.head()->addBend(100, step, false);
        put(region::number, x, {design.head(), EditField::bendRun, index});
        put(region::number, x + 20, {design.head(), EditField::bendStep, index});
    }
    void put(int kind, int x, EditTarget target) {
        HitRegion region;
        region.kind = kind;
        region.x = x;
        region.target = target;
        regions.insert(regions.begin(), region);
    }
    std::vector<Text> families() const {
        std::vector<Text> result;
        for (std::size_t i = 0; i < regions.size(); ++i) {
            result.push_back(valueFamily(regions, i, design));
        }
        return result;
    }
};

using Families = std::vector<Text>;

TEST_F(ValueFamily, OneBendHasFamiliesOfItsOwn) {
    bend(50, 200);
    EXPECT_EQ(families(), (Families{"COMBO_NADPR1_1", "COMBO_NADPR2_1"}));
    // A number at 140 or left of it is no bend's.
    regions[1].x = 140;
    EXPECT_EQ(families(), (Families{"COMBO_NADPR1_2", "COMBO_NADPR1_2"}));
    regions[0].x = 140;
    EXPECT_EQ(families(), (Families{"COMBO_NADPR0_2", "COMBO_NADPR0_2"}));
}

TEST_F(ValueFamily, MoreBendsAreCountedFromTheRight) {
    bend(-100, 200);
    bend(200, 250);
    EXPECT_EQ(families(),
              (Families{"COMBO_NADPR1_3", "COMBO_NADPR2_3", "COMBO_NADPR3_3", "COMBO_NADPR4_3"}));
    design.head()->bends->step = 100;
    EXPECT_EQ(families()[2], "COMBO_NADPR3_2");
    // With a third bend the third number is the second one's step.
    bend(50, 300);
    EXPECT_EQ(families()[5], "COMBO_NADPR6_2");
    design.head()->bends->next->step = -1;
    EXPECT_EQ(families()[5], "COMBO_NADPR6_3");
}

TEST_F(ValueFamily, TheNumbersOfASpecialLayerAreKnownBesideABend) {
    bend(50, 200);
    const CRez* layer = design.append(lx::layer(Kind::insulation, 50));
    put(region::specialWidth, 66, {layer, EditField::width});
    put(region::number, 53, {layer, EditField::height});
    EXPECT_EQ(families(),
              (Families{"COMBO_VYSKA3", "COMBO_TLOUSTKA", "COMBO_NADPR1_1", "COMBO_NADPR2_1"}));
    regions[0].x = 66;
    EXPECT_EQ(families(),
              (Families{"COMBO_VYSKA2", "COMBO_SIRKA", "COMBO_NADPR1_1", "COMBO_NADPR2_1"}));
    // Without a bend there is no third number to know them by.
    regions.resize(2);
    EXPECT_EQ(families(), (Families{"COMBO_NADPR0_2", "COMBO_NADPR0_2"}));
}

}  // namespace
}  // namespace lx
