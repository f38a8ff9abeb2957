#include <algorithm>

#include "design/value_commit.h"
#include "platform/numbers.h"
#include "preview/plan_sheet.h"

namespace lx {

namespace {

constexpr Pen wallPen{previewMagenta, 1};

constexpr int wallMargin = 10;  // px from the ends of the wall to the sides of the preview
constexpr int secondFace = 3;   // px that the second face is drawn below its place

// The bent head in the folded section, px: from the middle of the preview to level 0, and from the
// second face's place to the first point.
constexpr int levelZero = 2;
constexpr int headStart = 2;

// Pixels above the bottom of the preview.
constexpr int dimensionLine = 25;
constexpr int openingText = 40;
constexpr int overhangText = 45;
constexpr int extensionTop = 80;

void drawWall(PlanSheet& sheet, const CRez& head) {
    const int first = sheet.faceY(head.offset);
    const int second = sheet.faceY(std::int64_t{head.offset} + head.width) + secondFace;
    const int right = sheet.client.width - wallMargin;
    sheet.canvas.setPen(wallPen);
    sheet.line({{wallMargin, first}, {right, first}});
    sheet.line({{wallMargin, second}, {right, second}});
    const double opening = static_cast<double>(sheet.opening) * sheet.scale;
    for (const double twice : {sheet.client.width - opening, sheet.client.width + opening}) {
        const int x = truncatedPixel(twice) / 2;
        sheet.line({{x, sheet.jamb.y}, {x, second}});
    }
}

// The bottom of the head turned by a quarter: runs go up from the second face, steps to the left.
// Answers the lowest level, px to the right of the preview's middle.
std::int64_t drawBends(PlanSheet& sheet, const CRez& head, int face) {
    const auto pixels = [&](std::int32_t mm) { return truncatedPixel(mm * sheet.scale + 0.5); };
    const auto held = [](std::int64_t px) { return truncatedPixel(static_cast<double>(px)); };
    const int middle = sheet.client.width / 2;
    std::int64_t run = 0;
    std::int64_t level = levelZero;
    std::int64_t lowest = levelZero;
    const auto drawTo = [&] { sheet.canvas.lineTo({held(middle + level), held(face + run)}); };
    sheet.canvas.moveTo({middle + levelZero, face + headStart});
    for (const CZalom* bend = head.bends.get(); bend; bend = bend->next.get()) {
        run -= pixels(bend->run);
        if (!bend->flag) drawTo();
        level -= pixels(bend->step);
        drawTo();
        lowest = std::max(lowest, level);
    }
    sheet.canvas.lineTo({held(middle + level), sheet.jamb.y});
    return lowest;
}

// The mark of a level, with its tip at that x, and the level upright beside it. Its upper barb is
// longer than the lower one (15 and 10 px): so the mark has always been drawn.
void drawLevel(PlanSheet& sheet, const CRez& head, int x, int face) {
    sheet.canvas.setPen(dimensionPen);
    sheet.line({{x, face + 5}, {x, face + 45}});
    sheet.line({{x - 30, face + 25}, {x - 30, face + 40}, {x, face + 40}, {x - 10, face + 50}});
    sheet.line({{x, face + 40}, {x - 10, face + 25}});

    const Text text = levelText(head.height);
    sheet.canvas.setFont(verticalFont());
    const Size size = sheet.canvas.measure(text);
    const Point p{x - 40 - size.height, face + 40};
    sheet.canvas.drawText(p, text);
    sheet.addUprightRegion(true, region::planLevel, {&head, EditField::height}, p, size);
}

void drawFoldedHead(PlanSheet& sheet, const CRez& head) {
    const int face = sheet.faceY(std::int64_t{head.offset} + head.width);
    const std::int64_t lowest = drawBends(sheet, head, face);
    const std::int64_t mark = sheet.client.width / 2 + lowest;
    drawLevel(sheet, head, truncatedPixel(static_cast<double>(mark)), face);
}

void drawDimensionLine(PlanSheet& sheet, const CRez& head) {
    const int left = sheet.jamb.x;
    const int right = sheet.alongX(static_cast<double>(sheet.opening));
    const int end = sheet.alongX(-static_cast<double>(head.headBearing()));
    const int farther = head.headBearing() > 0 ? end : left;
    const int y = sheet.client.height - dimensionLine;
    const auto drawExtension = [&](int x) {
        sheet.line({{x, sheet.client.height - extensionTop}, {x, y + halfTick}});
    };
    sheet.canvas.setPen(dimensionPen);
    drawExtension(left);
    drawExtension(right);
    if (head.next) drawExtension(end);
    sheet.line({{farther - halfTick, y}, {right + halfTick, y}});
    sheet.tick({left, y});
    sheet.tick({right, y});
    if (head.headBearing() > 0) sheet.tick({end, y});
}

void drawOpening(PlanSheet& sheet) {
    const Text text = formatInt(sheet.opening);
    const int middle = sheet.alongX(static_cast<double>(sheet.opening) / 2.0);
    const int x = middle - sheet.canvas.measure(text).width / 2;
    sheet.canvas.drawText({x, sheet.client.height - openingText}, text);
}

void drawOverhang(PlanSheet& sheet, const CRez& head) {
    if (head.headBearing() == 0) return;
    const Text text = formatInt(head.headBearing());
    const Size size = sheet.canvas.measure(text);
    const Point p{sheet.jamb.x - size.width, sheet.client.height - overhangText};
    sheet.canvas.drawText(p, text);
    if (!sheet.overhangEditable) return;
    sheet.addRegion(true, region::number, {&head, EditField::headBearing}, p, size);
}

}  // namespace

void drawPlanHead(PlanSheet& sheet, const CRez& head) {
    drawWall(sheet, head);
    if (sheet.foldedSection) drawFoldedHead(sheet, head);
    drawDimensionLine(sheet, head);
    sheet.canvas.setFont(dimensionFont());
    drawOpening(sheet);
    drawOverhang(sheet, head);
}

}  // namespace lx
