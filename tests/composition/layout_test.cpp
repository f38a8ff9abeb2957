#include "composition/layout.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "tests/support/designs.h"

namespace lx {
namespace {

struct Layer {
    std::int32_t kind;
    std::int32_t width;
};
struct Case {
    std::vector<Layer> layers;
    std::vector<std::int32_t> offsets;
    std::int32_t space;
    Family family;
};

TEST(Layout, LayersNestAsTheirShapesAllow) {
    constexpr std::int32_t insulation = kind::insulation;
    const Case cases[] = {
        {{}, {}, 300, Family::none},
        {{{1, 100}, {insulation, 80}, {1, 100}}, {0, 50, 100}, 100, Family::steel},
        {{{2, 60}, {insulation, 80}}, {0, 0}, 220, Family::steel},
        {{{3, 61}, {insulation, 80}}, {0, 0}, 220, Family::steel},
        {{{52, 60}, {insulation, 80}}, {0, 60}, 160, Family::steel},
        {{{insulation, 80}, {53, 60}}, {0, 20}, 220, Family::steel},
        // No element starts before the wall's face, nor before the insulation's left neighbour
        // ends.
        {{{insulation, 30}, {52, 60}}, {0, 0}, 240, Family::steel},
        {{{0, 100}, {insulation, 20}, {1, 100}, {insulation, 200}, {52, 190}},
         {0, 100, 100, 150, 200},
         -90,
         Family::precast},
        {{{2, 60}, {insulation, 20}, {102, 10}, {4, 30}}, {0, 0, 20, 60}, 210, Family::steel},
        // Special layers may; halves truncate.
        {{{1, 101}, {insulation, 20}, {103, 30}}, {0, 51, 71}, 199, Family::steel},
        {{{insulation, 80}, {1, 75}}, {0, 43}, 182, Family::steel},
        {{{102, 40}, {103, 70}, {0, 100}}, {0, 40, 110}, 90, Family::monolith},
        {{{102, 40}, {100, 70}}, {0, 40}, 190, Family::none},
    };
    for (const Case& test : cases) {
        RezChain design;
        CRez* head = design.append(headOf(300));
        head->offset = 7;
        head->level = 4;
        for (const Layer& l : test.layers) design.append(layer(l.kind, l.width));
        layOut(*head);
        std::vector<std::int32_t> offsets;
        for (CRez* l = head->next; l; l = l->next) offsets.push_back(l->offset);
        EXPECT_EQ(offsets, test.offsets);
        EXPECT_EQ(freeSpace(*head), test.space);
        EXPECT_EQ(LayerCount(*head), static_cast<int>(test.layers.size()));
        EXPECT_EQ(DesignFamily(*head), test.family);
        EXPECT_TRUE(head->offset == 7 && head->level == 4);
    }
}

TEST(Layout, ALayerLiesAboveTheHighestPartOfTheHeadUnderIt) {
    RezChain design;
    CRez* head = design.append(headOf(300));
    EXPECT_EQ(levelAbove(nullptr, 10, 20), 0);
    head->addBend(150, 100, false);
    EXPECT_EQ(levelAbove(head->bends.get(), 0, 150), 0);
    EXPECT_EQ(levelAbove(head->bends.get(), 0, 151), 100);
    EXPECT_EQ(levelAbove(head->bends.get(), 150, 10), 100);
    head->addBend(50, -300, true);
    for (const int width : {160, 40, 10}) design.append(layer(kind::precast, width));
    layOut(*head);
    EXPECT_EQ(head->next->level, 100);
    EXPECT_EQ(head->next->next->level, 100);
    EXPECT_EQ(design.last()->level, -200);
}

TEST(Layout, AnyNumberFromAFileIsBorne) {
    constexpr std::int32_t high = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t low = std::numeric_limits<std::int32_t>::min();
    RezChain design;
    CRez* head = design.append(headOf(low));
    for (int i = 0; i < 3; ++i) {
        head->addBend(high, high, false);
        design.append(layer(kind::beam, high));
        design.append(layer(kind::insulation, low));
    }
    design.append(layer(kind::precast, high));
    layOut(*head);
    EXPECT_EQ(freeSpace(*head), low);
    EXPECT_EQ(design.last()->level, high);
}

}  // namespace
}  // namespace lx
