// The catalogue browser as a user meets it, stand-alone and on a caller's items, and what its file
// holds afterwards.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "catalogue/CData6_1.h"
#include "platform/numbers.h"
#include "tests/support/bench.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

constexpr CatalogueKind precast = CatalogueKind::precast;
constexpr CatalogueKind steel = CatalogueKind::steel;
constexpr char alfa[] = "Databáze prefabrikátů (Alfa)";
constexpr char capi[] = "Databáze prefabrikátů (Čapí)";

using Step = std::function<void(Driver&)>;

struct Line {
    std::int32_t group;
    const char* name;  // UTF-8
    std::int32_t length = 0;
};

Catalogue chainOf(const std::vector<Line>& lines) {
    Catalogue head;
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
        auto record = std::make_unique<CPreklItem>();
        record->group = line->group;
        record->designation = fromUtf8(line->name);
        record->length = line->length;
        record->next = std::move(head);
        head = std::move(record);
    }
    return head;
}

// Three types; items of one stand among those of another.
Catalogue sample() {
    return chainOf({{-1, "Alfa"},
                    {1, "a10", 3},
                    {-2, "Čapí"},
                    {1, "a2", 1},
                    {2, "c1", 7},
                    {1, "a1", 2},
                    {-3, "Delta"},
                    {2, "c2", 5},
                    {3, "d1"}});
}
constexpr char sampleText[] = "-1:Alfa 1:a10 -2:Čapí 1:a2 2:c1 1:a1 -3:Delta 2:c2 3:d1";

std::string shown(const CPreklItem* head) {
    std::string text;
    for (const CPreklItem* record = head; record; record = record->next.get()) {
        text += (text.empty() ? "" : " ") + std::to_string(record->group) + ":" +
                toUtf8(record->designation.value_or(""));
    }
    return text;
}

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

void retype(Driver& d, const char* field, const char* text) {
    d.focus(field);
    d.key("Ctrl+A");
    d.key("Delete");
    d.type(text);
}

struct Browser : testing::Test {
    Bench bench;
    ColumnWidths widths;
    Catalogue items;
    CatalogueState state;
    std::string picked;
    bool reloaded = false;

    Path file(CatalogueKind kind = precast) { return cataloguePath(kind, bench.host()); }
    Bytes bytes(CatalogueKind kind = precast) { return bench.read(file(kind)).value_or("none"); }
    std::string stored(CatalogueKind kind = precast) {
        return shown(parseCatalogue(kind, bytes(kind)).head.get());
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
        LoadedCatalogue loaded = loadCatalogue(kind, file(kind), bench.files());
        items = std::move(loaded.head);
        state = loaded.state;
    }

    void in(std::string_view title, Step step) { bench.user().inDialog(title, std::move(step)); }
    void then(Step step) { bench.user().then(std::move(step)); }
    void message(const char* text, const char* caption, const char* button = "OK") {
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
    void cancelled(const char* title) {
        in(title, [](Driver& d) { d.press("Zrušit"); });
    }

    int open(const BrowserRequest& request = {}) {
        CData6_1 browser(bench.platform(), bench.files(), bench.host(), widths, {});
        const int result = browser.runOn(items, state, request);
        EXPECT_EQ(bench.user().failure(), "");
        reloaded = browser.reloaded();
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
    void choose(const char* catalogue) {
        in("Databáze", [catalogue](Driver& d) { d.press(catalogue); });
    }
};

// ---- opening

TEST_F(Browser, NothingIsTouchedWithoutACatalogue) {
    for (const Step& leave :
         {Step([](Driver& d) { d.press("Zrušit"); }), Step([](Driver& d) { d.closeDialog(); })}) {
        in("Databáze", leave);
        EXPECT_EQ(standAlone(), 1);
    }
    EXPECT_EQ(bytes(), "none");
    bench.host().catalogue = bench.folder() + "missing" + Path(separator);
    choose("Ocel");
    message("Databáze překladů není přístupná", "Stand-in");
    EXPECT_EQ(standAlone(), 2);
    EXPECT_EQ(settings(), "none");
    EXPECT_TRUE(bench.host().lockRequests.empty());
}

TEST_F(Browser, StandAloneStartsWhereItWasLeft) {
    bench.write(file(), catalogueBytes(sample().get()));
    choose("Prefa");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(d.layoutFaults(), std::vector<std::string>{});
        EXPECT_FALSE(d.visible("Načíst do seznamu"));
        EXPECT_EQ(d.headings("items").size(), 9U);
        EXPECT_EQ(d.menu(), (std::vector<std::string>{"Nový", "Nový/Typ", "Nový/Překlad"}));
        EXPECT_EQ(rows(d), "[a10] a2 a1");
        d.selectRowAt("types", 1);
        EXPECT_EQ(d.title(), capi);
        EXPECT_EQ(rows(d), "[c1] c2");
        d.selectRowAt("items", 1);
        d.setColumnWidth("items", 0, 120);
        d.setColumnOrder("items", {1, 0, 2, 3, 4, 5, 6, 7, 8});
        d.press("Nápověda");
        d.press("OK");
    });
    EXPECT_EQ(standAlone(), 1);
    EXPECT_EQ(bench.host().helpTopics, std::vector<int>{100});
    choose("Prefa");
    in(capi, [](Driver& d) {
        EXPECT_EQ(rows(d), "c1 [c2]");
        EXPECT_EQ(d.columnWidths("items")[0], 120);
        EXPECT_EQ(d.columnOrder("items")[0], 1);
        d.selectRowAt("types", 0);
        d.press("Zrušit");
    });
    EXPECT_EQ(standAlone(), 2);
    Profile profile(bench.files(), bench.dataFolder() + "VD_preklady.dat");
    EXPECT_EQ(profile.readInt("TAB_PREFA", "LIST1", -1), 1) << "Cancel stores nothing";
    profile.writeInt("TAB_PREFA", "LIST1", 3);
    profile.writeInt("TAB_PREFA", "LIST2", 2147483647);
    choose("Prefa");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "[a10] a2 a1");
        d.closeDialog();
    });
    EXPECT_EQ(standAlone(), 2);
    EXPECT_EQ(bench.host().lockRequests.size(), 3U);
    EXPECT_EQ(bench.host().lockReleases,
              std::vector<FakeHost::LockRelease>(3, {HostResource::catalogue, 4}));
}

TEST_F(Browser, TheCallerSaysWhereItStarts) {
    start(sample());
    const auto startsWith = [&](std::optional<ElementPlace> element, int type, const char* title,
                                const char* list) {
        in(title, [list](Driver& d) {
            EXPECT_EQ(rows(d), list);
            d.press("Zrušit");
        });
        open({precast, false, element, type});
    };
    startsWith({}, 1, capi, "[c1] c2");
    startsWith(ElementPlace{0, 2}, 1, alfa, "a10 a2 [a1]");
    startsWith(ElementPlace{1, 2}, 0, capi, "[c1] c2");
    startsWith(ElementPlace{-2147483647, 3223600}, 1, capi, "[c1] c2");
    startsWith({}, 2147483647, alfa, "[a10] a2 a1");
}

TEST_F(Browser, AnEmptyCatalogueTakesATypeBeforeItsFirstItem) {
    start(nullptr, steel);
    in("Databáze", [](Driver& d) {
        d.wait(60);
        EXPECT_EQ(d.headings("items").size(), 6U);
        d.chooseMenu("Nový/Průřez");  // nothing: there is no type
        d.chooseMenu("Nový/Typ průřezu");
    });
    name("Přidání typu průřezu", "Název:", "");
    message("Nebylo vyplněno označení.", "");
    name("Přidání typu průřezu", "Název:", "Jackl");
    in("Databáze průřezů (Jackl)", [](Driver& d) {
        EXPECT_EQ(d.row("types", 0).icon, 2019) << "no shape was chosen";
        EXPECT_EQ(d.row("types", 0).background, "187,187,221");
        d.chooseMenu("Nový/Průřez");
    });
    name("Nový průřez", "Označení", "J 1");
    in("Databáze průřezů (Jackl)", [](Driver& d) {
        EXPECT_EQ(d.row("items", 0).text, "J 1 | 0 | 0 | 0.0 | nezadáno | ");
        d.chooseMenu("Nový/Typ průřezu");
    });
    in("Přidání typu průřezu", [](Driver& d) {
        d.type("U");
        d.press("#1754");
        d.press("OK");
    });
    in("Databáze průřezů (U)", [](Driver& d) {
        EXPECT_EQ(d.row("types", 1).icon, 1003);
        EXPECT_EQ(rows(d), "");
        d.press("OK");
    });
    EXPECT_EQ(open({steel, false, {}, 0}), 1);
    EXPECT_EQ(stored(steel), "-1:Jackl 1:J 1 -2:U");
    EXPECT_EQ(items->length, 1) << "as the loader would have it";
    EXPECT_EQ(items->next->next->length, 3);
}

TEST_F(Browser, LeavingBeforeTheListsAreThereStoresNoColumns) {
    start(sample());
    bool columns = false;
    for (const int result : {1, 2}) {
        then([&columns, result](Driver& d) {
            // Real windows may be ready before their user.
            if (result == 1) columns = d.rowCount("types") > 0;
            d.press(result == 1 ? "OK" : "Zrušit");
        });
        EXPECT_EQ(open(), result);
        EXPECT_EQ(settings().find("TAB_PREFA") != std::string::npos, columns);
        EXPECT_NE(settings().find("windowPosition"), std::string::npos);
    }
    EXPECT_EQ(stored(), sampleText);
}

// ---- what is written when

TEST_F(Browser, CancelPutsTheFileBackAndKeepsTheItemsInMemory) {
    start(sample());
    // Bytes behind the last record: damage that a rewritten file would lose.
    bench.write(file(), bytes() + "xx");
    load();
    const Bytes before = bytes();
    in(alfa, [](Driver& d) { d.chooseMenu("Nový/Překlad"); });
    name("Nový překlad", "Označení", "a3");
    in(alfa, [&](Driver& d) {
        EXPECT_EQ(rows(d), "a10 a2 a1 [a3]");
        EXPECT_EQ(stored(), std::string(sampleText) + " 1:a3");
        EXPECT_EQ(bench.read(file() + ".bak"), before);
        d.press("Zrušit");
    });
    EXPECT_EQ(open(), 2);
    EXPECT_EQ(bytes(), before);
    EXPECT_EQ(shown(items.get()), std::string(sampleText) + " 1:a3");

    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "[a10] a2 a1 a3");
        d.press("Zrušit");
    });
    EXPECT_EQ(open(), 2);
    EXPECT_FALSE(reloaded);
    EXPECT_EQ(bytes(), before) << "a second Cancel must not store what the first one dropped";

    in(alfa, [](Driver& d) { d.press("OK"); });
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(stored(), std::string(sampleText) + " 1:a3");
    in(alfa, [](Driver& d) { d.press("OK"); });
    EXPECT_EQ(open(), 1);
    EXPECT_FALSE(reloaded);
}

TEST_F(Browser, AnotherUsersChangeIsSeenUnderTheLockAndNotLost) {
    start(sample());
    const Catalogue changed = chainOf({{-1, "Alfa"}, {1, "jiné"}});
    bench.write(file(), catalogueBytes(changed.get()));
    bench.host().lockAnswer[HostResource::catalogue] = 0;
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "[a10] a2 a1");
        d.press("OK");
    });
    open();
    EXPECT_FALSE(reloaded);
    bench.host().lockAnswer[HostResource::catalogue] = 1;
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "[jiné]");
        d.chooseMenu("Nový/Překlad");
    });
    name("Nový překlad", "Označení", "moje");
    in(alfa, [](Driver& d) { d.press("Zrušit"); });
    EXPECT_EQ(open({precast, false, ElementPlace{2, 0}, 2}), 2);
    EXPECT_TRUE(reloaded);
    EXPECT_EQ(bytes(), catalogueBytes(changed.get()));
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
        unread.save();
        unread.putBack();
        EXPECT_TRUE(files.content.empty());
    }
    {
        CatalogueSession gone(files, host, precast, items, state);
        EXPECT_FALSE(gone.reloaded());
        gone.save();
        EXPECT_EQ(files.content.at("c/LXDATA6.DAT"), catalogueBytes(items.get()));
        gone.putBack();
        EXPECT_TRUE(files.content.empty());
    }
    files.content["c/LXDATA6.DAT"] = "old";
    CatalogueSession session(files, host, precast, items, state);
    EXPECT_TRUE(session.reloaded());
    EXPECT_EQ(items, nullptr);
    files.readOnly = true;
    session.save();
    session.putBack();
    files.readOnly = false;
    files.content["c/LXDATA6.DAT"] = "newer";
    session.putBack();
    EXPECT_EQ(files.content.at("c/LXDATA6.DAT"), "newer") << "nothing was written to be put back";
    EXPECT_TRUE(state.holds("old"));
    EXPECT_TRUE(state.damaged);
}

TEST_F(Browser, ReadOnlyShowsAllAndChangesNothing) {
    start(sample());
    const Bytes before = bytes();
    const char refused[] = "Databáze je otevřena pouze pro čtení.";
    for (const bool host : {true, false}) {
        bench.host().hasServices = host;
        bench.host().lockAnswer[HostResource::catalogue] = 2;
        if (!host) bench.write(file(), before);
        in(alfa, [](Driver& d) {
            EXPECT_EQ(d.menu()[0], "Nový (grey)");
            d.focus("items");
            d.key("Delete");
        });
        message(refused, "Upozornění");
        in(alfa, [](Driver& d) { d.doubleClickRow("items", 1); });
        message(refused, "Upozornění");
        for (const char* list : {"items", "types"}) {
            in(alfa, [list](Driver& d) { d.rightClickRow(list, 0); });
            then([](Driver& d) {
                for (const std::string& entry : d.popup()) {
                    EXPECT_NE(entry.find(" (grey)"), std::string::npos) << entry;
                }
                d.closePopup();
            });
        }
        in(alfa, [](Driver& d) {
            d.clickHeading("items", "Označení");
            EXPECT_EQ(rows(d), "a1 a2 [a10]");
            d.focus("items");
            d.key("Ctrl+A");
            d.press("Načíst do seznamu");
        });
        EXPECT_EQ(open({precast, true, {}, 0}), 1);
        EXPECT_EQ(picked, "a1 a2 a10 ");
        EXPECT_EQ(bytes(), before);
    }
}

TEST_F(Browser, PicksTheSelectedRowsInTheirOrder) {
    start(sample());
    in(alfa, [](Driver& d) {
        d.clickHeading("items", "Délka [mm]");
        EXPECT_EQ(rows(d), "a2 a1 [a10]");
        d.selectRowAt("items", 2);
        d.addRowAt("items", 0);
        d.press("Načíst do seznamu");
    });
    EXPECT_EQ(open({precast, true, {}, 0}), 1);
    EXPECT_EQ(picked, "a2 a10 ");
    in(alfa, [](Driver& d) {
        d.selectRowAt("types", 2);
        EXPECT_EQ(rows(d), "[d1]");
        d.focus("items");
        d.key("Delete");
    });
    message("Opravdu si přejete vymazat\r\npřeklad \"d1\"?", "Upozornění", "Yes");
    in("Databáze prefabrikátů (Delta)", [](Driver& d) { d.press("Načíst do seznamu"); });
    EXPECT_EQ(open({precast, true, {}, 0}), 1);
    EXPECT_EQ(picked, "");
    EXPECT_EQ(stored(), "-1:Alfa 1:a10 -2:Čapí 1:a2 2:c1 1:a1 -3:Delta 2:c2");
}

// ---- types

TEST_F(Browser, TypeNamesAreSetAndDifferByMoreThanCase) {
    start(sample());
    const auto popup = [this](const char* title, int row, const char* entry) {
        in(title, [row](Driver& d) { d.rightClickRow("types", row); });
        then([entry](Driver& d) { d.choosePopup(entry); });
    };
    popup(alfa, 1, "Přejmenovat");
    in("Přejmenovat typ", [](Driver& d) {
        EXPECT_EQ(d.text("Název:"), "Čapí");
        d.press("OK");
    });
    popup(capi, 1, "Přejmenovat");
    name("Přejmenovat typ", "Název:", "čAPÍ");
    message("Již obsažen v databázi.", "Přejmenovat typ");
    name("Přejmenovat typ", "Název:", "");
    message("Nebylo vyplněno jméno.", "Přejmenovat typ");
    name("Přejmenovat typ", "Název:", "Čáp");
    popup("Databáze prefabrikátů (Čáp)", 0, "Nový");
    name("Nový typ", "Název:", "čáp");
    message("Již obsažen v databázi.", "Nový typ");
    name("Nový typ", "Název:", "");
    message("Nebylo vyplněno označení.", "Nový typ");
    cancelled("Nový typ");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(d.row("types", 1).text, "Čáp");
        d.chooseMenu("Nový/Typ");
    });
    name("Nový typ", "Název:", "Nový");
    in("Databáze prefabrikátů (Nový)", [&](Driver& d) {
        EXPECT_EQ(d.selectedRows("types"), std::vector<int>{3});
        EXPECT_EQ(stored(), sampleText) << "written on OK alone";
        d.press("OK");
    });
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(stored(), "-1:Alfa 1:a10 -2:Čáp 1:a2 2:c1 1:a1 -3:Delta 2:c2 3:d1 -4:Nový");
}

TEST_F(Browser, DeletingATypeRenumbersTheOthers) {
    start(sample());
    const auto erase = [this](const char* title, int row, const char* question,
                              const char* button) {
        in(title, [row](Driver& d) { d.rightClickRow("types", row); });
        then([](Driver& d) {
            EXPECT_EQ(d.popup()[2], "Vymazat");
            d.choosePopup("Vymazat");
        });
        message(question, "Upozornění", button);
    };
    const char askCapi[] = "Opravdu si přejete vymazat celou databázi překladů \"Čapí\" ?";
    erase(alfa, 1, askCapi, "No");
    in(capi, [](Driver& d) { EXPECT_EQ(rows(d), "[c1] c2"); });
    erase(capi, 1, askCapi, "Yes");
    in("Databáze prefabrikátů (Delta)", [](Driver& d) {
        EXPECT_EQ(rows(d), "[d1]");
        EXPECT_EQ(d.selectedRows("types"), std::vector<int>{1});
    });
    erase("Databáze prefabrikátů (Delta)", 0,
          "Opravdu si přejete vymazat celou databázi překladů \"Alfa\" ?", "Yes");
    in(alfa, [&](Driver& d) {
        EXPECT_EQ(rows(d), "");
        EXPECT_EQ(d.rowCount("types"), 2);
        EXPECT_EQ(stored(), sampleText);
    });
    erase(alfa, 1, "Opravdu si přejete vymazat celou databázi překladů \"Delta\" ?", "Yes");
    in(alfa, [](Driver& d) {
        d.focus("types");
        d.key("Menu");
    });
    then([](Driver& d) {
        EXPECT_EQ(d.popup(), (std::vector<std::string>{"Nový", "Přejmenovat", "Vymazat (grey)"}));
        d.closePopup();
    });
    in(alfa, [](Driver& d) { d.press("Zrušit"); });
    EXPECT_EQ(open(), 2);
    EXPECT_EQ(shown(items.get()), "-1:Alfa");
    EXPECT_EQ(stored(), sampleText);

    load();
    erase(alfa, 1, askCapi, "Yes");
    in("Databáze prefabrikátů (Delta)", [](Driver& d) { d.press("OK"); });
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(stored(), "-1:Alfa 1:a10 1:a2 1:a1 -2:Delta 2:d1");
}

// ---- items

TEST_F(Browser, TheItemDeletedInAnOrderedListIsTheOneNamed) {
    start(sample());
    in(alfa, [](Driver& d) {
        d.clickHeading("items", "Označení");
        d.clickHeading("items", "Označení");
        EXPECT_EQ(d.headings("items")[0], "Označení v");
        EXPECT_EQ(rows(d), "[a10] a2 a1");
        d.selectRowAt("items", 1);
        d.addRowAt("items", 2);
        d.key("Delete");
    });
    message("Opravdu si přejete vymazat\r\npřeklad \"a2\"?", "Upozornění", "No");
    in(alfa, [](Driver& d) { d.key("Delete"); });
    message("Opravdu si přejete vymazat\r\npřeklad \"a2\"?", "Upozornění", "Yes");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "a10 [a1]");
        d.clickHeading("items", "Označení");
        EXPECT_EQ(rows(d), "[a1] a10");
        d.chooseMenu("Nový/Překlad");
    });
    name("Nový překlad", "Označení", "a5");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "a1 [a5] a10");
        d.doubleClickRow("items", 2);
    });
    name("Upravit překlad", "Označení", "a0");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "[a0] a1 a5") << "in chain order again, the edited item selected";
        d.selectRowAt("items", 1);
        d.doubleClickRow("items", 1);
    });
    name("Upravit překlad", "Označení", "a9");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "a0 [a9] a5");
        d.key("Delete");
    });
    message("Opravdu si přejete vymazat\r\npřeklad \"a9\"?", "Upozornění", "Yes");
    in(alfa, [](Driver& d) {
        EXPECT_EQ(rows(d), "a0 [a5]");
        // Another type is ordered as this one was.
        d.selectRowAt("types", 1);
        EXPECT_EQ(rows(d), "[c1] c2");
        d.clickHeading("items", "Délka [mm]");
        EXPECT_EQ(d.headings("items")[0], "Označení");
        EXPECT_EQ(d.headings("items")[1], "Délka [mm] ^");
        EXPECT_EQ(rows(d), "c2 [c1]");
        d.selectRowAt("types", 0);
        d.selectRowAt("types", 1);
        EXPECT_EQ(rows(d), "[c2] c1");
        d.press("OK");
    });
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(stored(), "-1:Alfa 1:a0 -2:Čapí 2:c1 -3:Delta 2:c2 3:d1 1:a5");
}

TEST_F(Browser, TheEditorStartsFromTheSelectedItem) {
    start(sample());
    items->next->maxOpening = 900;
    items->next->compositionMark = 'K';
    in(alfa, [](Driver& d) { d.rightClickRow("items", 0); });
    then([](Driver& d) {
        EXPECT_EQ(d.popup(), (std::vector<std::string>{"Nový", "Upravit", "Vymazat"}));
        d.choosePopup("Nový");
    });
    in("Nový překlad", [](Driver& d) {
        EXPECT_EQ(d.text("Délka [mm]"), "3");
        EXPECT_EQ(d.text("Max.otvor [mm]"), "900");
        retype(d, "Označení", "");
        retype(d, "Hmotnost [kg]", "12.25");
        d.press("OK");
    });
    message("Nebylo vyplněno jméno.", "Upozornění");
    in("Nový překlad", [](Driver& d) {
        EXPECT_EQ(d.text("Hmotnost [kg]"), "12.25");
        retype(d, "Označení", "b");
        d.press("OK");
    });
    in(alfa, [](Driver& d) {
        EXPECT_EQ(d.row("items", 3).text, "b | 3 | 0 | 0 | 900 | 12.3 | nezadáno |  | K");
        // Without a row, to edit is to add.
        d.selectRowAt("types", 2);
        d.focus("items");
        d.key("Delete");
    });
    message("Opravdu si přejete vymazat\r\npřeklad \"d1\"?", "Upozornění", "Yes");
    in("Databáze prefabrikátů (Delta)", [](Driver& d) { d.key("Shift+F10"); });
    then([](Driver& d) {
        EXPECT_EQ(d.popup(), (std::vector<std::string>{"Nový", "Upravit", "Vymazat (grey)"}));
        d.choosePopup("Upravit");
    });
    in("Upravit překlad", [](Driver& d) {
        EXPECT_EQ(d.text("Max.otvor [mm]"), "");
        d.type("d2");
        d.press("OK");
    });
    in("Databáze prefabrikátů (Delta)", [](Driver& d) {
        EXPECT_EQ(rows(d), "[d2]");
        d.press("OK");
    });
    EXPECT_EQ(open(), 1);
    EXPECT_EQ(stored(), "-1:Alfa 1:a10 -2:Čapí 1:a2 2:c1 1:a1 -3:Delta 2:c2 1:b 3:d2");
}

TEST_F(Browser, CopiesTheSelectedRows) {
    start(chainOf({{-1, "Alfa"}, {1, "š", 3}, {1, "b", 1}}));
    in(alfa, [](Driver& d) {
        d.focus("items");
        d.key("Ctrl+A");
        EXPECT_EQ(rows(d), "[š] [b]");
        d.key("Ctrl+C");
        const std::string text = d.clipboard();
        EXPECT_EQ(text.substr(text.find("\r\n\r\n")),
                  "\r\n\r\nš | 3 | 0 | 0 | 0 | 0.0 | nezadáno |  |   | \r\n"
                  "b | 1 | 0 | 0 | 0 | 0.0 | nezadáno |  |   | \r\n");
        d.press("Zrušit");
    });
    EXPECT_EQ(open(), 2);
}

TEST_F(Browser, AHundredThousandItemsAreOrderedWithoutAPause) {
    Catalogue chain;
    for (int i = 0; i < 100'000; ++i) {
        auto record = std::make_unique<CPreklItem>();
        record->group = 1;
        record->designation = "P " + formatInt(i * 7919LL % 100'000);
        record->next = std::move(chain);
        chain = std::move(record);
    }
    Catalogue head = chainOf({{-1, "Alfa"}});
    head->next = std::move(chain);
    start(head);
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
