#include "platform/recording_canvas.h"

#include <gtest/gtest.h>

namespace lx {
namespace {

TEST(RecordingCanvas, MeasuresWiderTextsWider) {
    for (const Font& font : {Font{.height = 12, .width = 4}, Font{.dialogFont = true}}) {
        RecordingCanvas canvas;
        canvas.setFont(font);
        const auto width = [&](std::string_view text) { return canvas.measure(text).width; };
        EXPECT_GT(width("Tlouštka : "_cz), width("Výška : "_cz));
        EXPECT_GT(width("Výška : "_cz), width("Šířka : "_cz));
        EXPECT_EQ(width(""), 0);
        EXPECT_EQ(canvas.measure("A").height, font.dialogFont ? 13 : 12);
    }
}

TEST(RecordingCanvas, WritesAnSvg) {
    RecordingCanvas canvas([](Canvas& icon, int number, Size size) {
        if (number == 1) icon.fillRect({0, 0, size.width, size.height}, {9, 8, 7});
        return number == 1;
    });
    canvas.setFont({.height = 20, .escapement = 900});
    canvas.drawText({10, 40}, "<a & \"ř\"\x01"_cz);
    canvas.drawIcon(2, {0, 0}, {16, 16});
    canvas.drawIcon(1, {1, 2}, {16, 16});
    const std::string svg = canvas.svgElements();
    for (const char* part :
         {"&lt;a &amp; &quot;ř&quot; </text>", "rotate(-90.0 10 40)", "rgb(9,8,7)"}) {
        EXPECT_NE(svg.find(part), std::string::npos) << part;
    }
    EXPECT_EQ(canvas.asText().find("icon 2 "), std::string::npos) << "there is no such icon";
}

}  // namespace
}  // namespace lx
