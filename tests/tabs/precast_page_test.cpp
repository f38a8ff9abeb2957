// The page "Prefa překlady": its offer, its commands, and the properties text beside it.
#include "tests/tabs/design_dialog_bench.h"

namespace lx {
namespace {

constexpr const char* add = "Vložit vybraný překlad";
constexpr const char* removeLayer = "Vymazat vybraný prvek";
constexpr const char* insulation = "Vložit izolaci";
constexpr const char* space = "Vložit mezeru";
constexpr const char* red = "233,17,12";

struct PrecastPage : DesignDialog {
    void SetUp() override {
        DesignDialog::SetUp();
        set("LXDATA6DLG.dat", "DLG_SET", "tab", "1");
    }
};

std::string enabledButtons(Driver& d) {
    const char* const buttons[] = {add, removeLayer, insulation, space};
    return enabledAmong(d, buttons);
}

TEST_F(PrecastPage, LayersAreAddedAndRemovedUntilTheWallIsFull) {
    run([](Driver& d) {
        const std::pair<const char*, const char*> offered[] = {
            {"KP 7/750", ""}, {"KP 7/1000", ""}, {"KP 36/1000", red}};
        for (int row = 0; row < d.rowCount(offerList); ++row) {
            EXPECT_EQ(d.row(offerList, row).text, offered[row].first);
            EXPECT_EQ(d.row(offerList, row).textColor, offered[row].second);
        }
        d.doubleClickRow(offerList, 2);
        EXPECT_EQ(enabledButtons(d), "0011");
        for (int i = 0; i < 3; ++i) d.doubleClickRow(offerList, 1);
        d.focus(add);
        d.press(add);
        // 20 mm are left: the lintels no longer fit, and the button leaves its focus to the list.
        EXPECT_EQ(enabledButtons(d), "0111");
        EXPECT_EQ(d.row(offerList, 1).textColor, red);
        EXPECT_NE(d.focusedControl().find("1203"), std::string::npos) << d.focusedControl();
        d.press(insulation);
        d.press(removeLayer);
        d.press(removeLayer);
        EXPECT_EQ(d.row(offerList, 1).textColor, "");
        d.press(space);
        EXPECT_EQ(enabledButtons(d), "0100");
        d.press("OK");
    });
    EXPECT_EQ(namesOf(takeHandOver()), "KP 7/1000 70;KP 7/1000 70;KP 7/1000 70;MEZERA 90;");
}

TEST_F(PrecastPage, PropertiesDescribeTheOfferOrTheCurrentRecord) {
    run([](Driver& d) {
        const std::string rest =
            "\r\nDélka: 1450, Šířka :  140, Výška: 238 [mm]\r\nUložení: 125 mm";
        const auto shows = [&d](const std::string& text) {
            EXPECT_EQ(d.text(propertiesBox), text);
        };
        d.selectRow("Typ", "Na míru");
        d.check("z náhledu", true);
        shows("<Stěna>");
        d.press(add);
        shows("Označení: KV 14/1450" + rest);
        d.check("z nabídky", true);
        d.selectTab("Monolitické překlady");
        shows("Označení: KV 14/?" + rest);
        d.press(removeLayer);
        d.selectTab("Ocelové překlady");
        shows("Označení: IPE 100\r\nDélka: 1500, Šířka :  55, Výška: 238 [mm]\r\nUložení: 150 mm");
        d.press("Zrušit");
    });
}

TEST_F(PrecastPage, EmptyCataloguesOfferNothing) {
    writeCatalogue(CatalogueKind::precast, {});
    writeCatalogue(CatalogueKind::steel, {});
    set("LXDATA6DLG.dat", "COMBO_PREFA", "actual", "3");
    run([](Driver& d) {
        EXPECT_EQ(d.rowCount(offerList), 0);
        EXPECT_EQ(enabledButtons(d), "0011");
        EXPECT_EQ(d.text(propertiesBox), "");
        d.press(insulation);
        EXPECT_EQ(enabledButtons(d), "0100");
        d.press("OK");
    });
    EXPECT_EQ(namesOf(takeHandOver()), "IZOLACE 300;");
    EXPECT_EQ(get("LXDATA6DLG.dat", "COMBO_PREFA", "actual"), "-1");
}

}  // namespace
}  // namespace lx
