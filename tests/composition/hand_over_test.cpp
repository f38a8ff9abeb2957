#include "composition/hand_over.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/designs.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

TEST(HandOver, TheDesignFollowsEightBytesThatNobodyChecks) {
    MemoryFiles files;
    const RezChain design = sampleDesign();
    const Path path = handOverPath(files);
    EXPECT_EQ(path, "tmp/LXDATA6I.tmp");
    files.content[path] = Bytes(9999, 'x');
    EXPECT_EQ(WriteHandOver(path, design.head(), 1200.0, files), 1);
    const Bytes bytes = designBytes(design.head());
    EXPECT_EQ(files.content[path],
              "P\xD8"
              "EKLADY" +
                  bytes);
    files.content[path] = "????????" + bytes;
    EXPECT_EQ(designBytes(ReadHandOver(path, files).design.head()), bytes);
    files.readOnly = true;
    EXPECT_EQ(WriteHandOver(path, design.head(), 1200.0, files), 0);

    for (std::size_t size = 0; size < 16; ++size) {
        files.content[path] = handOverBytes(design.head()).substr(0, size);
        EXPECT_TRUE(ReadHandOver(path, files).present);
        EXPECT_TRUE(ReadHandOver(path, files).design.empty()) << size;
    }
    files.locked.insert(path);
    EXPECT_FALSE(ReadHandOver(path, files).present);
    EXPECT_FALSE(ReadHandOver("missing", files).present);
}

TEST(HandOver, ANegativeOpeningTurnsEveryLength) {
    MemoryFiles files;
    const RezChain design = sampleDesign();
    design.last()->length = std::numeric_limits<std::int32_t>::min();
    WriteHandOver("h", design.head(), -1200.0, files);
    EXPECT_EQ(design.head()->next->length, -1450);
    const HandOverRead read = ReadHandOver("h", files);
    EXPECT_EQ(read.design.head()->length, -1200);
    EXPECT_EQ(read.design.last()->length, std::numeric_limits<std::int32_t>::max());
}

TEST(HandOver, ElementsThatFollowTheOpeningTakeTheCatalogueLimit) {
    Catalogue catalogue = std::make_unique<CPreklItem>();
    CPreklItem* last = catalogue.get();
    last->designation = "KPM 7/?";  // a type of that name is no item
    for (const int maxOpening : {2500, 2600}) {
        last->next = std::make_unique<CPreklItem>();
        last = last->next.get();
        last->group = 1;
        last->designation = "KPM 7/?";
        last->maxOpening = maxOpening;
    }
    RezChain design = sampleDesign();
    for (const char* name : {"KPM 7/?", "kpm 7/?"}) {
        design.append(layer(Kind::precast, 70, name))->bearing = 125;
    }
    const CRez* fixed = design.append(layer(Kind::precast, 70, "KPM 7/?"));
    design.append(std::make_unique<CRez>())->bearing = 1;
    refreshMaxOpenings(design.head(), catalogue.get());
    const CRez* follows = design.head()->next->next->next;
    EXPECT_EQ(follows->maxOpening, 2500);
    EXPECT_EQ(follows->next->maxOpening, 0);
    EXPECT_EQ(fixed->maxOpening, 0);
}

}  // namespace
}  // namespace lx
