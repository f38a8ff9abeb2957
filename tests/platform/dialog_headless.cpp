// Focus, keys and the modal loop of a dialog in memory.
#include <stdexcept>

#include "headless_steps.h"
#include "platform/headless/dialog_svg.h"

namespace lx {
namespace {

constexpr int nameField = 10;
constexpr int countField = 11;
constexpr int notes = 12;
constexpr int tabs = 20;
constexpr int first = 30;
constexpr int second = 31;
constexpr int pageList = 40;
constexpr int colours = 41;
constexpr int view = 42;
constexpr int field = 43;

constexpr ControlTemplate dialogControls[] = {
    {ControlKind::label, -1, "&Name:", {4, 4, 40, 8}},
    {ControlKind::edit, nameField, "", {50, 4, 80, 12}},
    {ControlKind::edit, countField, "7", {50, 20, 80, 12}},
    {ControlKind::multilineEdit, notes, "", {50, 36, 80, 30}},
    {ControlKind::tabControl, tabs, "", {4, 70, 150, 90}},
    {ControlKind::radioButton, first, "&first", {4, 165, 40, 10}},
    {ControlKind::radioButton, second, "&second", {50, 165, 40, 10}},
    {ControlKind::button, id::ok, "OK", {4, 180, 50, 14}, style::defaultButton},
    {ControlKind::button, id::cancel, "Cancel", {60, 180, 50, 14}},
};
constexpr DialogTemplate dialogLayout{"sample", "Sample", 160, 200, dialogControls};

constexpr ControlTemplate pageControls[] = {
    {ControlKind::listBox, pageList, "", {4, 4, 60, 40}},
    {ControlKind::dropDownList, colours, "", {70, 4, 60, 60}},
    {ControlKind::listView, view, "", {70, 24, 60, 40}, style::multipleSelection},
    {ControlKind::picture, field, "", {4, 50, 60, 30}, style::focusable},
};
constexpr DialogTemplate pageLayout{"page", "Page", 140, 80, pageControls, DialogStyle::page};

constexpr ControlTemplate fixedControls[] = {
    {ControlKind::edit, nameField, "as it is", {4, 4, 40, 12}, style::readOnly}};

constexpr KeyEvent plain(int key) {
    return {key, false, false, false};
}

class SampleDialog : public HeadlessTest {
protected:
    SampleDialog() : dialog(make(dialogLayout)), page(make(pageLayout, &dialog)) {
        page.show(true);
        for (const char* row : {"one", "two", "three"}) list().append({row, {}, {}});
    }
    template <class C>
    C& at(int controlId) {
        HeadlessDialog& owner = controlId >= pageList ? page : dialog;
        return dynamic_cast<C&>(owner.item(controlId));
    }
    HeadlessEdit& edit(int controlId) { return at<HeadlessEdit>(controlId); }
    HeadlessButton& ok() { return at<HeadlessButton>(id::ok); }
    HeadlessListBox& list() { return at<HeadlessListBox>(pageList); }
    int focused() { return dialog.focusedControl() ? dialog.focusedControl()->id() : 0; }
    void type(std::u32string_view text) {
        for (const char32_t character : text) dialog.userType(character);
    }
    // Runs the dialog with one step, then presses Cancel.
    void run(std::function<void()> step) {
        then(std::move(step));
        then([this] { dialog.userClose(); });
        EXPECT_EQ(dialog.runModal(), id::cancel);
    }

    HeadlessDialog& dialog;
    HeadlessDialog& page;
};

TEST_F(SampleDialog, TabWalksThePagesAndOneRadioButton) {
    run([this] {
        std::vector<int> forward;
        for (int i = 0; i < 11; ++i) {
            forward.push_back(focused());
            dialog.userKey(plain(key::tab));
        }
        EXPECT_EQ(forward, (std::vector{nameField, countField, notes, tabs, pageList, colours, view,
                                        field, first, id::ok, id::cancel}));
        EXPECT_EQ(focused(), nameField);
        at<HeadlessRadioButton>(second).check(true);
        edit(countField).enable(false);
        page.show(false);
        dialog.userKey({key::tab, false, true, false});
        dialog.userKey({key::tab, false, true, false});
        dialog.userKey({key::tab, false, true, false});
        EXPECT_EQ(focused(), second) << "the checked one is the stop";
        dialog.userKey({key::tab, false, true, false});
        EXPECT_EQ(focused(), tabs) << "a hidden page is passed over";
    });
}

TEST_F(SampleDialog, EnterAndEscapePressTheRightButtons) {
    int pressed = 0;
    ok().onClick = [&] { ++pressed; };
    run([&] {
        dialog.userKey(plain(key::enter), '\r');
        EXPECT_EQ(pressed, 1);
        edit(notes).userType('\r');
        EXPECT_EQ(edit(notes).text(), "\r\n") << "Enter belongs to the many-line field";
        edit(nameField).userFocus();
        ok().enable(false);
        EXPECT_EQ(dialog.defaultButton(), &ok());
        dialog.userKey(plain(key::enter), '\r');
        EXPECT_EQ(pressed, 1) << "a disabled default button stops Enter";
        EXPECT_THROW(ok().userClick(), std::logic_error);
        EXPECT_EQ(pressed, 1);
        dialog.onKey = [](const KeyEvent& event) {
            return event.key == key::escape ? KeyAnswer::swallow : KeyAnswer::pass;
        };
        dialog.userKey(plain(key::escape));
        EXPECT_TRUE(dialog.running());
        dialog.onKey = nullptr;
        at<HeadlessButton>(id::cancel).userFocus();
        EXPECT_EQ(dialog.defaultButton()->id(), id::cancel);
    });
    EXPECT_EQ(dialog.runModal(), -1) << "its window is gone";
}

TEST_F(SampleDialog, HandlersSeeKeysBeforeTheFieldAndTheDialog) {
    run([this] {
        std::vector<int> seen;
        edit(nameField).onKey = [&](const KeyEvent& event) {
            seen.push_back(event.key);
            if (event.key == key::enter) return KeyAnswer::asTab;
            return event.key == 'B' ? KeyAnswer::swallow : KeyAnswer::pass;
        };
        int changes = 0;
        edit(nameField).onChange = [&] { ++changes; };
        type(U"abč.");
        EXPECT_EQ(edit(nameField).text(), "ač."_cz);
        EXPECT_EQ(changes, 3);
        EXPECT_NE(seen.back(), key::del) << "a point is no Delete key";
        type(U"Ω");
        EXPECT_EQ(edit(nameField).text(), "ač."_cz);
        EXPECT_EQ(platform.beeps(), 1);
        type(U"\r");
        EXPECT_EQ(focused(), countField) << "as Tab";
        type(U"9");
        EXPECT_EQ(edit(countField).text(), "9") << "Tab has selected the old text";
        edit(nameField).setText("x");
        EXPECT_EQ(changes, 3) << "a setter is no act";
    });
}

TEST_F(SampleDialog, EditsKeepCaretSelectionAndLineEnds) {
    run([this] {
        HeadlessEdit& text = edit(notes);
        text.userFocus();
        type(U"ab\rcd");
        dialog.userKey(plain(key::home));
        dialog.userKey(plain(key::backspace));
        EXPECT_EQ(text.text(), "abcd") << "a line end goes as a whole";
        dialog.userKey({key::left, false, true, false});
        EXPECT_EQ(text.selection().begin, 1);
        EXPECT_EQ(text.selection().end, 2);
        dialog.userKey({'X', true, false, false});
        EXPECT_EQ(text.text(), "acd");
        dialog.userKey(plain(key::end));
        dialog.userKey({'V', true, false, false});
        EXPECT_EQ(text.text(), "acdb");
        dialog.userKey({'A', true, false, false});
        text.userPaste("jeΩdna\r\ndvě");
        EXPECT_EQ(text.text(), "jedna\r\ndvě"_cz);
        EXPECT_EQ(platform.beeps(), 1);
        dialog.userKey({key::up, false, false, false});
        type(U"!");
        EXPECT_EQ(text.text(), "jed!na\r\ndvě"_cz);
        edit(countField).userPaste("1\r\n2");
        EXPECT_EQ(edit(countField).text(), "17") << "one line, put in front";
    });
}

TEST_F(HeadlessTest, ReadOnlyEditsKeepTheirText) {
    HeadlessDialog& dialog = make({"fixed", "", 50, 50, fixedControls});
    then([&] {
        auto& fixed = dynamic_cast<HeadlessEdit&>(dialog.item(nameField));
        fixed.userType(U'z');
        dialog.userKey(plain(key::del));
        EXPECT_EQ(fixed.text(), "as it is");
        dialog.end(1);
    });
    EXPECT_EQ(dialog.runModal(), 1);
}

TEST_F(SampleDialog, TheFocusLeavesWhatGoesAway) {
    run([this] {
        std::string events;
        edit(nameField).onBlur = [&] { events += "blur "; };
        edit(nameField).enable(false);
        EXPECT_EQ(focused(), countField);
        EXPECT_EQ(events, "") << "nobody has moved the focus";
        edit(nameField).enable(true);
        edit(nameField).focus();
        EXPECT_EQ(events, "");
        edit(countField).userFocus();
        EXPECT_EQ(events, "blur ");
        list().userSelect(1);
        EXPECT_EQ(focused(), pageList);
        page.show(false);
        EXPECT_EQ(focused(), first) << "the next stop behind the page";
        EXPECT_THROW(list().userSelect(0), std::logic_error);
        list().focus();
        EXPECT_EQ(focused(), first);
    });
}

TEST_F(SampleDialog, ListsAnswerKeysAndClicks) {
    run([this] {
        int selections = 0;
        list().onSelect = [&] { ++selections; };
        list().userSelect(1);
        dialog.userKey(plain(key::down));
        dialog.userKey(plain(key::down));
        EXPECT_EQ(list().selected(), 2);
        EXPECT_EQ(selections, 2) << "the last row is the last";
        list().insert(0, {"zero", {}, {}});
        EXPECT_EQ(list().selected(), 3) << "the selection stays on its row";
        list().select(0);
        EXPECT_EQ(selections, 2);
        EXPECT_THROW(list().userSelect(4), std::logic_error);
        Point menuAt;
        list().onContext = [&](Point p) { menuAt = p; };
        list().userRightClick(2);
        EXPECT_EQ(list().rowAt(menuAt), 2);
        EXPECT_EQ(list().selected(), 0);
        dialog.userKey({key::f10, false, true, false});
        EXPECT_EQ(list().rowAt(menuAt), 0);
    });
}

TEST_F(SampleDialog, CombosOpenChooseAndGiveBack) {
    run([this] {
        auto& combo = at<HeadlessComboBox>(colours);
        for (const char* item : {"red", "green", "blue"}) combo.add(item);
        combo.select(0);
        int selections = 0;
        combo.onSelect = [&] { ++selections; };
        combo.userDropDown(true);
        dialog.userKey(plain(key::down));
        EXPECT_EQ(combo.text(), "green");
        dialog.userKey(plain(key::escape));
        EXPECT_FALSE(combo.droppedDown());
        EXPECT_EQ(combo.text(), "red");
        EXPECT_TRUE(dialog.running()) << "Esc closes the list alone";
        combo.userSelect(2);
        EXPECT_EQ(selections, 3);
        type(U"g");
        EXPECT_EQ(combo.selected(), 1);
        combo.userDropDown(true);
        dialog.userKey(plain(key::tab));
        EXPECT_FALSE(combo.droppedDown()) << "the list closes with the focus";
    });
}

TEST_F(SampleDialog, ListViewsSelectSeveralRowsAndKeepTheirColumns) {
    run([this] {
        auto& rows = at<HeadlessListView>(view);
        rows.setColumns({{"a", 40}, {"b", 50}, {"c", 60}});
        rows.setRowCount(9);
        int selections = 0;
        rows.onSelect = [&] { ++selections; };
        rows.userSelect(2);
        rows.userSelect(5, false, true);
        rows.userSelect(3, true);
        EXPECT_EQ(rows.selectedRows(), (std::vector{2, 4, 5}));
        EXPECT_EQ(selections, 3);
        rows.userRightClick(4);
        EXPECT_EQ(rows.selectedRows(), (std::vector{2, 4, 5})) << "a selected row keeps the rest";
        rows.userRightClick(0);
        EXPECT_EQ(rows.selectedRows(), std::vector{0});
        rows.setRowCount(8);
        EXPECT_TRUE(rows.selectedRows().empty());
        rows.userSetColumnOrder({2, 0, 1});
        EXPECT_THROW(rows.userSetColumnOrder({2, 2, 1}), std::logic_error);
        EXPECT_EQ(rows.columnOrder(), (std::vector{2, 0, 1}));
        rows.setColumnOrder({0, 0, 0});
        EXPECT_EQ(rows.columnOrder(), (std::vector{0, 1, 2}));
    });
}

TEST_F(SampleDialog, MnemonicsReachControls) {
    run([this] {
        int clicks = 0;
        at<HeadlessRadioButton>(second).onClick = [&] { ++clicks; };
        dialog.userKey({'S', false, false, true});
        EXPECT_EQ(focused(), second);
        EXPECT_EQ(clicks, 1);
        dialog.userKey({'N', false, false, true});
        EXPECT_EQ(focused(), nameField) << "a label's letter leads to what stands behind it";
    });
}

TEST_F(SampleDialog, PicturesPaintWhenAskedAndKnowTheirGuests) {
    int paints = 0;
    auto& picture = at<HeadlessPicture>(field);
    picture.onPaint = [&](Canvas& canvas) {
        ++paints;
        canvas.fillRect({0, 0, 5, 5}, {1, 2, 3});
    };
    run([&] {
        EXPECT_EQ(paints, 1);
        EXPECT_EQ(picture.drawing()->asText(), "fill (0,0)-(5,5) 1,2,3\n");
        picture.userMouseMove({3, 3}, false);
        EXPECT_EQ(paints, 1);
        picture.onLeftDown = [&](Point) { picture.redraw(), picture.redraw(); };
        picture.userLeftDown({3, 3});
        EXPECT_EQ(paints, 2);
        EXPECT_EQ(focused(), field);
        EXPECT_THROW(picture.userLeftDown({90, 3}), std::logic_error);
        auto& guest = at<HeadlessComboBox>(colours);
        guest.moveInto(&picture);
        guest.setArea({0, 0, 30, 20});
        EXPECT_THROW(picture.userLeftDown({3, 3}), std::logic_error);
        EXPECT_EQ(guest.areaInDialog().left, picture.areaInDialog().left);
        picture.show(false);
        EXPECT_FALSE(guest.shown());
        picture.redraw();
        picture.show(true);
    });
    EXPECT_EQ(paints, 3);
}

TEST_F(SampleDialog, APictureOfItShowsWhatIsShown) {
    run([this] {
        list().set(0, {Text("Návrh <1>"_cz), Color{233, 17, 12}, {}});
        at<HeadlessLabel>(-1).setText("&Jméno:"_cz);
        const auto shows = [&](std::string_view text) {
            return dialogSvg(dialog).find(text) != std::string::npos;
        };
        EXPECT_TRUE(shows(">Sample</text>"));
        EXPECT_TRUE(shows(">Jméno:</text>"));
        EXPECT_TRUE(shows("fill=\"rgb(233,17,12)\""));
        EXPECT_TRUE(shows(">Návrh &lt;1&gt;</text>"));
        page.show(false);
        EXPECT_FALSE(shows("Návrh"));
    });
}

TEST_F(SampleDialog, ModalDialogsBlockWhatStandsBehindThem) {
    HeadlessDialog& inner = make({"inner", "Inner", 50, 50, {}}, &dialog);
    std::string order;
    ok().onClick = [&] {
        dialog.post([&] { order += "posted "; });
        order += inner.runModal() == id::cancel ? "inner " : "? ";
        platform.messageBox({&dialog, nullptr}, "Really?", "Sample", MessageIcon::question,
                            MessageButtons::yesNo) == MessageAnswer::yes
            ? dialog.end(77)
            : dialog.end(78);
    };
    then([&] { ok().userClick(); });
    then([&] {
        EXPECT_THROW(ok().userClick(), std::logic_error);
        EXPECT_THROW(dialog.userKey(plain(key::tab)), std::logic_error);
        inner.userKey(plain(key::escape));
    });
    then([&] {
        EXPECT_EQ(platform.openMessageBox()->message, "Really?");
        EXPECT_THROW(platform.answerMessageBox(MessageAnswer::ok), std::logic_error);
        EXPECT_THROW(platform.closeMessageBox(), std::logic_error);
        EXPECT_THROW(dialog.userClose(), std::logic_error);
        platform.answerMessageBox(MessageAnswer::yes);
    });
    EXPECT_EQ(dialog.runModal(), 77);
    EXPECT_EQ(order, "inner ") << "what was posted went with the dialog";
    EXPECT_EQ(edit(countField).text(), "7") << "controls answer after the window has gone";
}

TEST_F(SampleDialog, TimersRunOnTheVirtualClock) {
    int ticks = 0;
    dialog.onTimer = [&](int timer) {
        EXPECT_EQ(timer, 99);
        if (++ticks == 3) dialog.stopTimer(99);
    };
    dialog.startTimer(99, 50);
    run([&] {
        platform.advanceClock(49);
        EXPECT_EQ(ticks, 0);
        platform.advanceClock(1);
        EXPECT_EQ(ticks, 1);
        platform.advanceClock(1000);
        EXPECT_EQ(ticks, 3);
    });
}

TEST_F(SampleDialog, NobodyToActEndsWhatWaits) {
    int ticks = 0;
    bool destroyed = false;
    dialog.onTimer = [&](int) { ++ticks; };
    dialog.startTimer(1, 1000);
    dialog.onDestroy = [&] { destroyed = list().count() == 3; };
    ok().onClick = [&] {
        EXPECT_EQ(platform.messageBox({&dialog, nullptr}, "Chyba č. 1"_cz, "", MessageIcon::stop,
                                      MessageButtons::okCancel),
                  MessageAnswer::cancel);
    };
    then([&] { ok().userClick(); });
    EXPECT_EQ(dialog.runModal(), id::cancel);
    EXPECT_EQ(platform.stranded(),
              (std::vector<std::string>{"message Chyba č. 1", "dialog sample"}));
    EXPECT_GT(ticks, 0) << "timers had their chance";
    EXPECT_TRUE(destroyed);
}

TEST_F(SampleDialog, AHandlerMayEndItsDialogAtAnyPoint) {
    edit(nameField).onBlur = [&] { dialog.end(5); };
    int clicks = 0;
    ok().onClick = [&] { ++clicks; };
    then([&] {
        ok().userClick();
        EXPECT_EQ(clicks, 0) << "the click is lost";
        EXPECT_THROW(ok().userClick(), std::logic_error);
    });
    EXPECT_EQ(dialog.runModal(), 5);
    HeadlessDialog& early = make({"early", "", 50, 50, {}});
    early.onInit = [&] { early.end(3); };
    EXPECT_EQ(early.runModal(), 3) << "never shown, nobody asked";
}

TEST_F(HeadlessTest, WindowsAreSizedInPixelsAndCanLoseTheMouse) {
    HeadlessDialog& dialog = make({"wide", "", 200, 100, {}, DialogStyle::resizable});
    EXPECT_EQ(dialog.clientArea().width(), 300);
    EXPECT_EQ(dialog.clientArea().height(), 163) << "162.5 rounds up";
    bool lost = false;
    dialog.onCaptureLost = [&] { lost = true; };
    then([&] {
        dialog.captureMouse(true);
        dialog.userLoseCapture();
        dialog.end(1);
    });
    EXPECT_EQ(dialog.runModal(), 1);
    EXPECT_TRUE(lost);
}

}  // namespace
}  // namespace lx
