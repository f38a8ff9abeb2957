// The plan on the geometry page: what it shows, and its two numbers typed over.
#include "tests/tabs/design_dialog_bench.h"

namespace lx {
namespace {

constexpr const char* plan = "plan";
constexpr const char* section = "section";
constexpr const char* folded = "Sklopený řez";

struct PlanPreview : DesignDialog {
    RezChain given;

    void SetUp() override {
        DesignDialog::SetUp();
        values.level = 1.25;
        given.append(headOf(300, "S"));
        given.head()->length = 1200;
        given.head()->height = 1250;
        add(kind::precast, 140, 125, 1450);
        given.last()->name = "KV 14/?";
        add(kind::beam, 55, 0, 1500);
    }
    void add(std::int32_t kind, std::int32_t width, std::int32_t bearing, std::int32_t length) {
        CRez* added = given.append(layer(kind, width));
        added->height = 100;
        added->bearing = bearing;
        added->length = length;
    }
    int runOn(std::function<void(Driver&)> steps) {
        give(given);
        return run(std::move(steps));
    }
};

TEST_F(PlanPreview, TheOverhangIsTypedForAllThatFollowTheOpening) {
    runOn([](Driver& d) {
        clickRegion(d, plan, "overhang");
        d.type("-200");
        d.key("Enter");
        EXPECT_TRUE(has(d, "record 1 length 1600"));
        EXPECT_TRUE(has(d, "record 2 length 1600"));
        EXPECT_TRUE(drawn(d, plan, "\"200\""));
        // The plan tells the overhang of its first layer, also after that has gone.
        d.selectTab("Prefa překlady");
        clickRegion(d, section, "layer 1");
        d.press("Vymazat vybraný prvek");
        d.press("Vymazat vybraný prvek");
        EXPECT_TRUE(has(d, "record 0 maxOpening 200"));
        d.selectTab("Geometrie");
        EXPECT_TRUE(has(d, "record 0 maxOpening 0"));
        EXPECT_EQ(regionNames(d, plan).find("overhang"), std::string::npos);
        d.press("Zrušit");
    });
}

TEST_F(PlanPreview, AClickDuringAnEditEndsItAlone) {
    runOn([](Driver& d) {
        d.check(folded, false);
        EXPECT_EQ(regionNames(d, plan), "overhang;");
        for (const auto& [at, cursor] :
             {std::pair{d.regionPoint(plan, "overhang"), "hand"}, {ScreenPoint{3, 30}, "arrow"}}) {
            d.mouseMove(plan, at, false);
            EXPECT_EQ(d.cursor(plan), cursor);
        }
        d.check(folded, true);
        clickRegion(d, plan, "overhang");
        // Left by a key, the next click edits at once.
        d.key("Tab");
        clickRegion(d, plan, "level");
        EXPECT_EQ(d.text(inPlaceBox), "1.250");
        EXPECT_EQ(d.editSelection(inPlaceBox), "0-5");
        d.key("Esc");
        // A value of the section is ended by the plan as one of its own is.
        d.press("1 zalomení");
        clickRegion(d, section, "run 1");
        d.type("100");
        clickRegion(d, plan, "level");
        EXPECT_FALSE(d.visible(inPlaceBox));
        EXPECT_TRUE(has(d, "bend 0 run 100"));
        // One of the plan is ended by the section, where the next edit begins.
        clickRegion(d, plan, "level");
        d.type("3");
        clickRegion(d, section, "run 1");
        EXPECT_TRUE(has(d, "record 0 height 3000"));
        EXPECT_EQ(d.text(inPlaceBox), "100");
        d.press("OK");
    });
}

TEST_F(PlanPreview, ARefusedLevelIsToldOnce) {
    give(given);
    bench.user().inDialog("Návrh překladu", [](Driver& d) {
        d.check(folded, true);
        clickRegion(d, plan, "level");
        d.type("151");
        d.mouseDown(plan, {3, 30});
    });
    bench.user().then([](Driver& d) { d.answer("OK"); });
    bench.user().then([](Driver& d) {
        EXPECT_TRUE(has(d, "record 0 height 1250"));
        clickRegion(d, plan, "level");
        EXPECT_EQ(d.text(inPlaceBox), "1.250");
        d.press("Zrušit");
    });
    EXPECT_EQ(run(), 2);
}

}  // namespace
}  // namespace lx
