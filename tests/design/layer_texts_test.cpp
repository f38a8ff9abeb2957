// What the dialog writes about a design: description and properties.
#include <gtest/gtest.h>

#include <chrono>

#include "composition/layout.h"
#include "design/layer_texts.h"
#include "tests/support/designs.h"

namespace lx {
namespace {

std::unique_ptr<CRez> element(Kind kind, const char* name, std::int32_t width, std::int32_t height,
                              std::int32_t length, std::int32_t bearing = 0) {
    auto record = layer(kind, width, name);
    record->height = height;
    record->length = length;
    record->bearing = bearing;
    return record;
}

TEST(Description, CountsEqualNeighboursAndPassesOverSpaces) {
    RezChain design;
    design.append(headOf(1000));
    EXPECT_EQ(descriptionSummary(*design.head()), "");
    design.append(element(Kind::space, "MEZERA", 10, 100, 1));
    EXPECT_EQ(descriptionSummary(*design.head()), "");
    design.append(element(Kind::precast, "KP 7/119", 70, 238, 1190));
    design.append(element(Kind::space, "MEZERA", 10, 100, 1));
    design.append(element(Kind::precast, "KP 7/119", 70, 200, 1200));
    design.append(element(Kind::insulation, "IZOLACE", 80, 200, 1490));
    design.append(element(Kind::precast, "KP 7/119", 70, 238, 1190));
    design.append(element(Kind::precast, "KP ?/?", 70, 238, 1490, 125));
    design.append(element(Kind::precast, "KP ?/?", 70, 238, 1490));
    design.append(element(Kind::angleMirrored, "L 60", 60, 60, 1500));
    EXPECT_EQ(descriptionSummary(*design.head()),
              "2 x KP 7/119\r\n1 x IZOLACE 80/200 - dl.1490\r\n1 x KP 7/119\r\n"
              "1 x KP 1490/?\r\n1 x KP ?/?\r\n1 x L 60 - dl.1500");
}

TEST(Description, ACastPartReachesDownToTheLowestPointOfTheHead) {
    RezChain design;
    CRez* head = design.append(headOf(300));
    head->addBend(100, 150, false);
    head->addBend(100, -300, false);
    CRez* cast = design.append(element(Kind::monolith, "MONOLIT", 300, 300, 1200));
    layOut(*head);
    ASSERT_EQ(cast->level, 150);
    EXPECT_EQ(descriptionSummary(*head), "1 x MONOLIT 300/600 - dl.1200");
    // Lifted by a sloping step.
    cast->level = 163;
    EXPECT_EQ(descriptionSummary(*head), "1 x MONOLIT 300/600 - dl.1200");
    cast->name.reset();
    EXPECT_EQ(descriptionSummary(*head), "1 x  300/600 - dl.1200");

    // Each under its own part of the head, and as many as a file may hold.
    design.insertAfter(head, layer(Kind::space, 100));
    cast->width = 100;
    layOut(*head);
    EXPECT_EQ(descriptionSummary(*head), "1 x  100/600 - dl.1200");
    std::unique_ptr<CZalom>* end = &head->bends->next->next;
    for (int i = 0; i < 100000; ++i) {
        *end = std::make_unique<CZalom>(1, 0, false);
        end = &(*end)->next;
        design.append(element(Kind::monolith, "MONOLIT", 1, 300, 1200));
    }
    layOut(*head);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(descriptionSummary(*head),
              "1 x  100/600 - dl.1200\r\n100000 x MONOLIT 1/300 - dl.1200");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(Properties, DescribeTheCurrentRecordAndTheOfferedElement) {
    auto lintel = element(Kind::precast, "KP 7/?/?", 70, 238, 1500, 150);
    EXPECT_EQ(propertiesOfRecord(lintel.get(), 1200.5),
              "Označení: KP 7/1500/?\r\nDélka: 1500, Šířka :  70, Výška: 238 [mm]\r\n"
              "Uložení: 150 mm"_cz);
    EXPECT_EQ(propertiesOfOffer(*lintel, 1200.51, true),
              "Označení: KP 7/?/?\r\nDélka: 1500, Šířka :  70, Výška: 238 [mm]\r\n"
              "Uložení: 149 mm"_cz);
    lintel->letter = 'X';
    EXPECT_EQ(propertiesOfRecord(lintel.get(), 1200).substr(0, 23), "Označení: KP 7/1500/? X"_cz);
    EXPECT_EQ(propertiesOfOffer(*lintel, 1200, true).substr(0, 20), "Označení: KP 7/?/? X"_cz);
    EXPECT_EQ(propertiesOfOffer(*lintel, 1200, false).substr(0, 20), "Označení: KP 7/?/?\r\n"_cz);
    lintel->letter = 'x';
    EXPECT_EQ(propertiesOfOffer(*lintel, 1200, true).substr(0, 20), "Označení: KP 7/?/?\r\n"_cz);
    const auto insulation = element(Kind::insulation, "IZOLACE", 80, 200, 1100);
    EXPECT_EQ(propertiesOfRecord(insulation.get(), 1200),
              "Označení: IZOLACE\r\nDélka: 1100, Tlouštka :  80, Výška: 200 [mm]\r\n"
              "Uložení: -50 mm"_cz);

    EXPECT_EQ(propertiesOfRecord(nullptr, 1200), "<Stěna>"_cz);
    EXPECT_EQ(propertiesOfRecord(headOf(300).get(), 1200), "<Stěna>"_cz);
    lintel->name.reset();
    EXPECT_EQ(propertiesOfOffer(*lintel, 1200, true), "<NULL>");
    EXPECT_EQ(propertiesOfRecord(lintel.get(), 1200).substr(0, 12), "Označení: \r\n"_cz);
}

}  // namespace
}  // namespace lx
