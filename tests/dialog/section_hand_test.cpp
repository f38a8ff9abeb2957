// The user's hand in the section preview: dragging, and values typed in place.
#include "composition/section_scale.h"
#include "tests/dialog/design_dialog_bench.h"

namespace lx {
namespace {

constexpr const char* section = "section";
constexpr const char* box = "#1022";
constexpr const char* dialogFile = "LXDATA6DLG.dat";

struct SectionHand : DesignDialog {
    RezChain given;

    void SetUp() override {
        DesignDialog::SetUp();
        set(dialogFile, "DLG_SET", "tab", "1");
        given.append(headOf(300, "S"));
        given.head()->length = 1200;
    }
    CRez* add(Kind kind, std::int32_t width, const char* name) {
        CRez* added = given.append(layer(kind, width, name));
        added->height = 150;
        return added;
    }
    int runOn(std::function<void(Driver&)> steps) {
        give(given);
        return run(std::move(steps));
    }
    // Middle of a strip of the wall, in pixels, at the height of the layers.
    ScreenPoint across(double millimetres) const {
        const SectionScale scale = sectionScale(300, values.sectionSize);
        return {scale.origin.x + static_cast<int>(millimetres * scale.scale),
                scale.origin.y - static_cast<int>(75 * scale.scale)};
    }
    static void click(Driver& d, std::string_view region) {
        d.mouseDown(section, d.regionPoint(section, region));
    }
};

TEST_F(SectionHand, ADragIsMarkedAndEndsWithTheButtonOrTheLayer) {
    for (const char* name : {"A", "B", "C"}) add(Kind::precast, 60, name);
    runOn([this](Driver& d) {
        const auto drawn = [&d](const std::string& what) {
            return d.drawing(section).find(what) != std::string::npos;
        };
        // Over another layer the marker stands at its first face, else at the second wall face.
        d.mouseDown(section, across(30));
        for (const auto& [over, face] : {std::pair{90, 60}, {250, 300}}) {
            d.mouseMove(section, across(over), true);
            EXPECT_TRUE(drawn("line (" + std::to_string(across(face).x) + ",-500)"));
        }
        // What was dragged is removed meanwhile.
        d.key("Delete");
        d.mouseUp(section, across(250));
        EXPECT_TRUE(has(d, "record 1 name B") && has(d, "record 2 name C"));
        // Released elsewhere: nothing moves, and a button pressed elsewhere drags nothing.
        d.mouseDown(section, across(90));
        d.mouseMove(section, across(30), true);
        d.mouseMove(section, across(250), false);
        EXPECT_FALSE(drawn("width 1 dot"));
        d.mouseMove(section, across(30), true);
        d.mouseUp(section, across(30));
        EXPECT_TRUE(has(d, "record 1 name B") && has(d, "current 2"));
        d.press("OK");
    });
}

TEST_F(SectionHand, EveryKindTurnsByFifty) {
    add(Kind{60}, 40, "A");
    add(Kind{50}, 40, "B");
    runOn([](Driver& d) {
        for (const char* name : {"layer 1", "layer 2"}) {
            click(d, name);
            click(d, "mirror");
        }
        EXPECT_TRUE(has(d, "record 1 kind 10") && has(d, "record 2 kind 0"));
        d.press("OK");
    });
}

TEST_F(SectionHand, ValuesTypedBeforeAreOfferedAndCanBeForgotten) {
    given.head()->addBend(175, 40, false);
    for (const auto& [key, value] :
         {std::pair{"nr", "3"}, {"0", "150"}, {"1", "-50"}, {"2", "200"}}) {
        set(dialogFile, "COMBO_NADPR2_1", key, value);
    }
    runOn([](Driver& d) {
        click(d, "run 1");
        EXPECT_EQ(d.rowCount(box), 3);
        for (const auto& [row, item] : {std::pair{0, "150"}, {1, "200"}, {2, "175"}}) {
            EXPECT_EQ(d.row(box, row).text, item);
        }
        EXPECT_EQ(d.text(box), "175");
        EXPECT_EQ(d.editSelection(box), "0-3");
        // The open list is at what the field shows, so Delete forgets that; it closes the edit.
        EXPECT_TRUE(d.selectedRows(box).empty());
        d.key("Alt+Down");
        EXPECT_EQ(d.selectedRows(box), std::vector{2});
        d.key("Delete");
        EXPECT_FALSE(d.visible(box));
        EXPECT_NE(d.focusedControl().find(section), std::string::npos);
        EXPECT_TRUE(has(d, "bend 0 run 175"));
        click(d, "run 1");
        // Typed text is no remembered value, open list or not: the key deletes a character.
        d.type("15");
        d.key("Alt+Down");
        EXPECT_EQ(d.text(box), "15");
        d.key("Home");
        d.key("Delete");
        EXPECT_EQ(d.text(box), "5");
        d.key("Enter");
        EXPECT_TRUE(has(d, "bend 0 run 5"));
        d.press("OK");
    });
    std::string stored;
    for (const char* key : {"0", "1", "2", "3", "nr"}) {
        stored += get(dialogFile, "COMBO_NADPR2_1", key) + " ";
    }
    EXPECT_EQ(stored, "150 -50 200 175 4 ");
}

TEST_F(SectionHand, TheBoxStandsOverTheNumberAtItsOwnSize) {
    given.head()->addBend(100, 40, false);
    runOn([](Driver& d) {
        const ScreenArea own = d.area(box);
        const ScreenArea picture = d.area(section);
        constexpr int edge = 2;  // around the picture
        for (const char* number : {"run 1", "step 1"}) {
            const ScreenPoint p = d.regionPoint(section, number);
            click(d, number);
            const ScreenArea area = d.area(box);
            EXPECT_EQ(area.right - area.left, own.right - own.left);
            EXPECT_EQ(area.bottom - area.top, own.bottom - own.top);
            EXPECT_EQ(area.left + (area.right - area.left) / 2, picture.left + edge + p.x);
            EXPECT_EQ(area.top + (area.bottom - area.top) / 2, picture.top + edge + p.y);
            d.key("Esc");
        }
        d.press("Zrušit");
    });
}

TEST_F(SectionHand, OneRememberedValueStays) {
    given.head()->addBend(100, 40, false);
    runOn([](Driver& d) {
        click(d, "step 1");
        d.key("Alt+Down");
        d.key("Delete");
        EXPECT_TRUE(d.visible(box));
        EXPECT_EQ(d.text(box), "");
        d.key("Esc");
        d.key("Esc");
        EXPECT_TRUE(has(d, "bend 0 step 40"));
        d.press("OK");
    });
    EXPECT_EQ(get(dialogFile, "COMBO_NADPR1_1", "0"), "40");
}

TEST_F(SectionHand, AnEditIsTakenByTheNextActAndLeftByEsc) {
    given.head()->addBend(100, 40, false);
    given.head()->addBend(-50, 10, false);
    runOn([this](Driver& d) {
        // What was put in, unchanged, is no new value: a negative run stays negative.
        click(d, "run 2");
        d.key("Enter");
        EXPECT_TRUE(has(d, "bend 1 run -50"));
        click(d, "run 1");
        d.type("120");
        d.key("Esc");
        EXPECT_TRUE(has(d, "bend 0 run 100"));
        // Typing and clicking the next number: taken, and the next edit begins.
        click(d, "run 1");
        d.type("-130");
        click(d, "step 2");
        EXPECT_TRUE(has(d, "bend 0 run 130"));
        EXPECT_EQ(d.text(box), "10");
        d.type("15");
        d.press("Vložit izolaci");
        EXPECT_FALSE(d.visible(box));
        EXPECT_TRUE(has(d, "bend 1 step 15"));
        EXPECT_TRUE(has(d, "record 1 width 300"));
        click(d, "step 1");
        d.type("77");
        d.key("Tab");
        EXPECT_TRUE(has(d, "bend 0 step 77"));
        click(d, "step 1");
        d.type("78");
        d.selectTab("Geometrie");
        EXPECT_TRUE(has(d, "bend 0 step 78"));
        // The bend under an edit goes with the shape.
        click(d, "run 2");
        d.type("90");
        d.press("Zrušit zalomení");
        EXPECT_FALSE(d.visible(box));
        EXPECT_FALSE(has(d, "bend 0 run 130"));
        d.press("OK");
    });
    EXPECT_EQ(takeHandOver().head()->bends, nullptr);
}

TEST_F(SectionHand, KeysGoThroughTheNumbers) {
    given.head()->addBend(100, 40, false);
    add(Kind::insulation, 80, "I");
    runOn([](Driver& d) {
        click(d, "layer 1");
        d.key("F2");
        d.type("110");
        for (const auto& [key, shown] : {std::pair{"F2", "40"},
                                         {"F2", "80"},
                                         {"Shift+F2", "40"},
                                         {"Esc", ""},
                                         {"Shift+F2", "110"},
                                         {"Shift+F2", "150"}}) {
            d.key(key);
            EXPECT_EQ(d.visible(box) ? d.text(box) : "", shown);
        }
        d.type("160");
        d.key("Enter");
        EXPECT_TRUE(has(d, "bend 0 run 110"));
        EXPECT_TRUE(has(d, "record 1 height 160"));
        d.press("OK");
    });
}

TEST_F(SectionHand, AWidthThatDoesNotFitTheWallIsRefused) {
    add(Kind::precast, 160, "A");
    add(Kind::space, 100, "M");
    const auto typeWidth = [this](const char* width, const char* leave) {
        bench.user().then([=](Driver& d) {
            EXPECT_TRUE(has(d, "record 2 width 100"));
            click(d, "layer 2");
            click(d, "width");
            d.type(width);
            leave == std::string_view("OK") ? d.press(leave) : d.key(leave);
        });
    };
    const auto answerMessage = [this] { bench.user().then([](Driver& d) { d.answer("OK"); }); };
    typeWidth("141", "Tab");
    answerMessage();
    typeWidth("900", "OK");
    answerMessage();
    typeWidth("140", "OK");
    give(given);
    EXPECT_EQ(run(), 1);
    EXPECT_EQ(namesOf(takeHandOver()), "A 160;M 140;");
}

}  // namespace
}  // namespace lx
