#include "composition/layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <vector>

#include "composition/saturate.h"
#include "composition/section_scale.h"
#include "tests/support/designs.h"
#include "tests/support/random_records.h"

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
    constexpr std::int32_t insulation = code(Kind::insulation);
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
        // Shapes beside those that nest.
        {{{insulation, 30}, {51, 20}, {insulation, 30}, {54, 60}, {4, 10}, {insulation, 20}},
         {0, 30, 50, 80, 140, 150},
         130,
         Family::steel},
        // Special layers may; halves truncate.
        {{{1, 101}, {insulation, 20}, {103, 30}}, {0, 51, 71}, 199, Family::steel},
        {{{insulation, 80}, {1, 75}}, {0, 43}, 182, Family::steel},
        {{{102, 40}, {103, 70}, {0, 100}}, {0, 40, 110}, 90, Family::monolith},
        {{{102, 40}, {100, 70}}, {0, 40}, 190, Family::none},
        // The last shape keeps to where its neighbour ends, the first special layer does not.
        {{{3, 100}, {insulation, 20}, {99, 50}}, {0, 0, 100}, 150, Family::steel},
        {{{3, 100}, {insulation, 20}, {100, 50}}, {0, 0, 20}, 230, Family::steel},
    };
    for (const Case& test : cases) {
        RezChain design;
        CRez* head = design.append(headOf(300));
        head->offset = 7;
        head->level = 4;
        for (const Layer& l : test.layers) design.append(layer(Kind{l.kind}, l.width));
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

// By the steps of the rule, one bend after another.
std::int32_t levelByTheRule(const CZalom* bends, std::int64_t x, std::int64_t width) {
    std::int64_t level = 0;
    std::int64_t best = -9999;
    std::int64_t position = 0;
    for (const CZalom* bend = bends; bend; bend = bend->next.get()) {
        position += bend->run;
        if (position > x) {
            best = std::max(best, level);
            if (position >= x + width) return saturated(best);
        }
        level += bend->step;
    }
    return saturated(std::max(best, level));
}

std::vector<std::int32_t> levelsOf(const CRez& head) {
    std::vector<std::int32_t> levels;
    for (const CRez* one = head.next; one; one = one->next) levels.push_back(one->level);
    return levels;
}

TEST(Layout, ALayerLiesAboveTheHighestPartOfTheHeadUnderIt) {
    RezChain design;
    CRez* head = design.append(headOf(300));
    for (const int width : {160, 40, 10}) design.append(layer(Kind::precast, width));
    layOut(*head);
    EXPECT_EQ(levelsOf(*head), (std::vector<std::int32_t>{0, 0, 0}));
    head->addBend(160, 100, false);
    layOut(*head);
    EXPECT_EQ(levelsOf(*head), (std::vector<std::int32_t>{0, 100, 100}));
    head->bends->run = 159;
    head->addBend(41, -300, true);
    layOut(*head);
    EXPECT_EQ(levelsOf(*head), (std::vector<std::int32_t>{100, 100, -200}));
    EXPECT_EQ(levelsAbove(*head), levelsOf(*head));

    // Runs that lead back, widths below 0, numbers at the ends of their range.
    RandomRecords random(14);
    for (int round = 0; round < 3000; ++round) {
        const int span = round % 3 == 0 ? 30 : 300;
        const auto number = [&](int from) {
            return round % 4 == 0 && random.oneIn(4) ? random.number() : from + random.below(span);
        };
        RezChain any;
        CRez& top = *any.append(headOf(300));
        for (int bends = random.below(9); bends > 0; --bends) {
            top.addBend(number(round % 2 == 0 ? -span / 2 : 0), number(-span / 2), false);
        }
        for (int layers = random.below(7); layers > 0; --layers) {
            any.append(layer(random.oneIn(3) ? Kind::insulation : Kind::angleMirrored,
                             number(round % 5 == 0 ? -span / 2 : 0)));
        }
        layOut(top);
        for (const CRez* one = top.next; one; one = one->next) {
            ASSERT_EQ(one->level, levelByTheRule(top.bends.get(), one->offset, one->width))
                << round << ": " << bendsOf(top) << "; " << one->offset << " " << one->width;
        }
    }
}

// A design as a file may hold it, a layer under each bend.
TEST(Layout, HugeDesignsTakeNoTime) {
    constexpr int many = 100000;
    RezChain design;
    CRez& head = *design.append(headOf(many));
    std::unique_ptr<CZalom>* end = &head.bends;
    for (int i = 0; i < many; ++i) {
        *end = std::make_unique<CZalom>(i % 3, i % 7 - 3, i + 1 == many);
        end = &(*end)->next;
        design.append(layer(Kind::precast, 1));
    }
    const auto start = std::chrono::steady_clock::now();
    layOut(head);
    settleSection(head, {480, 400});
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(head.bends->next->run, 1);
}

TEST(Layout, AnyNumberFromAFileIsBorne) {
    constexpr std::int32_t high = std::numeric_limits<std::int32_t>::max();
    constexpr std::int32_t low = std::numeric_limits<std::int32_t>::min();
    RezChain design;
    CRez* head = design.append(headOf(low));
    for (int i = 0; i < 3; ++i) {
        head->addBend(high, high, false);
        design.append(layer(Kind::beam, high));
        design.append(layer(Kind::insulation, low));
    }
    design.append(layer(Kind::precast, high));
    layOut(*head);
    EXPECT_EQ(freeSpace(*head), low);
    EXPECT_EQ(design.last()->level, high);
}

}  // namespace
}  // namespace lx
