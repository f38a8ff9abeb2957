// Merging catalogues record by record, written here as lines of text.
#include "catalogue/merge.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>

#include "catalogue/catalogue_file.h"
#include "platform/numbers.h"
#include "tests/support/catalogues.h"

namespace lx {
namespace {

constexpr int lowest = std::numeric_limits<std::int32_t>::min();
constexpr int highest = std::numeric_limits<std::int32_t>::max();

std::string merged(const std::vector<CatalogueLine>& installed,
                   const std::vector<CatalogueLine>& supplied) {
    return shown(mergedCatalogue(catalogueOf(installed), catalogueOf(supplied)));
}

TEST(Merge, ItemsAreUpdatedInTheirPlaceOrFollow) {
    // Items stand anywhere in the chain; afterwards each type is followed by its own.
    const std::vector<CatalogueLine> installed = {{2, "b1", 1}, {-1, "A", 4}, {1, "a1", 2},
                                                  {-2, "B", 5}, {1, "a2", 3}, {9, "lost"},
                                                  {0, "lost"}};
    const std::vector<CatalogueLine> supplied = {
        {-1, "B", 8}, {1, "b2", 20}, {1, "b1", 10}, {1, "B1", 11},  {-2, "A", 9},  {2, "a1", 30},
        {7, "lost"},  {1, "b2", 21}, {-3, "a", 6},  {3, "a1", 100}, {3, "a1", 101}};
    EXPECT_EQ(merged(installed, supplied),
              "-1:A:4 1:a1:30 1:a2:3 -2:B:5 2:b1:10 2:b2:21 2:B1:11 -3:a:6 3:a1:100 3:a1:101");
}

TEST(Merge, OnlyTheFirstOfEqualNamesIsMet) {
    EXPECT_EQ(merged({{-1, "A"}, {1, "i", 1}, {1, "i", 2}, {-2, "A"}, {2, "i", 3}},
                     {{-1, "A"}, {1, "i", 7}, {-2, "A"}, {2, "j", 8}}),
              "-1:A 1:i:7 1:i:2 1:j:8 -2:A 2:i:3");
    EXPECT_EQ(
        merged({{-1, ""}, {1, "", 1}}, {{-1, "N"}, {-2, ""}, {2, "", 5}, {-3, "N"}, {3, "n"}}),
        "-1: 1::5 -2:N 2:n")
        << "no name is a name; a new type can be met again";
}

TEST(Merge, EmptyTablesAndOddNumbers) {
    const struct {
        std::vector<CatalogueLine> installed, supplied;
        const char* result;
    } cases[] = {
        {{}, {}, ""},
        {{{1, "lost"}}, {{-5, "A", 3}, {5, "i"}}, "-1:A:3 1:i"},
        {{{-1, "A"}}, {{-1, "A"}, {1, "i"}}, "-1:A 1:i"},
        {{{-1, "A"}, {1, "i"}}, {}, "-1:A 1:i"},
        {{{-3, "C"}, {3, "c"}, {-1, "A"}}, {{-1, "D"}, {1, "d"}}, "-3:C 3:c -1:A -2:D 2:d"},
        // Two types of one number: what they show stays, and does not double.
        {{{-1, "A"}, {-1, "B"}, {1, "i"}}, {}, "-1:A 1:i -1:B"},
        {{{lowest, "A"}, {highest, "i"}},
         {{-1, "A"}, {1, "i"}, {-2, "B"}, {2, "j"}},
         "-2147483648:A 2147483647:i -2147483647:B 2147483647:j"},
    };
    for (const auto& one : cases) EXPECT_EQ(merged(one.installed, one.supplied), one.result);
}

// Comparing every item with every other one would take minutes.
TEST(MergeFigure, AHundredThousandItemsMeetAsMany) {
    std::vector<CatalogueLine> lines{{-1, "T"}};
    for (int i = 0; i < 100'000; ++i) lines.push_back({1, "KPM " + formatInt(i), 1});
    const Catalogue once = catalogueOf(lines);
    const auto start = std::chrono::steady_clock::now();
    const Catalogue result = mergedCatalogue(copyCatalogue(once.get()), copyCatalogue(once.get()));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(catalogueBytes(result.get()), catalogueBytes(once.get()));
}

TEST(MergeFigure, AMillionRecordsOfOneTypeNeedNoStack) {
    std::vector<CatalogueLine> lines(1000000, {1, "same", 3});
    lines[0] = {-1, "A", 1};
    const Catalogue result =
        mergedCatalogue(catalogueOf(lines), catalogueOf({{-1, "A"}, {1, "same", 4}}));
    EXPECT_EQ(result->next->length, 4);
    EXPECT_EQ(result->next->next->length, 3);
}

}  // namespace
}  // namespace lx
