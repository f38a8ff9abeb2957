// The item editor and the dialog for a new steel type as a user meets them.
#include <gtest/gtest.h>

#include "browser/CEdDlg1.h"
#include "browser/CTypPrurez.h"
#include "tests/support/bench.h"

namespace lx {
namespace {

constexpr const char* title = "Nový překlad";
constexpr const char* maxOpening = "Max.otvor [mm]";
constexpr const char* precastFields[] = {
    "Označení",   "Délka [mm]", "Šířka [mm]",
    "Výška [mm]", maxOpening,   "Hmotnost [kg]",
    "qu [kN/m]",  "Popis",      "X (označení pro skladbu v VDLINTEL.TXT)"};

struct ItemEditor : testing::Test {
    template <class Dialog>
    bool run(Dialog& dialog, const char* caption, std::function<void(Driver&)> steps) {
        bench.user().inDialog(caption, std::move(steps));
        const bool confirmed = dialog.doModal();
        EXPECT_EQ(bench.user().failure(), "");
        return confirmed;
    }
    static std::string focusedNumber(Driver& d) {
        return d.focusedControl().substr(0, d.focusedControl().find(' '));
    }
    static std::string joined(const EditorTexts& t) {
        std::string all;
        for (const Text* text : {&t.designation, &t.length, &t.width, &t.height, &t.maxOpening,
                                 &t.weight, &t.qu, &t.description, &t.compositionMark}) {
            all += toUtf8(*text) + "|";
        }
        return all;
    }

    Bench bench;
    CEdDlg1 precast{bench.platform(), bench.host(), {}, CatalogueKind::precast};
    CEdDlg1 steel{bench.platform(), bench.host(), {}, CatalogueKind::steel};
};

TEST_F(ItemEditor, OpensWithItsTextsAndKeepsThemOnCancel) {
    precast.texts.designation = "RZP 1/10"_cz;
    precast.texts.compositionMark = "A"_cz;
    EXPECT_FALSE(run(precast, title, [](Driver& d) {
        EXPECT_EQ(d.editSelection("Označení"), "0-8");
        retype(d, "Označení", "P1");
        d.press("Nápověda");
        d.press("Zrušit");
    }));
    EXPECT_EQ(joined(precast.texts), "RZP 1/10|0|0|0||0.0|0.000||A|");
    EXPECT_EQ(bench.host().helpTopics, std::vector<int>{100});
}

TEST_F(ItemEditor, SteelHasNoLengthAndNoOpeningAndKeepsTheirValues) {
    steel.title = "Upravit průřez"_cz;
    steel.texts.length = "7"_cz;
    steel.texts.maxOpening = "9"_cz;
    ASSERT_TRUE(run(steel, "Upravit průřez", [&](Driver& d) {
        EXPECT_EQ(d.layoutFaults(), std::vector<std::string>{});
        EXPECT_FALSE(d.exists(maxOpening) && d.visible(maxOpening));
        for (const char* field :
             {precastFields[0], precastFields[2], precastFields[3], "Hmotnost [kg/m]",
              precastFields[6], precastFields[7], precastFields[8]}) {
            const std::string at = focusedNumber(d);
            d.focus(field);
            EXPECT_EQ(focusedNumber(d), at) << field;
            d.key("Tab");
        }
        EXPECT_EQ(focusedNumber(d), "#1");
        retype(d, "Hmotnost [kg/m]", "12.25");
        d.press("OK");
    }));
    // OK takes the texts as they stand.
    EXPECT_EQ(joined(steel.texts), "|7|0|0|9|12.25|0.000|||");
}

TEST_F(ItemEditor, EnterChecksEachFieldAndGoesOnToOk) {
    ASSERT_TRUE(run(precast, title, [](Driver& d) {
        for (const char* text :
             {"Žď 5-", "1500", "-5", "7.6", "9", "12.25", "0.0005", "vně", "B"}) {
            d.type(text);
            d.key("Enter");
        }
        EXPECT_EQ(focusedNumber(d), "#1");
        d.key("Enter");
    }));
    EXPECT_EQ(joined(precast.texts), "Žď 5-|1500|-5|8|9|12.3|0.001|vně|B|");
}

TEST_F(ItemEditor, WhatIsNoNumberIsReportedAndBecomesZero) {
    for (const std::string wrong : {"12,5", "", "5-", "1.2.3", "+1", " 1", "1e3"}) {
        bench.user().inDialog(title, [=](Driver& d) {
            retype(d, "Hmotnost [kg]", wrong);
            d.key("Enter");
            EXPECT_EQ(d.text("Hmotnost [kg]"), "0.0") << wrong;
        });
        bench.user().then([=](Driver& d) {
            EXPECT_EQ(d.messageBox().text, wrong);
            d.answer("OK");
        });
    }
    run(precast, title, [](Driver& d) { d.key("Esc"); });
}

TEST_F(ItemEditor, TypingStopsAtEachFieldsLimit) {
    run(precast, title, [](Driver& d) {
        const std::size_t limits[] = {50, 10, 10, 10, 10, 12, 12, 50, 1};
        for (std::size_t i = 0; i < std::size(limits); ++i) {
            retype(d, precastFields[i], std::string(limits[i] + 1, '1'));
            d.key("Ctrl+Alt+V");  // AltGr types where a layout has a character for it
            EXPECT_EQ(d.text(precastFields[i]).size(), limits[i]) << precastFields[i];
        }
        // In a full field Delete is a character too many, Backspace is not.
        d.key("Home");
        d.key("Delete");
        EXPECT_EQ(d.text(precastFields[8]), "1");
        d.key("End");
        d.key("Backspace");
        EXPECT_EQ(d.text(precastFields[8]), "");
        d.key("Esc");
    });
}

// Three of six shapes, of which the last click counts, and none is needed.
TEST_F(ItemEditor, ANewSteelTypeHasANameAndAShape) {
    CTypPrurez type{bench.platform(), bench.host(), {}};
    const auto shape = [](int number) { return "#" + std::to_string(1751 + number); };
    const char* const caption = "Přidání typu průřezu";
    EXPECT_TRUE(run(type, caption, [shape](Driver& d) {
        for (int n = 1; n <= 14; ++n) {
            EXPECT_EQ(d.visible(shape(n)), n <= 6) << n;
            EXPECT_EQ(d.visible(shape(n)) && d.enabled(shape(n)), n <= 3) << n;
        }
        EXPECT_EQ(d.tooltip(shape(3)), "U");
        d.type(std::string(51, 'x'));
        d.press("OK");
    }));
    EXPECT_EQ(type.name, std::string(50, 'x'));
    EXPECT_EQ(type.shape, 0);
    EXPECT_TRUE(run(type, caption, [shape](Driver& d) {
        d.key("Enter");  // to the shapes
        EXPECT_EQ(focusedNumber(d), "#1752");
        d.press(shape(2));
        d.press("I");
        d.press("OK");
    }));
    EXPECT_EQ(type.shape, 1);
}

}  // namespace
}  // namespace lx
