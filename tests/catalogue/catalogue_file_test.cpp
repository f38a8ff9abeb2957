#include "catalogue/catalogue_file.h"

#include <gtest/gtest.h>

#include "tests/support/catalogues.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

// 47, 46 and 39 bytes in the file.
Catalogue sampleCatalogue() {
    return catalogueOf({{-1, "Překlady"}, {1, "KPM 7/?", -125}, {1, ""}});
}

TEST(CatalogueFile, CutShortAnywhereKeepsTheWholeRecordsAlone) {
    const Bytes bytes = catalogueBytes(sampleCatalogue().get());
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
        const LoadedCatalogue read =
            loadCatalogue(CatalogueKind::precast, std::string_view(bytes).substr(0, size));
        const std::size_t whole = size < 47 ? 0 : size < 93 ? 47 : size < 132 ? 93 : size;
        EXPECT_EQ(catalogueBytes(read.head.get()), bytes.substr(0, whole)) << size;
        EXPECT_EQ(read.state.damaged, size != whole) << size;
    }
}

TEST(CatalogueFile, LongTextsAreCutSoThatWhatIsSavedCanBeRead) {
    const Catalogue head = catalogueOf({{-1, Text(150, 'a')}, {-2, Text(99, 'b')}});
    head->description = Text("in\0side", 7);
    const Bytes saved = catalogueBytes(head.get());
    const LoadedCatalogue read = loadCatalogue(CatalogueKind::precast, saved);
    EXPECT_FALSE(read.state.damaged);
    EXPECT_EQ(read.head->designation, Text(99, 'a'));
    EXPECT_EQ(read.head->description, "in");
    EXPECT_EQ(read.head->next->designation, Text(99, 'b'));

    // A foreign file may hold a longer one: the reader cuts it and finds the next record.
    const Bytes foreign = saved.substr(0, 36) + Text(40, 'c') + saved.substr(36);
    const LoadedCatalogue cut = loadCatalogue(CatalogueKind::precast, foreign);
    EXPECT_TRUE(cut.state.damaged);
    EXPECT_EQ(cut.head->designation, Text(40, 'c') + Text(59, 'a'));
    EXPECT_EQ(cut.head->next->designation, Text(99, 'b'));
}

TEST(CatalogueFile, LongChainsAreDestroyedWithoutRecursion) {
    Bytes bytes = catalogueBytes(sampleCatalogue().get());
    while (bytes.size() < 8'000'000) bytes += Bytes(bytes);
    LoadedCatalogue read = loadCatalogue(CatalogueKind::precast, bytes);
    EXPECT_EQ(catalogueBytes(read.head.get()), bytes);
    read.head.reset();
}

TEST(CatalogueFile, OpeningCreatesAMissingFileAndNothingElse) {
    MemoryFiles files;
    EXPECT_EQ(openCatalogueFileAt("S", files), "");
    EXPECT_EQ(files.content.at("S"), "");
    EXPECT_EQ(loadCatalogue(CatalogueKind::steel, "").head, nullptr);

    files.locked.insert("L");
    EXPECT_EQ(openCatalogueFileAt("L", files), std::nullopt);
    files.content["R"] = catalogueBytes(sampleCatalogue().get());
    EXPECT_EQ(openCatalogueFileAt("R", files), files.content["R"]);
    files.readOnly = true;
    EXPECT_EQ(openCatalogueFileAt("R", files), std::nullopt);
    EXPECT_EQ(openCatalogueFileAt("missing", files), std::nullopt);
    EXPECT_EQ(saveCatalogueAs(nullptr, "R", files), -5);
}

// Larger than what is written at a time, and than its multiples.
TEST(CatalogueFile, IsWrittenPieceByPieceAndKnownAgainAsAWhole) {
    MemoryFiles files;
    CatalogueState state;
    for (const int items : {0, 1, 6000, 20001}) {
        const Catalogue made = madeCatalogue(1, items);
        ASSERT_EQ(saveCatalogueAs(made.get(), "C", files, false, &state), 0);
        Bytes& file = files.content.at("C");
        EXPECT_TRUE(file == catalogueBytes(made.get())) << items;
        EXPECT_TRUE(state.holds(file) && !state.damaged) << items;
        const CatalogueState before = state;
        files.readOnly = true;
        EXPECT_EQ(saveCatalogueAs(nullptr, "C", files, false, &state), -5);
        files.readOnly = false;
        EXPECT_EQ(state.hash, before.hash) << "nothing was written";
        for (const std::size_t at : {std::size_t{0}, file.size() / 2, file.size() - 1}) {
            file[at] = static_cast<char>(file[at] ^ 1);
            EXPECT_FALSE(state.holds(file)) << items << ' ' << at;
            file[at] = static_cast<char>(file[at] ^ 1);
        }
        EXPECT_FALSE(state.holds(file + '\0'));
    }
}

}  // namespace
}  // namespace lx
