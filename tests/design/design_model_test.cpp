// The design being edited with its offers, its types and the stored designs beside it.
#include <gtest/gtest.h>

#include "design/design_model.h"
#include "design/page_index.h"
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
        addItem(-1, "typ 1", 0);
        for (const char* name : {"KP 1000", "kp 750", "KP 9"}) addItem(1, name, 1200);
        addItem(-2, "typ 2", 0);
        addItem(2, "KV 7/?", 1500, -150);
        model.startDesign();
    }
    void addItem(std::int32_t group, const char* name, std::int32_t maxOpening,
                 std::int32_t length = 1500) {
        auto item = std::make_unique<CPreklItem>();
        item->group = group;
        item->designation = name;
        item->maxOpening = maxOpening;
        item->length = length;
        item->width = 70;
        Catalogue* end = &values.precast;
        while (*end) end = &(*end)->next;
        *end = std::move(item);
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
    model.rebuildPrecastOffer(0);
    model.precastOffer().select(1);
    EXPECT_TRUE(model.ComposePrecast(rules));
    EXPECT_EQ(model.current(), model.head());
    std::string made;
    for (const CRez* one = model.head()->next; one; one = one->next) made += *one->name + ";";
    EXPECT_EQ(made, "KP 9;kp 750;KP 1000;MEZERA;KP 9;kp 750;KP 1000;");
    model.select(model.head()->next);
    model.precastOffer().select(-1);
    EXPECT_FALSE(model.ComposePrecast(rules));
    EXPECT_EQ(model.current(), model.head()->next);

    EXPECT_FALSE(model.ComposeSteel());
}

TEST_F(DesignModelTest, PropertiesFollowTheSourceAndThePage) {
    model.rebuildPrecastOffer(1);
    EXPECT_EQ(model.properties(PropertiesSource::preview, page::library), "<Stěna>"_cz);
    ASSERT_TRUE(model.properties(PropertiesSource::offer, page::precast));
    EXPECT_NE(model.properties(PropertiesSource::offer, page::precast)->find("KV 7/?"), Text::npos);
    for (const int other : {page::geometry, page::steel, page::monolith, page::library}) {
        EXPECT_FALSE(model.properties(PropertiesSource::offer, other)) << other;
    }
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

TEST_F(DesignModelTest, TheDefaultEntryComesFirstWhateverTheLabelsAre) {
    std::vector<LibraryEntry> stored;
    for (const char* label : {"B  ", "!  ", "A10", "A2 "}) {
        stored.push_back({label, sampleDesign(label)});
    }
    model.setStoredDesigns(std::move(stored));
    EXPECT_EQ(model.storedLabels(),
              (std::vector<Text>{Text("<výchozí>"_cz), "!  ", "A2 ", "A10", "B  "}));
    EXPECT_TRUE(model.listsLabel("A2 "));
    EXPECT_FALSE(model.listsLabel("a2 "));
    EXPECT_FALSE(model.listsLabel("<výchozí>"_cz));
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
