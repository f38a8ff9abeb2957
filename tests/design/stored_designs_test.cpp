// Stored designs that are shown instead of the dialog's own, and whether they suit the opening.
#include <gtest/gtest.h>

#include "design/design_model.h"
#include "design/library_session.h"
#include "design/opening.h"
#include "tests/support/bench.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

TEST(StoredFit, TheFirstElementOtherThanInsulationDecides) {
    RezChain design;
    const CRez& head = *design.append(headOf(300));
    EXPECT_TRUE(suitsOpening(head, 5000));
    design.append(layer(Kind::insulation, 50, "IZOLACE"))->maxOpening = 1;
    EXPECT_TRUE(suitsOpening(head, 5000));
    // Stored and read again, a missing name is an empty one, and no insulation.
    for (const char* name : {static_cast<const char*>(nullptr), ""}) {
        CRez* nameless = design.append(layer(Kind::precast, 70, ""));
        if (!name) nameless->name.reset();
        nameless->maxOpening = 1000;
        EXPECT_FALSE(suitsOpening(head, 5000));
        design.unlink(nameless);
    }
    CRez* lintel = design.append(layer(Kind::precast, 70, "KP"));
    EXPECT_TRUE(suitsOpening(head, 5000));
    lintel->maxOpening = 1500;
    design.append(layer(Kind::precast, 70, "KP"))->maxOpening = 1;
    EXPECT_TRUE(suitsOpening(head, 1500.0000005));
    EXPECT_FALSE(suitsOpening(head, 1500.00001));
    CRez* space = design.append(layer(Kind::space, 10, "MEZERA"));
    space->maxOpening = 100;
    design.insertAfter(design.head(), design.unlink(space));
    EXPECT_FALSE(suitsOpening(head, 1200));
    // Whatever stands before it.
    design.append(layer(Kind::monolith, 50, "MONOLIT"));
    EXPECT_TRUE(suitsOpening(head, 5000));
}

struct StoredDesigns : testing::Test {
    ModuleValues values;
    DesignModel model{values};

    void SetUp() override {
        values.openingWidth = 1200;
        values.wallThickness = 300;
        values.level = 2.5;
        model.startDesign();
        load({"C", "A", "B", "B"});
    }
    void load(std::initializer_list<const char*> labels) {
        std::vector<LibraryEntry> entries;
        for (const char* label : labels) {
            LibraryEntry entry{paddedLabel(label), {}};
            entry.design.append(headOf(450, label))->height = 7;
            entry.design.append(layer(Kind::precast, 70, label))->maxOpening = 1000;
            entries.push_back(std::move(entry));
        }
        model.setStoredDesigns(std::move(entries));
    }
    std::string labels() const {
        std::string text;
        for (const Text& label : model.storedLabels()) text += label.substr(0, 1);
        return text;
    }
};

TEST_F(StoredDesigns, TheDefaultEntryComesFirstWhateverTheLabelsAre) {
    load({"B", "!", "A9", "A10", "a2"});
    EXPECT_EQ(model.storedLabels(),
              (std::vector<Text>{Text("<výchozí>"_cz), "!  ", "A10", "a2 ", "A9 ", "B  "}));
    EXPECT_TRUE(model.listsLabel("a2 "));
    EXPECT_FALSE(model.listsLabel("A2 "));
    EXPECT_FALSE(model.listsLabel("<výchozí>"_cz));
}

TEST_F(StoredDesigns, TheLevelOfTheOpeningGoesFromDesignToDesign) {
    model.showStored(1);
    EXPECT_EQ(model.head()->height, 2500);
    EXPECT_EQ(model.current(), model.head());
    model.select(model.head()->next);
    model.head()->height = 3000;
    model.showStored(4);
    EXPECT_EQ(model.head()->height, 3000);
    // Another project.
    load({"Z"});
    EXPECT_EQ(model.shownStored(), 0);
    EXPECT_EQ(model.current(), model.head());
    EXPECT_EQ(model.head()->width, 300);
    EXPECT_EQ(model.head()->height, 3000);
    for (const int none : {2, -1}) {
        model.showStored(none);
        EXPECT_EQ(model.shownStored(), 0);
    }
}

TEST_F(StoredDesigns, ARemovedOneIsFollowedByTheNextElseTheLast) {
    ASSERT_EQ(labels(), "<ABBC");
    EXPECT_EQ(model.removeShownStored(), std::nullopt);
    model.showStored(3);
    model.head()->height = 1234;
    EXPECT_EQ(model.removeShownStored(), "B  ");
    EXPECT_EQ(labels(), "<AC");
    for (const char* shown : {"C", "A"}) {
        EXPECT_EQ(model.head()->next->name, shown);
        model.removeShownStored();
    }
    EXPECT_EQ(labels(), "<");
    EXPECT_EQ(model.shownStored(), 0);
    EXPECT_EQ(model.head()->height, 1234);
}

TEST(LibraryProjects, NewOnesGetAnIdOfTheirOwn) {
    FakeHost host;
    MemoryFiles files;
    LibrarySession library(host, files);
    library.addProject("Čáp"_cz);
    EXPECT_TRUE(library.hasProject("default") && library.hasProject("čÁP"_cz));
    EXPECT_FALSE(library.hasProject("Cap"));
    EXPECT_EQ(library.projects().currentId(), 1);
    EXPECT_EQ(library.removeProject(1), 1);
    EXPECT_EQ(library.projects().selected, 0);
    for (const int none : {0, 1}) EXPECT_EQ(library.removeProject(none), std::nullopt);
    EXPECT_EQ(library.projects().projects.size(), 1U);
    host.variables["DWGNAME"] = "dwg";
    EXPECT_EQ(library.proposedProjectName(), "");
}

TEST(LibraryProjects, NobodysOldDesignsAreANewProjects) {
    constexpr std::int32_t highest = 2147483647;
    FakeHost host;
    host.library = "lib/";
    const struct {
        std::vector<std::int32_t> listed;
        std::vector<std::int32_t> stored;
        std::int32_t expected;
    } cases[] = {{{0}, {}, 1},
                 {{0}, {7, 3, deletedProject}, 8},
                 {{0, 9}, {7}, 10},
                 {{-7}, {deletedProject}, -6},
                 {{-2}, {}, 0},
                 {{0, highest}, {}, 1},
                 {{0, highest}, {1, 3}, 2},
                 {{0, 1}, {highest}, 2}};
    for (const auto& c : cases) {
        MemoryFiles files;
        ProjectList list;
        for (const std::int32_t id : c.listed) list.projects.push_back({id, "P"});
        files.content["lib/akce.bk6"] = projectBytes(list);
        for (const std::int32_t project : c.stored) {
            // A deleted one keeps its bytes.
            const std::int32_t id = project == deletedProject ? 50 : project;
            const RezChain design = sampleDesign("A");
            ASSERT_TRUE(appendDesign("lib/preklady.bk6", id, *design.head(), {}, files));
        }
        deleteEntries("lib/preklady.bk6", 50, std::nullopt, files);
        LibrarySession library(host, files);
        library.LoadProjects();
        library.addProject(std::string(100, 'x'));
        EXPECT_EQ(library.projects().currentId(), c.expected);
        EXPECT_TRUE(library.hasProject(std::string(90, 'X')));
    }
}

}  // namespace
}  // namespace lx
