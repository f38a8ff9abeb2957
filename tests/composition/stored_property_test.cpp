// Random designs through the stored form, the hand-over and the library. A failure names its seed.
#include <gtest/gtest.h>

#include "composition/hand_over.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"
#include "tests/support/random_records.h"
#include "tests/support/readable.h"

namespace lx {
namespace {

constexpr unsigned rounds = 400;

TEST(StoredProperties, DesignsAreReadAsTheyWereWritten) {
    for (unsigned seed = 1; seed <= rounds; ++seed) {
        const RezChain made = RandomRecords(seed).design();
        const Bytes bytes = designBytes(made.head());
        BinaryReader reader(bytes);
        const DesignRead read = readDesign(reader);
        ASSERT_TRUE(read.headWhole && !read.damaged) << "seed " << seed;
        ASSERT_EQ(readable(read.design.head()), readable(made.head())) << "seed " << seed;
        ASSERT_EQ(designBytes(read.design.head()), bytes) << "seed " << seed;

        MemoryFiles files;
        ASSERT_EQ(WriteHandOver("h", made.head(), 0, files), 1);
        const RezChain taken = ReadHandOver("h", files).design;
        ASSERT_EQ(readable(taken.head()), readable(made.head())) << "seed " << seed;
        ASSERT_EQ(handOverBytes(taken.head()), files.content["h"]) << "seed " << seed;
    }
}

// ---- the library, beside a list in memory

struct Stored {
    std::int32_t project;
    Text label;
    std::string design;
};

struct LibraryBesideAList {
    explicit LibraryBesideAList(unsigned seed) : random(seed) {
        labels = {"", "A", "AB", "ABC", random.text(3)};
    }

    std::int32_t anyProject() { return projects[random.below(std::size(projects))]; }
    Text anyLabel() { return labels[static_cast<std::size_t>(random.below(5))]; }

    bool forget(std::int32_t project, const std::optional<Text>& label) {
        return std::erase_if(list, [&](const Stored& one) {
                   return one.project == project && (!label || one.label == *label);
               }) > 0;
    }
    void store() {
        const std::int32_t project = random.oneIn(20) ? deletedProject : anyProject();
        const RezChain design = random.design();
        design.head()->setLabel(anyLabel());
        const Text label = paddedLabel(design.head()->label());
        const bool replacing = random.oneIn(2);
        const bool stored =
            appendDesign(path, project, *design.head(), replacing ? label : Text(), files);
        ASSERT_EQ(stored, project != deletedProject);
        if (!stored) return;
        if (replacing) forget(project, label);
        list.push_back({project, label, readable(design.head())});
    }
    void remove() {
        const std::int32_t project = anyProject();
        std::optional<Text> label;
        if (!random.oneIn(4)) label = paddedLabel(anyLabel());
        ASSERT_EQ(deleteEntries(path, project, label, files), forget(project, label));
    }
    void compare() {
        for (const std::int32_t project : projects) {
            std::string expected;
            for (const Stored& one : list) {
                if (one.project != project) continue;
                expected += "design " + readable(one.label) + "\n" + one.design;
            }
            ASSERT_EQ(readable(loadLibrary(path, project, files)), expected);
        }
    }

    static constexpr std::int32_t projects[] = {0, 1, std::numeric_limits<std::int32_t>::min()};
    const Path path = "L";
    RandomRecords random;
    std::vector<Text> labels;
    MemoryFiles files;
    std::vector<Stored> list;
};

TEST(StoredProperties, TheLibraryHoldsWhatAListHolds) {
    for (unsigned seed = 1; seed <= 12 && !testing::Test::HasFatalFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        LibraryBesideAList library(seed);
        for (int step = 0; step < 60 && !testing::Test::HasFatalFailure(); ++step) {
            if (library.random.oneIn(4)) {
                library.remove();
            } else {
                library.store();
            }
            library.compare();
        }
    }
}

}  // namespace
}  // namespace lx
