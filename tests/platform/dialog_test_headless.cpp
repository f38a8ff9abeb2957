// Focus, keys and the modal loop of a dialog in memory.
#include <gtest/gtest.h>

#include <deque>
#include <stdexcept>

#include "platform/headless/dialog_svg.h"
#include "platform/headless/headless_buttons.h"
#include "platform/headless/headless_combo_box.h"
#include "platform/headless/headless_edit.h"
#include "platform/headless/headless_list_box.h"
#include "platform/headless/headless_picture.h"
#include "platform/headless/headless_platform.h"

namespace lx {
namespace {

constexpr int nameField = 10;
constexpr int countField = 11;
constexpr int notes = 12;
constexpr int behindPage = 30;
constexpr int pageList = 40;
constexpr int colours = 41;
constexpr int field = 42;

constexpr ControlTemplate dialogControls[] = {
    {ControlKind::edit, nameField, "", {50, 4, 80, 12}},
    {ControlKind::edit, countField, "7", {50, 20, 80, 12}},
    {ControlKind::multilineEdit, notes, "", {50, 36, 80, 30}},
    {ControlKind::tabControl, 20, "", {4, 70, 150, 90}},
    {ControlKind::checkBox, behindPage, "behind", {4, 165, 40, 10}},
    {ControlKind::button, id::ok, "OK", {4, 180, 50, 14}, style::defaultButton},
    {ControlKind::button, id::cancel, "Cancel", {60, 180, 50, 14}},
};
constexpr DialogTemplate dialogLayout{"sample", "Sample", 160, 200, dialogControls};

constexpr ControlTemplate pageControls[] = {
    {ControlKind::listBox, pageList, "", {4, 4, 60, 40}},
    {ControlKind::dropDownList, colours, "", {70, 4, 60, 60}},
    {ControlKind::picture, field, "", {4, 50, 60, 30}, style::focusable},
    {ControlKind::button, id::cancel, "Not this", {70, 60, 60, 14}},
};
constexpr DialogTemplate pageLayout{"page", "Page", 140, 80, pageControls, DialogStyle::page};

constexpr KeyEvent plain(int key) {
    return {key, false, false, false};
}

// A dialog with a page and a user who acts step by step.
class SampleDialog : public testing::Test {
protected:
    SampleDialog() {
        platform.onIdle = [this] {
            if (m_steps.empty()) return false;
            const auto step = std::move(m_steps.front());
            m_steps.pop_front();
            step();
            return true;
        };
        page.show(true);
        for (const char* row : {"one", "two", "three"}) list().append({row, {}, {}});
    }
    ~SampleDialog() override { EXPECT_TRUE(m_steps.empty()) << "steps that nobody came to"; }

    void then(std::function<void()> step) { m_steps.push_back(std::move(step)); }
    // Runs the dialog with one step, then presses Cancel.
    void run(std::function<void()> step) {
        then(std::move(step));
        then([this] { dialog.userClose(); });
        EXPECT_EQ(dialog.runModal(), id::cancel);
    }
    HeadlessDialog& make(const DialogTemplate& layout, Dialog* owner = nullptr) {
        m_made.push_back(platform.createDialog(layout, {owner, nullptr}));
        return dynamic_cast<HeadlessDialog&>(*m_made.back());
    }
    template <class C>
    C& at(int controlId) {
        return dynamic_cast<C&>((controlId >= pageList ? page : dialog).item(controlId));
    }
    HeadlessEdit& edit(int controlId) { return at<HeadlessEdit>(controlId); }
    HeadlessButton& ok() { return at<HeadlessButton>(id::ok); }
    HeadlessListBox& list() { return at<HeadlessListBox>(pageList); }
    int focused() { return dialog.focusedControl() ? dialog.focusedControl()->id() : 0; }
    void type(std::u32string_view text) {
        for (const char32_t character : text) dialog.userType(character);
    }

    HeadlessPlatform platform;
    std::deque<std::function<void()>> m_steps;
    std::deque<std::unique_ptr<Dialog>> m_made;
    HeadlessDialog& dialog = make(dialogLayout);
    HeadlessDialog& page = make(pageLayout, &dialog);
};

TEST_F(SampleDialog, EnterAndEscapePressTheRightButtons) {
    int pressed = 0;
    ok().onClick = [&] { ++pressed; };
    page.get<Button>(id::cancel).onClick = [&] { ++pressed; };
    run([&] {
        edit(notes).userType('\r');
        EXPECT_EQ(edit(notes).text(), "\r\n") << "Enter belongs to the many-line field";
        edit(nameField).userFocus();
        ok().enable(false);
        dialog.userKey(plain(key::enter), '\r');
        EXPECT_EQ(pressed, 0) << "a disabled default button stops Enter";
        EXPECT_THROW(ok().userClick(), std::logic_error);
        dialog.onKey = [](const KeyEvent& event) {
            return event.key == key::escape ? KeyAnswer::swallow : KeyAnswer::pass;
        };
        dialog.userKey(plain(key::escape));
        EXPECT_TRUE(dialog.running());
    });
    EXPECT_EQ(pressed, 0) << "a page has no say in closing its dialog";
    EXPECT_EQ(dialog.runModal(), -1) << "its window is gone";
}

TEST_F(SampleDialog, EditsKeepLineEndsAndOnlyTypingIsAnAct) {
    run([this] {
        int changes = 0;
        edit(nameField).onChange = [&] { ++changes; };
        type(U"ač.");
        type(U"Ω");
        EXPECT_EQ(edit(nameField).text(), "ač."_cz);
        EXPECT_EQ(platform.beeps(), 1);
        edit(nameField).setText("x");
        EXPECT_EQ(changes, 3);
        HeadlessEdit& text = edit(notes);
        text.userFocus();
        type(U"ab\rcd");
        dialog.userKey(plain(key::home));
        dialog.userKey(plain(key::backspace));
        EXPECT_EQ(text.text(), "abcd") << "a line end goes as a whole";
        text.userPaste("jeΩdna\r\ndvě");
        EXPECT_EQ(text.text(), "abjedna\r\ndvěcd"_cz);
        edit(countField).userPaste("1\r\n2");
        EXPECT_EQ(edit(countField).text(), "17") << "one line, put in front";
    });
}

TEST_F(SampleDialog, TheFocusLeavesWhatGoesAway) {
    run([this] {
        std::string events;
        edit(nameField).onBlur = [&] { events += "blur "; };
        edit(nameField).enable(false);
        EXPECT_EQ(focused(), countField);
        edit(nameField).enable(true);
        edit(nameField).focus();
        EXPECT_EQ(events, "") << "nobody has moved the focus";
        edit(countField).userFocus();
        EXPECT_EQ(events, "blur ");
        list().userSelect(1);
        page.show(false);
        EXPECT_EQ(focused(), behindPage) << "the next stop behind the page";
        EXPECT_THROW(list().userSelect(0), std::logic_error);
        list().focus();
        EXPECT_EQ(focused(), behindPage);
    });
}

TEST_F(SampleDialog, PicturesPaintWhenAskedAndKnowTheirGuests) {
    int paints = 0;
    auto& picture = at<HeadlessPicture>(field);
    picture.onPaint = [&](Canvas&) { ++paints; };
    picture.onLeftDown = [&](Point) { picture.redraw(), picture.redraw(); };
    run([&] {
        EXPECT_EQ(paints, 1);
        picture.userLeftDown({3, 3});
        EXPECT_EQ(paints, 2);
        EXPECT_THROW(picture.userLeftDown({90, 3}), std::logic_error);
        auto& guest = at<HeadlessComboBox>(colours);
        guest.moveInto(&picture);
        guest.setArea({0, 0, 30, 20});
        EXPECT_THROW(picture.userLeftDown({3, 3}), std::logic_error);
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
        for (const char* text :
             {">Sample</text>", "\"rgb(233,17,12)\"", ">Návrh &lt;1&gt;</text>"}) {
            EXPECT_NE(dialogSvg(dialog).find(text), std::string::npos) << text;
        }
        page.show(false);
        EXPECT_EQ(dialogSvg(dialog).find("Návrh"), std::string::npos);
    });
}

TEST_F(SampleDialog, ModalDialogsBlockWhatStandsBehindThem) {
    HeadlessDialog& inner = make({"inner", "Inner", 50, 50, {}}, &dialog);
    std::string order;
    ok().onClick = [&] {
        dialog.post([&] { order += "posted "; });
        order += inner.runModal() == id::cancel ? "inner " : "? ";
        const MessageAnswer answer = platform.messageBox(
            {&dialog, nullptr}, "Really?", "Sample", MessageIcon::question, MessageButtons::yesNo);
        dialog.end(answer == MessageAnswer::yes ? 77 : 78);
    };
    then([&] { ok().userClick(); });
    then([&] {
        EXPECT_THROW(ok().userClick(), std::logic_error);
        EXPECT_THROW(dialog.userKey(plain(key::tab)), std::logic_error);
        inner.userKey(plain(key::escape));
    });
    then([&] {
        EXPECT_THROW(platform.answerMessageBox(MessageAnswer::ok), std::logic_error);
        EXPECT_THROW(platform.closeMessageBox(), std::logic_error);
        EXPECT_THROW(dialog.userClose(), std::logic_error);
        platform.answerMessageBox(MessageAnswer::yes);
    });
    EXPECT_EQ(dialog.runModal(), 77);
    EXPECT_EQ(order, "inner ") << "what was posted went with the dialog";
    EXPECT_EQ(edit(countField).text(), "7") << "controls answer after the window has gone";
}

TEST_F(SampleDialog, NobodyToActEndsWhatWaits) {
    int ticks = 0;
    dialog.onTimer = [&](int) { ++ticks; };
    dialog.startTimer(1, 1000);
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

}  // namespace
}  // namespace lx
