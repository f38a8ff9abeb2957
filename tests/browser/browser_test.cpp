// The catalogue browser on a caller's items, what scenarios cannot tell: places that are not there,
// a hasty user, very many items; and its hold on the catalogue's file.
#include <gtest/gtest.h>

#include <chrono>

#include "browser/CData6_1.h"
#include "platform/numbers.h"
#include "tests/support/bench.h"
#include "tests/support/catalogues.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

constexpr CatalogueKind precast = CatalogueKind::precast;
constexpr char alfa[] = "Databáze prefabrikátů (Alfa)";

Catalogue sample() {
    return catalogueOf({{-1, "Alfa"}, {1, "a10"}, {-2, "Čapí"}, {1, "a2"}, {2, "c1"}, {2, "c2"}});
}

struct Browser : testing::Test {
    Bench bench;
    Catalogue items;

    // Writes the file and opens the browser on it.
    int open(Catalogue chain, const BrowserRequest& asked = {}) {
        const Bytes bytes = catalogueBytes(chain.get());
        bench.write(cataloguePath(precast, bench.host()), bytes);
        items = std::move(chain);
        CatalogueState state = stateOf(bytes, false);
        ColumnWidths widths;
        CData6_1 browser(bench.platform(), bench.files(), bench.host(), widths, {});
        const int result = browser.runOn(items, state, asked);
        EXPECT_EQ(bench.user().failure(), "");
        return result;
    }
};

TEST_F(Browser, TheCallerSaysWhereItStarts) {
    const struct {
        std::optional<ElementPlace> element;
        int type;
        const char* title;
        int row;
    } cases[] = {{ElementPlace{0, 1}, 1, alfa, 1},
                 {ElementPlace{1, 2}, 0, "Databáze prefabrikátů (Čapí)", 0},
                 {ElementPlace{-2147483647, 3223600}, 1, "Databáze prefabrikátů (Čapí)", 0},
                 {{}, 2147483647, alfa, 0}};
    for (const auto& one : cases) {
        bench.user().inDialog(one.title, [&one](Driver& d) {
            EXPECT_EQ(d.selectedRows("items"), std::vector<int>{one.row});
            d.press("Zrušit");
        });
        open(sample(), {precast, false, one.element, one.type, {}, {}});
    }
}

// What is scrolled out comes back first: the entries are about the row where the menu opens.
TEST_F(Browser, TheKeyboardsMenuIsAboutTheSelectedRowWhereverTheListIsScrolledTo) {
    std::vector<CatalogueLine> lines;
    for (int type = 1; type <= 99; ++type) lines.push_back({-type, "T" + formatInt(type)});
    for (int item = 1; item <= 99; ++item) lines.push_back({1, "I" + formatInt(item)});
    Session& user = bench.user();
    std::vector<std::vector<std::string>> entries;
    user.inDialog("Databáze prefabrikátů (T1)", [&](Driver& d) {
        for (const char* list : {"types", "items"}) {
            d.scrollToRow(list, 98);
            d.focus(list);
            user.then([&](Driver& menu) {
                entries.push_back(menu.popup());
                menu.closePopup();
            });
            d.key("Shift+F10");
            EXPECT_EQ(d.selectedRows(list), std::vector<int>{0});
        }
        d.press("Zrušit");
    });
    EXPECT_EQ(open(catalogueOf(lines)), 2);
    EXPECT_EQ(entries, (std::vector<std::vector<std::string>>{{"Nový", "Přejmenovat", "Vymazat"},
                                                              {"Nový", "Upravit", "Vymazat"}}));
}

TEST_F(Browser, LeavingBeforeTheListsAreThereStoresNoColumns) {
    bool columns = false;
    bench.user().then([&columns](Driver& d) {
        columns = d.rowCount("types") > 0;  // real windows may be ready before their user
        d.press("OK");
    });
    EXPECT_EQ(open(sample()), 1);
    const Bytes settings = bench.read(bench.dataFolder() + "VD_preklady.dat").value_or("none");
    EXPECT_EQ(settings.find("TAB_PREFA") != Bytes::npos, columns);
    EXPECT_NE(settings.find("windowPosition"), Bytes::npos);
    EXPECT_EQ(bench.read(cataloguePath(precast, bench.host())), catalogueBytes(items.get()));
}

TEST_F(Browser, AHundredThousandItemsAreOrderedWithoutAPause) {
    std::vector<CatalogueLine> lines{{-1, "Alfa"}};
    for (int i = 0; i < 100'000; ++i) lines.push_back({1, "P " + formatInt(i * 7919LL % 100'000)});
    bench.user().inDialog(alfa, [](Driver& d) {
        d.focus("items");
        d.key("Ctrl+A");
        const auto begin = std::chrono::steady_clock::now();
        d.clickHeading("items", "Označení");
        EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
        EXPECT_EQ(d.row("items", 99'999).text.substr(0, 7), "P 99999");
        EXPECT_EQ(d.selectedRows("items").size(), 100'000U);
        d.press("Zrušit");
    });
    EXPECT_EQ(open(catalogueOf(lines)), 2);
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
        EXPECT_TRUE(unread.saveCatalogue()) << "there is nothing to write";
        unread.putBack();
        EXPECT_TRUE(files.content.empty());
    }
    {
        CatalogueSession gone(files, host, precast, items, state);
        EXPECT_FALSE(gone.reloaded());
        EXPECT_TRUE(gone.saveCatalogue());
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
    EXPECT_FALSE(session.saveCatalogue());
    files.readOnly = false;
    files.content["c/LXDATA6.DAT"] = "newer";
    session.putBack();
    EXPECT_EQ(files.content.at("c/LXDATA6.DAT"), "newer") << "nothing was written to be put back";
    EXPECT_TRUE(state.holds("old") && state.damaged);
}

}  // namespace
}  // namespace lx
