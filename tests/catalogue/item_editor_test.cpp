// The item editor as a user meets it.
#include <gtest/gtest.h>

#include "catalogue/CEdDlg1.h"
#include "tests/support/bench.h"

namespace lx {
namespace {

constexpr const char* title = "Nový překlad";
constexpr const char* designation = "Označení";
constexpr const char* length = "Délka [mm]";
constexpr const char* height = "Výška [mm]";
constexpr const char* maxOpening = "Max.otvor [mm]";
constexpr const char* precastWeight = "Hmotnost [kg]";
constexpr const char* qu = "qu [kN/m]";
constexpr const char* mark = "X (označení pro skladbu v VDLINTEL.TXT)";
constexpr const char* precastFields[] = {designation,   length, "Šířka [mm]", height, maxOpening,
                                         precastWeight, qu,     "Popis",      mark};
constexpr const char* steelFields[] = {designation, "Šířka [mm]", height, "Hmotnost [kg/m]",
                                       qu,          "Popis",      mark};

struct ItemEditor : testing::Test {
    bool run(CEdDlg1& editor, std::function<void(Driver&)> steps) {
        bench.user().inDialog(toUtf8(editor.title), std::move(steps));
        const bool confirmed = editor.DoModal();
        EXPECT_EQ(bench.user().failure(), "");
        return confirmed;
    }
    static void retype(Driver& d, const char* field, std::string_view text) {
        d.focus(field);
        d.key("Ctrl+A");
        d.key("Delete");
        d.type(text);
    }
    static std::string focusedNumber(Driver& d) {
        return d.focusedControl().substr(0, d.focusedControl().find(' '));
    }
    static std::string joined(const EditorTexts& t) {
        std::string all;
        for (const Text* text : {&t.designation, &t.length, &t.width, &t.height, &t.maxOpening,
                                 &t.weight, &t.qu, &t.description, &t.mark}) {
            all += toUtf8(*text) + "|";
        }
        return all;
    }

    Bench bench;
    CEdDlg1 precast{bench.platform(), bench.host(), {}, CatalogueKind::precast};
    CEdDlg1 steel{bench.platform(), bench.host(), {}, CatalogueKind::steel};
};

TEST_F(ItemEditor, OpensWithItsTextsAndTabsThroughThemInOrder) {
    precast.texts.designation = "RZP 1/10"_cz;
    precast.texts.mark = "A"_cz;
    EXPECT_TRUE(run(precast, [](Driver& d) {
        EXPECT_EQ(d.layoutFaults(), std::vector<std::string>{});
        EXPECT_EQ(d.text(designation), "RZP 1/10");
        EXPECT_EQ(d.editSelection(designation), "0-8");
        for (const char* field : precastFields) {
            const std::string at = focusedNumber(d);
            d.focus(field);
            EXPECT_EQ(focusedNumber(d), at) << field;
            d.key("Tab");
        }
        EXPECT_EQ(focusedNumber(d), "#1");
        d.press("Nápověda");
        d.press("OK");
    }));
    EXPECT_EQ(joined(precast.texts), "RZP 1/10|0|0|0||0.0|0.000||A|");
    EXPECT_EQ(bench.host().helpTopics, std::vector<int>{100});
}

TEST_F(ItemEditor, SteelHasNoLengthAndNoOpeningAndKeepsTheirValues) {
    ScreenSize tall;
    run(precast, [&](Driver& d) {
        tall = d.dialogSize();
        d.key("Esc");
    });
    steel.title = "Upravit průřez"_cz;
    steel.texts.length = "7"_cz;
    steel.texts.maxOpening = "9"_cz;
    ASSERT_TRUE(run(steel, [&](Driver& d) {
        EXPECT_EQ(d.layoutFaults(), std::vector<std::string>{});
        // Two rows of 16 units; 13 pixels are 8 units.
        EXPECT_NEAR(tall.height - d.dialogSize().height, 2 * 16 * 13 / 8, 12);
        EXPECT_EQ(d.dialogSize().width, tall.width);
        for (const char* hidden : {length, maxOpening}) {
            EXPECT_FALSE(d.exists(hidden) && d.visible(hidden)) << hidden;
        }
        EXPECT_FALSE(d.exists(precastWeight));
        for (const char* field : steelFields) {
            const std::string at = focusedNumber(d);
            d.focus(field);
            EXPECT_EQ(focusedNumber(d), at) << field;
            d.key("Tab");
        }
        retype(d, "Hmotnost [kg/m]", "12.25");
        d.press("OK");
    }));
    // OK takes the texts as they stand.
    EXPECT_EQ(joined(steel.texts), "|7|0|0|9|12.25|0.000|||");
}

TEST_F(ItemEditor, EnterChecksEachFieldAndGoesOnToOk) {
    bench.user().inDialog(title, [](Driver& d) {
        for (const char* text : {"Žď 5-", "1500", "-5", "7.6", "", "12.25", "0.0005", "vně", "B"}) {
            if (*text != '\0') d.type(text);
            d.key("Enter");
        }
        // From the mark to OK.
        EXPECT_EQ(focusedNumber(d), "#1");
        EXPECT_EQ(d.text(maxOpening), "0");
        d.key("Enter");
    });
    bench.user().then([](Driver& d) {
        EXPECT_EQ(d.messageBox().text, "");
        EXPECT_EQ(d.messageBox().caption, "Chybně zadané číslo");
        d.answer("OK");
    });
    ASSERT_TRUE(precast.DoModal());
    EXPECT_EQ(bench.user().failure(), "");
    EXPECT_EQ(joined(precast.texts), "Žď 5-|1500|-5|8|0|12.3|0.001|vně|B|");
}

TEST_F(ItemEditor, TypingStopsAtEachFieldsLimit) {
    run(precast, [](Driver& d) {
        const std::size_t limits[] = {50, 10, 10, 10, 10, 12, 12, 50, 1};
        for (std::size_t i = 0; i < std::size(limits); ++i) {
            retype(d, precastFields[i], std::string(limits[i] + 1, '1'));
            EXPECT_EQ(d.text(precastFields[i]).size(), limits[i]) << precastFields[i];
        }
        d.key("Esc");
    });
}

TEST_F(ItemEditor, OpensAgainWithWhatWasEnteredAndKeepsItsTextsOnCancel) {
    EXPECT_TRUE(run(precast, [](Driver& d) {
        retype(d, qu, "x");
        d.press("OK");
    }));
    bench.user().then([](Driver& d) {
        EXPECT_EQ(d.messageBox().text, "Nebylo vyplněno jméno.");
        EXPECT_EQ(d.messageBox().caption, "Upozornění");
        EXPECT_EQ(d.messageBox().icon, "stop");
        d.answer("OK");
    });
    precast.showMessage(str(27));
    EXPECT_FALSE(run(precast, [](Driver& d) {
        EXPECT_EQ(d.text(qu), "x");
        EXPECT_EQ(d.text(designation), "");
        retype(d, designation, "P1");
        d.press("Zrušit");
    }));
    EXPECT_EQ(joined(precast.texts), "|0|0|0||0.0|x|||");
}

}  // namespace
}  // namespace lx
