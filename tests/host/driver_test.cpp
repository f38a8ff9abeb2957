// What a driver does as the user and reads back where scenarios do not show it. The same acts have
// the same effect on every platform.
#include "host/driver/driver.h"

#include <gtest/gtest.h>

#include <span>

#include "tests/support/bench.h"

namespace lx {
namespace {

constexpr int nameField = 10;
constexpr int iconButton = 24;

constexpr ControlTemplate controls[] = {
    {ControlKind::label, 9, "&Název:"_cz, {5, 5, 40, 8}},
    {ControlKind::edit, nameField, "", {50, 4, 80, 12}},
    {ControlKind::label, 11, "Popis:"_cz, {5, 22, 40, 8}},
    {ControlKind::multilineEdit, 12, "", {50, 20, 80, 24}, style::verticalScroll},
    {ControlKind::checkBox, 20, "&Bublinu"_cz, {140, 4, 60, 10}},
    {ControlKind::radioButton, 21, "z náhledu"_cz, {140, 18, 60, 10}},
    {ControlKind::radioButton, 22, "z nabídky"_cz, {140, 30, 60, 10}},
    {ControlKind::button, 23, "Zamčeno"_cz, {140, 44, 50, 14}, style::disabled},
    {ControlKind::iconButton, iconButton, "", {195, 44, 16, 14}},
    {ControlKind::button, 41, "Skryté"_cz, {140, 150, 50, 14}, style::hidden},
    {ControlKind::button, id::ok, "OK", {140, 176, 40, 14}, style::defaultButton},
    {ControlKind::button, id::cancel, "Zrušit"_cz, {184, 176, 40, 14}},
};
constexpr DialogTemplate layout{"everything", "Všechno"_cz, 232,
                                196,          controls,     DialogStyle::resizable};

using Texts = std::vector<std::string>;

class DriverTest : public testing::Test {
protected:
    DriverTest() : dialog(bench.platform().createDialog(layout, {})) {
        at<Button>(iconButton).setTooltip([] { return Text("Vložit překlad"_cz); });
    }

    template <class C>
    C& at(int controlId) {
        return dialog->get<C>(controlId);
    }
    void then(std::function<void(Driver&)> step) { bench.user().then(std::move(step)); }
    // Runs the dialog for the steps, the last of which must close it.
    int run() {
        const int result = dialog->runModal();
        EXPECT_EQ(bench.user().failure(), "");
        return result;
    }
    void expectFaults(std::span<const ControlTemplate> bad, const Texts& told, std::size_t count,
                      const std::function<void()>& fill) {
        const DialogTemplate faulty{"faulty", "Chybný"_cz, 150, 80, bad};
        dialog = bench.platform().createDialog(faulty, {});
        fill();
        then([&](Driver& d) {
            const Texts faults = d.layoutFaults();
            std::string all;
            for (const std::string& fault : faults) all += fault + "\n";
            EXPECT_EQ(faults.size(), count) << all;
            for (const std::string& what : told) {
                EXPECT_NE(all.find(what), std::string::npos) << what << " in " << all;
            }
            d.closeDialog();
        });
        EXPECT_EQ(run(), id::cancel);
    }
    Bench bench;
    std::unique_ptr<Dialog> dialog;
};

TEST_F(DriverTest, FindsControlsAsAUserNamesThem) {
    then([](Driver& d) {
        EXPECT_EQ(d.focusedControl(), "#10 Název");
        EXPECT_EQ(d.text("Zamčeno") + d.text("#11") + d.tooltip("#24"),
                  "ZamčenoPopis:Vložit překlad");
        EXPECT_TRUE(d.enabled("Vložit překlad"));
        EXPECT_TRUE(d.exists("Popis:"));
        EXPECT_FALSE(d.exists("Název překladu"));
        for (const char* name : {"Zamčeno", "Skryté", "Nikde"}) {
            EXPECT_THROW(d.press(name), DriverError) << name;
        }
        EXPECT_THROW(d.check("OK", true), DriverError);
        EXPECT_EQ(d.layoutFaults(), Texts{});
        for (const char* line : {"button #23 Zamčeno disabled\n", "button #24 Vložit překlad\n",
                                 "edit #10 Název =  focused\n", "button #41 Skryté hidden\n"}) {
            EXPECT_NE(d.dump().find(line), std::string::npos) << line << " in " << d.dump();
        }
        d.press("Zrušit");
    });
    EXPECT_EQ(run(), id::cancel);
}

TEST_F(DriverTest, TypesAndPressesKeysThroughTheirHandlers) {
    at<Edit>(nameField).onKey = [](const KeyEvent& event) {
        return event.key == '5' ? KeyAnswer::swallow : KeyAnswer::pass;
    };
    then([](Driver& d) {
        d.type("ře 150,");
        EXPECT_EQ(d.text("Název"), "ře 10,");
        for (const char* key : {"Home", "Shift+Right"}) d.key(key);
        EXPECT_EQ(d.editSelection("Název"), "0-1");
        EXPECT_EQ(d.defaultButton(), "OK");

        d.key("Tab");
        d.type("a\r\nb");
        EXPECT_EQ(d.text("Popis"), "a\r\nb");
        d.key("Tab");
        d.key("Space");
        EXPECT_TRUE(d.checked("Bublinu"));
        d.key("Alt+B");
        EXPECT_FALSE(d.checked("Bublinu"));
        d.check("z nabídky", true);
        EXPECT_FALSE(d.checked("z náhledu"));
        d.key("Up");
        EXPECT_TRUE(d.checked("z náhledu"));
        d.focus("Název");
        EXPECT_EQ(d.editSelection("Název"), "0-6");
        d.key("Shift+Tab");
        EXPECT_EQ(d.focusedControl(), "#2 Zrušit");
        EXPECT_EQ(d.defaultButton(), "Zrušit");
        d.focus("Název");
        d.key("Enter");
    });
    EXPECT_EQ(run(), id::ok);
}

TEST_F(DriverTest, AFailedStepIsKeptAndEverythingCancelled) {
    at<Button>(iconButton).onClick = [&] {
        bench.platform().messageBox({dialog.get(), nullptr}, "Ano?", "Otázka"_cz,
                                    MessageIcon::question, MessageButtons::yesNo);
    };
    at<Button>(id::cancel).enable(false);
    bool returned = false;
    then([&](Driver& d) {
        d.press("Vložit překlad");
        returned = true;
    });
    then([&](Driver& d) {
        EXPECT_FALSE(returned) << "what the press opened still stands";
        EXPECT_THROW(d.answer("Cancel"), DriverError);
        EXPECT_THROW(d.press("OK"), DriverError);
        throw DriverError("cannot go on");
    });
    then([](Driver&) { FAIL() << "runs after a failed step"; });
    EXPECT_NE(dialog->runModal(), id::ok);
    EXPECT_EQ(bench.user().failure(), "cannot go on");
}

TEST_F(DriverTest, FindsFaultsOfALayout) {
    constexpr ControlTemplate bad[] = {
        {ControlKind::button, 1, "Mnohem delší text"_cz, {5, 5, 20, 14}},
        {ControlKind::button, 2, "", {20, 10, 20, 14}},
        {ControlKind::groupBox, 3, "", {0, 0, 60, 60}},
        {ControlKind::edit, 4, "", {130, 30, 40, 12}},
    };
    expectFaults(bad, {"#1", "overlaps", "#4", "sticks out", "cuts its text"}, 3, [] {});
}

#if defined(_WIN32)
// Only real windows have fonts: what is a pixel too small for its text, at any dpi.
TEST_F(DriverTest, FindsTextsThatAreCut) {
    constexpr ControlTemplate bad[] = {
        {ControlKind::label, 1, "Označení bubliny:"_cz, {5, 5, 40, 8}},
        {ControlKind::label, 2, "Popis:"_cz, {60, 5, 40, 6}},
        {ControlKind::checkBox, 3, "Sklopený řez"_cz, {5, 20, 46, 10}},
        {ControlKind::radioButton, 4, "z náhledu"_cz, {60, 20, 30, 10}},
        {ControlKind::edit, 5, "", {5, 35, 40, 8}},
        {ControlKind::dropDownList, 6, "", {60, 35, 40, 12}},
        {ControlKind::groupBox, 7, "Prvky překladu k vymazání:"_cz, {5, 55, 60, 20}},
        {ControlKind::edit, 8, "", {100, 5, 40, 12}},
        {ControlKind::button, 9, "Nápověda"_cz, {100, 20, 44, 10}},
    };
    expectFaults(bad, {"#1 ", "#2 ", "#3 ", "#4 ", "#5 ", "#6 ", "#7 "}, 7, [this] {
        at<ComboBox>(6).add("Keramické překlady"_cz);
        at<ComboBox>(6).select(0);
    });
}
#endif

}  // namespace
}  // namespace lx
