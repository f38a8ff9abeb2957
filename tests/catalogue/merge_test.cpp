// Merging catalogues record by record, written here as lines of text.
#include "catalogue/merge.h"

#include <gtest/gtest.h>

#include <chrono>

#include "catalogue/catalogue_file.h"
#include "platform/numbers.h"
#include "tests/support/catalogues.h"

namespace lx {
namespace {

TEST(Merge, ItemsAreUpdatedInTheirPlaceOrFollow) {
    // Items stand anywhere in the chain; afterwards each type is followed by its own.
    const std::vector<CatalogueLine> installed = {{2, "b1", 1}, {-1, "A", 4}, {1, "a1", 2},
                                                  {-2, "B", 5}, {1, "a2", 3}, {9, "lost"},
                                                  {0, "lost"}};
    const std::vector<CatalogueLine> supplied = {
        {-1, "B", 8}, {1, "b2", 20}, {1, "b1", 10}, {1, "B1", 11},  {-2, "A", 9},  {2, "a1", 30},
        {7, "lost"},  {1, "b2", 21}, {-3, "a", 6},  {3, "a1", 100}, {3, "a1", 101}};
    EXPECT_EQ(shown(mergedCatalogue(catalogueOf(installed), catalogueOf(supplied))),
              "-1:A:4 1:a1:30 1:a2:3 -2:B:5 2:b1:10 2:b2:21 2:B1:11 -3:a:6 3:a1:100 3:a1:101");
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

}  // namespace
}  // namespace lx
