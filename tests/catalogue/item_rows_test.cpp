#include <gtest/gtest.h>

#include "catalogue/item_cells.h"
#include "catalogue/row_list.h"

namespace lx {
namespace {

constexpr CatalogueKind precast = CatalogueKind::precast;
constexpr CatalogueKind steel = CatalogueKind::steel;

// Builds a chain from its end backwards, so that it may be long.
void prepend(Catalogue& chain, std::int32_t group, std::string_view designation) {
    auto record = std::make_unique<CPreklItem>();
    record->group = group;
    record->designation = Text(designation);
    record->next = std::move(chain);
    chain = std::move(record);
}

// A type, then its items; items of another type stand between them.
Catalogue chainOf(const std::vector<std::string_view>& designations) {
    Catalogue chain;
    for (auto name = designations.rbegin(); name != designations.rend(); ++name) {
        prepend(chain, 1, *name);
        prepend(chain, 2, "other");
    }
    prepend(chain, -1, "type");
    return chain;
}

Text shown(const ItemRows& rows) {
    Text text;
    for (int row = 0; row < rows.count(); ++row) {
        text += (row > 0 ? "," : "") + *rows.record(row)->designation;
    }
    return text;
}

int rowNamed(const ItemRows& rows, std::string_view designation) {
    int row = 0;
    while (row < rows.count() && *rows.record(row)->designation != designation) ++row;
    return row;
}

TEST(ItemCells, FollowTheColumnsOfTheirKind) {
    CPreklItem item;
    item.length = -125;
    item.width = 70;
    item.height = 238;
    item.maxOpening = 2750;
    item.weight = 12.25;
    item.qu = 0.0;
    const CPreklItem* const bare[] = {&item};
    EXPECT_EQ(rowsAsText(bare, precast),
              "Označení | Délka [mm] | Šířka [mm] | Výška [mm] | Max.otvor [mm] | Hmotnost [kg] | "
              "qu [kN/m] | Popis | X | \r\n\r\n"
              " | -125 | 70 | 238 | 2750 | 12.3 | nezadáno |  |   | \r\n"_cz);

    item.designation = "I 160";
    item.qu = 1.0005;
    item.description = "válcovaný"_cz;
    item.compositionMark = 'X';
    const CPreklItem* const two[] = {&item, &item};
    EXPECT_EQ(rowsAsText(two, steel),
              "Označení | Šířka [mm] | Výška [mm] | Hmotnost [kg/m] | qu [kN/m] | Popis | \r\n\r\n"
              "I 160 | 70 | 238 | 12.3 | 1.001 | válcovaný | \r\n"
              "I 160 | 70 | 238 | 12.3 | 1.001 | válcovaný | \r\n"_cz);
    EXPECT_EQ(cellText(item, 8, precast), "X");
    EXPECT_EQ(cellText(item, 6, steel) + cellText(item, -1, precast), "");

    EXPECT_TRUE(rowsAsText({}, steel).ends_with("Popis | \r\n\r\n"));
}

TEST(ItemRows, ListTheItemsOfOneTypeAndNumberThem) {
    const Catalogue chain = chainOf({"b", "a"});
    ItemRows rows(precast);
    rows.refresh(chain.get(), 1);
    EXPECT_EQ(shown(rows), "b,a");
    EXPECT_EQ(rows.record(1)->rowNo, 2);
    EXPECT_EQ(rows.rowOf(*rows.record(1)), 1);
    EXPECT_EQ(rows.rowOf(*chain), -1);
    EXPECT_EQ(rows.record(2), nullptr);
    EXPECT_EQ(rows.record(-1), nullptr);

    const CPreklItem* before = rows.record(0);
    rows.refresh(chain.get(), 2);
    EXPECT_EQ(shown(rows), "other,other");
    EXPECT_EQ(rows.rowOf(*before), -1);  // though it still carries a number that is in use
    for (const int none : {0, -1, 3}) {
        rows.refresh(chain.get(), none);
        EXPECT_EQ(rows.count(), 0) << none;
    }
    chain->next->group = 0;  // from a damaged file; no type is selected
    rows.refresh(chain.get(), 0);
    EXPECT_EQ(rows.count(), 0);
}

TEST(ItemRows, KeepEqualRowsInOrderUpwardsAndReverseAllDownwards) {
    const Catalogue chain = chainOf({"L 10", "L.2", "l", "L 2", "L 1a", "L-2", "L 1"});
    ItemRows rows(precast);
    rows.refresh(chain.get(), 1);
    rows.sort();
    EXPECT_EQ(rows.sortColumn(), -1);
    EXPECT_EQ(shown(rows), "L 10,L.2,l,L 2,L 1a,L-2,L 1");

    rows.onHeadingClick(0);
    EXPECT_EQ(shown(rows), "l,L 1,L 1a,L.2,L 2,L 10,L-2");
    EXPECT_FALSE(rows.sortDescending());
    rows.onHeadingClick(0);
    EXPECT_EQ(shown(rows), "L-2,L 10,L 2,L.2,L 1a,L 1,l");
    EXPECT_TRUE(rows.sortDescending());
    // Upwards again, from the order that is shown.
    rows.onHeadingClick(0);
    EXPECT_EQ(shown(rows), "l,L 1,L 1a,L 2,L.2,L 10,L-2");

    // All lengths are equal: nothing moves, then everything turns round.
    rows.onHeadingClick(1);
    EXPECT_EQ(shown(rows), "l,L 1,L 1a,L 2,L.2,L 10,L-2");
    rows.onHeadingClick(1);
    EXPECT_EQ(shown(rows), "L-2,L 10,L.2,L 2,L 1a,L 1,l");
    rows.onHeadingClick(0);
    EXPECT_FALSE(rows.sortDescending());
    rows.onHeadingClick(9);
    EXPECT_EQ(rows.sortColumn(), 0);

    rows.refresh(chain.get(), 1);
    EXPECT_EQ(shown(rows), "L 10,L.2,l,L 2,L 1a,L-2,L 1");
    EXPECT_EQ(rows.sortColumn(), 0);
    rows.sort();
    EXPECT_EQ(shown(rows), "l,L 1,L 1a,L.2,L 2,L 10,L-2");
}

TEST(ItemRows, SortByTheTextThatIsShown) {
    const Catalogue chain = chainOf({"none", "ten", "nine", "minus"});
    ItemRows rows(steel);
    rows.refresh(chain.get(), 1);
    const auto item = [&rows](std::string_view name) -> CPreklItem& {
        return *rows.record(rowNamed(rows, name));
    };
    item("ten").qu = 10.04;
    item("nine").qu = 9.5;
    item("minus").width = -3;
    item("ten").width = 20;
    rows.onHeadingClick(4);
    EXPECT_EQ(shown(rows), "nine,ten,none,minus");  // "nezadáno" comes after numbers
    rows.onHeadingClick(1);
    EXPECT_EQ(shown(rows), "nine,none,ten,minus");  // as does a minus sign
}

// Records go away and new ones come in a sorted list, the first listed one too.
TEST(ItemRows, StayRightAsRecordsAreRemovedAndAdded) {
    Catalogue chain = chainOf({"a", "c", "b"});
    ItemRows rows(precast);
    rows.refresh(chain.get(), 1);
    rows.onHeadingClick(0);
    rows.onHeadingClick(0);
    EXPECT_EQ(shown(rows), "c,b,a");

    const auto destroy = [&](std::string_view name) {
        const int row = rowNamed(rows, name);
        Catalogue* link = &chain;
        while (link->get() != rows.record(row)) link = &(*link)->next;
        rows.remove(row);
        Catalogue rest = std::move((*link)->next);
        *link = std::move(rest);
    };
    destroy("a");
    EXPECT_EQ(shown(rows), "c,b");
    prepend(chain->next, 1, "d");
    rows.add(*chain->next);
    EXPECT_EQ(shown(rows), "c,b,d");
    rows.sort();
    EXPECT_EQ(shown(rows), "d,c,b");
    for (int row = 0; row < rows.count(); ++row) EXPECT_EQ(rows.rowOf(*rows.record(row)), row);

    destroy("c");
    EXPECT_EQ(shown(rows), "d,b");
    rows.remove(2);
    rows.remove(-1);
    EXPECT_EQ(rows.count(), 2);

    const int picks[] = {1, 0, 7};
    const std::vector<const CPreklItem*> picked = rows.records(picks);
    ASSERT_EQ(picked.size(), 2U);
    EXPECT_EQ(picked[0], rows.record(1));
    EXPECT_EQ(picked[1], rows.record(0));
}

// A comparison of all with all would not come to an end here.
TEST(ItemRows, OrderAHundredThousandRows) {
    constexpr int count = 100000;
    Catalogue chain;
    for (int n = 0; n < count; ++n) {
        prepend(chain, 1, "KPM " + std::to_string(std::int64_t{n} * 7919 % count));
    }
    ItemRows rows(precast);
    rows.refresh(chain.get(), 1);
    rows.onHeadingClick(0);
    for (int row = 0; row < count; ++row) {
        ASSERT_EQ(*rows.record(row)->designation, "KPM " + std::to_string(row));
    }
    rows.onHeadingClick(0);
    EXPECT_EQ(*rows.record(0)->designation, "KPM 99999");
}

}  // namespace
}  // namespace lx
