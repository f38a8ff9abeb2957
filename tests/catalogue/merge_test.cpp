// Merging catalogues record by record, written here as lines of text.
#include "catalogue/merge.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <limits>

#include "catalogue/catalogue_file.h"
#include "platform/numbers.h"

namespace lx {
namespace {

using std::chrono::steady_clock;

constexpr int lowest = std::numeric_limits<std::int32_t>::min();
constexpr int highest = std::numeric_limits<std::int32_t>::max();

struct Line {
    std::int32_t group;
    std::string_view name;
    std::int32_t length = 0;
};

Catalogue catalogueOf(const std::vector<Line>& lines) {
    Catalogue head;
    Catalogue* end = &head;
    for (const Line& line : lines) {
        *end = std::make_unique<CPreklItem>();
        (*end)->group = line.group;
        (*end)->length = line.length;
        if (!line.name.empty()) (*end)->designation = Text(line.name);
        end = &(*end)->next;
    }
    return head;
}

// Every record as "group name length".
std::string shown(const CPreklItem* head) {
    std::string text;
    for (const CPreklItem* record = head; record; record = record->next.get()) {
        text += formatInt(record->group) + " " + record->designation.value_or("") + " " +
                formatInt(record->length) + "\n";
    }
    return text;
}

std::string merged(const std::vector<Line>& installed, const std::vector<Line>& supplied) {
    return shown(mergedCatalogue(catalogueOf(installed), catalogueOf(supplied)).get());
}

TEST(Merge, ItemsAreUpdatedInTheirPlaceOrFollow) {
    // Items stand anywhere in the chain; afterwards each type is followed by its own.
    const std::vector<Line> installed = {{2, "b1", 1}, {-1, "A", 4}, {1, "a1", 2}, {-2, "B", 5},
                                         {1, "a2", 3}, {9, "lost"},  {0, "lost"}};
    const std::vector<Line> supplied = {{-1, "B", 8}, {1, "b2", 20},  {1, "b1", 10}, {1, "B1", 11},
                                        {-2, "A", 9}, {2, "a1", 30},  {7, "lost"},   {1, "b2", 21},
                                        {-3, "a", 6}, {3, "a1", 100}, {3, "a1", 101}};
    EXPECT_EQ(merged(installed, supplied),
              "-1 A 4\n1 a1 30\n1 a2 3\n"
              "-2 B 5\n2 b1 10\n2 b2 21\n2 B1 11\n"
              "-3 a 6\n3 a1 100\n3 a1 101\n");
}

TEST(Merge, AnUpdateTakesEverythingButNameAndGroup) {
    Catalogue installed = catalogueOf({{-4, "T"}, {4, "i", 1}});
    installed->next->description = "old";
    installed->next->compositionMark = 'A';
    Catalogue supplied = catalogueOf({{-1, "T"}, {1, "i", -250}});
    CPreklItem& item = *supplied->next;
    item.width = 70;
    item.height = 238;
    item.maxOpening = 2750;
    item.weight = 52.5;
    item.qu = 12.25;
    item.compositionMark = 'Z';
    const Catalogue result = mergedCatalogue(std::move(installed), copyCatalogue(supplied.get()));
    item.group = 4;
    item.designation = "i";
    EXPECT_EQ(catalogueBytes(result->next.get()), catalogueBytes(supplied->next.get()));
}

TEST(Merge, OnlyTheFirstOfEqualNamesIsMet) {
    EXPECT_EQ(merged({{-1, "A"}, {1, "i", 1}, {1, "i", 2}, {-2, "A"}, {2, "i", 3}},
                     {{-1, "A"}, {1, "i", 7}, {-2, "A"}, {2, "j", 8}}),
              "-1 A 0\n1 i 7\n1 i 2\n1 j 8\n-2 A 0\n2 i 3\n");
    EXPECT_EQ(
        merged({{-1, ""}, {1, "", 1}}, {{-1, "N"}, {-2, ""}, {2, "", 5}, {-3, "N"}, {3, "n"}}),
        "-1  0\n1  5\n-2 N 0\n2 n 0\n")
        << "no name is a name; a new type can be met again";
}

TEST(Merge, EmptyTablesAndOddNumbers) {
    EXPECT_EQ(merged({}, {}), "");
    EXPECT_EQ(merged({{1, "lost"}}, {{-5, "A", 3}, {5, "i"}}), "-1 A 3\n1 i 0\n");
    EXPECT_EQ(merged({{-1, "A"}}, {{-1, "A"}, {1, "i"}}), "-1 A 0\n1 i 0\n");
    EXPECT_EQ(merged({{-1, "A"}, {1, "i"}}, {}), "-1 A 0\n1 i 0\n");
    EXPECT_EQ(merged({{-3, "C"}, {3, "c"}, {-1, "A"}}, {{-1, "D"}, {1, "d"}}),
              "-3 C 0\n3 c 0\n-1 A 0\n-2 D 0\n2 d 0\n");
    // Two types of one number: what they show stays, and does not double.
    EXPECT_EQ(merged({{-1, "A"}, {-1, "B"}, {1, "i"}}, {}), "-1 A 0\n1 i 0\n-1 B 0\n");
    const std::string low = formatInt(lowest);
    const std::string high = formatInt(highest);
    EXPECT_EQ(merged({{lowest, "A"}, {highest, "i"}}, {{-1, "A"}, {1, "i"}, {-2, "B"}, {2, "j"}}),
              low + " A 0\n" + high + " i 0\n" + formatInt(-highest) + " B 0\n" + high + " j 0\n");
}

// Types of 1000 items, in the order in which their products are made.
Bytes largeCatalogue(int items, int firstName) {
    std::vector<Text> names;
    std::vector<Line> lines;
    names.reserve(static_cast<std::size_t>(items + items / 1000 + 1));
    for (int i = 0; i < items; ++i) {
        const int group = i / 1000 + 1;
        if (i % 1000 == 0) lines.push_back({-group, names.emplace_back("Typ " + formatInt(group))});
        names.push_back("KPM " + formatInt(group) + "/" + formatInt(firstName + i % 1000));
        lines.push_back({group, names.back(), i});
    }
    return catalogueBytes(catalogueOf(lines).get());
}

double seconds(steady_clock::time_point since) {
    return std::chrono::duration<double>(steady_clock::now() - since).count();
}

TEST(MergeFigure, ALargeMergeTakesAboutTheTimeOfLoading) {
    constexpr int count = 100000;
    // Half of the supplied items are known.
    const Bytes installed = largeCatalogue(count, 0);
    const Bytes supplied = largeCatalogue(count, 500);
    double load = 1e9;
    double merge = 1e9;
    for (int round = 0; round < 3; ++round) {
        const auto start = steady_clock::now();
        Catalogue one = parseCatalogue(CatalogueKind::precast, installed).head;
        Catalogue other = parseCatalogue(CatalogueKind::precast, supplied).head;
        load = std::min(load, seconds(start));
        const auto loaded = steady_clock::now();
        const Catalogue result = mergedCatalogue(std::move(one), std::move(other));
        merge = std::min(merge, seconds(loaded));
        int records = 0;
        for (const CPreklItem* r = result.get(); r; r = r->next.get()) ++records;
        ASSERT_EQ(records, count / 1000 + count + count / 2);
    }
    std::printf("%d items into %d: loading both %.0f ms, merging %.0f ms\n", count, count,
                load * 1000, merge * 1000);
    // Comparing every item with every other of its type alone would take many times as long.
    EXPECT_LT(merge, 4 * load + 0.05);
}

TEST(MergeFigure, AMillionRecordsOfOneTypeNeedNoStack) {
    std::vector<Line> lines(1000000, {1, "same", 3});
    lines[0] = {-1, "A", 1};
    const Catalogue result =
        mergedCatalogue(catalogueOf(lines), catalogueOf({{-1, "A"}, {1, "same", 4}}));
    EXPECT_EQ(result->next->length, 4);
    EXPECT_EQ(result->next->next->length, 3);
}

}  // namespace
}  // namespace lx
