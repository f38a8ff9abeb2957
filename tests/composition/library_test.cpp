#include "composition/library.h"

#include <gtest/gtest.h>

#include <limits>

#include "composition/layout.h"
#include "composition/section_scale.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

const Path path = "preklady.bk6";

void store(Files& files, std::int32_t project, std::string_view label, std::int32_t wall = 300) {
    const RezChain design = sampleDesign(label, wall);
    ASSERT_TRUE(appendDesign(path, project, *design.head(), {}, files));
}

// "A  300 B  450": label and wall thickness of each entry.
std::string listed(std::string_view bytes, std::int32_t project) {
    std::string text;
    for (const LibraryEntry& entry : parseLibrary(bytes, project).entries) {
        text += entry.label + std::to_string(entry.design.head()->width) + " ";
    }
    return text;
}

void put(Bytes& bytes, std::size_t position, std::int32_t value) {
    BinaryWriter writer;
    writer.int32(value);
    bytes.replace(position, 4, writer.bytes());
}

TEST(Library, WhatIsDeletedBelongsToNoProject) {
    MemoryFiles files;
    store(files, 1, "A");
    store(files, 1, "ABC");
    EXPECT_TRUE(deleteEntries(path, 1, "A  ", files));
    EXPECT_FALSE(deleteEntries(path, 1, "abc", files));
    EXPECT_EQ(listed(files.content[path], deletedProject), "");
    EXPECT_FALSE(deleteEntries(path, deletedProject, std::nullopt, files));
    EXPECT_FALSE(deleteEntries(path, 1, "", files)) << "no entry has an empty label";
    EXPECT_EQ(listed(files.content[path], 1), "ABC300 ");
    EXPECT_EQ(files.content.count(path + ".bak"), 0U);

    EXPECT_TRUE(loadLibrary("none", 1, files).missing);
    files.locked.insert(path);
    const LibraryRead locked = loadLibrary(path, 1, files);
    EXPECT_FALSE(locked.opened || locked.missing);
}

TEST(Library, SameMeansOneOfTheEntriesOfTheLabel) {
    MemoryFiles files;
    const RezChain design = sampleDesign("A");
    layOut(*design.head());
    EXPECT_FALSE(FindStoredSame(path, 1, "A  ", *design.head(), {}, files));
    store(files, 1, "A", 400);
    store(files, 1, "A", 300);
    EXPECT_TRUE(FindStoredSame(path, 1, "A  ", *design.head(), {}, files));
    EXPECT_FALSE(FindStoredSame(path, 1, "A", *design.head(), {}, files));
    EXPECT_FALSE(FindStoredSame(path, 2, "A  ", *design.head(), {}, files));
    design.head()->next->letter = 'Q';
    EXPECT_TRUE(FindStoredSame(path, 1, "A  ", *design.head(), {}, files));
    ++design.head()->next->length;
    EXPECT_FALSE(FindStoredSame(path, 1, "A  ", *design.head(), {}, files));
    // Labels of four and more bytes never meet a stored one: both designs stand under "ABC".
    const RezChain first = sampleDesign("ABCD", 300);
    const RezChain second = sampleDesign("ABCE", 450);
    appendDesign(path, 3, *first.head(), "ABCD", files);
    appendDesign(path, 3, *second.head(), "ABCE", files);
    EXPECT_EQ(listed(files.content[path], 3), "ABC300 ABC450 ");
    EXPECT_TRUE(deleteEntries(path, 3, "ABC", files));
    EXPECT_EQ(listed(files.content[path], 3), "");
}

// Layers on a sloping step are stored as high as the preview of that display showed them.
TEST(Library, TheSameDesignIsKnownOnAnotherDisplay) {
    constexpr Size small{370, 300};
    constexpr Size large{555, 300};
    MemoryFiles files;
    RezChain design;
    CRez& head = *design.append(headOf(300, "A"));
    head.addBend(150, 100, false);
    head.addBend(150, 100, true);
    design.append(layer(Kind::precast, 150));
    design.append(layer(Kind::precast, 150));
    layOut(head);
    settleSection(head, small);
    const std::int32_t lifted = design.last()->level;
    ASSERT_TRUE(appendDesign(path, 1, head, {}, files));
    EXPECT_TRUE(FindStoredSame(path, 1, "A  ", head, small, files));
    layOut(head);
    settleSection(head, large);
    ASSERT_NE(design.last()->level, lifted);
    EXPECT_TRUE(FindStoredSame(path, 1, "A  ", head, large, files));
    head.next->width = 149;
    layOut(head);
    settleSection(head, large);
    EXPECT_FALSE(FindStoredSame(path, 1, "A  ", head, large, files));
}

TEST(Library, ATornTailIsClosedOffAndTheNextEntryIsReachable) {
    MemoryFiles whole;
    store(whole, 1, "A", 300);
    const std::size_t first = whole.content[path].size();
    store(whole, 1, "B", 310);
    const Bytes bytes = whole.content[path];
    const RezChain added = sampleDesign("C", 320);
    const std::size_t wholeHead = first + 12 + recordBytes(*added.head(), true).size();
    for (std::size_t size = first + 1; size < bytes.size(); ++size) {
        MemoryFiles files;
        const Bytes torn = bytes.substr(0, size);
        files.content[path] = torn;
        const LibraryRead read = parseLibrary(torn, 1);
        EXPECT_TRUE(read.damaged) << size;
        EXPECT_EQ(read.entries.size(), size < first + 12 + 8 ? 1U : 2U) << size;
        ASSERT_TRUE(appendDesign(path, 1, *added.head(), "C  ", files));
        EXPECT_EQ(files.content[path + ".bak"], torn);
        // A design whose head is whole stays, with the layers that can be read.
        const bool kept = size >= wholeHead;
        EXPECT_EQ(listed(files.content[path], 1), kept ? "A  300 B  310 C  320 " : "A  300 C  320 ")
            << size;
        EXPECT_TRUE(kept || !parseLibrary(files.content[path], 1).damaged) << size;
        // Nothing of the tail but its first bytes has changed.
        if (size > first + 8) {
            EXPECT_EQ(files.content[path].substr(first + 8, size - first - 8),
                      size < first + 12 ? Bytes(size - first - 8, '\0') : torn.substr(first + 8));
        }
    }
}

// Appends as a full disk does: part of the bytes is there, or has been taken away again.
class FullDisk : public MemoryFiles {
public:
    std::size_t left = 0;  // bytes behind the file

    bool append(const Path& file, std::string_view bytes, const Seal&) override {
        content[file] += bytes.substr(0, left);
        return false;
    }
};

TEST(Library, ARefusedEntryLeavesATornTailAsItWas) {
    MemoryFiles whole;
    store(whole, 1, "A", 300);
    const std::size_t first = whole.content[path].size();
    store(whole, 1, "B", 310);
    const RezChain added = sampleDesign("C", 320);
    for (const std::size_t size : {first + 3, first + 6, first + 20, first + 100}) {
        FullDisk files;
        const Bytes torn = whole.content[path].substr(0, size);
        files.content[path] = torn;
        EXPECT_FALSE(appendDesign(path, 1, *added.head(), {}, files));
        EXPECT_EQ(files.content[path], torn) << size;
        // What stays behind the tail must not become a part of it.
        files.left = 15;
        EXPECT_FALSE(appendDesign(path, 1, *added.head(), {}, files));
        EXPECT_FALSE(files.content[path].starts_with(torn)) << size;
    }
}

TEST(Library, OnlyATailThatIsSomebodysReplacesAnEarlierBackup) {
    MemoryFiles files;
    store(files, 1, "A", 300);
    const Bytes first = files.content[path];
    store(files, 1, "B", 310);
    files.content[path].pop_back();
    const Bytes torn = files.content[path];
    const RezChain added = sampleDesign("C", 320);
    for (const std::int32_t owner : {1, deletedProject}) {
        files.content[path] = torn;
        put(files.content[path], first.size() + 4, owner);
        files.content[path + ".bak"] = "earlier";
        ASSERT_TRUE(appendDesign(path, 1, *added.head(), {}, files));
        EXPECT_EQ(files.content[path + ".bak"], owner == 1 ? torn : "earlier");
    }
}

// Each would cost a record, many times what it takes in the file.
TEST(Library, AnEntryThatEndsWithinItsHeadIsLeftOut) {
    MemoryFiles files;
    store(files, 1, "A", 300);
    const Bytes first = files.content[path];
    const std::size_t head = recordBytes(*sampleDesign("A", 300).head(), true).size();
    for (const std::size_t size : {std::size_t{4}, std::size_t{8}, head - 1, head}) {
        Bytes bytes = first.substr(0, 12 + size);
        put(bytes, 0, static_cast<std::int32_t>(8 + size));
        const LibraryRead read = parseLibrary(bytes + first, 1);
        EXPECT_EQ(read.entries.size(), size < head ? 1U : 2U) << size;
        EXPECT_EQ(read.damaged, size < head) << size;
    }
}

TEST(Library, ImpossibleLengthsEndTheReading) {
    MemoryFiles files;
    store(files, 1, "A", 300);
    const std::size_t first = files.content[path].size();
    store(files, 1, "B", 310);
    store(files, 1, "C", 320);
    const RezChain added = sampleDesign("D", 330);
    for (const std::int32_t length : {0, 3, -4, std::numeric_limits<std::int32_t>::min(),
                                      std::numeric_limits<std::int32_t>::max()}) {
        MemoryFiles damaged;
        damaged.content[path] = files.content[path];
        put(damaged.content[path], first, length);
        const LibraryRead read = parseLibrary(damaged.content[path], 1);
        EXPECT_TRUE(read.damaged);
        // An endless entry has records that can be read, up to the next head or tag of none.
        EXPECT_EQ(read.entries.size(), length > 8 ? 2U : 1U) << length;
        ASSERT_TRUE(appendDesign(path, 1, *added.head(), {}, damaged));
        EXPECT_EQ(listed(damaged.content[path], 1), "A  300 B  310 D  330 ");
        EXPECT_EQ(damaged.content[path].size(),
                  files.content[path].size() + designBytes(added.head()).size() + 12);
    }
    // An entry too short for a label is passed over; with one alone it is an entry, without a
    // design.
    for (const std::int32_t length : {4, 5, 7, 8}) {
        MemoryFiles foreign;
        store(foreign, 1, "A", 300);
        Bytes entry(static_cast<std::size_t>(4 + length), '\0');
        put(entry, 0, length);
        put(entry, 4, 1);
        foreign.content[path] += entry;
        EXPECT_EQ(parseLibrary(foreign.content[path], 1).damaged, length == 8) << length;
        store(foreign, 1, "B", 310);
        EXPECT_EQ(listed(foreign.content[path], 1), "A  300 B  310 ") << length;
        EXPECT_EQ(deleteEntries(path, 1, "", foreign), length == 8) << length;
    }

    // Deleting leaves a torn tail as it is.
    files.content[path].pop_back();
    EXPECT_TRUE(deleteEntries(path, 1, "A  ", files));
    EXPECT_EQ(listed(files.content[path], 1), "B  310 C  320 ");
}

}  // namespace
}  // namespace lx
