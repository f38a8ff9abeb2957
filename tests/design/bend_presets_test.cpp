#include "design/bend_presets.h"

#include <gtest/gtest.h>

#include "tests/support/designs.h"

namespace lx {
namespace {

// "run,step " of each bend, "!" at a sloping one.
std::string bendsOf(std::int32_t wall, int shape) {
    const auto head = headOf(wall);
    head->addBend(1, 2, true);
    setBends(*head, shape);
    std::string text;
    for (const CZalom* bend = head->bends.get(); bend; bend = bend->next.get()) {
        text += std::to_string(bend->run) + "," + std::to_string(bend->step) +
                (bend->flag ? "! " : " ");
    }
    return text;
}

TEST(BendPresets, RunsDivideTheWallAndTheLastBendOfTheLastTwoShapesSlopes) {
    EXPECT_EQ(bendsOf(365, 0), "");
    EXPECT_EQ(bendsOf(365, 1), "182,100 ");
    EXPECT_EQ(bendsOf(365, 2), "121,100 121,100 ");
    EXPECT_EQ(bendsOf(300, 3), "100,-100 100,200 ");
    EXPECT_EQ(bendsOf(365, 4), "182,100 182,100! ");
    EXPECT_EQ(bendsOf(299, 5), "99,100 99,100 99,100! ");
    EXPECT_EQ(bendsOf(-5, 2), "-1,100 -1,100 ");
    for (const int unknown : {-1, 6}) EXPECT_EQ(bendsOf(300, unknown), "");
}

}  // namespace
}  // namespace lx
