#include <gtest/gtest.h>

#include "catalogue/item_cells.h"
#include "catalogue/item_rows.h"
#include "tests/support/catalogues.h"

namespace lx {
namespace {

constexpr CatalogueKind precast = CatalogueKind::precast;
constexpr CatalogueKind steel = CatalogueKind::steel;

// A type, then its items; items of another type stand between them.
Catalogue chainOf(const std::vector<const char*>& designations) {
    std::vector<CatalogueLine> lines{{-1, "type"}};
    for (const char* name : designations) {
        lines.push_back({2, "other"});
        lines.push_back({1, name});
    }
    return catalogueOf(lines);
}

Text listed(const ItemRows& rows) {
    Text text;
    for (int row = 0; row < rows.count(); ++row) {
        text += (row > 0 ? "," : "") + *rows.record(row)->designation;
    }
    return text;
}

TEST(ItemCells, FollowTheColumnsOfTheirKind) {
    CPreklItem item;
    item.width = 70;
    item.height = 238;
    item.weight = 12.25;
    item.designation = "I 160";
    item.qu = 1.0005;
    item.description = "válcovaný"_cz;
    const CPreklItem* const two[] = {&item, &item};
    EXPECT_EQ(rowsAsText(two, steel),
              "Označení | Šířka [mm] | Výška [mm] | Hmotnost [kg/m] | qu [kN/m] | Popis | \r\n\r\n"
              "I 160 | 70 | 238 | 12.3 | 1.000 | válcovaný | \r\n"
              "I 160 | 70 | 238 | 12.3 | 1.000 | válcovaný | \r\n"_cz);
}

TEST(ItemRows, ListTheItemsOfOneType) {
    const Catalogue chain = chainOf({"b", "a"});
    ItemRows rows(precast);
    rows.refresh(chain.get(), 1);
    EXPECT_EQ(listed(rows), "b,a");
    EXPECT_EQ(rows.rowOf(*chain), -1);
    const CPreklItem* before = rows.record(0);
    rows.refresh(chain.get(), 2);
    EXPECT_EQ(listed(rows), "other,other");
    EXPECT_EQ(rows.rowOf(*before), -1) << "though it still carries a number that is in use";
    for (const int row : {-1, 2}) EXPECT_EQ(rows.record(row), nullptr);
    chain->next->group = 0;  // from a damaged file; no type is selected
    for (const int none : {0, -1, 3}) {
        rows.refresh(chain.get(), none);
        EXPECT_EQ(rows.count(), 0) << none;
    }
}

TEST(ItemRows, KeepEqualRowsInOrderUpwardsAndReverseAllDownwards) {
    const Catalogue chain = chainOf({"L 10", "L.2", "l", "L 2", "L 1a", "L-2", "L 1"});
    ItemRows rows(precast);
    rows.refresh(chain.get(), 1);
    const struct {
        int column;
        const char* order;
    } clicks[] = {{0, "l,L 1,L 1a,L.2,L 2,L 10,L-2"},
                  {0, "L-2,L 10,L 2,L.2,L 1a,L 1,l"},
                  // Upwards again, from the order that is shown.
                  {0, "l,L 1,L 1a,L 2,L.2,L 10,L-2"},
                  // All lengths are equal: nothing moves, then everything turns round.
                  {1, "l,L 1,L 1a,L 2,L.2,L 10,L-2"},
                  {1, "L-2,L 10,L.2,L 2,L 1a,L 1,l"},
                  {0, "l,L 1,L 1a,L.2,L 2,L 10,L-2"},
                  {9, "l,L 1,L 1a,L.2,L 2,L 10,L-2"}};
    for (const auto& click : clicks) {
        rows.onHeadingClick(click.column);
        EXPECT_EQ(listed(rows), click.order) << &click - clicks;
    }
    rows.refresh(chain.get(), 1);
    EXPECT_EQ(listed(rows), "L 10,L.2,l,L 2,L 1a,L-2,L 1");
    rows.sort();
    EXPECT_EQ(listed(rows), "l,L 1,L 1a,L.2,L 2,L 10,L-2");
}

TEST(ItemRows, SortByTheTextThatIsShown) {
    const Catalogue chain = chainOf({"none", "ten", "nine", "minus"});
    ItemRows rows(steel);
    rows.refresh(chain.get(), 1);
    rows.record(1)->qu = 10.04;
    rows.record(1)->width = 20;
    rows.record(2)->qu = 9.5;
    rows.record(3)->width = -3;
    rows.onHeadingClick(4);
    EXPECT_EQ(listed(rows), "nine,ten,none,minus");  // "nezadáno" comes after numbers
    rows.onHeadingClick(1);
    EXPECT_EQ(listed(rows), "nine,none,ten,minus");  // as does a minus sign
}

// In a sorted list, the first listed record too.
TEST(ItemRows, StayRightAsRecordsAreRemovedAndAdded) {
    const Catalogue chain = chainOf({"a", "c", "b"});
    ItemRows rows(precast);
    rows.refresh(chain.get(), 1);
    rows.onHeadingClick(0);
    rows.onHeadingClick(0);
    for (const int row : {2, 2, -1}) rows.remove(row);
    CPreklItem added;
    added.designation = "d";
    rows.add(added);
    EXPECT_EQ(listed(rows), "c,b,d");
    for (int row = 0; row < rows.count(); ++row) EXPECT_EQ(rows.rowOf(*rows.record(row)), row);
}

}  // namespace
}  // namespace lx
