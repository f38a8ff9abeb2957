#include "catalogue/merge.h"

#include <gtest/gtest.h>

#include <chrono>

#include "catalogue/catalogue_file.h"
#include "platform/numbers.h"
#include "tests/support/catalogues.h"

namespace lx {
namespace {

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
