// Random catalogues through their table.
#include <gtest/gtest.h>

#include <cmath>

#include "lxtool/catalogue_table.h"
#include "tests/support/memory_files.h"
#include "tests/support/random_records.h"

namespace lx::lxtool {
namespace {

template <class Work>
std::optional<Bytes> all(Work&& work) {
    Bytes result;
    for (;;) {
        const std::optional<std::string_view> piece = work.next();
        if (!piece) return std::nullopt;
        if (piece->empty()) return result;
        result += *piece;
    }
}

// Any record that a table can hold.
Bytes randomCatalogue(unsigned seed) {
    RandomRecords random(seed);
    const Catalogue made = random.oneIn(2) ? random.catalogue() : random.colliding(true);
    for (CPreklItem* one = made.get(); one; one = one->next.get()) {
        for (double* number : {&one->weight, &one->qu}) {
            if (!std::isfinite(*number)) *number = static_cast<double>(seed) / 7;
        }
    }
    return catalogueBytes(made.get());
}

TEST(RoundTrip, AnyCatalogueComesBackByteForByte) {
    MemoryFiles files;
    std::string told;
    const Console console{{}, {}, [&told](std::string_view text) { told += text; }};
    Session session{files, console};
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        const Bytes catalogue = randomCatalogue(seed);
        for (const TableForm& form : {czechTable, plainTable}) {
            const auto table = all(CatalogueExport(session, "catalogue", catalogue, form));
            ASSERT_TRUE(table) << "seed " << seed << ": " << told;
            const auto again = all(CatalogueImport(session, "table", *table));
            ASSERT_TRUE(again) << "seed " << seed << ": " << told << *table;
            ASSERT_EQ(*again, catalogue) << "seed " << seed << ": " << *table;
        }
    }
}

}  // namespace
}  // namespace lx::lxtool
