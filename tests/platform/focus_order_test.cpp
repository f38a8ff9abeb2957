// Where keys lead in a dialog that is nothing but facts.
#include "platform/focus_order.h"

#include <gtest/gtest.h>

namespace lx {
namespace {

constexpr std::size_t nowhere = FocusOrder::nowhere;

// A dialog with a page behind its tabs; the page's radio buttons follow those of the dialog.
enum Place : std::size_t {
    name,
    text,
    tabs,
    red,
    green,
    blue,
    pageRed,
    pageGreen,
    picture,
    drawing,
    apply,
    ok,
    cancel,
    places
};

class FocusOrderTest : public testing::Test {
protected:
    FocusOrderTest() {
        const auto set = [this](Place place, ControlKind kind, int id = 0, unsigned style = 0) {
            facts[place].kind = kind;
            facts[place].id = id;
            facts[place].style = style;
        };
        set(name, ControlKind::label);
        set(text, ControlKind::edit);
        set(tabs, ControlKind::tabControl, 0, style::noTabStop);
        for (const Place radio : {red, green, blue, pageRed, pageGreen}) {
            set(radio, ControlKind::radioButton);
        }
        set(picture, ControlKind::picture);
        set(drawing, ControlKind::picture, id::cancel, style::focusable);
        set(apply, ControlKind::iconButton, id::cancel);
        set(ok, ControlKind::button, id::ok, style::defaultButton);
        set(cancel, ControlKind::button, id::cancel);
        for (const Place inPage : {pageRed, pageGreen, picture, drawing, apply}) {
            facts[inPage].page = 1;
        }
    }
    FocusOrder order() const { return FocusOrder(facts); }
    // The stops from none, one behind the other until they come round.
    std::vector<std::size_t> round(bool backward) const {
        std::vector<std::size_t> stops = {order().nextStop(nowhere, backward)};
        while (stops.size() < places) {
            const std::size_t next = order().nextStop(stops.back(), backward);
            if (next == stops.front()) break;
            stops.push_back(next);
        }
        return stops;
    }
    void expect(KeyEvent event, std::size_t focused, FocusAct act, std::size_t control = nowhere) {
        const FocusOrder::Step step = order().key(event, focused);
        EXPECT_EQ(step.act, act) << "key " << event.key << " at " << focused;
        EXPECT_EQ(step.control, control) << "key " << event.key << " at " << focused;
    }
    static KeyEvent pressed(int key) { return {key, false, false, false}; }

    std::vector<ControlFacts> facts = std::vector<ControlFacts>(places);
};

using Places = std::vector<std::size_t>;

TEST_F(FocusOrderTest, TabGoesRoundTheStops) {
    EXPECT_EQ(round(false), (Places{text, red, pageRed, drawing, apply, ok, cancel}));
    facts[blue].checked = true;
    facts[pageRed].usable = false;
    facts[apply].shown = false;
    EXPECT_EQ(round(true), (Places{cancel, ok, drawing, pageGreen, blue, text}));
    facts[blue].shown = false;
    EXPECT_EQ(order().nextStop(text, false), red) << "the checked one cannot be reached";
    EXPECT_EQ(order().nextStop(green, true), text) << "a group is left as one";
    EXPECT_EQ(order().nextStop(name, false), text) << "from what is no stop itself";
    EXPECT_FALSE(order().isStop(tabs));
    EXPECT_TRUE(order().focusable(tabs));
    EXPECT_EQ(FocusOrder({}).nextStop(nowhere, false), nowhere);
    for (ControlFacts& control : facts) control.usable = false;
    expect(pressed(key::tab), text, FocusAct::used);
}

TEST_F(FocusOrderTest, ArrowsChooseWithinTheGroup) {
    EXPECT_EQ(order().radioGroup(blue), (Places{red, green, blue}));
    EXPECT_EQ(order().radioGroup(pageRed), (Places{pageRed, pageGreen}));
    EXPECT_EQ(order().radioGroup(text), Places{});
    expect(pressed(key::down), blue, FocusAct::choose, red);
    expect(pressed(key::left), red, FocusAct::choose, blue);
    expect(pressed(key::up), blue, FocusAct::choose, green);
    expect(pressed(key::right), green, FocusAct::choose, blue);
    facts[green].usable = false;
    expect(pressed(key::down), red, FocusAct::choose, blue);
    facts[pageGreen].shown = false;
    expect(pressed(key::down), pageRed, FocusAct::used);
    expect(pressed(key::down), text, FocusAct::none);
    expect({key::down, true, false, false}, red, FocusAct::none);
}

TEST_F(FocusOrderTest, EnterPressesTheDefaultButton) {
    expect(pressed(key::enter), text, FocusAct::press, ok);
    expect(pressed(key::enter), nowhere, FocusAct::press, ok);
    expect(pressed(key::enter), apply, FocusAct::press, apply);
    expect({key::enter, false, false, true}, text, FocusAct::none);
    facts[ok].usable = false;
    EXPECT_EQ(order().defaultButton(text), ok);
    expect(pressed(key::enter), text, FocusAct::used);
    facts[ok].kind = ControlKind::icon;
    EXPECT_EQ(order().defaultButton(text), nowhere);
    expect(pressed(key::enter), text, FocusAct::used);
}

TEST_F(FocusOrderTest, EscapePressesTheDialogsOwnCancel) {
    facts[cancel].shown = false;
    expect(pressed(key::escape), text, FocusAct::press, cancel);
    expect({key::escape, true, false, false}, text, FocusAct::used);
    facts[cancel].usable = false;
    expect(pressed(key::escape), text, FocusAct::used);
    facts[cancel].kind = ControlKind::label;
    expect(pressed(key::escape), text, FocusAct::cancel);
}

TEST_F(FocusOrderTest, KeysWithOthersHeldAreNotTheDialogs) {
    expect({key::tab, false, true, false}, text, FocusAct::focus, cancel);
    expect({key::tab, true, false, false}, text, FocusAct::used);
    expect({key::tab, false, false, true}, text, FocusAct::none);
    expect(pressed(key::home), red, FocusAct::none);
}

}  // namespace
}  // namespace lx
