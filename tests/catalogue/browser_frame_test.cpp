// The chooser before the catalogue browser, and the browser's window with its menus.
#include <gtest/gtest.h>

#include "catalogue/CBaseDlg.h"
#include "resources/menus.h"
#include "resources/templates.h"
#include "tests/support/bench.h"

namespace lx {
namespace {

TEST(Chooser, EndsWithTheChosenCatalogue) {
    Bench bench;
    CBaseDlg chooser(bench.platform(), {});
    const auto result = [&](std::function<void(Driver&)> steps) {
        bench.user().inDialog("Databáze", std::move(steps));
        return chooser.DoModal();
    };
    EXPECT_EQ(result([](Driver& d) {
                  EXPECT_EQ(d.layoutFaults(), std::vector<std::string>{});
                  d.key("Enter");
              }),
              1000);
    EXPECT_EQ(result([](Driver& d) { d.press("Prefa"); }), 1000);
    EXPECT_EQ(result([](Driver& d) { d.press("Ocel"); }), 1001);
    EXPECT_EQ(result([](Driver& d) { d.press("Zrušit"); }), 2);
    EXPECT_EQ(result([](Driver& d) { d.closeDialog(); }), 2);
    EXPECT_EQ(bench.user().failure(), "");
}

struct BrowserFrame : testing::Test {
    // The commands that the entries send, in their order; then the dialog is cancelled.
    std::vector<int> commands(const Menu& menu, const std::vector<std::string>& entries) {
        std::vector<int> sent;
        const auto dialog = bench.platform().createDialog(browserTemplate, {});
        dialog->onInit = [&] { dialog->setMenuBar(menu); };
        dialog->onCommand = [&](int command) { sent.push_back(command); };
        bench.user().inDialog("Databáze", [&](Driver& d) {
            EXPECT_EQ(d.layoutFaults(), std::vector<std::string>{});
            for (const std::string& entry : entries) d.chooseMenu(entry);
            EXPECT_EQ(d.rowCount("types"), 0);
            EXPECT_EQ(d.rowCount("items"), 0);
            EXPECT_EQ(d.defaultButton(), "OK");
            d.press("Zrušit");
        });
        EXPECT_EQ(dialog->runModal(), 2);
        EXPECT_EQ(bench.user().failure(), "");
        return sent;
    }
    // The popup's entries and, of the first, the command.
    std::vector<std::string> popup(const Menu& menu, int& command) {
        const auto dialog = bench.platform().createDialog(browserTemplate, {});
        auto& list = dialog->get<ListBox>(id::types);
        ListRow row;
        row.text = "PREFA";
        list.append(row);
        list.onContext = [&](Point p) {
            command = dialog->popupMenu(menu, list, p, [](int) { return true; });
        };
        std::vector<std::string> entries;
        bench.user().inDialog("Databáze", [](Driver& d) { d.rightClickRow("types", 0); });
        bench.user().then([&](Driver& d) {
            entries = d.popup();
            d.choosePopup(entries.front());
        });
        bench.user().inDialog("Databáze", [](Driver& d) { d.press("Zrušit"); });
        dialog->runModal();
        EXPECT_EQ(bench.user().failure(), "");
        return entries;
    }

    Bench bench;
};

TEST_F(BrowserFrame, MenusSendTheirCommands) {
    const std::vector<int> both = {32772, 32773};
    EXPECT_EQ(commands(precastCatalogueMenu(), {"Nový/Typ", "Nový/Překlad"}), both);
    EXPECT_EQ(commands(steelCatalogueMenu(), {"Nový/Typ průřezu", "Nový/Průřez"}), both);
    int command = 0;
    EXPECT_EQ(popup(typesPopup(), command),
              (std::vector<std::string>{"Nový", "Přejmenovat", "Vymazat"}));
    EXPECT_EQ(command, 32772);
    EXPECT_EQ(popup(itemsPopup(), command),
              (std::vector<std::string>{"Nový", "Upravit", "Vymazat"}));
    EXPECT_EQ(command, 32774);
}

}  // namespace
}  // namespace lx
