#include "platform/numbers.h"
#include "preview/section_sheet.h"

namespace lx {

namespace {

constexpr Pen breakPen{previewMagenta, 1};
constexpr Pen outlinePen{previewMagenta, 3};

// Pixels from the top: where the wall breaks off, over the first and over the second face.
constexpr int breakLeft = 10;
constexpr int breakRight = 15;

// Pixels above the bottom of the preview: the dimension lines, the upper ends of the extension
// lines and the texts.
constexpr int wallLine = 25;
constexpr int wallText = 40;
constexpr int bendLine = 55;
constexpr int runText = 70;
constexpr int extensionTop = 80;
constexpr int stepText = 95;

constexpr std::string_view stepFormat = "+%d";

void drawBreak(SectionSheet& sheet, const CRez& head) {
    const int middle = sheet.x(head.width / 2);
    sheet.canvas.setPen(breakPen);
    sheet.line({{sheet.x(head.offset), breakLeft},
                {middle - 3, 12},
                {middle, 2},
                {middle, 22},
                {middle + 3, 12},
                {sheet.x(head.width), breakRight}});
}

void drawTick(SectionSheet& sheet, int x, int lineAbove) {
    sheet.tick({x, sheet.height - lineAbove});
}

// A dimension line across the wall, at that height above the bottom.
void drawDimensionLine(SectionSheet& sheet, const CRez& head, int lineAbove) {
    const int left = sheet.scale.origin.x;
    const int right = sheet.x(head.width);
    const int y = sheet.height - lineAbove;
    sheet.line({{left - halfTick, y}, {right + halfTick, y}});
    drawTick(sheet, left, lineAbove);
    drawTick(sheet, right, lineAbove);
}

void drawWallDimension(SectionSheet& sheet, const CRez& head) {
    const int left = sheet.scale.origin.x;
    const int right = sheet.x(head.width);
    const int upper = sheet.height - extensionTop;
    const int lower = sheet.height - wallLine + halfTick;
    sheet.canvas.setPen(dimensionPen);
    sheet.line({{left, upper}, {left, lower}});
    sheet.line({{right, lower}, {right, upper}});
    drawDimensionLine(sheet, head, wallLine);

    const Text text = formatInt(head.width);
    sheet.canvas.setFont(dimensionFont());
    const int middle = truncatedPixel(sheet.scale.origin.x + head.width / 2.0 * sheet.scale.scale);
    const int x = middle - sheet.canvas.measure(text).width / 2;
    sheet.canvas.drawText({x, sheet.height - wallText}, text);
}

// end: mm from the first wall face to the bend's far end.
void drawRun(SectionSheet& sheet, const CZalom& bend, const EditTarget& target, std::int64_t end) {
    const Text text = bend.flag ? "(" + formatInt(bend.run) + ")" : formatInt(bend.run);
    sheet.canvas.setFont(dimensionFont());
    const Size size = sheet.canvas.measure(text);
    const double scale = sheet.scale.scale;
    const double start = static_cast<double>(end) - (bend.run + size.width / scale) / 2;
    const Point p{truncatedPixel(sheet.scale.origin.x + start * scale), sheet.height - runText};
    sheet.canvas.drawText(p, text);
    // A flagged run always reaches the second wall face.
    if (bend.flag) return;
    sheet.addRegion(true, region::number, target, p, size);
}

void drawStep(SectionSheet& sheet, const CZalom& bend, const EditTarget& target, std::int64_t end) {
    const Text text = fillIn(stepFormat, {formatInt(bend.step)});
    sheet.canvas.setFont(verticalFont());
    // A negative step keeps the place that its plus sign takes.
    const Size size = sheet.canvas.measure(text);
    const Point p{sheet.x(end) - size.height / 2, sheet.height - stepText};
    sheet.canvas.drawText(p, std::string_view(text).substr(bend.step < 0 ? 1 : 0));
    sheet.addUprightRegion(false, region::number, target, p, size);
}

void drawBendDimensions(SectionSheet& sheet, const CRez& head, const CZalom& bend, int index,
                        std::int64_t end) {
    drawRun(sheet, bend, {&head, EditField::bendRun, index}, end);
    sheet.canvas.setPen(dimensionPen);
    drawStep(sheet, bend, {&head, EditField::bendStep, index}, end);
    const int x =
        sheet.scale.origin.x + truncatedPixel(static_cast<double>(end) * sheet.scale.scale);
    sheet.line({{x, sheet.height - extensionTop}, {x, sheet.height - bendLine + halfTick}});
    drawTick(sheet, x, bendLine);
}

void drawRemainingRun(SectionSheet& sheet, const CRez& head, std::int64_t position) {
    const std::int64_t rest = head.width - position;
    const Text text = "(" + formatInt(rest) + ")";
    sheet.canvas.setFont(dimensionFont());
    const double middle = static_cast<double>(position) + static_cast<double>(rest) / 2.0;
    const int x = sheet.x(truncateToInt(middle)) - sheet.canvas.measure(text).width / 2;
    sheet.canvas.drawText({x, sheet.height - runText}, text);
}

void drawOutline(SectionSheet& sheet, const CRez& head) {
    Canvas& canvas = sheet.canvas;
    canvas.setPen(outlinePen);
    canvas.moveTo({sheet.x(head.offset), breakLeft});
    std::int64_t position = 0;  // mm from the first wall face
    std::int64_t level = 0;     // mm
    bool flagged = false;
    int index = 0;
    for (const CZalom* bend = head.bends.get(); bend; bend = bend->next.get()) {
        if (!flagged) canvas.lineTo(sheet.at(position, level));
        flagged = bend->flag;
        // The segment of a flagged bend slopes, and the face behind it lies a step further still.
        if (flagged) level += bend->step;
        position += bend->run;
        const Point end = sheet.at(position, level);
        canvas.lineTo(end);
        drawBendDimensions(sheet, head, *bend, index++, position);
        canvas.moveTo(end);
        canvas.setPen(outlinePen);
        level += bend->step;
    }
    if (position > 0 && !flagged) drawRemainingRun(sheet, head, position);
    canvas.lineTo(sheet.at(position, level));
    canvas.lineTo(sheet.at(head.width, level));
    canvas.lineTo({sheet.x(head.width), breakRight});
}

}  // namespace

void drawHead(SectionSheet& sheet, const CRez& head) {
    drawBreak(sheet, head);
    drawWallDimension(sheet, head);
    if (head.bends) drawDimensionLine(sheet, head, bendLine);
    drawOutline(sheet, head);
}

}  // namespace lx
