// Which catalogue opens over a design, and on which element.
#include "design/catalogue_choice.h"

#include <gtest/gtest.h>

#include "design/page_index.h"
#include "tests/support/catalogues.h"
#include "tests/support/designs.h"

namespace lx {
namespace {

struct CatalogueOpening : testing::Test {
    ModuleValues values;
    DesignModel model{values};
    std::optional<CatalogueElement> last;

    void SetUp() override {
        values.openingWidth = 1200;
        values.wallThickness = 300;
        model.startDesign();
        values.precast = catalogueOf({{-1, "T"}, {1, "K", 0, 0, 1200}, {1, "K", 0, 0, 1200}});
        model.rebuildPrecastOffer(0);
    }
    CRez* add(Kind kind, std::int32_t type, std::int32_t item) {
        CRez* added = model.chain().append(layer(kind, 50));
        added->typeIndex = type;
        added->itemIndex = item;
        model.select(added);
        return added;
    }
    CatalogueChoice offer(int page, bool mayPick = false) {
        return chooseCatalogue(model, PropertiesSource::offer, page, mayPick, last);
    }
    CatalogueChoice preview(bool mayPick = false) {
        return chooseCatalogue(model, PropertiesSource::preview, page::precast, mayPick, last);
    }
};

constexpr CatalogueKind precast = CatalogueKind::precast;
constexpr CatalogueKind steel = CatalogueKind::steel;

TEST_F(CatalogueOpening, APageOpensItsOwnCatalogueOnTheSelectedElement) {
    model.precastOffer().select(1);
    EXPECT_EQ(offer(page::precast).element, (CatalogueElement{precast, 0, 1, "K"}));
    EXPECT_TRUE(offer(page::precast, true).pickMode);
    EXPECT_FALSE(offer(page::precast, false).pickMode);
    EXPECT_EQ(offer(page::steel, true).kind, steel);
    EXPECT_FALSE(offer(page::steel, true).pickMode);
    EXPECT_EQ(offer(page::steel).element, std::nullopt);
    // Elsewhere the catalogue shown last, on the element shown last if it is one of it.
    last = CatalogueElement{steel, 4, 2, "E"};
    EXPECT_EQ(offer(page::library).kind, precast);
    EXPECT_EQ(offer(page::library).element, std::nullopt);
    model.browserKind = steel;
    EXPECT_EQ(offer(page::library).element, last);
}

TEST_F(CatalogueOpening, TheCurrentRecordNamesItsCatalogue) {
    EXPECT_EQ(preview().element, std::nullopt) << "the head is no element";
    add(Kind::channelMirrored, 3, 7);
    EXPECT_EQ(preview(true).kind, steel);
    EXPECT_FALSE(preview(true).pickMode) << "picked sections would become lintels";
    EXPECT_EQ(preview().element, (CatalogueElement{steel, 3, 7, "L"}));
    model.browserKind = steel;
    add(Kind::precast, 1, 2);
    EXPECT_EQ(preview().kind, precast);
    add(Kind::insulation, 1, 2);
    EXPECT_EQ(preview().kind, steel) << "insulation is of no catalogue";
}

}  // namespace
}  // namespace lx
