// What a picture is drawn on: pens, polylines, filled rectangles, texts, icons. GDI on a screen, a
// recording in memory elsewhere. Coordinates are pixels of the picture, x to the right, y downward.
#pragma once

#include <string_view>

#include "platform/geometry.h"
#include "platform/text.h"

namespace lx {

enum class PenStyle { solid, dash, dot, dashDot, dashDotDot };

struct Pen {
    Color color;
    int width = 1;
    PenStyle style = PenStyle::solid;
    bool operator==(const Pen&) const = default;
};

struct Font {
    bool dialogFont =
        false;  // the font of the dialog that the picture stands in; the rest is then ignored
    Text face = "Arial";
    int height = 12;         // cell height in pixels
    int width = 0;           // average character width in pixels; 0 = what suits the height
    int escapement = 0;      // tenths of a degree, counter-clockwise; 900 = running upward
    int pitchAndFamily = 0;  // the byte of that name in a logical font
    bool operator==(const Font&) const = default;
};

class Canvas {
public:
    Canvas() = default;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    virtual ~Canvas() = default;

    virtual void setClip(const Rect& area) = 0;
    virtual void setPen(const Pen& pen) = 0;
    virtual void setFont(const Font& font) = 0;
    virtual void setTextColor(Color color) = 0;

    virtual void moveTo(Point p) = 0;
    // From the current point up to, without, p, as GDI draws; p becomes the current point.
    virtual void lineTo(Point p) = 0;
    virtual void fillRect(const Rect& area, Color color) = 0;
    // The text's top left corner at p; no background is filled. A font with an escapement turns
    // about p.
    virtual void drawText(Point p, std::string_view text) = 0;
    // Size of the text in the current font, as if it ran horizontally.
    virtual Size measure(std::string_view text) = 0;
    // The icon of that resource number, scaled to the size; draws nothing when there is none.
    virtual void drawIcon(int number, Point p, Size size) = 0;
};

}  // namespace lx
