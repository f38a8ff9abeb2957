// Random catalogues through their table, random libraries through JSON.
#include <gtest/gtest.h>

#include <cmath>

#include "composition/library.h"
#include "lxtool/catalogue_table.h"
#include "lxtool/command_line.h"
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

TEST(RoundTrip, AnyLibraryComesBackByteForByte) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        RandomRecords random(seed);
        MemoryFiles files;
        // Each under a project of its own, which no project file names.
        for (std::int32_t project = 1 + random.below(8); project > 0; --project) {
            ASSERT_TRUE(
                appendDesign("from/preklady.bk6", project, *random.design().head(), {}, files));
        }
        std::string told;
        std::string json;
        const Console console{[&json] { return std::optional<Bytes>(json); },
                              [&json](std::string_view text) {
                                  json += text;
                                  return true;
                              },
                              [&told](std::string_view text) { told += text; }};
        ASSERT_EQ(run({"library", "export", "from"}, console, files), Result::done)
            << "seed " << seed << ": " << told;
        ASSERT_EQ(run({"library", "import", "-", "to"}, console, files), Result::done)
            << "seed " << seed << ": " << told << json;
        ASSERT_EQ(files.content["to/preklady.bk6"], files.content["from/preklady.bk6"])
            << "seed " << seed << ": " << json;
    }
}

}  // namespace
}  // namespace lx::lxtool
