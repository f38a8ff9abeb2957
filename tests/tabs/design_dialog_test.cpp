// The design dialog from opening to its result.
#include "tests/tabs/design_dialog_bench.h"

#include <filesystem>

namespace lx {
namespace {

constexpr const char* dialogFile = "LXDATA6DLG.dat";
constexpr const char* userFile = "VD_preklady.dat";

TEST_F(DesignDialog, OpensWithAProposedNameAndCancelLeavesTheRestAsItWas) {
    resultA = 6;
    resultB = 1;
    set(dialogFile, "DLG_SET", "num_bub", "A99");
    const int answer = run([](Driver& d) {
        EXPECT_EQ(d.selectedTab(), "Geometrie");
        EXPECT_EQ(d.text(bubbleField), "A100");
        EXPECT_EQ(d.text(descriptionField), "");
        EXPECT_FALSE(d.visible(propertiesBox));
        EXPECT_EQ(d.defaultButton(), "OK");
        EXPECT_EQ(d.layoutFaults(), std::vector<std::string>{});
        EXPECT_FALSE(d.enabled("Nastavení..."));
        d.focus(bubbleField);
        d.key("Ctrl+A");
        d.type("ABCDEF");
        EXPECT_EQ(d.text(bubbleField), "ABCDE");
        d.check("Bublinu", true);
        d.selectTab("Knihovna");
        EXPECT_TRUE(d.visible(propertiesBox));
        EXPECT_EQ(d.row("#1505", 0).text, "<výchozí>");
        EXPECT_EQ(d.text("Akce"), "DEFAULT");
        EXPECT_TRUE(d.enabled("Nová..."));
        d.key("Esc");
    });
    EXPECT_EQ(answer, 2);
    EXPECT_EQ(resultText, "");
    EXPECT_EQ(resultA, 6);
    EXPECT_EQ(resultB, 1);
    // Asked for although nothing is written.
    EXPECT_EQ(bench.host().lockRequests.size(), 1U);
    EXPECT_EQ(get(dialogFile, "DLG_SET", "num_bub"), "ABCDE");
    EXPECT_EQ(get(dialogFile, "DLG_SET", "tab"), "none");
    EXPECT_FALSE(bench.read(path(userFile)));
    EXPECT_FALSE(bench.read(libraryFile()));
    EXPECT_FALSE(bench.read(bench.libraryFolder() + "akce.bk6"));
    EXPECT_FALSE(bench.read(handOver()));
}

TEST_F(DesignDialog, ACatalogueThatCannotBeOpenedEndsIt) {
    const auto refused = [this] {
        bench.user().then([](Driver& d) {
            const auto look = d.messageBox();
            EXPECT_EQ(look.text, "Databáze překladů není přístupná");
            EXPECT_EQ(look.caption, "Stand-in");
            EXPECT_EQ(look.icon, "stop");
            d.answer("OK");
        });
        return run();
    };
    // A folder of the file's name can be neither read nor made.
    const Path steel = cataloguePath(CatalogueKind::steel, bench.host());
    bench.files().remove(steel);
    std::filesystem::create_directory(steel);
    EXPECT_EQ(refused(), 2);
    bench.host().catalogue = bench.folder() + "nowhere" + Path(separator);
    EXPECT_EQ(refused(), 2);
    EXPECT_EQ(resultText, "");
    EXPECT_TRUE(bench.host().lockRequests.empty());
}

TEST_F(DesignDialog, OkStoresHandsOverAndRemembers) {
    resultB = 1;
    const int answer = run([](Driver& d) {
        d.check("Popis", true);
        d.check("Úhlopříčky", true);
        d.focus(bubbleField);
        d.key("Ctrl+A");
        d.type("P1");
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
    ASSERT_EQ(stored().size(), 1U);
    EXPECT_EQ(stored().at(0).label, "P1 ");
    const RezChain given = takeHandOver();
    EXPECT_EQ(namesOf(given), "KV 14/? 140;");
    EXPECT_EQ(given.head()->label(), "P1");
    EXPECT_EQ(designBytes(stored().at(0).design.head()), designBytes(given.head()));
    EXPECT_TRUE(bench.read(bench.libraryFolder() + "akce.bk6"));
    EXPECT_EQ(get(userFile, "SETTINGS", "DESCRIPTION"), "10");
    EXPECT_EQ(get(userFile, "SETTINGS", "CHECK_LENGTH"), "0");
    EXPECT_EQ(get(dialogFile, "DLG_SET", "tab"), "4");
    EXPECT_EQ(get(dialogFile, "COMBO_PREFA", "actual"), "1");
    EXPECT_EQ(get(dialogFile, "COMBO_OCEL", "actual"), "1");
    using Requests = std::vector<FakeHost::LockRequest>;
    using Releases = std::vector<FakeHost::LockRelease>;
    EXPECT_EQ(bench.host().lockRequests, (Requests{{HostResource::library, 9}}));
    EXPECT_EQ(bench.host().lockReleases, (Releases{{HostResource::library, 4}}));

    run([](Driver& d) {
        EXPECT_EQ(d.selectedTab(), "Knihovna");
        EXPECT_EQ(d.rowCount("#1505"), 2);
        EXPECT_EQ(d.row("#1505", 1).text, "P1 ");
        EXPECT_EQ(d.selectedRows("#1505"), std::vector<int>{0});
        EXPECT_FALSE(d.checked("Kontrola min. délky uložení prefa překladů"));
        d.selectTab("Prefa překlady");
        EXPECT_EQ(d.text("Typ"), "Na míru");
        d.selectTab("Geometrie");
        EXPECT_TRUE(d.checked("Popis"));
        EXPECT_FALSE(d.checked("Bublinu"));
        EXPECT_EQ(d.text(bubbleField), "P2");
        d.press("Nápověda");
        d.closeDialog();
    });
    EXPECT_EQ(bench.host().helpTopics.back(), 99);
}

TEST_F(DesignDialog, ANameThatCannotStandInABubbleIsRefused) {
    bench.user().inDialog("Návrh překladu", [](Driver& d) {
        d.focus(bubbleField);
        d.key("Ctrl+A");
        d.type("Č1");
        d.check("Popis", true);
        d.selectTab("Knihovna");
        d.press("OK");
        EXPECT_EQ(d.selectedTab(), "Geometrie");
        EXPECT_EQ(d.editSelection(bubbleField), "0-2");
        EXPECT_NE(d.focusedControl().find("1110"), std::string::npos);
        d.press("Zrušit");
    });
    bench.user().then([](Driver& d) {
        const auto look = d.messageBox();
        EXPECT_EQ(look.text, "Musí být vyplněno označení bubliny");
        EXPECT_EQ(look.caption, "Upozornění");
        EXPECT_EQ(look.icon, "stop");
        d.answer("OK");
    });
    EXPECT_EQ(run(), 2);
    EXPECT_EQ(resultText, Text("Č1"_cz));
    EXPECT_EQ(resultA, 0);
    EXPECT_EQ(get(userFile, "SETTINGS", "DESCRIPTION"), "2");
    EXPECT_EQ(get(dialogFile, "DLG_SET", "tab"), "none");
    EXPECT_FALSE(bench.read(libraryFile()));
}

TEST_F(DesignDialog, AnotherDesignUnderTheLabelRefusesUntilTheNameChanges) {
    EXPECT_EQ(run([](Driver& d) { d.press("OK"); }), 1);
    set(dialogFile, "DLG_SET", "num_bub", "001");
    bench.files().remove(handOver());
    const auto before = bench.read(libraryFile());
    bench.user().inDialog("Návrh překladu", [&](Driver& d) {
        d.selectTab("Prefa překlady");
        d.press("Vložit vybraný překlad");
        d.press("OK");
        EXPECT_EQ(bench.read(libraryFile()), before);
        EXPECT_EQ(d.selectedTab(), "Geometrie");
        EXPECT_EQ(d.editSelection(bubbleField), "0-3");
        d.type("B");
        d.press("OK");
    });
    bench.user().then([](Driver& d) {
        const auto look = d.messageBox();
        EXPECT_EQ(look.text,
                  "Překlad tohtoto označení se liší od uloženého.\r\nZvolte jiné označení.");
        EXPECT_EQ(look.caption, "Upozornění");
        EXPECT_EQ(look.icon, "none");
        d.answer("OK");
    });
    EXPECT_EQ(run(), 1);
    ASSERT_EQ(stored().size(), 2U);
    EXPECT_EQ(stored().at(1).label, "B  ");
    EXPECT_EQ(resultText, "B\r\n1 x KP 7/750");
}

TEST_F(DesignDialog, WithoutTheLockOrTheFolderItWorksOnAndStoresNothing) {
    bench.host().lockAnswer[HostResource::library] = 2;
    EXPECT_EQ(run([](Driver& d) { d.press("OK"); }), 1);
    EXPECT_FALSE(bench.read(libraryFile()));
    EXPECT_EQ(bench.host().lockReleases.at(0).code, 2);
    EXPECT_FALSE(takeHandOver().empty());
    bench.host().lockAnswer[HostResource::library] = 1;
    bench.host().library.reset();
    EXPECT_EQ(run([](Driver& d) {
                  d.selectTab("Knihovna");
                  EXPECT_EQ(d.text("Akce"), "DEFAULT");
                  EXPECT_EQ(d.rowCount("#1505"), 1);
                  d.press("OK");
              }),
              1);
    EXPECT_FALSE(bench.read(libraryFile()));
    EXPECT_FALSE(takeHandOver().empty());
}

TEST_F(DesignDialog, AStoreThatFailsIsToldAndLeavesItOpen) {
    bench.user().inDialog("Návrh překladu", [&](Driver& d) {
        std::filesystem::create_directory(libraryFile());
        d.press("OK");
        std::filesystem::remove(libraryFile());
        d.press("OK");
    });
    bench.user().then([](Driver& d) {
        EXPECT_EQ(d.messageBox().text, "Překlad se nepodařilo uložit do knihovny.");
        EXPECT_EQ(d.messageBox().icon, "stop");
        d.answer("OK");
    });
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(stored().size(), 1U);
}

TEST_F(DesignDialog, AHandedOverDesignIsShownAndItsFileDeleted) {
    RezChain given = sampleDesign("Z9");
    given.head()->next->name = "KV 14/?";
    given.head()->next->typeIndex = 1;
    CRez* steel = given.append(layer(kind::channel, 45, "UPN 80"));
    steel->typeIndex = 1;
    writeHandOver(handOver(), given.head(), 1200, bench.files());
    run([this](Driver& d) {
        EXPECT_FALSE(bench.read(handOver()));
        EXPECT_EQ(d.text(bubbleField), "Z9");
        EXPECT_EQ(d.text(descriptionField), "1 x KV 14/1450\r\n1 x UPN 80 - dl.0");
        d.selectTab("Prefa překlady");
        EXPECT_EQ(d.text("Typ"), "Na míru");
        d.selectTab("Ocelové překlady");
        EXPECT_EQ(d.text("Typ"), "UPN");
        EXPECT_EQ(d.row("#1303", 0).text, "UPN 80");
        d.press("OK");
    });
    const RezChain back = takeHandOver();
    EXPECT_EQ(back.head()->next->maxOpening, 3000);
    // The call gives no level, so the design has none.
    EXPECT_EQ(back.head()->height, 0);
    EXPECT_EQ(get(dialogFile, "DLG_SET", "num_bub"), "Z9");
}

TEST_F(DesignDialog, TheOpeningBlockBendsTheHeadAndWidensTheOpening) {
    values.level = 2.3;
    values.block.headShape = 5;
    values.block.bend1Step = 0.1;
    values.block.bend1Run = 0.1;
    values.block.bend2Step = 0.05;
    values.block.bend2Run = 0.2;
    values.block.bend3Step = 0.07;
    values.block.openingKind = 8;
    values.block.width1 = 1000;
    values.block.width2 = 1220;
    bench.host().units = 1;
    run([](Driver& d) {
        d.selectTab("Prefa překlady");
        ASSERT_EQ(d.rowCount(offerList), 1);
        EXPECT_EQ(d.row(offerList, 0).text, "KP 7/750");
        d.press("OK");
    });
    const RezChain given = takeHandOver();
    EXPECT_EQ(given.head()->height, 2300);
    EXPECT_EQ(given.head()->length, 1200);
    const CZalom* third = given.head()->bends->next->next.get();
    ASSERT_NE(third, nullptr);
    EXPECT_EQ(third->run, 0);  // what the two before it leave of the wall
    EXPECT_EQ(third->step, 70);
    EXPECT_TRUE(third->flag);
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
