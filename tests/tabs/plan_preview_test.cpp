// The plan on the geometry page: what it shows, and its two numbers typed over.
#include "composition/layout.h"
#include "tests/tabs/design_dialog_bench.h"

namespace lx {
namespace {

constexpr const char* plan = "plan";
constexpr const char* box = "#1022";
constexpr const char* folded = "Sklopený řez";
constexpr const char* dialogFile = "LXDATA6DLG.dat";

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
    // The design that the host hands over.
    int runOn(std::function<void(Driver&)> steps) {
        layOut(*given.head());
        writeHandOver(handOver(), given.head(), 1200, bench.files());
        return run(std::move(steps));
    }
    static void clickRegion(Driver& d, std::string_view region) {
        d.mouseDown(plan, d.regionPoint(plan, region));
    }
    static std::string regionNames(Driver& d) {
        std::string names;
        for (const std::string& region : d.regions(plan)) {
            names += region.substr(0, region.find(' ')) + ";";
        }
        return names;
    }
    static bool drawn(Driver& d, const std::string& what) {
        return d.drawing(plan).find(what) != std::string::npos;
    }
    static bool has(Driver& d, std::string_view line) {
        return d.describe("design").find(std::string(line) + "\n") != std::string::npos;
    }
};

TEST_F(PlanPreview, FollowsTheDesignAndTheBox) {
    runOn([](Driver& d) {
        d.check(folded, false);
        EXPECT_TRUE(drawn(d, "\"1200\""));
        EXPECT_TRUE(drawn(d, "\"125\""));
        EXPECT_TRUE(drawn(d, "dashDotDot"));
        EXPECT_EQ(regionNames(d), "overhang;");
        d.mouseMove(plan, d.regionPoint(plan, "overhang"), false);
        EXPECT_EQ(d.cursor(plan), "hand");
        d.mouseMove(plan, {3, 30}, false);
        EXPECT_EQ(d.cursor(plan), "arrow");
        d.check(folded, true);
        EXPECT_TRUE(drawn(d, "\"1.250\""));
        EXPECT_EQ(regionNames(d), "level;overhang;");
        d.press("1 zalomení");
        EXPECT_TRUE(drawn(d, "width 3 solid"));
        d.press("Zrušit");
    });
}

TEST_F(PlanPreview, TheLevelIsTypedInMetres) {
    runOn([](Driver& d) {
        d.check(folded, true);
        clickRegion(d, "level");
        EXPECT_EQ(d.text(box), "1.250");
        EXPECT_EQ(d.editSelection(box), "0-5");
        d.type("2,371");
        d.key("Enter");
        EXPECT_NE(d.focusedControl().find(plan), std::string::npos);
        EXPECT_TRUE(has(d, "record 0 height 2370"));
        EXPECT_TRUE(drawn(d, "\"2.370\""));
        clickRegion(d, "level");
        d.type("1");
        d.key("Esc");
        EXPECT_FALSE(d.visible(box));
        EXPECT_TRUE(has(d, "record 0 height 2370"));
        d.press("OK");
    });
    EXPECT_EQ(get(dialogFile, "COMBO_VYSKA", "nr"), "2");
    EXPECT_EQ(get(dialogFile, "COMBO_VYSKA", "0"), "1.250");
    EXPECT_EQ(get(dialogFile, "COMBO_VYSKA", "1"), "2.370");
}

TEST_F(PlanPreview, TheOverhangIsTypedForAllThatFollowTheOpening) {
    runOn([](Driver& d) {
        clickRegion(d, "overhang");
        EXPECT_EQ(d.text(box), "125");
        d.type("-200");
        d.key("Enter");
        EXPECT_TRUE(has(d, "record 0 maxOpening 200"));
        EXPECT_TRUE(has(d, "record 1 length 1600"));
        EXPECT_TRUE(has(d, "record 2 length 1600"));
        EXPECT_TRUE(drawn(d, "\"200\""));
        // The plan tells the overhang of its first layer, also after that has gone.
        d.selectTab("Prefa překlady");
        d.mouseDown("section", d.regionPoint("section", "layer 1"));
        d.press("Vymazat vybraný prvek");
        d.press("Vymazat vybraný prvek");
        EXPECT_TRUE(has(d, "record 0 maxOpening 200"));
        d.selectTab("Geometrie");
        EXPECT_TRUE(has(d, "record 0 maxOpening 0"));
        EXPECT_EQ(regionNames(d).find("overhang"), std::string::npos);
        d.press("OK");
    });
    EXPECT_EQ(get(dialogFile, "COMBO_PRESAH", "0"), "125");
}

TEST_F(PlanPreview, AnOverhangOfAFixedLengthIsShownAlone) {
    add(kind::precast, 70, 0, 1490);
    runOn([](Driver& d) {
        d.check(folded, false);
        EXPECT_TRUE(drawn(d, "\"125\""));
        EXPECT_EQ(regionNames(d), "");
        d.mouseDown(plan, {3, 30});
        EXPECT_FALSE(d.visible(box));
        d.press("Zrušit");
    });
}

TEST_F(PlanPreview, AClickDuringAnEditEndsItAlone) {
    runOn([](Driver& d) {
        d.check(folded, true);
        clickRegion(d, "overhang");
        d.type("200");
        clickRegion(d, "level");
        EXPECT_TRUE(has(d, "record 1 length 1600"));
        EXPECT_FALSE(d.visible(box));
        EXPECT_NE(d.focusedControl().find(plan), std::string::npos);
        clickRegion(d, "level");
        EXPECT_TRUE(d.visible(box));
        EXPECT_EQ(d.text(box), "1.250");
        // Left by a key instead, the next click edits at once.
        d.key("Tab");
        EXPECT_FALSE(d.visible(box));
        clickRegion(d, "overhang");
        EXPECT_EQ(d.text(box), "200");
        d.key("Esc");
        // A value of the section is ended by the plan in the same way.
        d.press("1 zalomení");
        d.mouseDown("section", d.regionPoint("section", "run 1"));
        d.type("100");
        clickRegion(d, "level");
        EXPECT_FALSE(d.visible(box));
        EXPECT_TRUE(has(d, "bend 0 run 100"));
        // One of the plan is ended by the section, where the next edit begins.
        clickRegion(d, "level");
        d.type("3");
        d.mouseDown("section", d.regionPoint("section", "run 1"));
        EXPECT_TRUE(has(d, "record 0 height 3000"));
        EXPECT_EQ(d.text(box), "100");
        d.press("OK");
    });
}

TEST_F(PlanPreview, ARefusedLevelIsToldOnce) {
    bench.user().inDialog("Návrh překladu", [](Driver& d) {
        d.check(folded, true);
        clickRegion(d, "level");
        d.type("151");
        d.mouseDown(plan, {3, 30});
    });
    bench.user().then([](Driver& d) {
        EXPECT_EQ(d.messageBox().caption, "Upozornění");
        d.answer("OK");
    });
    bench.user().then([](Driver& d) {
        EXPECT_TRUE(has(d, "record 0 height 1250"));
        clickRegion(d, "level");
        EXPECT_EQ(d.text(box), "1.250");
        d.press("Zrušit");
    });
    layOut(*given.head());
    writeHandOver(handOver(), given.head(), 1200, bench.files());
    EXPECT_EQ(run(), 2);
}

// While the plan is hidden a bearing of 0 still means the default.
TEST_F(PlanPreview, AHiddenPlanLeavesTheBearingAlone) {
    set(dialogFile, "DLG_SET", "tab", "1");
    run([](Driver& d) {
        d.press("Vložit izolaci");
        EXPECT_TRUE(has(d, "record 1 length 1500"));
        EXPECT_TRUE(has(d, "record 0 maxOpening 150"));
        d.drawing(plan);
        d.press("Vymazat vybraný prvek");
        d.drawing(plan);
        EXPECT_TRUE(has(d, "record 0 maxOpening 150"));
        d.press("Zrušit");
    });
}

}  // namespace
}  // namespace lx
