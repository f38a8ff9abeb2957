// The scale of the section preview, and what of a design depends on it.
#include <gtest/gtest.h>

#include "composition/layout.h"
#include "composition/section_scale.h"
#include "tests/support/designs.h"

namespace lx {
namespace {

constexpr Size small{370, 300};
constexpr Size large{555, 300};

TEST(SectionScale, ThinWallsShareOneScale) {
    EXPECT_DOUBLE_EQ(sectionScale(199, small).scale, 370 / 500.0);
    EXPECT_DOUBLE_EQ(sectionScale(200, small).scale, 370 / 200.0 / 2.5);
    EXPECT_DOUBLE_EQ(sectionScale(450, small).scale, 370 / 450.0 / 2.5);
    EXPECT_EQ(sectionScale(300, small).origin, (Point{148, 150}));
    // The origin is truncated with the pan in it: 334 / 1.5 - 50 = 172.67.
    EXPECT_EQ(sectionScale(300, {371, 334}).origin, (Point{148, 172}));
}

// Shape 4 of the bend presets: two runs of half the wall, the second one flagged.
struct FlaggedHead : testing::Test {
    RezChain design;
    CRez* head = nullptr;
    CRez* front = nullptr;
    CRez* back = nullptr;

    void make(std::int32_t wall) {
        head = design.append(headOf(wall));
        head->addBend(wall / 2, 100, false);
        head->addBend(wall / 2, 100, true);
        front = design.append(layer(Kind::precast, wall / 2));
        back = design.append(layer(Kind::precast, wall / 2));
        layOut(*head);
    }
};

TEST_F(FlaggedHead, LayersOnTheSlopingStepStandOnItsTop) {
    make(300);
    ASSERT_EQ(back->level, 100);
    settleSection(*head, small);
    EXPECT_EQ(front->level, 0);
    EXPECT_EQ(back->level, 198);
    settleSection(*head, small);
    EXPECT_EQ(back->level, 198);
    layOut(*head);
    settleSection(*head, large);
    EXPECT_EQ(back->level, 200);
    EXPECT_EQ(head->bends->next->run, 150);
}

TEST_F(FlaggedHead, TheRunReachesTheSecondFaceBeforeLevelsAreTaken) {
    make(365);
    ASSERT_EQ(back->offset, 182);
    back->width = 183;
    layOut(*head);
    // A run that ends a millimetre short of the face lets the layer reach over the step.
    ASSERT_EQ(back->level, 200);
    head->bends->next->step = -100;
    settleSection(*head, small);
    EXPECT_EQ(head->bends->next->run, 183);
    EXPECT_EQ(back->level, 100);
}

TEST_F(FlaggedHead, ALayerWhoseBottomIsTheTopOfTheStepStaysAsHighAsItIs) {
    make(300);
    head->bends->step = 99;
    head->bends->next->step = 4;
    layOut(*head);
    // 0.3 pixels a millimetre: 99 mm and the step's top, in two parts, both end in the 30th pixel.
    settleSection(*head, {225, 300});
    EXPECT_EQ(back->level, 99);
}

TEST_F(FlaggedHead, ImpossibleValuesAreHeld) {
    make(300);
    head->bends->run = 2147483647;
    head->bends->step = 2147483647;
    head->bends->next->step = -2147483647 - 1;
    settleSection(*head, small);
    EXPECT_EQ(head->bends->next->run, 300 - 2147483647);
    settleSection(*head, {0, 0});
    head->width = 0;
    settleSection(*head, {1, 1});
    EXPECT_EQ(head->bends->next->run, -2147483647);
}

TEST(SectionScale, AStraightHeadIsLeftAlone) {
    RezChain design = sampleDesign();
    design.head()->bends->next->flag = false;
    const Bytes before = designBytes(design.head());
    settleSection(*design.head(), small);
    EXPECT_EQ(designBytes(design.head()), before);
}

}  // namespace
}  // namespace lx
