// The design dialog from opening to its result.
#include "tests/tabs/design_dialog_bench.h"

#include <filesystem>

namespace lx {
namespace {

constexpr const char* dialogFile = "LXDATA6DLG.dat";
constexpr const char* userFile = "VD_preklady.dat";

TEST_F(DesignDialog, ACatalogueThatCannotBeOpenedEndsIt) {
    // A folder of the file's name can be neither read nor made.
    const Path steel = cataloguePath(CatalogueKind::steel, bench.host());
    bench.files().remove(steel);
    std::filesystem::create_directory(steel);
    told("Databáze překladů není přístupná", "stop", "Stand-in");
    EXPECT_EQ(run(), 2);
    EXPECT_EQ(resultText, "");
    EXPECT_TRUE(bench.host().lockRequests.empty());
}

TEST_F(DesignDialog, OkStoresHandsOverAndRemembers) {
    resultB = 1;
    const int answer = run([](Driver& d) {
        d.check("Popis", true);
        d.check("Úhlopříčky", true);
        retype(d, bubbleField, "P1");
        d.selectTab("Ocelové překlady");
        d.selectRow("Typ", "UPN");
        d.selectTab("Prefa překlady");
        d.selectRow("Typ", "Na míru");
        d.press("Vložit vybraný překlad");
        d.selectTab("Knihovna");
        d.check("Kontrola min. délky uložení prefa překladů", false);
        d.press("Nápověda");
        d.press("OK");
    });
    EXPECT_EQ(answer, 1);
    EXPECT_EQ(resultText, "P1\r\n1 x KV 14/1450");
    EXPECT_EQ(resultA, 1 + 2 + 8);
    EXPECT_EQ(resultB, 0);
    // The topic follows the value that came in.
    EXPECT_EQ(bench.host().helpTopics, std::vector<int>{146});
    const RezChain given = takeHandOver();
    EXPECT_EQ(namesOf(given), "KV 14/? 140;");
    ASSERT_EQ(stored().size(), 1U);
    EXPECT_EQ(designBytes(stored().at(0).design.head()), designBytes(given.head()));
    EXPECT_EQ(get(userFile, "SETTINGS", "DESCRIPTION"), "10");
    EXPECT_EQ(get(userFile, "SETTINGS", "CHECK_LENGTH"), "0");

    run([](Driver& d) {
        EXPECT_EQ(d.selectedTab(), "Knihovna");
        EXPECT_EQ(d.selectedRows("#1505"), std::vector<int>{0});
        EXPECT_FALSE(d.checked("Kontrola min. délky uložení prefa překladů"));
        d.selectTab("Ocelové překlady");
        EXPECT_EQ(d.text("Typ"), "UPN");
        d.selectTab("Prefa překlady");
        EXPECT_EQ(d.text("Typ"), "Na míru");
        d.selectTab("Geometrie");
        EXPECT_TRUE(d.checked("Popis"));
        EXPECT_FALSE(d.checked("Bublinu"));
        d.press("Nápověda");
        d.closeDialog();
    });
    EXPECT_EQ(bench.host().helpTopics.back(), 99);
}

TEST_F(DesignDialog, AStoreThatFailsIsToldAndLeavesItOpen) {
    bench.user().inDialog("Návrh překladu", [&](Driver& d) {
        std::filesystem::create_directory(libraryFile());
        d.press("OK");
        std::filesystem::remove(libraryFile());
        d.press("OK");
    });
    told("Překlad se nepodařilo uložit do knihovny.");
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(stored().size(), 1U);
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

TEST_F(DesignDialog, AHandedOverDesignIsShownAndItsFileDeleted) {
    RezChain given = sampleDesign("Z9");
    given.head()->next->name = "KV 14/?";
    given.head()->next->typeIndex = 1;
    CRez* steel = given.append(layer(kind::channel, 45, "UPN 80"));
    steel->typeIndex = 1;
    give(given);
    run([this](Driver& d) {
        EXPECT_FALSE(bench.read(handOver()));
        EXPECT_EQ(d.text(bubbleField), "Z9");
        EXPECT_EQ(d.text(descriptionField), "1 x KV 14/1450\r\n1 x UPN 80 - dl.0");
        d.selectTab("Prefa překlady");
        EXPECT_EQ(d.text("Typ"), "Na míru");
        d.selectTab("Ocelové překlady");
        EXPECT_EQ(d.text("Typ"), "UPN");
        d.press("OK");
    });
    const RezChain back = takeHandOver();
    EXPECT_EQ(back.head()->next->maxOpening, 3000);
    // The call gives no level, so the design has none.
    EXPECT_EQ(back.head()->height, 0);
    EXPECT_EQ(get(dialogFile, "DLG_SET", "num_bub"), "Z9");
}

TEST_F(DesignDialog, KeysChangePagesAndTheFocusFollows) {
    set(dialogFile, "DLG_SET", "tab", "7");
    run([](Driver& d) {
        EXPECT_EQ(d.selectedTab(), "Geometrie");
        EXPECT_NE(d.focusedControl().find("1100"), std::string::npos) << d.focusedControl();
        d.key("Ctrl+Shift+Tab");
        EXPECT_EQ(d.selectedTab(), "Knihovna");
        EXPECT_NE(d.focusedControl().find("1501"), std::string::npos) << d.focusedControl();
        d.key("Ctrl+Tab");
        d.key("Ctrl+PageDown");
        EXPECT_EQ(d.selectedTab(), "Prefa překlady");
        EXPECT_NE(d.focusedControl().find("1200"), std::string::npos) << d.focusedControl();
        d.focus("z náhledu");
        d.key("Ctrl+PageUp");
        EXPECT_EQ(d.selectedTab(), "Geometrie");
        d.press("Zrušit");
    });
}

}  // namespace
}  // namespace lx
