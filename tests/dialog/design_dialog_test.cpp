// What of the design dialog no scenario tells.
#include "tests/dialog/design_dialog_bench.h"

#include <filesystem>

#include "composition/library.h"
#include "composition/projects.h"
#include "tests/dialog/foreign_commands.h"

namespace lx {
namespace {

constexpr const char* dialogFile = "LXDATA6DLG.dat";

TEST_F(DesignDialog, AStoreThatFailsIsToldAndLeavesItOpen) {
    const Path library = bench.libraryFolder() + Path(libraryFileName);
    bench.user().inDialog("Návrh překladu", [&](Driver& d) {
        std::filesystem::create_directory(library);
        d.press("OK");
        std::filesystem::remove(library);
        d.press("OK");
    });
    bench.user().then([](Driver& d) {
        EXPECT_EQ(d.messageBox().text, "Překlad se nepodařilo uložit do knihovny.");
        d.answer("OK");
    });
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(loadLibrary(library, 0, bench.files()).entries.size(), 1U);
}

// Somebody else may be changing the library until then.
TEST_F(DesignDialog, ProjectsAreReadUnderTheLock) {
    bench.host().beforeLock = [this] {
        ProjectList projects = defaultProjects();
        projects.projects.push_back({7, "Dum"});
        bench.write(bench.libraryFolder() + "akce.bk6", projectBytes(projects));
    };
    run([](Driver& d) {
        d.selectTab("Knihovna");
        EXPECT_EQ(d.rowCount("Akce"), 2);
        d.press("Zrušit");
    });
}

// A host may handle messages while it is asked for the lock, and while a message box is open.
TEST_F(DesignDialog, WhatArrivesBeforeItStandsIsRefused) {
    bench.host().beforeLock = [this] { sendEverything(bench.platform()); };
    run([](Driver& d) {
        EXPECT_EQ(d.text("#1110"), "002");
        d.press("Zrušit");
    });
    bench.host().catalogue = bench.folder() + "missing" + std::string(separator);
    bench.user().then([this](Driver& d) {
        EXPECT_EQ(d.messageBox().text, "Databáze překladů není přístupná");
        sendEverything(bench.platform());
        d.answer("OK");
    });
    EXPECT_EQ(run(), 2);
}

TEST_F(DesignDialog, TheBubbleFieldIsCutToTheLabelAtTheNextChangeOfTheDesign) {
    run([this](Driver& d) {
        const auto name = [this] { return get(dialogFile, "DLG_SET", "num_bub"); };
        retype(d, "#1110", "ABCDEF");
        EXPECT_EQ(name(), "ABCDE");
        EXPECT_TRUE(has(d, "record 0 label ABC"));
        d.press("1 zalomení");
        EXPECT_EQ(d.text("#1110"), "ABC");
        EXPECT_EQ(name(), "ABC");
        // Without a label the design takes the proposal again.
        retype(d, "#1110", "");
        EXPECT_EQ(name(), "");
        d.press("Zrušit zalomení");
        EXPECT_EQ(d.text("#1110"), "002");
        EXPECT_EQ(name(), "002");
        d.press("Zrušit");
    });
}

TEST_F(DesignDialog, EmptyCataloguesOfferNothing) {
    set(dialogFile, "COMBO_PREFA", "actual", "3");
    run([](Driver& d) {
        d.selectTab("Prefa překlady");
        EXPECT_EQ(d.rowCount("#1203"), 0);
        EXPECT_EQ(d.text("#1024"), "");
        EXPECT_FALSE(d.enabled("Vložit vybraný překlad"));
        d.press("Vložit izolaci");
        d.press("OK");
    });
    EXPECT_EQ(namesOf(takeHandOver()), "IZOLACE 300;");
    EXPECT_EQ(get(dialogFile, "COMBO_PREFA", "actual"), "-1");
}

}  // namespace
}  // namespace lx
