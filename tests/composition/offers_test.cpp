#include "composition/offers.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>

#include "tests/support/catalogues.h"
#include "tests/support/designs.h"

namespace lx {
namespace {

// A catalogue of {group, maximum opening, length}; items are called after their opening.
struct Item {
    std::int32_t group, maxOpening;
    std::int32_t length = 1000;
};
Catalogue itemsOf(const std::vector<Item>& items) {
    std::vector<CatalogueLine> lines;
    for (const Item& item : items) {
        lines.push_back({item.group, "max " + std::to_string(item.maxOpening), item.length, 0,
                         item.maxOpening});
    }
    return catalogueOf(lines);
}

CPreklItem* at(const Catalogue& chain, int place) {
    CPreklItem* item = chain.get();
    while (place-- > 0) item = item->next.get();
    return item;
}

// "itemIndex:maxOpening " of each record.
std::string shown(const RezChain& offer) {
    std::string text;
    for (const CRez* record = offer.head(); record; record = record->next) {
        text += std::to_string(record->itemIndex) + ":" + std::to_string(record->maxOpening) + " ";
    }
    return text;
}

TEST(PrecastOffer, HoldsWhatSpansTheOpeningWithoutBeingOversized) {
    const Catalogue catalogue = itemsOf({{-1, 0},
                                         {-2, 0},
                                         {1, 1200},
                                         {1, 1250},
                                         {1, 1229},
                                         {1, 1180},
                                         {2, 1300},
                                         {1, 1230},
                                         {1, 1500, -250}});
    const CPreklItem* head = catalogue.get();
    const RezChain offer = BuildPrecastOffer(head, 0, 1200.0, 1201);
    EXPECT_EQ(shown(offer), "0:1200 2:1229 5:1500 ");
    EXPECT_EQ(offer.head()->bearing, 0);
    EXPECT_EQ(offer.head()->length, 1000);
    EXPECT_EQ(offer.last()->bearing, 250);
    EXPECT_EQ(offer.last()->length, 1701);
    EXPECT_EQ(shown(BuildPrecastOffer(head, 1, 1200.0, 1200)), "0:1300 ");

    // The best fit counts all that are offered, also those that would stay anyway.
    CPreklItem* follows = at(catalogue, 8);
    follows->maxOpening = 1190;
    EXPECT_EQ(shown(BuildPrecastOffer(head, 0, 1185.0, 1185)), "0:1200 5:1190 ");
    EXPECT_EQ(shown(BuildPrecastOffer(head, 0, 1185.0, 1185, {follows, at(catalogue, 3)})),
              "0:1200 1:1250 5:1190 ");
}

TEST(PrecastOffer, TheOpeningIsMetWithinAMillionthOfAMillimetre) {
    const Catalogue catalogue = itemsOf({{1, 1200}});
    const CPreklItem* head = catalogue.get();
    EXPECT_EQ(shown(BuildPrecastOffer(head, 0, 1200.0000005, 1200)), "0:1200 ");
    EXPECT_EQ(shown(BuildPrecastOffer(head, 0, 1200.000002, 1200)), "");
    EXPECT_EQ(shown(BuildPrecastOffer(head, 0, std::numeric_limits<double>::quiet_NaN(), 0)), "");
    for (const int none : {-1, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(shown(BuildPrecastOffer(head, none, 1200.0, 1200)), "");
    }
    EXPECT_TRUE(BuildPrecastOffer(nullptr, 0, 1200.0, 1200).empty());
}

TEST(PrecastOffer, CatalogueFieldsBecomeThoseOfALayer) {
    CPreklItem item;
    item.length = std::numeric_limits<std::int32_t>::min();
    item.width = 70;
    item.height = 238;
    item.weight = 52.2999;
    item.maxOpening = std::numeric_limits<std::int32_t>::max();
    item.compositionMark = 'X';
    const std::unique_ptr<CRez> record = offerRecord(item, 4, 9, Kind::angleMirrored);
    EXPECT_EQ(record->typeIndex, 4);
    EXPECT_EQ(record->itemIndex, 9);
    EXPECT_EQ(record->kind, Kind::angleMirrored);
    EXPECT_EQ(record->width, 70);
    EXPECT_EQ(record->height, 238);
    EXPECT_EQ(record->length, item.length);
    EXPECT_EQ(record->weight, 52299);
    EXPECT_EQ(record->letter, 'X');
    EXPECT_EQ(record->bearing, 0);
    EXPECT_FALSE(record->name);
    item.weight = 1e300;
    item.group = 1;
    const RezChain offer = BuildPrecastOffer(&item, 0, 1200.0, 1200);
    EXPECT_EQ(offer.head()->weight, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(offer.head()->length, std::numeric_limits<std::int32_t>::max());
}

TEST(SteelOffer, TakesShapeAndLengthAndLeavesOutTheOversized) {
    const Catalogue catalogue = itemsOf({{1, 2000}, {-1, 0, 3}, {1, 3000}, {2, 10}, {1, 2020}});
    const CPreklItem* head = catalogue.get();
    catalogue->designation.reset();
    const RezChain offer = BuildSteelOffer(head, 0, 1500, 0);
    EXPECT_EQ(shown(offer), "0:2000 2:2020 ");
    EXPECT_EQ(offer.head()->kind, Kind::precast);
    EXPECT_FALSE(offer.head()->name);
    EXPECT_EQ(offer.last()->kind, Kind::channel);
    EXPECT_EQ(offer.last()->length, 1800);
    EXPECT_EQ(offer.last()->bearing, 0);
    EXPECT_EQ(BuildSteelOffer(head, 0, 1500, 60).last()->length, 1620);
    catalogue->next->length = code(Kind::head);
    EXPECT_EQ(BuildSteelOffer(head, 0, 1500, 0).last()->kind, Kind::precast);
}

TEST(PrecastOffer, PickedItemsJoinUnlessTheyAreOfferedAlready) {
    const Catalogue catalogue = itemsOf({{-1, 0},
                                         {1, 1200},
                                         {1, 3000},
                                         {1, 3500, -250},
                                         {-2, 0},
                                         {2, 1200},
                                         {2, 1200},
                                         {3, 3500, -250}});
    at(catalogue, 5)->designation = "MAX 1200";
    at(catalogue, 6)->width = 1;
    std::vector<const CPreklItem*> picked;
    for (const int place : {1, 2, 3, 5, 6, 6, 7}) picked.push_back(at(catalogue, place));
    RezChain offer = BuildPrecastOffer(catalogue.get(), 0, 1200, 1200, picked);
    EXPECT_EQ(shown(offer), "0:1200 1:3000 2:3500 ");
    addPicked(offer, picked);
    EXPECT_EQ(shown(offer), "0:1200 1:3000 2:3500 0:1200 ");
    EXPECT_EQ(offer.last()->width, 1);
    EXPECT_EQ(offer.last()->bearing, 0);
}

TEST(PrecastOffer, APickDiffersFromAnOfferedOneByEachOfItsValues) {
    const std::function<void(CPreklItem&)> changes[] = {
        [](CPreklItem& item) { item.designation = "max 1201"; },
        [](CPreklItem& item) { item.length = 1001; },
        [](CPreklItem& item) { item.width = 1; },
        [](CPreklItem& item) { item.height = 1; },
        [](CPreklItem& item) { item.weight = 0.001; },
        [](CPreklItem& item) { item.maxOpening = 1201; },
        [](CPreklItem& item) { item.compositionMark = 'A'; },
        [](CPreklItem& item) { item.description = "of the same product"; },
    };
    std::string joined;
    for (const auto& change : changes) {
        const Catalogue catalogue = itemsOf({{1, 1200}, {2, 1200}});
        change(*catalogue->next);
        RezChain offer = BuildPrecastOffer(catalogue.get(), 0, 1200, 1200);
        addPicked(offer, {catalogue->next.get()});
        joined += offer.head()->next == nullptr ? "no " : "yes ";
    }
    EXPECT_EQ(joined, "yes yes yes yes yes yes yes no ");
}

TEST(OfferOrder, NumbersStandByValueAndCaseDoesNotCount) {
    const char* ascending[] = {"",         "7/? x",   "750", "1000", "KP 7",    "kp 7/75",
                               "KP 7/100", "KP 12/1", "kpa", "\xC8", "\xE8\x62"};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t k = 0; k < std::size(ascending); ++k) {
            EXPECT_EQ(offerLess(ascending[i], ascending[k]), i < k)
                << ascending[i] << " | " << ascending[k];
        }
    }
    EXPECT_FALSE(offerLess("A 007 b", "a 7 B") || offerLess("a 7 B", "A 007 b"));
    EXPECT_TRUE(offerLess("99999999999999999999998", "99999999999999999999999"));

    RezChain offer;
    for (const char* name : {"b", "A 10", "a 9", "B"}) offer.append(layer(Kind{0}, 1, name));
    offer.append(std::make_unique<CRez>());
    EXPECT_EQ(offerOrder(offer), (std::vector<int>{4, 2, 1, 0, 3}));
}

}  // namespace
}  // namespace lx
