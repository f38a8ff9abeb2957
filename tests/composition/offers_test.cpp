#include "composition/offers.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/support/designs.h"

namespace lx {
namespace {

class Builder {
public:
    CPreklItem* add(std::int32_t group, std::int32_t maxOpening, std::int32_t length = 1000) {
        Catalogue* end = &head;
        while (*end) end = &(*end)->next;
        *end = std::make_unique<CPreklItem>();
        (*end)->group = group;
        (*end)->maxOpening = maxOpening;
        (*end)->length = length;
        (*end)->designation = "max " + std::to_string(maxOpening);
        return end->get();
    }
    Catalogue head;
};

// "itemIndex:maxOpening " of each record.
std::string shown(const RezChain& offer) {
    std::string text;
    for (const CRez* record = offer.head(); record; record = record->next) {
        text += std::to_string(record->itemIndex) + ":" + std::to_string(record->maxOpening) + " ";
    }
    return text;
}

TEST(PrecastOffer, HoldsWhatSpansTheOpeningWithoutBeingOversized) {
    Builder catalogue;
    catalogue.add(-1, 0);
    catalogue.add(-2, 0);
    for (const int maxOpening : {1200, 1250, 1229, 1180}) catalogue.add(1, maxOpening);
    catalogue.add(2, 1300);
    catalogue.add(1, 1230);
    CPreklItem* follows = catalogue.add(1, 1500, -250);
    const CPreklItem* head = catalogue.head.get();
    const RezChain offer = buildPrecastOffer(head, 0, 1200.0, 1201);
    EXPECT_EQ(shown(offer), "0:1200 2:1229 5:1500 ");
    EXPECT_EQ(offer.head()->bearing, 0);
    EXPECT_EQ(offer.head()->length, 1000);
    EXPECT_EQ(offer.last()->bearing, 250);
    EXPECT_EQ(offer.last()->length, 1701);
    EXPECT_EQ(shown(buildPrecastOffer(head, 1, 1200.0, 1200)), "0:1300 ");

    // The best fit counts all that are offered, also those that would stay anyway.
    follows->maxOpening = 1190;
    EXPECT_EQ(shown(buildPrecastOffer(head, 0, 1185.0, 1185)), "0:1200 5:1190 ");
    const CPreklItem* picked = head->next->next->next.get();
    EXPECT_EQ(shown(buildPrecastOffer(head, 0, 1185.0, 1185, {follows, picked})),
              "0:1200 1:1250 5:1190 ");
}

TEST(PrecastOffer, TheOpeningIsMetWithinAMillionthOfAMillimetre) {
    Builder catalogue;
    catalogue.add(1, 1200);
    const CPreklItem* head = catalogue.head.get();
    EXPECT_EQ(shown(buildPrecastOffer(head, 0, 1200.0000005, 1200)), "0:1200 ");
    EXPECT_EQ(shown(buildPrecastOffer(head, 0, 1200.000002, 1200)), "");
    EXPECT_EQ(shown(buildPrecastOffer(head, 0, std::numeric_limits<double>::quiet_NaN(), 0)), "");
    EXPECT_EQ(shown(buildPrecastOffer(head, -1, 1200.0, 1200)), "");
    EXPECT_EQ(shown(buildPrecastOffer(head, std::numeric_limits<int>::max(), 1200.0, 1200)), "");
    EXPECT_TRUE(buildPrecastOffer(nullptr, 0, 1200.0, 1200).empty());
}

TEST(PrecastOffer, CatalogueFieldsBecomeThoseOfALayer) {
    CPreklItem item;
    item.length = std::numeric_limits<std::int32_t>::min();
    item.width = 70;
    item.height = 238;
    item.weight = 52.2999;
    item.maxOpening = std::numeric_limits<std::int32_t>::max();
    item.compositionMark = 'X';
    const std::unique_ptr<CRez> record = offerRecord(item, 4, 9, 52);
    EXPECT_EQ(record->typeIndex, 4);
    EXPECT_EQ(record->itemIndex, 9);
    EXPECT_EQ(record->kind, 52);
    EXPECT_EQ(record->width, 70);
    EXPECT_EQ(record->height, 238);
    EXPECT_EQ(record->length, item.length);
    EXPECT_EQ(record->weight, 52299);
    EXPECT_EQ(record->letter, 'X');
    EXPECT_EQ(record->bearing, 0);
    EXPECT_FALSE(record->name);
    item.weight = 1e300;
    item.group = 1;
    const RezChain offer = buildPrecastOffer(&item, 0, 1200.0, 1200);
    EXPECT_EQ(offer.head()->weight, std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(offer.head()->length, std::numeric_limits<std::int32_t>::max());
}

TEST(SteelOffer, TakesShapeAndLengthAndLeavesOutTheOversized) {
    Builder catalogue;
    catalogue.add(1, 2000)->designation.reset();
    catalogue.add(-1, 0, 3);
    catalogue.add(1, 3000);
    catalogue.add(2, 10);
    catalogue.add(1, 2020);
    const CPreklItem* head = catalogue.head.get();
    const RezChain offer = buildSteelOffer(head, 0, 1500, 0);
    EXPECT_EQ(shown(offer), "0:2000 2:2020 ");
    EXPECT_EQ(offer.head()->kind, 0);
    EXPECT_FALSE(offer.head()->name);
    EXPECT_EQ(offer.last()->kind, kind::channel);
    EXPECT_EQ(offer.last()->length, 1800);
    EXPECT_EQ(offer.last()->bearing, 0);
    EXPECT_EQ(buildSteelOffer(head, 0, 1500, 60).last()->length, 1620);
    catalogue.head->next->length = kind::head;
    EXPECT_EQ(buildSteelOffer(head, 0, 1500, 0).last()->kind, 0);
}

TEST(PrecastOffer, PickedItemsJoinUnlessTheyAreOfferedAlready) {
    Builder catalogue;
    catalogue.add(-1, 0);
    CPreklItem* plain = catalogue.add(1, 1200);
    CPreklItem* oversized = catalogue.add(1, 3000);
    CPreklItem* following = catalogue.add(1, 3500);
    following->length = -250;
    catalogue.add(-2, 0);
    CPreklItem* same = catalogue.add(2, 1200);
    same->designation = "MAX 1200";
    CPreklItem* other = catalogue.add(2, 1200);
    other->width = plain->width + 1;
    CPreklItem* alike = catalogue.add(3, 3500);
    alike->length = -250;
    const std::vector<const CPreklItem*> picked{plain, oversized, following, same,
                                                other, other,     alike};
    RezChain offer = buildPrecastOffer(catalogue.head.get(), 0, 1200, 1200, picked);
    EXPECT_EQ(shown(offer), "0:1200 1:3000 2:3500 ");
    addPicked(offer, picked);
    EXPECT_EQ(shown(offer), "0:1200 1:3000 2:3500 0:1200 ");
    EXPECT_EQ(offer.last()->width, other->width);
    EXPECT_EQ(offer.last()->bearing, 0);
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
    for (const char* name : {"b", "A 10", "a 9", "B"}) offer.append(layer(0, 1, name));
    offer.append(std::make_unique<CRez>());
    EXPECT_EQ(offerOrder(offer), (std::vector<int>{4, 2, 1, 0, 3}));
}

TEST(TypeNames, AreThoseOfTheTypeRecordsInTheirOrder) {
    Builder catalogue;
    catalogue.add(-1, 1);
    catalogue.add(1, 2);
    catalogue.add(-2, 3)->designation.reset();
    EXPECT_EQ(typeNames(catalogue.head.get()), (std::vector<Text>{"max 1", ""}));
}

}  // namespace
}  // namespace lx
