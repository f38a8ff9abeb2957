// The annotation settings, opened from the geometry page, and that page's own rules.
#include "tests/tabs/design_dialog_bench.h"

namespace lx {
namespace {

constexpr const char* userFile = "VD_preklady.dat";
constexpr const char* open = "Nastavení...";

// Controls that share their label with another one, or have none.
constexpr const char* bubbleHeight = "#1602";
constexpr const char* auxiliaryLine = "#1603";
constexpr const char* lineLength = "#1605";
constexpr const char* textStyle = "#1607";
constexpr const char* bubbleColor = "#1609";
constexpr const char* bubbleWidth = "#1611";
constexpr const char* diameter = "#1613";
constexpr const char* hasEdges = "#1614";
constexpr const char* edges = "#1615";
constexpr const char* followsOpening = "#1617";
constexpr const char* angle = "#1619";
constexpr const char* descriptionColor = "#1622";
constexpr const char* descriptionHeight = "#1624";
constexpr const char* descriptionWidth = "#1626";

// In Tab order.
constexpr const char* inputs[] = {
    bubbleHeight, auxiliaryLine,    lineLength,        textStyle,       bubbleColor,
    bubbleWidth,  diameter,         hasEdges,          edges,           followsOpening,
    angle,        descriptionColor, descriptionHeight, descriptionWidth};

std::string enabledInputs(Driver& d) {
    std::string text;
    for (const char* input : inputs) text += d.enabled(input) ? '1' : '0';
    return text;
}

std::string shown(Driver& d) {
    std::string text;
    for (const char* input : inputs) {
        const bool box = input == auxiliaryLine || input == hasEdges || input == followsOpening;
        text += (box ? d.checked(input) ? "x" : "-" : d.text(input)) + "|";
    }
    return text;
}

void retype(Driver& d, const char* control, const char* text) {
    d.focus(control);
    d.key("Ctrl+A");
    d.type(text);
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

TEST_F(AnnotationDialog, ShowsTheDefaultsAndStoresThemOnEnter) {
    inSettings("6", [](Driver& d) {
        EXPECT_EQ(shown(d), "2.5|x|10.0|Standard|BYLAYER|0.8|10|-|4|-|0.0|BYLAYER|2.5|0.8|");
        EXPECT_EQ(enabledInputs(d), "11111111011111");
        EXPECT_EQ(d.layoutFaults(), std::vector<std::string>{});
        EXPECT_EQ(d.rowCount(textStyle), 4);
        EXPECT_EQ(d.rowCount(bubbleHeight), 7);
        EXPECT_EQ(d.row(descriptionColor, 7).text, "Bílá");
        EXPECT_NE(d.focusedControl().find(bubbleHeight), std::string::npos);
        d.key("Enter");
    });
    EXPECT_EQ(setting("IF_ANGLE1"), "1");
    EXPECT_EQ(setting("EDGES"), "4");
    EXPECT_EQ(setting("STYLE"), "Standard");
}

TEST_F(AnnotationDialog, KeepsEveryValueAsItWasTyped) {
    bench.host().styles = {"Popisy", "kóty", "Nadpisy s dlouhým jménem"};
    for (Text& style : bench.host().styles) style = fromUtf8(style).value();
    set(userFile, "SETTINGS", "STYLE", "NADPIS");
    inSettings("6", [](Driver& d) {
        EXPECT_EQ(d.row(textStyle, 0).text, "kóty");
        EXPECT_EQ(d.tooltip(textStyle), "Nadpisy s dlouhým jménem");
        retype(d, textStyle, "Moje");
        EXPECT_EQ(d.tooltip(textStyle), "Moje");
        retype(d, bubbleHeight, "4,2");
        d.selectRow(descriptionHeight, "7.0");
        d.selectRow(bubbleColor, "Červená");
        d.selectRow(descriptionColor, "Fialová");
        retype(d, bubbleWidth, "0.75");
        retype(d, descriptionWidth, "široký");
        retype(d, lineLength, "12.5");
        d.check(auxiliaryLine, false);
        retype(d, diameter, "8");
        d.check(hasEdges, true);
        retype(d, edges, "3.7");
        retype(d, angle, "30");
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
        EXPECT_EQ(enabledInputs(d), "00010000000111");
        EXPECT_FALSE(d.enabled("Bublina"));
        EXPECT_NE(d.focusedControl().find(textStyle), std::string::npos);
        d.closeDialog();
    });
    inSettings("13", [](Driver& d) {
        EXPECT_EQ(enabledInputs(d), "11111111011000");
        d.check(auxiliaryLine, false);
        EXPECT_EQ(enabledInputs(d), "11011111011000");
        d.check(hasEdges, true);
        EXPECT_EQ(enabledInputs(d), "11011111111000");
        d.focus(followsOpening);
        d.key("Space");
        EXPECT_EQ(enabledInputs(d), "11011111110000");
        d.check(auxiliaryLine, true);
        d.check(hasEdges, false);
        EXPECT_EQ(enabledInputs(d), "11111111010000");
        d.press("Zrušit");
    });
    EXPECT_EQ(setting("IF_ANGLE1"), "none");
}

TEST_F(AnnotationDialog, TooFewEdgesAreRefusedAndNothingIsWritten) {
    set(userFile, "SETTINGS", "EDGES", "2");
    set(userFile, "SETTINGS", "COLOR1", "8");
    set(userFile, "SETTINGS", "DESCRIPTION", "4");
    const Bytes before = *bench.read(path(userFile));
    const auto refusal = [](Driver& d) {
        const auto look = d.messageBox();
        EXPECT_EQ(look.text.substr(0, 34), "Hodnota parametru 'počet hran' v ");
        EXPECT_EQ(look.caption, "Stand-in");
        EXPECT_EQ(look.icon, "stop");
        d.answer("OK");
    };
    bench.user().inDialog("Návrh překladu", [](Driver& d) { d.press(open); });
    bench.user().inDialog(open, [](Driver& d) {
        EXPECT_EQ(d.text(bubbleColor), "");
        d.press("OK");
    });
    bench.user().then(refusal);
    bench.user().inDialog(open, [&](Driver& d) {
        EXPECT_EQ(bench.read(path(userFile)), before);
        d.check(hasEdges, true);
        retype(d, edges, "hran: 6");
        d.press("OK");
    });
    bench.user().then(refusal);
    bench.user().inDialog(open, [](Driver& d) {
        EXPECT_EQ(d.editSelection(edges), "0-7");
        d.type("6 hran");
        d.press("OK");
    });
    bench.user().inDialog("Návrh překladu", [](Driver& d) { d.press("Zrušit"); });
    run();
    EXPECT_EQ(setting("EDGES"), "6 hran");
    EXPECT_EQ(setting("COLOR1"), "-1");
}

TEST_F(AnnotationDialog, HelpIsThatOfTheDesignDialog) {
    inSettings("4", [](Driver& d) {
        d.press("Nápověda");
        EXPECT_EQ(d.title(), open);
        d.press("Zrušit");
    });
    EXPECT_EQ(bench.host().helpTopics, std::vector<int>{99});
}

TEST_F(AnnotationDialog, OpensOnlyForWhatIsDrawnInItsStyle) {
    set(userFile, "SETTINGS", "DESCRIPTION", "9");
    run([](Driver& d) {
        EXPECT_FALSE(d.enabled(open));
        d.check("Popis", true);
        EXPECT_TRUE(d.enabled(open));
        d.check("Bublinu", true);
        d.check("Popis", false);
        EXPECT_TRUE(d.enabled(open));
        d.check("Bublinu", false);
        EXPECT_FALSE(d.enabled(open));
        d.check("Úhlopříčky", false);
        EXPECT_FALSE(d.enabled(open));
        d.press("Zrušit");
    });
}

TEST_F(AnnotationDialog, TheBubbleFieldIsCutToTheLabelAtTheNextChangeOfTheDesign) {
    run([this](Driver& d) {
        const auto name = [this] { return get("LXDATA6DLG.dat", "DLG_SET", "num_bub"); };
        retype(d, bubbleField, "ABCDEF");
        EXPECT_EQ(name(), "ABCDE");
        EXPECT_NE(d.describe("design").find("record 0 label ABC\n"), std::string::npos);
        d.press("1 zalomení");
        EXPECT_EQ(d.text(bubbleField), "ABC");
        EXPECT_EQ(name(), "ABC");
        // Without a label the design takes the proposal again.
        d.focus(bubbleField);
        d.key("Ctrl+A");
        d.key("Delete");
        EXPECT_EQ(name(), "");
        d.press("Zrušit zalomení");
        EXPECT_EQ(d.text(bubbleField), "002");
        EXPECT_EQ(name(), "002");
        d.press("Zrušit");
    });
}

}  // namespace
}  // namespace lx
