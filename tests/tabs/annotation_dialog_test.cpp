// The annotation settings, opened from the geometry page, and that page's own rules.
#include "tests/tabs/design_dialog_bench.h"

namespace lx {
namespace {

constexpr const char* userFile = "VD_preklady.dat";
constexpr const char* open = "Nastavení...";

// In Tab order; the boxes are 1603, 1614 and 1617.
constexpr const char* inputs[] = {"#1602", "#1603", "#1605", "#1607", "#1609", "#1611", "#1613",
                                  "#1614", "#1615", "#1617", "#1619", "#1622", "#1624", "#1626"};
constexpr const char* auxiliaryLine = "#1603";
constexpr const char* textStyle = "#1607";
constexpr const char* bubbleColor = "#1609";
constexpr const char* hasEdges = "#1614";
constexpr const char* followsOpening = "#1617";

std::string shown(Driver& d) {
    std::string text;
    for (const std::string_view input : inputs) {
        const bool box = input == auxiliaryLine || input == hasEdges || input == followsOpening;
        text += (box ? d.checked(input) ? "x" : "-" : d.text(input)) + "|";
    }
    return text;
}

struct AnnotationDialog : DesignDialog {
    // Runs the steps in the dialog that opens over a design dialog with these boxes ticked.
    void inSettings(const char* inserted, std::function<void(Driver&)> steps) {
        set(userFile, "SETTINGS", "DESCRIPTION", inserted);
        bench.user().inDialog("Návrh překladu", [](Driver& d) { d.press(open); });
        bench.user().inDialog(open, std::move(steps));
        bench.user().inDialog("Návrh překladu", [](Driver& d) { d.press("Zrušit"); });
        run();
    }
    Text setting(std::string_view key) { return get(userFile, "SETTINGS", key); }
};

TEST_F(AnnotationDialog, KeepsEveryValueAsItWasTyped) {
    bench.host().styles = {"Popisy", "kóty", "Nadpisy s dlouhým jménem"};
    for (Text& style : bench.host().styles) style = fromUtf8(style).value();
    set(userFile, "SETTINGS", "STYLE", "NADPIS");
    inSettings("6", [](Driver& d) {
        EXPECT_EQ(shown(d),
                  "2.5|x|10.0|Nadpisy s dlouhým jménem|BYLAYER|0.8|10|-|4|-|0.0|BYLAYER|"
                  "2.5|0.8|");
        EXPECT_EQ(d.row(textStyle, 0).text, "kóty");
        EXPECT_EQ(d.tooltip(textStyle), "Nadpisy s dlouhým jménem");
        d.check(hasEdges, true);
        const char* typed[] = {"4,2", "",    "12.5", "Moje", "", "0.75", "8",
                               "",    "3.7", "",     "30",   "", "",     "široký"};
        for (std::size_t i = 0; i < std::size(inputs); ++i) {
            if (*typed[i] != '\0') retype(d, inputs[i], typed[i]);
        }
        d.selectRow(inputs[12], "7.0");
        d.selectRow(bubbleColor, "Červená");
        d.selectRow(inputs[11], "Fialová");
        d.check(auxiliaryLine, false);
        d.check(followsOpening, true);
        d.press("OK");
    });
    inSettings("6", [](Driver& d) {
        EXPECT_EQ(shown(d), "4,2|-|12.5|Moje|Červená|0.75|8|x|3.7|x|30|Fialová|7.0|široký|");
        EXPECT_EQ(d.rowCount(textStyle), 4);
        d.key("Esc");
    });
    EXPECT_EQ(setting("STYLE"), "Moje");
    EXPECT_EQ(setting("IF_ANGLE1"), "0");
    EXPECT_EQ(setting("COLOR2"), "6");
}

TEST_F(AnnotationDialog, ControlsFollowWhatIsInsertedAndTheirBoxes) {
    inSettings("2", [](Driver& d) {
        EXPECT_EQ(enabledAmong(d, inputs), "00010000000111");
        EXPECT_FALSE(d.enabled("Bublina"));
        d.closeDialog();
    });
    inSettings("13", [](Driver& d) {
        EXPECT_EQ(enabledAmong(d, inputs), "11111111011000");
        d.check(auxiliaryLine, false);
        d.check(hasEdges, true);
        d.focus(followsOpening);
        d.key("Space");
        EXPECT_EQ(enabledAmong(d, inputs), "11011111110000");
        d.press("Zrušit");
    });
    EXPECT_EQ(setting("IF_ANGLE1"), "none");
}

TEST_F(AnnotationDialog, TheBubbleFieldIsCutToTheLabelAtTheNextChangeOfTheDesign) {
    run([this](Driver& d) {
        const auto name = [this] { return get("LXDATA6DLG.dat", "DLG_SET", "num_bub"); };
        retype(d, bubbleField, "ABCDEF");
        EXPECT_EQ(name(), "ABCDE");
        EXPECT_TRUE(has(d, "record 0 label ABC"));
        d.press("1 zalomení");
        EXPECT_EQ(d.text(bubbleField), "ABC");
        EXPECT_EQ(name(), "ABC");
        // Without a label the design takes the proposal again.
        retype(d, bubbleField, "");
        EXPECT_EQ(name(), "");
        d.press("Zrušit zalomení");
        EXPECT_EQ(d.text(bubbleField), "002");
        EXPECT_EQ(name(), "002");
        d.press("Zrušit");
    });
}

}  // namespace
}  // namespace lx
