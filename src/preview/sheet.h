// What both previews are drawn with: colours, fonts, dimensions, the zigzag of insulation, and the
// list of regions made so far.
#pragma once

#include <initializer_list>

#include "platform/canvas.h"
#include "preview/hit_regions.h"

namespace lx {

inline constexpr Color previewWhite{255, 255, 255};
inline constexpr Color previewMagenta{238, 0, 238};
inline constexpr Color previewGrey{238, 238, 238};
inline constexpr Color layerColor{255, 153, 153};
inline constexpr Color currentColor{255, 255, 170};  // of the current record

inline constexpr Pen dimensionPen{previewGrey, 1};

inline Font labelFont() {
    return {.dialogFont = true};
}
inline Font dimensionFont() {
    return {.height = 15, .pitchAndFamily = 0x31};
}
// Runs upward.
inline Font verticalFont() {
    return {.height = 15, .escapement = 900, .pitchAndFamily = 0x31};
}

// Pixels from the middle of a tick to its ends; also how far lines stand out over one another.
inline constexpr int halfTick = 5;

// Truncated towards zero, and held so far inside the range of int that the lengths of a picture
// can be added.
int truncatedPixel(double value);

struct Sheet {
    Canvas& canvas;
    HitRegions regions;  // oldest first while the picture is being drawn

    // From point to point with the current pen.
    void line(std::initializer_list<Point> points);
    void tick(Point middle);
    // Insulation's filling: steps of that many pixels from start to end along one axis, and two
    // steps across it to the other side and back in turn; nothing for steps under 8. What lies
    // beyond 0 and the picture's extent along the axis is left out, so that no layer takes long.
    // upward: the axis runs up and the side lies to the right, as in the section; otherwise the
    // axis runs to the left and the side lies above, as in the folded section, where the first step
    // goes along the edge.
    void zigzag(Point start, int end, int step, int extent, bool upward);
    // A region of a text that was drawn at p, or that runs upward from p.
    void addRegion(bool absoluteOnly, int kind, const EditTarget& target, Point p, Size size);
    void addUprightRegion(bool absoluteOnly, int kind, const EditTarget& target, Point p,
                          Size size);
};

// Clips to the picture and leaves it black, for white texts. False when the picture has no room:
// then nothing is to be drawn.
bool prepareGround(Canvas& canvas, Size client);

// The regions of a finished picture.
HitRegions newestFirst(HitRegions oldestFirst);

}  // namespace lx
