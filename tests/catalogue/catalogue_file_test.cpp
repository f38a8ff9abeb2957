#include "catalogue/catalogue_file.h"

#include <gtest/gtest.h>

#include "tests/support/memory_files.h"

namespace lx {
namespace {

CPreklItem* addRecord(Catalogue& head, std::int32_t group, std::optional<Text> designation) {
    Catalogue* end = &head;
    while (*end) end = &(*end)->next;
    *end = std::make_unique<CPreklItem>();
    (*end)->group = group;
    (*end)->designation = std::move(designation);
    return end->get();
}

Catalogue sampleCatalogue() {
    Catalogue head;
    addRecord(head, -1, Text("Překlady"_cz));
    CPreklItem* item = addRecord(head, 1, "KPM 7/?");
    item->length = -125;
    item->width = 70;
    item->height = 238;
    item->maxOpening = 2750;
    item->weight = 52.2;
    item->qu = -1.5;
    item->description = "x";
    item->compositionMark = 'X';
    addRecord(head, 7, std::nullopt);
    return head;
}

TEST(CatalogueFile, RecordsStandInTheFileByteForByte) {
    const Catalogue head = sampleCatalogue();
    const Bytes bytes = catalogueBytes(head.get());
    // 39 bytes a record and the texts: "Překlady", "KPM 7/?" with "x", none.
    ASSERT_EQ(bytes.size(), 47U + 47U + 39U);
    BinaryReader reader(std::string_view(bytes).substr(47));
    EXPECT_EQ(reader.int32(), 1);
    EXPECT_EQ(reader.int32(), -125);
    EXPECT_EQ(reader.int32(), 70);
    EXPECT_EQ(reader.int32(), 238);
    EXPECT_EQ(reader.int32(), 2750);
    EXPECT_EQ(reader.float64(), 52.2);
    EXPECT_EQ(reader.float64(), -1.5);
    EXPECT_EQ(reader.raw(11), std::string_view("KPM 7/?\0x\0X", 11));
    EXPECT_EQ(bytes.substr(94 + 36), std::string_view("\0\0 ", 3));

    const CatalogueRead read = parseCatalogue(CatalogueKind::precast, bytes);
    EXPECT_FALSE(read.damaged);
    EXPECT_EQ(catalogueBytes(read.head.get()), bytes);
    EXPECT_FALSE(read.head->next->next->designation);
    EXPECT_FALSE(read.head->next->next->description);
}

TEST(CatalogueFile, CutShortAnywhereKeepsTheWholeRecordsAlone) {
    const Bytes bytes = catalogueBytes(sampleCatalogue().get());
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
        const CatalogueRead read =
            parseCatalogue(CatalogueKind::precast, std::string_view(bytes).substr(0, size));
        const std::size_t whole = size < 47 ? 0 : size < 94 ? 47 : size < bytes.size() ? 94 : size;
        EXPECT_EQ(catalogueBytes(read.head.get()), bytes.substr(0, whole)) << size;
        EXPECT_EQ(read.damaged, size != whole) << size;
    }
}

TEST(CatalogueFile, LongTextsAreCutSoThatWhatIsSavedCanBeRead) {
    Catalogue head;
    addRecord(head, -1, Text(150, 'a'))->description = Text("in\0side", 7);
    addRecord(head, -2, Text(99, 'b'));
    const Bytes saved = catalogueBytes(head.get());
    const CatalogueRead read = parseCatalogue(CatalogueKind::precast, saved);
    EXPECT_FALSE(read.damaged);
    EXPECT_EQ(read.head->designation, Text(99, 'a'));
    EXPECT_EQ(read.head->description, "in");
    EXPECT_EQ(read.head->next->designation, Text(99, 'b'));

    // A foreign file may hold a longer one: the reader cuts it and finds the next record.
    const Bytes foreign = saved.substr(0, 36) + Text(40, 'c') + saved.substr(36);
    const CatalogueRead cut = parseCatalogue(CatalogueKind::precast, foreign);
    EXPECT_TRUE(cut.damaged);
    EXPECT_EQ(cut.head->designation, Text(40, 'c') + Text(59, 'a'));
    EXPECT_EQ(cut.head->next->designation, Text(99, 'b'));
}

TEST(CatalogueFile, SectionsWithoutAShapeBecomeShapeOne) {
    const Bytes bytes = catalogueBytes(sampleCatalogue().get());
    const CatalogueRead steel = parseCatalogue(CatalogueKind::steel, bytes);
    EXPECT_EQ(steel.head->length, 1);
    EXPECT_EQ(steel.head->next->length, -125);
    EXPECT_EQ(steel.head->next->next->length, 1);
    EXPECT_EQ(parseCatalogue(static_cast<CatalogueKind>(2), bytes).head->length, 0);
}

TEST(CatalogueFile, LongChainsAreCopiedAndDestroyedWithoutRecursion) {
    Bytes bytes = catalogueBytes(sampleCatalogue().get());
    while (bytes.size() < 8'000'000) bytes += Bytes(bytes);
    CatalogueRead read = parseCatalogue(CatalogueKind::precast, bytes);
    Catalogue copy = copyCatalogue(read.head.get());
    read.head.reset();
    EXPECT_EQ(catalogueBytes(copy.get()), bytes);
    EXPECT_EQ(copyCatalogue(nullptr), nullptr);
}

TEST(CatalogueFile, OpeningCreatesAMissingFileAndNothingElse) {
    MemoryFiles files;
    const LoadedCatalogue created = loadCatalogue(CatalogueKind::steel, "S", files);
    EXPECT_TRUE(created.opened);
    EXPECT_EQ(created.head, nullptr);
    EXPECT_EQ(files.content.at("S"), "");

    files.locked.insert("L");
    EXPECT_FALSE(loadCatalogue(CatalogueKind::precast, "L", files).opened);
    files.content["R"] = catalogueBytes(sampleCatalogue().get());
    files.readOnly = true;
    EXPECT_FALSE(loadCatalogue(CatalogueKind::precast, "R", files).opened);
    EXPECT_FALSE(loadCatalogue(CatalogueKind::precast, "missing", files).opened);
    EXPECT_EQ(saveCatalogueAs(nullptr, "R", files), -5);
}

}  // namespace
}  // namespace lx
