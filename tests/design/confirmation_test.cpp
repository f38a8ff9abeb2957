// What opening and confirming read and write: the library, its lock, the hand-over, the settings.
#include <gtest/gtest.h>

#include "design/confirmation.h"
#include "tests/support/bench.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

struct DesignSession : testing::Test {
    MemoryFiles files;
    FakeHost host;
    ModuleValues values;
    DesignModel model{values};
    DialogSettings settings{files, "data/"};
    LibrarySession library{host, files};
    CallResult result;
    ConfirmationInput input{"A1", "D", {false, true, false, true}, false, 1, 2, 3};

    void SetUp() override {
        host.library = "lib/";
        values.openingWidth = 1200;
        values.wallThickness = 300;
        model.startDesign();
    }
    ConfirmationAnswer confirm() {
        return confirmDesign(input, model, library, settings, files, result);
    }
    bool handedOver() const { return files.content.count("tmp/LXDATA6I.tmp") == 1; }
    Bytes libraryBytes() const {
        const auto found = files.content.find("lib/preklady.bk6");
        return found == files.content.end() ? Bytes() : found->second;
    }
    void addLayer(std::int32_t width) {
        model.chain().append(layer(Kind::precast, width));
        model.Relayout();
    }
};

TEST_F(DesignSession, ADifferentDesignKeepsItsLabelAndTheSameOneIsReplaced) {
    library.LoadLibrary(model);
    EXPECT_EQ(confirm(), ConfirmationAnswer::done);
    library.LoadLibrary(model);
    EXPECT_EQ(confirm(), ConfirmationAnswer::done);
    const Bytes twice = libraryBytes();
    EXPECT_EQ(parseLibrary(twice, 0).entries.size(), 1U);
    EXPECT_EQ(twice.substr(4, 4), "\xFF\xFF\xFF\xFF");

    addLayer(70);
    input.tab = 4;
    input.annotation.foldedSection = true;
    EXPECT_EQ(confirm(), ConfirmationAnswer::labelTaken);
    EXPECT_EQ(settings.tab(), 1);
    EXPECT_EQ(result.foldedSection, 1);
}

TEST_F(DesignSession, AFailureToStoreIsToldAndNothingIsHandedOver) {
    files.content["lib/preklady.bk6"] = "";
    ASSERT_TRUE(library.LoadLibrary(model));
    ASSERT_EQ(confirm(), ConfirmationAnswer::done);
    files.remove("tmp/LXDATA6I.tmp");
    input.bubbleName = "B";
    files.locked = {"lib/preklady.bk6"};
    EXPECT_EQ(confirm(), ConfirmationAnswer::storeFailed);
    EXPECT_FALSE(handedOver());
    EXPECT_EQ(result.text, "B\r\nD");

    // A library that could not be read before is read again before labels are compared.
    LibrarySession later{host, files};
    EXPECT_FALSE(later.LoadLibrary(model));
    input.bubbleName = "A1";
    addLayer(70);
    EXPECT_EQ(confirmDesign(input, model, later, settings, files, result),
              ConfirmationAnswer::storeFailed);
    files.locked.clear();
    EXPECT_EQ(confirmDesign(input, model, later, settings, files, result),
              ConfirmationAnswer::labelTaken);
}

TEST_F(DesignSession, AProjectListThatCouldNotBeReadIsNotWrittenOver) {
    ProjectList two = defaultProjects();
    two.projects.push_back({7, "Dum"});
    two.selected = 1;
    files.content["lib/akce.bk6"] = projectBytes(two);
    const Bytes before = files.content["lib/akce.bk6"];

    // The folder is not known before OK.
    host.library.reset();
    EXPECT_EQ(library.LoadProjects(), 0);
    EXPECT_FALSE(library.LoadLibrary(model));
    host.library = "lib/";
    EXPECT_EQ(confirm(), ConfirmationAnswer::done);
    EXPECT_EQ(files.content["lib/akce.bk6"], before);

    LibrarySession again{host, files};
    EXPECT_EQ(again.LoadProjects(), 7);
    EXPECT_EQ(confirmDesign(input, model, again, settings, files, result),
              ConfirmationAnswer::done);
    EXPECT_EQ(model.head()->project(), 1);
    EXPECT_EQ(parseLibrary(libraryBytes(), 7).entries.size(), 1U);
}

TEST_F(DesignSession, TheLockIsGivenBackByItsState) {
    const auto released = [&](int answer) {
        host.lockReleases.clear();
        host.lockAnswer[HostResource::library] = answer;
        { HostAccessLock lock(host, HostResource::library); }
        return host.lockReleases.empty() ? 0 : host.lockReleases.at(0).second;
    };
    EXPECT_EQ(released(1), 4);
    EXPECT_EQ(released(2), 2);
    EXPECT_EQ(released(-1), 2);
    host.hasServices = false;
    EXPECT_EQ(released(1), 0);
    EXPECT_FALSE(HostAccessLock(host, HostResource::library).isGranted());
}

}  // namespace
}  // namespace lx
