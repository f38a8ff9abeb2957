#include "platform/recording_canvas.h"

#include <gtest/gtest.h>

namespace lx {
namespace {

TEST(RecordingCanvas, TellsWhatWasDrawnLineByLine) {
    RecordingCanvas canvas;
    canvas.setClip({0, 0, 200, 300});
    canvas.fillRect({0, 0, 200, 300}, {0, 0, 0});
    canvas.setPen({{255, 153, 153}, 4, PenStyle::solid});
    canvas.moveTo({10, 20});
    canvas.lineTo({30, 40});
    canvas.lineTo({50, 40});
    canvas.moveTo({50, 40});
    canvas.lineTo({60, 60});
    canvas.moveTo({1, 1});
    canvas.lineTo({2, 2});
    canvas.setPen({{255, 255, 255}, 1, PenStyle::dot});
    canvas.lineTo({3, 3});
    canvas.setFont({.height = 15, .escapement = 900});
    canvas.setTextColor({255, 255, 255});
    canvas.drawText({2, 5}, "Řez: \"a\"\r\n"_cz);
    canvas.setFont({.dialogFont = true});
    canvas.drawText({2, 25}, "+50");
    canvas.drawIcon(2014, {3, 4}, {16, 12});
    EXPECT_EQ(canvas.asText(),
              "clip (0,0)-(200,300)\n"
              "fill (0,0)-(200,300) 0,0,0\n"
              "pen 255,153,153 width 4 solid\n"
              "line (10,20)-(30,40)-(50,40)-(60,60)\n"
              "line (1,1)-(2,2)\n"
              "pen 255,255,255 width 1 dot\n"
              "line (2,2)-(3,3)\n"
              "text (2,5) \"Řez: \\\"a\\\"\\r\\n\" font Arial 15 turned 900 color 255,255,255\n"
              "text (2,25) \"+50\" font dialog color 255,255,255\n"
              "icon 2014 (3,4) 16x12\n");
}

TEST(RecordingCanvas, MeasuresWiderTextsWider) {
    for (const Font& font : {Font{.height = 12, .width = 4}, Font{.dialogFont = true}}) {
        RecordingCanvas canvas;
        canvas.setFont(font);
        const auto width = [&](std::string_view text) { return canvas.measure(text).width; };
        EXPECT_GT(width("Tlouštka : "_cz), width("Výška : "_cz));
        EXPECT_GT(width("Výška : "_cz), width("Šířka : "_cz));
        EXPECT_GT(width("100"), width("10"));
        EXPECT_EQ(width(""), 0);
        EXPECT_EQ(canvas.measure("A").height, font.dialogFont ? 13 : 12);
    }
    const Font small{.height = 12};
    const Font large{.height = 24};
    EXPECT_NEAR(RecordingCanvas::measure(large, "Výška 120"_cz).width,
                2 * RecordingCanvas::measure(small, "Výška 120"_cz).width, 1);
}

TEST(RecordingCanvas, WritesAWellFormedSvg) {
    RecordingCanvas canvas([](Canvas& icon, int number, Size size) {
        if (number == 1) icon.fillRect({0, 0, size.width, size.height}, {9, 8, 7});
        return number == 1;
    });
    canvas.setClip({5, 5, 50, 50});
    canvas.setFont({.height = 20, .escapement = 900});
    canvas.drawText({10, 40}, "<a & \"ř\"\x01"_cz);
    canvas.drawIcon(2, {0, 0}, {16, 16});
    canvas.drawIcon(1, {1, 2}, {16, 16});
    const std::string svg = canvas.svgElements();
    EXPECT_NE(svg.find("&lt;a &amp; &quot;ř&quot; </text>"), std::string::npos);
    EXPECT_NE(svg.find("rotate(-90.0 10 40)"), std::string::npos);
    EXPECT_NE(svg.find("rgb(9,8,7)"), std::string::npos) << "the icon's own picture";
    EXPECT_EQ(canvas.asText().find("icon 2 "), std::string::npos) << "there is no such icon";
    int depth = 0;
    for (std::size_t i = 0; i < svg.size(); ++i) {
        if (svg.compare(i, 4, "<svg") == 0) ++depth;
        if (svg.compare(i, 5, "</svg") == 0) --depth;
    }
    EXPECT_EQ(depth, 0);
}

}  // namespace
}  // namespace lx
