// The catalogue browser as a user meets it, stand-alone and on a caller's items, and what its file
// holds afterwards.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "browser/CData6_1.h"
#include "platform/numbers.h"
#include "tests/support/bench.h"
#include "tests/support/catalogues.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

constexpr CatalogueKind precast = CatalogueKind::precast;
constexpr CatalogueKind steel = CatalogueKind::steel;
constexpr char alfa[] = "Databáze prefabrikátů (Alfa)";
constexpr char capi[] = "Databáze prefabrikátů (Čapí)";
constexpr char delta[] = "Databáze prefabrikátů (Delta)";

using Step = std::function<void(Driver&)>;

// Three types; items of one stand among those of another.
Catalogue sample() {
    return catalogueOf({{-1, "Alfa"},
                        {1, "a10", 3},
                        {-2, "Čapí"},
                        {1, "a2", 1},
                        {2, "c1", 7},
                        {1, "a1", 2},
                        {-3, "Delta"},
                        {2, "c2", 5},
                        {3, "d1"}});
}
constexpr char sampleText[] = "-1:Alfa 1:a10:3 -2:Čapí 1:a2:1 2:c1:7 1:a1:2 -3:Delta 2:c2:5 3:d1";

// First cells of all rows, the selected ones in brackets.
std::string rows(Driver& d) {
    const std::vector<int> selected = d.selectedRows("items");
    std::string text;
    for (int row = 0; row < d.rowCount("items"); ++row) {
        const std::string cells = d.row("items", row).text;
        const std::string name = cells.substr(0, cells.find(" |"));
        const bool marked = std::find(selected.begin(), selected.end(), row) != selected.end();
        text += (row > 0 ? " " : "") + (marked ? "[" + name + "]" : name);
    }
    return text;
}

struct Browser : testing::Test {
    Bench bench;
    ColumnWidths widths;
    Catalogue items;
    CatalogueState state;
    std::string picked;
    std::string requestedType;  // as it is when the browser closes

    Path file(CatalogueKind kind = precast) { return cataloguePath(kind, bench.host()); }
    Bytes bytes() { return bench.read(file()).value_or("none"); }
    std::string stored(CatalogueKind kind = precast) {
        return shown(loadCatalogue(kind, bench.read(file(kind)).value_or("none")).head);
    }
    std::string settings() {
        return bench.read(bench.dataFolder() + "VD_preklady.dat").value_or("none");
    }
    // Writes the file and loads it, as the design dialog does when it opens.
    void start(const Catalogue& chain, CatalogueKind kind = precast) {
        bench.write(file(kind), catalogueBytes(chain.get()));
        load(kind);
    }
    void load(CatalogueKind kind = precast) {
        LoadedCatalogue loaded =
            loadCatalogue(kind, *openCatalogueFileAt(file(kind), bench.files()));
        items = std::move(loaded.head);
        state = loaded.state;
    }

    void in(std::string_view title, Step step) { bench.user().inDialog(title, std::move(step)); }
    void then(Step step) { bench.user().then(std::move(step)); }
    void press(const char* title, const char* button) {
        in(title, [=](Driver& d) { d.press(button); });
    }
    void menu(const char* title, const char* entry) {
        in(title, [=](Driver& d) { d.chooseMenu(entry); });
    }
    void popup(const char* title, const char* list, int row, const char* entry) {
        in(title, [=](Driver& d) { d.rightClickRow(list, row); });
        then([=](Driver& d) { d.choosePopup(entry); });
    }
    void message(const std::string& text, const char* caption, const char* button = "OK") {
        then([=](Driver& d) {
            const host::MessageBoxLook look = d.messageBox();
            EXPECT_EQ(look.text, text);
            EXPECT_EQ(look.caption, caption);
            EXPECT_EQ(look.icon, look.buttons.size() == 2 ? "question" : "stop");
            d.answer(button);
        });
    }
    // Answers a dialog that asks for a name or an item.
    void name(const char* title, const char* field, const char* text) {
        in(title, [=](Driver& d) {
            retype(d, field, text);
            d.press("OK");
        });
    }
    void answerDelete(const char* item, const char* button) {
        message(std::string("Opravdu si přejete vymazat\r\npřeklad \"") + item + "\"?",
                "Upozornění", button);
    }

    int open(const BrowserRequest& asked = {}) {
        CData6_1 browser(bench.platform(), bench.files(), bench.host(), widths, {});
        const int result = browser.runOn(items, state, asked);
        EXPECT_EQ(bench.user().failure(), "");
        const CPreklItem* type = browser.requestedType();
        requestedType = type ? toUtf8(type->nameOrEmpty()) : "none";
        picked.clear();
        for (const CPreklItem* item : browser.picked()) picked += toUtf8(*item->designation) + " ";
        return result;
    }
    int standAlone() {
        CData6_1 browser(bench.platform(), bench.files(), bench.host(), widths, {});
        const int result = browser.runStandAlone();
        EXPECT_EQ(bench.user().failure(), "");
        return result;
    }
};

// ---- opening

TEST_F(Browser, StandAloneStartsWhereItWasLeft) {
    bench.write(file(), catalogueBytes(sample().get()));
    in("Databáze", [](Driver& d) { d.key("Enter"); });
    in(alfa, [](Driver& d) {
        d.selectRowAt("types", 1);
        d.selectRowAt("items", 1);
        d.setColumnWidth("items", 0, 120);
        d.setColumnOrder("items", {1, 0, 2, 3, 4, 5, 6, 7, 8});
        d.press("Nápověda");
        d.press("OK");
    });
    EXPECT_EQ(standAlone(), 1);
    EXPECT_EQ(bench.host().helpTopics, std::vector<int>{100});
    press("Databáze", "Prefa");
    in(capi, [](Driver& d) {
        EXPECT_EQ(rows(d), "c1 [c2]");
        EXPECT_EQ(d.columnWidths("items")[0], 120);
        EXPECT_EQ(d.columnOrder("items")[0], 1);
        d.closeDialog();
    });
    EXPECT_EQ(standAlone(), 2);
    Profile profile(bench.files(), bench.dataFolder() + "VD_preklady.dat");
    profile.write("TAB_PREFA", "LIST1", "3");
    profile.write("TAB_PREFA", "LIST2", "2147483647");
    press("Databáze", "Prefa");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "[a10] a2 a1");
        d.press("Zrušit");
    });
    EXPECT_EQ(standAlone(), 2);
}

TEST_F(Browser, TheCallerSaysWhereItStarts) {
    start(sample());
    const struct {
        std::optional<ElementPlace> element;
        int type;
        const char *title, *list;
    } cases[] = {{ElementPlace{0, 2}, 1, alfa, "a10 a2 [a1]"},
                 {ElementPlace{1, 2}, 0, capi, "[c1] c2"},
                 {ElementPlace{-2147483647, 3223600}, 1, capi, "[c1] c2"},
                 {{}, 2147483647, alfa, "[a10] a2 a1"}};
    for (const auto& one : cases) {
        in(one.title, [&one](Driver& d) {
            EXPECT_EQ(rows(d), one.list);
            d.press("Zrušit");
        });
        open({precast, false, one.element, one.type, {}, {}});
    }
}

TEST_F(Browser, AnEmptyCatalogueTakesATypeBeforeItsFirstItem) {
    start(nullptr, steel);
    in("Databáze", [](Driver& d) {
        d.wait(60);
        d.chooseMenu("Nový/Průřez");  // nothing: there is no type
        d.chooseMenu("Nový/Typ průřezu");
    });
    name("Přidání typu průřezu", "Název:", "");
    message("Nebylo vyplněno označení.", "");
    name("Přidání typu průřezu", "Název:", "Jackl");
    in("Databáze průřezů (Jackl)", [](Driver& d) {
        EXPECT_EQ(d.row("types", 0).icon, 2019) << "no shape was chosen";
        d.chooseMenu("Nový/Průřez");
    });
    name("Nový průřez", "Označení", "J 1");
    press("Databáze průřezů (Jackl)", "OK");
    EXPECT_EQ(open({steel, false, {}, 0, {}, {}}), 1);
    EXPECT_EQ(stored(steel), "-1:Jackl:1 1:J 1:1");
    EXPECT_EQ(shown(items), stored(steel)) << "as the loader would have it";
}

TEST_F(Browser, LeavingBeforeTheListsAreThereStoresNoColumns) {
    start(sample());
    bool columns = false;
    then([&columns](Driver& d) {
        columns = d.rowCount("types") > 0;  // real windows may be ready before their user
        d.press("OK");
    });
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(settings().find("TAB_PREFA") != std::string::npos, columns);
    EXPECT_NE(settings().find("windowPosition"), std::string::npos);
    EXPECT_EQ(stored(), sampleText);
}

// ---- what is written when

TEST_F(Browser, CancelPutsTheFileBackAndKeepsTheItemsInMemory) {
    start(sample());
    // Bytes behind the last record: damage that a rewritten file would lose.
    bench.write(file(), bytes() + "xx");
    load();
    const Bytes before = bytes();
    const std::string changed = std::string(sampleText) + " 1:a3:3";
    menu(alfa, "Nový/Překlad");
    name("Nový překlad", "Označení", "a3");
    in(alfa, [&](Driver& d) {
        EXPECT_EQ(stored(), changed);
        EXPECT_EQ(bench.read(file() + ".bak"), before);
        d.press("Zrušit");
    });
    EXPECT_EQ(open(), 2);
    EXPECT_EQ(shown(items), changed);
    EXPECT_EQ(bytes(), before);
    press(alfa, "Zrušit");
    EXPECT_EQ(open(), 2);
    EXPECT_EQ(bytes(), before) << "a second Cancel must not store what the first one dropped";
    press(alfa, "OK");
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(stored(), changed);
}

TEST(CatalogueSession, KeepsToWhatIsKnownOfTheFile) {
    FakeHost host;
    host.catalogue = "c/";
    MemoryFiles files;
    Catalogue items = sample();
    CatalogueState state = stateOf(catalogueBytes(items.get()), false);
    {
        files.locked.insert("c/LXDATA6.DAT");
        CatalogueSession unread(files, host, precast, items, state);
        EXPECT_TRUE(unread.readOnly());
        files.locked.clear();
        unread.saveCatalogue();
        unread.putBack();
        EXPECT_TRUE(files.content.empty());
    }
    {
        CatalogueSession gone(files, host, precast, items, state);
        EXPECT_FALSE(gone.reloaded());
        gone.saveCatalogue();
        EXPECT_EQ(files.content.at("c/LXDATA6.DAT"), catalogueBytes(items.get()));
        gone.putBack();
        EXPECT_TRUE(files.content.empty());
    }
    files.content["c/LXDATA6.DAT"] = "old";
    host.lockAnswer[HostResource::catalogue] = 0;
    EXPECT_FALSE(CatalogueSession(files, host, precast, items, state).reloaded());
    EXPECT_NE(items, nullptr);
    host.lockAnswer[HostResource::catalogue] = 1;
    CatalogueSession session(files, host, precast, items, state);
    EXPECT_TRUE(session.reloaded());
    EXPECT_EQ(items, nullptr);
    files.readOnly = true;
    session.saveCatalogue();
    files.readOnly = false;
    files.content["c/LXDATA6.DAT"] = "newer";
    session.putBack();
    EXPECT_EQ(files.content.at("c/LXDATA6.DAT"), "newer") << "nothing was written to be put back";
    EXPECT_TRUE(state.holds("old") && state.damaged);
}

TEST_F(Browser, PicksTheSelectedRowsInTheirOrderAlsoWhenReadOnly) {
    start(sample());
    const Bytes before = bytes();
    for (const bool host : {true, false}) {
        bench.host().hasServices = host;
        if (!host) bench.write(file(), before);
        in(alfa, [host](Driver& d) {
            EXPECT_EQ(d.menu()[0], host ? "Nový" : "Nový (grey)");
            d.clickHeading("items", "Délka [mm]");
            EXPECT_EQ(rows(d), "a2 a1 [a10]");
            d.selectRowAt("items", 2);
            d.addRowAt("items", 0);
            d.press("Načíst do seznamu");
        });
        EXPECT_EQ(open({precast, true, {}, 0, {}, {}}), 1);
        EXPECT_EQ(picked, "a2 a10 ");
        EXPECT_EQ(bytes(), before);
    }
}

// ---- types

TEST_F(Browser, ANewTypeHasANameOfItsOwn) {
    start(sample());
    popup(alfa, "types", 0, "Nový");
    name("Nový typ", "Název:", "čapí");
    message("Již obsažen v databázi.", "Nový typ");
    name("Nový typ", "Název:", "Nový");
    in("Databáze prefabrikátů (Nový)", [&](Driver& d) {
        EXPECT_EQ(stored(), sampleText) << "written on OK alone";
        d.press("OK");
    });
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(stored(), std::string(sampleText) + " -4:Nový");
}

TEST_F(Browser, TypesAreDeletedUpToTheLast) {
    start(sample());
    const auto erase = [this](const char* title, int row, const char* type, const char* button) {
        popup(title, "types", row, "Vymazat");
        message(
            std::string("Opravdu si přejete vymazat celou databázi překladů \"") + type + "\" ?",
            "Upozornění", button);
    };
    erase(capi, 2, "Delta", "No");
    erase(delta, 2, "Delta", "Yes");
    erase(capi, 0, "Alfa", "Yes");
    in(alfa, [](Driver& d) { EXPECT_EQ(rows(d), ""); });
    erase(alfa, 1, "Čapí", "Yes");
    in(alfa, [](Driver& d) { d.rightClickRow("types", 0); });
    then([](Driver& d) {
        EXPECT_EQ(d.popup()[2], "Vymazat (grey)");
        d.closePopup();
    });
    press(alfa, "Zrušit");
    EXPECT_EQ(open({precast, false, {}, 1, {}, {}}), 2);
    EXPECT_EQ(requestedType, "none");
    EXPECT_EQ(shown(items), "-1:Alfa");
    EXPECT_EQ(stored(), sampleText);
    press(alfa, "OK");
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(requestedType, "Alfa");
    EXPECT_EQ(stored(), "-1:Alfa");
}

// ---- items

TEST_F(Browser, TheItemActedOnInAnOrderedListIsTheOneShown) {
    start(sample());
    in(alfa, [](Driver& d) {
        d.clickHeading("items", "Označení");
        d.clickHeading("items", "Označení");
        EXPECT_EQ(rows(d), "[a10] a2 a1");
        d.selectRowAt("items", 1);
        d.addRowAt("items", 2);
        d.key("Delete");
    });
    answerDelete("a2", "Yes");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "a10 [a1]");
        d.clickHeading("items", "Označení");
        EXPECT_EQ(rows(d), "[a1] a10");
        d.chooseMenu("Nový/Překlad");
    });
    name("Nový překlad", "Označení", "a5");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "a1 [a5] a10");
        d.doubleClickRow("items", 0);
    });
    name("Upravit překlad", "Označení", "a9");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "a10 [a9] a5") << "in chain order again, the edited item selected";
        d.press("OK");
    });
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(stored(), "-1:Alfa 1:a10:3 -2:Čapí 2:c1:7 1:a9:2 -3:Delta 2:c2:5 3:d1 1:a5:2");
}

TEST_F(Browser, TheEditorStartsFromTheSelectedItem) {
    start(catalogueOf({{-1, "Alfa"}, {1, "a10", 3, 0, 900}, {-2, "Čapí"}}));
    items->next->compositionMark = 'K';
    popup(alfa, "items", 0, "Nový");
    in("Nový překlad", [](Driver& d) {
        retype(d, "Označení", "");
        retype(d, "Hmotnost [kg]", "12.25");
        d.press("OK");
    });
    message("Nebylo vyplněno jméno.", "Upozornění");
    name("Nový překlad", "Označení", "b");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(d.row("items", 1).text, "b | 3 | 0 | 0 | 900 | 12.3 | nezadáno |  | K");
        // Without a row, to edit is to add.
        d.selectRowAt("types", 1);
        d.focus("items");
        d.key("Shift+F10");
    });
    then([](Driver& d) {
        EXPECT_EQ(d.popup(), (std::vector<std::string>{"Nový", "Upravit", "Vymazat (grey)"}));
        d.choosePopup("Upravit");
    });
    name("Upravit překlad", "Označení", "d2");
    press(capi, "OK");
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(stored(), "-1:Alfa 1:a10:3 -2:Čapí 1:b:3 2:d2");
}

TEST_F(Browser, AHundredThousandItemsAreOrderedWithoutAPause) {
    std::vector<CatalogueLine> lines{{-1, "Alfa"}};
    for (int i = 0; i < 100'000; ++i) lines.push_back({1, "P " + formatInt(i * 7919LL % 100'000)});
    start(catalogueOf(lines));
    in(alfa, [](Driver& d) {
        d.focus("items");
        d.key("Ctrl+A");
        const auto begin = std::chrono::steady_clock::now();
        d.clickHeading("items", "Označení");
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
        EXPECT_EQ(d.row("items", 99'999).text.substr(0, 7), "P 99999");
        EXPECT_EQ(d.selectedRows("items").size(), 100'000U);
        d.press("Zrušit");
    });
    EXPECT_EQ(open(), 2);
}

}  // namespace
}  // namespace lx
