#include "preview/section_drawing.h"

#include "composition/layout.h"
#include "composition/section_scale.h"
#include "preview/sheet.h"
#include "tests/preview/drawings.h"

namespace lx {
namespace {

struct Scene : DrawnDesign<Scene, SectionInput> {
    explicit Scene(std::int32_t wall, Size client = {480, 400}) : DrawnDesign(wall, 1200, client) {}
    HitRegions draw(Canvas& canvas) {
        layOut(*design.head());
        settleSection(*design.head(), input.client);
        input.head = design.head();
        return drawSection(canvas, input);
    }
};

void beamsAndInsulation(Scene& s) {
    s.bend(151, -30).add(Kind::beam, 101, 161, "I 160").add(Kind::insulation, 81, 203).here();
    s.add(Kind::beam, 101, 161, "I 160");
}

constexpr Size usual{480, 400};
constexpr Size other{417, 339};
constexpr NamedScene<Scene> drawings[] = {
    {"thin_wall", 150, usual, [](Scene& s) { s.opening(1200.5).here(); }},
    {"one_bend", 300, usual,
     [](Scene& s) {
         s.opening(1200.6).here().bend(100, 50);
         s.add(Kind::precast, 71, 238, "KPV 7/145").add(Kind::precast, 71, 238);
         s.input.exteriorLeft = false;
     }},
    {"beams_and_insulation", 300, usual, beamsAndInsulation},
    {"sloping_head", 301, usual,
     [](Scene& s) {
         s.bend(101, 75).bend(7, 53, true).add(Kind::precast, 71, 239, "KV ?/1 ?").here();
         s.design.last()->bearing = 125;
         s.design.last()->length = 1500;
         s.add(Kind::precast, 71, 239, "KP").add(Kind::space, 33, 100);
     }},
    // The flagged bend is not the last one, and goes down.
    {"sloping_middle", 300, usual,
     [](Scene& s) { s.bend(90, 60).bend(0, -45, true).bend(20, 10); }},
    {"angles", 200, usual,
     [](Scene& s) {
         s.add(Kind::angle, 45, 61, "L").here();
         s.add(Kind::insulation, 15, 61).add(Kind::angleMirrored, 45, 61, "L");
     }},
    {"channels", 200, usual,
     [](Scene& s) {
         s.add(Kind::channel, 45, 81, "U").add(Kind::space, 51, 81, "MEZERA");
         s.add(Kind::channelMirrored, 45, 81, "U").here();
         s.input.dropMarker = 96;
     }},
    {"current_space", 365, other,
     [](Scene& s) {
         s.add(Kind::space, 123, 77, "MEZERA").here();
         s.input.dropMarker = 0;
     }},
    // A cast layer wider than the wall.
    {"current_monolith", 250, other,
     [](Scene& s) {
         s.bend(125, 50).bend(60, 25).add(Kind::monolith, 333, 251, "MONOLIT").here();
     }},
    {"other_shapes", 400, usual,
     [](Scene& s) {
         s.add(Kind{5}, 81, 100, "?").here();
         s.add(Kind::precast, 70, 100).add(Kind{104}, 33, 55).add(Kind{60}, 21, 31);
         s.design.head()->next->next->name.reset();
     }},
    // Elements without a value of their own to be typed over.
    {"current_beam", 200, usual, [](Scene& s) { s.add(Kind::beam, 99, 100, "I 100").here(); }},
    {"current_of_no_kind", 200, usual, [](Scene& s) { s.add(Kind{105}, 99, 100).here(); }},
};

TEST(SectionDrawing, DrawsWhatTheFilesSay) {
    compareWithFiles(drawings);
}

// ---- what a file does not tell

TEST(SectionDrawing, TheMirrorButtonBelongsToShapesBehindTheFirst) {
    constexpr std::pair<std::int32_t, bool> kinds[] = {{0, false}, {1, false},  {2, true},
                                                       {99, true}, {100, true}, {101, false}};
    for (const auto& [kind, mirrored] : kinds) {
        Scene scene(200);
        scene.add(Kind{kind}, 99, 100).here();
        RecordingCanvas canvas;
        const HitRegions regions = scene.draw(canvas);
        EXPECT_EQ(std::any_of(regions.begin(), regions.end(),
                              [](const HitRegion& one) { return one.kind == region::mirror; }),
                  mirrored)
            << kind;
    }
}

TEST(SectionDrawing, IsBlackWithoutADesignAndNothingWithoutRoom) {
    SectionInput input;
    input.dropMarker = 10;
    expectBlackWithoutADesign(input, drawSection);
    Scene beams(300);
    beamsAndInsulation(beams);
    expectNothingWithoutRoom(beams);
}

TEST(SectionDrawing, NoNumberMakesItLong) {
    forWildScenes<Scene>([](Scene& scene, std::int32_t size, std::int32_t place) {
        layOut(*scene.design.head());
        scene.input.head = scene.design.head();
        scene.input.dropMarker = place;
        scene.input.openingWidth = size * 1e300;
        for (CRez* record = scene.design.head(); record; record = record->next) {
            record->offset = place;
            record->level = size;
            scene.input.current = record;
            RecordingCanvas canvas;
            EXPECT_GE(drawSection(canvas, scene.input).size(), 10U);
            EXPECT_LT(canvas.asText().size(), 20000U);
        }
    });
}

std::string zigzag(int start, int top, int step) {
    RecordingCanvas canvas;
    Sheet{canvas, {}}.zigzag({5, start}, top, step, 300, true);
    return canvas.asText();
}

TEST(SectionDrawing, TheZigzagIsCutWhereItCannotBeSeen) {
    const std::string pen = "pen 0,0,0 width 1 solid\nline ";
    EXPECT_EQ(zigzag(100, 70, 10), pen + "(5,100)-(25,90)-(5,80)\n") << "not up to the top edge";
    EXPECT_EQ(zigzag(100, 69, 10), pen + "(5,100)-(25,90)-(5,80)-(25,70)\n");
    EXPECT_EQ(zigzag(100, 50, 7), "") << "too narrow";
    EXPECT_EQ(zigzag(50, 100, 10), "") << "a negative height";
    EXPECT_EQ(zigzag(250, -2'000'000'000, 100), pen + "(5,250)-(205,150)-(5,50)-(205,-50)\n");
    EXPECT_EQ(zigzag(2'000'000'050, 0, 100), pen + "(205,350)-(5,250)-(205,150)-(5,50)\n")
        << "the side that it would have come to, counted from its start";
    EXPECT_EQ(zigzag(2'000'000'050, 1'000'000'000, 100), "") << "all of it below the picture";
}

TEST(HitRegions, BelongToTheirEdgesAndTheNewestOneWins) {
    const HitRegions regions = {{false, region::number, {}, 20, 20, 10, 5},
                                {false, region::number, {}, 10, 10, 10, 10},
                                {false, region::number, {}, 40, 40, 0, 13}};
    const auto hit = [&](int x, int y) {
        const HitRegion* found = regionAt(regions, {x, y});
        return found ? static_cast<int>(found - regions.data()) : -1;
    };
    EXPECT_EQ(hit(10, 10), 1);
    EXPECT_EQ(hit(19, 20), 1);
    EXPECT_EQ(hit(20, 20), 0) << "the corner of both";
    EXPECT_EQ(hit(30, 25), 0);
    EXPECT_EQ(hit(31, 25), -1);
    EXPECT_EQ(hit(30, 26), -1);
    EXPECT_EQ(hit(9, 15), -1);
    EXPECT_EQ(hit(40, 53), 2) << "the name of a layer without one";
    constexpr int least = std::numeric_limits<int>::min();
    EXPECT_EQ(hit(least, least), -1);
}

}  // namespace
}  // namespace lx
