#include "composition/stored_form.h"

#include <gtest/gtest.h>

#include <limits>

#include "composition/layout.h"
#include "tests/support/designs.h"

namespace lx {
namespace {

DesignRead readBytes(std::string_view bytes) {
    BinaryReader reader(bytes);
    return readDesign(reader);
}

// A record whose fields are all zero but for the kind.
Bytes rawRecord(std::int32_t tag, Kind kind, std::string_view tail) {
    BinaryWriter writer;
    writer.int32(tag);
    for (int i = 0; i < 9; ++i) writer.int32(0);
    writer.int32(code(kind));
    writer.int32(0);
    writer.raw(tail);
    return writer.take();
}

TEST(StoredForm, LongNamesAreCutAndTheNextRecordIsFound) {
    RezChain design = sampleDesign();
    design.last()->name = Text(300, 'n');
    const Bytes bytes = designBytes(design.head()) +
                        rawRecord(layerTag, Kind{5}, Bytes(400, 'm') + '\0' + 'L') +
                        recordBytes(*layer(Kind{7}, 40), false);
    const DesignRead read = readBytes(bytes);
    EXPECT_FALSE(read.damaged);
    const CRez* first = read.design.head()->next->next;
    EXPECT_EQ(first->nameOrEmpty(), Text(249, 'n'));
    EXPECT_EQ(first->next->nameOrEmpty(), Text(249, 'm'));
    EXPECT_EQ(first->next->next->kind, Kind{7});
}

TEST(StoredForm, CutShortAnywhereKeepsWhatWasRead) {
    const Bytes bytes = designBytes(sampleDesign().head());
    for (std::size_t size = 0; size <= bytes.size(); ++size) {
        const DesignRead read = readBytes(std::string_view(bytes).substr(0, size));
        // Where the record starts that is cut, and how many whole ones stand before it.
        const std::size_t start = size < 87 ? 0 : size < 146 ? 87 : size < 196 ? 146 : 196;
        const int whole = size < 87 ? 0 : size < 146 ? 1 : size < 196 ? 2 : 3;
        const CRez* head = read.design.head();
        ASSERT_EQ(head ? LayerCount(*head) + 1 : 0, whole + (size >= start + 8 ? 1 : 0)) << size;
        EXPECT_EQ(read.damaged, size != start) << size;
        EXPECT_EQ(designBytes(head).substr(0, start), bytes.substr(0, start)) << size;
        EXPECT_TRUE(size < 16 || head->width == 300) << size;
    }
    // A bend without its run, and a letter that is not there.
    EXPECT_FALSE(readBytes(bytes.substr(0, 52 + 7)).design.head()->bends);
    EXPECT_EQ(readBytes(bytes.substr(0, 145)).design.last()->letter, ' ');
}

TEST(StoredForm, WhatIsNoDesignIsLeftOut) {
    const Bytes good = designBytes(sampleDesign().head());
    const Bytes stray = recordBytes(*layer(Kind{0}, 1), false);
    const Bytes headAsLayer = rawRecord(layerTag, Kind::head, std::string_view("n\0 ", 3));
    for (const Bytes& bytes : {stray + good, good + good, good + headAsLayer + stray}) {
        const DesignRead read = readBytes(bytes);
        EXPECT_TRUE(read.damaged);
        EXPECT_EQ(designBytes(read.design.head()), good);
    }
    EXPECT_TRUE(readBytes(stray).design.empty());
    // The tag alone makes a head, and anything else is a layer.
    const Bytes odd = rawRecord(headTag, Kind::precast, std::string_view("\0\0\0\0 ", 5)) +
                      rawRecord(77, Kind{5}, std::string_view("n\0L", 3));
    EXPECT_EQ(readBytes(odd).design.head()->kind, Kind::head);
    EXPECT_EQ(readBytes(odd).design.last()->letter, 'L');
}

TEST(StoredForm, EndlessBendsEndWithTheBytes) {
    constexpr std::int32_t high = std::numeric_limits<std::int32_t>::max();
    BinaryWriter writer;
    writer.raw(rawRecord(headTag, Kind::head, {}));
    for (int i = 0; i < 200'000; ++i) {
        for (const std::int32_t value : {-1, 0, i, high}) writer.int32(value);
        writer.byte(2);
    }
    DesignRead read = readBytes(writer.bytes());
    EXPECT_TRUE(read.damaged);
    const CRez copy(*read.design.head());
    int bends = 0;
    for (const CZalom* bend = copy.bends.get(); bend; bend = bend->next.get()) {
        ASSERT_EQ(bend->run, bends++);
    }
    EXPECT_EQ(bends, 200'000);
    read.design.append(layer(Kind::precast, 100));
    EXPECT_EQ(levelsAbove(*read.design.head()), std::vector<std::int32_t>{high});
}

}  // namespace
}  // namespace lx
