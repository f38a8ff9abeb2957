// Edge rules, dividers and stored placements in numbers.
#include "widgets/resize_rules.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <set>

#include "widgets/placement_list.h"

namespace lx {

static void PrintTo(const Rect& r, std::ostream* out) {
    *out << r.left << "," << r.top << "-" << r.right << "," << r.bottom;
}

namespace {

constexpr int lowest = std::numeric_limits<std::int32_t>::min();
constexpr int highest = std::numeric_limits<std::int32_t>::max();
constexpr int types = 1;
constexpr int items = 2;
constexpr int okButton = 3;

// Two lists with a divider between them and a button in the corner.
struct Rules : testing::Test {
    std::set<int> hidden;
    std::map<int, Rect> at{
        {types, {5, 5, 105, 250}}, {items, {110, 5, 495, 250}}, {okButton, {400, 260, 490, 290}}};
    ResizeRules rules{[this](int control) { return hidden.count(control) == 0; }};

    Rules() {
        rules.addDivider(items, at[items], Side::left, types, at[types]);
        rules.initialise({500, 300});
        rules.setSize(items, 150, 0);
        rules.addControl(types, at[types], edge::stretchesDown, false);
        rules.addControl(items, at[items], edge::stretches, false);
        rules.addControl(okButton, at[okButton], edge::staysInCorner, false);
    }
    void put(const ControlMoves& moves) {
        for (const ControlMove& move : moves) at[move.control] = move.area;
    }
    void resize(int width, int height) { put(rules.relayout({width, height})); }
    // Presses the button there and leaves it pressed at the other place.
    void drag(Point from, Point to) {
        ASSERT_TRUE(rules.beginDrag(from));
        put(rules.drag(to));
    }
};

TEST_F(Rules, EdgesKeepTheirPlaceOrFollowTheDialogs) {
    rules.addControl(4, {10, 10, 20, 20}, 0, false);
    for (const int rule : {edge::stretches, edge::staysInPlace}) {  // the last one counts
        rules.addControl(5, {10, 10, 20, 20}, rule, false);
    }
    resize(600, 350);
    EXPECT_EQ(at[types], (Rect{5, 5, 105, 300}));
    EXPECT_EQ(at[items], (Rect{110, 5, 595, 300}));
    EXPECT_EQ(at[okButton], (Rect{500, 310, 590, 340}));
    EXPECT_EQ(at[4], (Rect{110, 60, 20, 20}));
    EXPECT_EQ(at[5], (Rect{10, 10, 20, 20}));
}

TEST_F(Rules, ADragStopsWhereEitherNeighbourHasItsMinimum) {
    drag({107, 100}, {57, 100});
    EXPECT_EQ(at[types], (Rect{5, 5, 105, 250})) << "it has its minimum already";
    put(rules.drag({1000, 100}));
    EXPECT_EQ(at[items], (Rect{345, 5, 495, 250}));
    EXPECT_EQ(at[types], (Rect{5, 5, 340, 250}));
    // From here the mouse takes it along again.
    put(rules.drag({341, 0}));
    EXPECT_EQ(at[items].left, 344);
    rules.endDrag();
    EXPECT_TRUE(rules.drag({200, 100}).empty());
    resize(510, 300);
    EXPECT_EQ(at[items], (Rect{344, 5, 505, 250})) << "the moved edge is the one that is glued";
    resize(500, 310);
    EXPECT_EQ(at[items], (Rect{344, 5, 495, 260}));
    resize(490, 310);
    EXPECT_EQ(at[items], (Rect{335, 5, 485, 260})) << "a narrower dialog pushes the divider back";
    EXPECT_EQ(at[types], (Rect{5, 5, 330, 260}));
}

TEST_F(Rules, WhoIsTooSmallDecidesAndTwoOfThemStandStill) {
    rules.setSize(types, 130, -1);
    drag({107, 100}, {207, 100});
    EXPECT_EQ(at[types].right, 135) << "a drag first makes up what is missing";
    rules.endDrag();
    rules.setSize(types, 300, -1);
    rules.setSize(items, 300, -1);
    resize(499, 300);
    EXPECT_EQ(at[types].right, 135);
    EXPECT_EQ(at[items], (Rect{140, 5, 494, 250}));
    rules.setSize(items, -1, 500);
    rules.setSize(types, 0, -1);
    drag({137, 100}, {147, 100});
    EXPECT_EQ(at[types].right, 135) << "too low, whichever way it is dragged";
}

TEST_F(Rules, AllThatBorderOnOneDividerMoveTogether) {
    constexpr int below = 6;
    at[types] = {5, 5, 105, 100};
    at[below] = {5, 105, 105, 250};
    ResizeRules group([this](int control) { return hidden.count(control) == 0; });
    group.addDivider(items, at[items], Side::left, types, at[types]);
    group.addDivider(below, at[below], Side::right, items, at[items]);
    group.addDivider(below, at[below], Side::top, types, at[types]);
    group.initialise({500, 300});
    group.setSize(types, 60, 20);
    group.setSize(below, 80, 20);
    EXPECT_TRUE(group.beginDrag({107, 50}));
    put(group.drag({0, 50}));
    EXPECT_EQ(at[types].right, 85);
    EXPECT_EQ(at[below].right, 85);
    EXPECT_EQ(at[items].left, 90);
    hidden = {below};
    put(group.drag({0, 50}));
    EXPECT_EQ(at[types].right, 65) << "who is hidden does not stop it";
    EXPECT_EQ(at[below].right, 65);
    hidden.clear();
    EXPECT_TRUE(group.beginDrag({30, 102}));
    EXPECT_EQ(group.dragging(), Side::top);
    put(group.drag({0, 12}));
    EXPECT_EQ(at[types].bottom, 100) << "one that is too narrow cannot be moved otherwise";
    group.setSize(below, 0, -1);
    put(group.drag({0, 12}));
    EXPECT_EQ(at[types], (Rect{5, 5, 65, 25}));
    EXPECT_EQ(at[below], (Rect{5, 30, 65, 250}));
    EXPECT_EQ(at[items].top, 5);
}

TEST_F(Rules, TheDividerIsTheGapWithItsEdges) {
    at[items].top = 20;
    ResizeRules gap([this](int control) { return hidden.count(control) == 0; });
    gap.addDivider(items, at[items], Side::left, types, at[types]);
    for (const Point p : {Point{105, 100}, {110, 100}, {107, 20}, {107, 250}}) {
        EXPECT_EQ(gap.dividerAt(p), Side::left) << p.x << " " << p.y;
    }
    for (const Point p : {Point{104, 100}, {111, 100}, {107, 19}, {107, 251}}) {
        EXPECT_EQ(gap.dividerAt(p), std::nullopt) << p.x << " " << p.y;
        EXPECT_FALSE(gap.beginDrag(p));
    }
    hidden = {items};
    EXPECT_EQ(gap.dividerAt({107, 100}), Side::right) << "its neighbour's registration is left";
    hidden = {items, types};
    EXPECT_EQ(gap.dividerAt({107, 100}), std::nullopt);
}

TEST_F(Rules, SurplusesComeBack) {
    drag({107, 100}, {147, 100});
    const std::vector<std::int32_t> stored = rules.surpluses();
    EXPECT_EQ(stored, (std::vector<std::int32_t>{items, 195}));
    rules.endDrag();
    const std::int32_t narrow[] = {items, 40, types, 1000, lowest + items, 7, items};
    put(rules.restoreSurpluses(narrow));
    EXPECT_EQ(at[items], (Rect{305, 5, 495, 250})) << "40 more than its 150";
    EXPECT_EQ(at[types].right, 300);
    put(rules.restoreSurpluses(stored));
    EXPECT_EQ(at[items].left, 150);

    rules.addDivider(okButton, at[okButton], Side::top, items, at[items]);
    EXPECT_EQ(rules.surpluses(), (std::vector<std::int32_t>{items, 195, lowest + okButton, 0}));
}

TEST_F(Rules, NoStoredNumberRunsAway) {
    const std::int32_t wild[] = {items, lowest, items, highest, items, lowest, lowest + items, 0};
    for (const auto& invisible : {std::set<int>{types, items}, std::set<int>{}}) {
        hidden = invisible;
        put(rules.restoreSurpluses(wild));
        resize(highest, highest);
        resize(0, 0);
        EXPECT_LE(at[items].right, 1000000);
    }
}

constexpr Screen screen{{1000, 700}, 96, {32, 32}};

TEST(StoredPlacement, IsTheNormalRectangleAndTheState) {
    const WindowPlacement initial{{100, 100, 300, 250}, ShowState::normal};
    const struct {
        Rect area;
        ShowState state;
        std::vector<std::int32_t> list;
    } cases[] = {{{-5, 0, 1000, 700}, ShowState::maximized, {-5, 0, 1005, 700, 96, 3}},
                 {{10, 20, 40, 60}, ShowState::minimized, {10, 20, 30, 40, 96, 2}},
                 {{10, 20, 1001, 60}, ShowState::normal, {100, 100, 200, 150, 96, 8}},
                 {{10, 20, 40, 701}, ShowState::normal, {100, 100, 200, 150, 96, 8}}};
    for (const auto& one : cases) {
        EXPECT_EQ(placementList({one.area, one.state}, initial, screen), one.list);
    }
}

TEST(StoredPlacement, IsPulledOntoTheScreenAndMadeLargeEnough) {
    struct Case {
        std::vector<std::int32_t> list;
        Rect area;
        ShowState state = ShowState::normal;
    };
    const Case cases[] = {
        {{700, 100, 400, 300, 96, 8}, {600, 100, 1000, 400}},
        {{100, 500, 400, 300, 96}, {100, 400, 500, 700}},
        {{601, 401, 400, 300, 96}, {600, 400, 1000, 700}},
        {{-50, -20, 400, 300, 96, 3}, {0, 0, 400, 300}, ShowState::maximized},
        {{-50, 10, 1200, 800, 96, 2}, {0, 0, 1200, 800}, ShowState::minimized},
        {{10, 10, 400, 149, 96, 5}, {10, 10, 210, 160}},
        {{10, 10, 199, 300, 96, 1, 7, 7}, {10, 10, 210, 160}},
        {{highest, highest, lowest, lowest, 96}, {1000, 700, 1200, 850}},
        {{highest, lowest, 400, 300, 96}, {600, 0, 1000, 300}},
    };
    for (const Case& c : cases) {
        const auto placement = placementFrom(c.list, {200, 150}, screen);
        ASSERT_TRUE(placement);
        EXPECT_EQ(placement->normal, c.area);
        EXPECT_EQ(placement->state, c.state);
    }
    const std::int32_t otherScreen[] = {0, 0, 400, 300, 120, 8};
    EXPECT_FALSE(placementFrom(otherScreen, {}, screen));
    EXPECT_FALSE(placementFrom(std::span(otherScreen).first(4), {}, screen));
}

}  // namespace
}  // namespace lx
