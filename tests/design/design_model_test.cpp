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
                                      {1, "KP 1000", 1500, 70, 1200},
                                      {1, "kp 750", 1500, 70, 1200},
                                      {1, "KP 9", 1500, 70, 1200},
                                      {-2, "typ 2"},
                                      {2, "KV 7/?", -150, 70, 1500}});
        model.startDesign();
    }
    std::string listed() {
        std::string text;
        Offer& offer = model.precastOffer();
        for (int i = 0; i < offer.count(); ++i) text += *offer.row(i).name + ";";
        return text;
    }
};

TEST_F(DesignModelTest, OffersAreListedInTheirOrderWithTheFirstEntrySelected) {
    model.rebuildPrecastOffer(0);
    EXPECT_EQ(listed(), "KP 9;kp 750;KP 1000;");
    Offer& offer = model.precastOffer();
    EXPECT_EQ(offer.selectedRecord(), &offer.row(0));
    offer.select(2);
    EXPECT_EQ(offer.selectedRecord()->itemIndex, 0);
    offer.select(3);
    EXPECT_EQ(offer.selectedRecord(), nullptr);
    EXPECT_FALSE(model.available().addPrecast);
    model.rebuildPrecastOffer(-1);
    EXPECT_EQ(offer.count(), 0);
}

TEST_F(DesignModelTest, ACompositionStartsFromTheSelectedElement) {
    MemoryFiles files;
    files.content["R"] = "[0]\nkp 750=A M[10] A\n";
    const Profile rules(files, "R");
    for (CPreklItem* item = values.precast.get(); item; item = item->next.get()) {
        item->compositionMark = 'A';
    }
    EXPECT_FALSE(model.ComposePrecast(rules));
    EXPECT_FALSE(model.ComposeSteel());
    model.rebuildPrecastOffer(0);
    model.precastOffer().select(1);
    EXPECT_TRUE(model.ComposePrecast(rules));
    EXPECT_EQ(model.current(), model.head());
    EXPECT_EQ(namesOf(model.chain()),
              "KP 9 70;kp 750 70;KP 1000 70;MEZERA 10;KP 9 70;kp 750 70;KP 1000 70;");
    model.select(model.head()->next);
    model.precastOffer().select(-1);
    EXPECT_FALSE(model.ComposePrecast(rules));
    EXPECT_EQ(model.current(), model.head()->next);
}

TEST_F(DesignModelTest, AHandedOverDesignReplacesTheHeadOfTheCall) {
    RezChain given = sampleDesign("Z");
    given.head()->next->name = "KV 7/?";
    model.adoptHandOver(std::move(given));
    EXPECT_EQ(model.head()->label(), "Z");
    EXPECT_EQ(model.current(), model.head());
    EXPECT_EQ(model.head()->next->maxOpening, 1500);
    EXPECT_EQ(model.precastTypeUsed(), 2);
    EXPECT_FALSE(model.steelTypeUsed());
    model.settleLevel();
    EXPECT_EQ(model.head()->height, 0);

    model.adoptHandOver(RezChain());
    EXPECT_EQ(model.head()->label(), "Z");
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
