#include "catalogue/my_edit.h"

#include <gtest/gtest.h>

#include "tests/support/bench.h"

namespace lx {
namespace {

constexpr int lengthId = 101;
constexpr int weightId = 102;
constexpr int nameId = 103;
constexpr ControlTemplate controls[] = {
    {ControlKind::label, 201, "Length:", {7, 7, 50, 8}, 0},
    {ControlKind::edit, lengthId, "", {60, 7, 50, 12}, 0},
    {ControlKind::label, 202, "Weight:", {7, 27, 50, 8}, 0},
    {ControlKind::edit, weightId, "", {60, 27, 50, 12}, 0},
    {ControlKind::label, 203, "Name:", {7, 47, 50, 8}, 0},
    {ControlKind::edit, nameId, "", {60, 47, 50, 12}, 0},
    {ControlKind::button, id::ok, "OK", {7, 67, 50, 14}, style::defaultButton},
};
const DialogTemplate layout{"fields", "Fields", 120, 90, controls};

class MyEdit : public ::testing::Test {
protected:
    void run() {
        bench.user().inDialog("Fields", [](Driver& d) { d.press("OK"); });
        dialog->runModal();
        EXPECT_EQ(bench.user().failure(), "");
    }

    Bench bench;
    std::unique_ptr<Dialog> dialog = bench.platform().createDialog(layout, {});
    CMyEdit length{bench.platform(), *dialog, dialog->get<Edit>(lengthId), 4, 0};
    CMyEdit weight{bench.platform(), *dialog, dialog->get<Edit>(weightId), 12, 1};
    CMyEdit name{bench.platform(), *dialog, dialog->get<Edit>(nameId), 5, -1};
};

TEST_F(MyEdit, TypingStopsAtTheLimitUnlessItReplaces) {
    bench.user().inDialog("Fields", [](Driver& d) {
        d.focus("Name:");
        d.type("ABCDEF");
        EXPECT_EQ(d.text("Name:"), "ABCDE");
        d.key("Home");
        d.key("Delete");
        EXPECT_EQ(d.text("Name:"), "ABCDE");
        d.key("Ctrl+A");
        d.type("x");
        EXPECT_EQ(d.text("Name:"), "x");
        d.type("yzuv");
        d.key("Backspace");
        EXPECT_EQ(d.text("Name:"), "xyzu");
        d.key("Home");
        d.key("Delete");
        EXPECT_EQ(d.text("Name:"), "yzu");
    });
    run();
}

TEST_F(MyEdit, EnterFormatsTheFieldAndMovesOn) {
    bench.user().inDialog("Fields", [](Driver& d) {
        d.focus("Length:");
        d.type("-5");
        d.key("Enter");
        EXPECT_EQ(d.text("Length:"), "-5");
        EXPECT_EQ(d.focusedControl().substr(0, 4), "#102");
        d.type("12.25");
        d.key("Enter");
        EXPECT_EQ(d.text("Weight:"), "12.3");
        d.type("5-");
        d.key("Enter");
        EXPECT_EQ(d.text("Name:"), "5-");
        EXPECT_EQ(d.focusedControl().substr(0, 2), "#1");
    });
    run();
}

TEST_F(MyEdit, WhatIsNoNumberIsReportedAndBecomesZero) {
    for (const std::string wrong : {"12,5", "", "5-", "1.2.3", "+1", " 1", "1e3"}) {
        bench.user().inDialog("Fields", [=](Driver& d) {
            d.focus("Weight:");
            d.key("Ctrl+A");
            d.key("Delete");
            d.type(wrong);
            d.key("Enter");
            EXPECT_EQ(d.text("Weight:"), "0.0") << wrong;
        });
        bench.user().then([=](Driver& d) {
            const host::MessageBoxLook box = d.messageBox();
            EXPECT_EQ(box.text, wrong);
            EXPECT_EQ(box.caption, "Chybně zadané číslo");
            EXPECT_EQ(box.icon, "stop");
            d.answer("OK");
        });
    }
    run();
}

}  // namespace
}  // namespace lx
