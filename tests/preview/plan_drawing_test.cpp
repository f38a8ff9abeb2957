#include "preview/plan_drawing.h"

#include "composition/layout.h"
#include "composition/section_scale.h"
#include "design/opening.h"
#include "preview/sheet.h"
#include "tests/preview/drawings.h"

namespace lx {
namespace {

// Layers are 1200 long and follow the opening.
struct Scene : DrawnDesign<Scene, PlanInput> {
    explicit Scene(std::int32_t wall, Size client = {370, 130}) : DrawnDesign(wall, 900, client) {}
    Scene& add(Kind kind, std::int32_t width, std::int32_t height, std::int32_t length = 1200) {
        DrawnDesign::add(kind, width, height);
        design.last()->length = length;
        design.last()->bearing = 125;
        return *this;
    }
    Scene& folded(std::int32_t level = 0) {
        design.head()->height = level;
        input.foldedSection = true;
        return *this;
    }
    HitRegions draw(Canvas& canvas) {
        layOut(*design.head());
        settleSection(*design.head(), {480, 400});
        settleOverhang(*design.head(), input.openingWidth);
        input.head = design.head();
        return drawPlan(canvas, input);
    }
};

void bentFolded(Scene& s) {
    s.bend(101, 75).bend(99, -150).add(Kind::precast, 70, 238).add(Kind::insulation, 80, 203);
    s.add(Kind::monolith, 150, 250).here().folded(2100);
}

constexpr Size usual{370, 130};
constexpr Size large{417, 260};
constexpr NamedScene<Scene> drawings[] = {
    {"plan-empty", 300, usual, [](Scene& s) { s.folded(1250).here(); }},
    // The section is not folded: insulation and spaces do not show.
    {"plan-strips",
     365,
     {417, 152},
     [](Scene& s) {
         s.opening(1200.6).add(Kind::precast, 70, 238, 1450).add(Kind::insulation, 80, 200, 1450);
         s.add(Kind::beam, 55, 100, 1450).add(Kind::space, 20, 238, 1450);
         s.add(Kind::monolith, 140, 250, 1450).here();
     }},
    {"plan-fixed-lintel", 300, usual,
     [](Scene& s) {
         s.add(Kind::beam, 100, 100, 1199).add(Kind::precast, 71, 238, 1490).folded(-30);
         s.design.last()->bearing = 0;
     }},
    {"plan-bent", 300, large, bentFolded},
    // The head slopes from its second bend on.
    {"plan-sloping", 300, large,
     [](Scene& s) {
         s.bend(100, 50).bend(100, 60, true).add(Kind::beam, 91, 161).here();
         s.add(Kind::insulation, 150, 300).folded();
     }},
    {"plan-short-layer", 400, large,
     [](Scene& s) {
         s.add(Kind::angle, 45, 61, 799).add(Kind::angleMirrored, 45, 61).here();
         s.add(Kind::channel, 45, 81).add(Kind::channelMirrored, 45, 81).folded(-1005);
     }},
    {"plan-thin-wall", 199, usual,
     [](Scene& s) { s.opening(600).add(Kind{5}, 81, 100, 601).here(); }},
    {"plan-narrow-opening",
     300,
     {190, 300},
     [](Scene& s) {
         s.opening(-199.9).add(Kind{104}, 71, 238, 450).add(Kind{60}, 21, 31, 450).folded();
     }},
};

TEST(PlanDrawing, DrawsWhatTheFilesSay) {
    compareWithFiles(drawings);
}

// ---- what a file does not tell

TEST(PlanDrawing, IsBlackWithoutADesignAndNothingWithoutRoom) {
    PlanInput input;
    input.foldedSection = true;
    expectBlackWithoutADesign(input, drawPlan);
    Scene bent(300);
    bentFolded(bent);
    expectNothingWithoutRoom(bent);
}

TEST(PlanDrawing, NoNumberMakesItLong) {
    forWildScenes<Scene>([](Scene& scene, std::int32_t size, std::int32_t place) {
        for (CRez* record = scene.design.head()->next; record; record = record->next) {
            record->length = size;
            record->offset = size;
            record->level = place;
        }
        scene.folded(size).here();
        scene.input.head = scene.design.head();
        for (const double opening : {0.0, 900.0, size * 1e300}) {
            settleOverhang(*scene.design.head(), opening);
            scene.input.openingWidth = opening;
            RecordingCanvas canvas;
            EXPECT_GE(drawPlan(canvas, scene.input).size(), 2U);
            EXPECT_LT(canvas.asText().size(), 20000U);
        }
    });
}

std::string zigzag(int start, int end, int step) {
    RecordingCanvas canvas;
    Sheet{canvas, {}}.zigzag({start, 90}, end, step, 300, false);
    return canvas.asText();
}

TEST(PlanDrawing, TheZigzagIsCutWhereItCannotBeSeen) {
    const std::string pen = "pen 0,0,0 width 1 solid\nline ";
    EXPECT_EQ(zigzag(100, 70, 10), pen + "(100,90)-(90,90)-(80,70)-(70,90)\n") << "up to the end";
    EXPECT_EQ(zigzag(100, 71, 10), pen + "(100,90)-(90,90)-(80,70)\n");
    EXPECT_EQ(zigzag(100, 50, 7), "") << "too narrow";
    EXPECT_EQ(zigzag(50, 100, 10), "") << "a negative height";
    EXPECT_EQ(zigzag(250, -2'000'000'000, 100), pen + "(250,90)-(150,90)-(50,-110)-(-50,90)\n");
    EXPECT_EQ(zigzag(2'000'000'050, 0, 100), pen + "(350,90)-(250,-110)-(150,90)-(50,-110)\n")
        << "the side that it would have come to, counted from its start";
    EXPECT_EQ(zigzag(2'000'000'050, 1'000'000'000, 100), "") << "all of it beside the picture";
}

}  // namespace
}  // namespace lx
