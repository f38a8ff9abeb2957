// The design being edited with its offers, its types and the stored designs beside it.
#include <gtest/gtest.h>

#include "design/design_model.h"
#include "design/page_index.h"
#include "tests/support/catalogues.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

struct DesignModelTest : testing::Test {
    ModuleValues values;
    DesignModel model{values};

    void SetUp() override {
        values.openingWidth = 1200;
        values.wallThickness = 300;
        values.precast = catalogueOf({{-1, "typ 1"},
                                      {1, "KP 9", 1500, 70, 1200},
                                      {-2, "typ 2"},
                                      {2, "KV 7/?", -150, 70, 1500}});
        model.startDesign();
    }
};

TEST_F(DesignModelTest, AHandedOverDesignReplacesTheHeadOfTheCall) {
    RezChain given = sampleDesign("Z");
    given.head()->next->name = "KV 7/?";
    model.adoptHandOver(std::move(given));
    EXPECT_EQ(model.head()->label(), "Z");
    EXPECT_EQ(model.current(), model.head());
    EXPECT_EQ(model.head()->next->maxOpening, 1500);
    EXPECT_EQ(model.precastTypeUsed(), 2);
    EXPECT_FALSE(model.steelTypeUsed());
    // Nothing is offered, so nothing is selected to start from.
    MemoryFiles files;
    EXPECT_FALSE(model.ComposePrecast(Profile(files, "R")) || model.ComposeSteel());
    EXPECT_EQ(model.current(), model.head());
    model.settleLevel();
    EXPECT_EQ(model.head()->height, 0);

    model.adoptHandOver(RezChain());
    EXPECT_EQ(model.head()->label(), "Z");
}

TEST_F(DesignModelTest, WhatTheTypeItselfOffersFirstStaysSelectedBehindPicks) {
    values.precast = catalogueOf({{-1, "T"},
                                  {1, "C", 1500, 70, 1200},
                                  {1, "B", 1500, 70, 1200},
                                  {-2, "U"},
                                  {2, "A", 1500, 70, 1200}});
    const CPreklItem* last = values.precast.get();
    while (last->next) last = last->next.get();
    model.rebuildPrecastOffer(0, {last});
    ASSERT_EQ(model.precastOffer().count(), 3);
    EXPECT_EQ(model.precastOffer().selectedRecord()->name, "B");
    EXPECT_EQ(model.precastOffer().selected(), 1);
}

TEST_F(DesignModelTest, WithoutADesignEverythingAnswers) {
    model.clear();
    EXPECT_EQ(values.precast, nullptr);
    EXPECT_FALSE(model.Relayout());
    EXPECT_EQ(model.FreeSpace(), 0);
    EXPECT_EQ(model.available(), Availability{});
    EXPECT_EQ(addPrecast(model.edit(), nullptr), CommandAnswer::nothing);
    model.settleLevel();
    model.takeOpeningBlock(1000);
    model.rebuildSteelOffer(0);
    EXPECT_EQ(model.properties(PropertiesSource::preview, page::geometry), "<Stěna>"_cz);
}

}  // namespace
}  // namespace lx
