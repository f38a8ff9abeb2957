#include "preview/plan_sheet.h"

#include <algorithm>

#include "design/opening.h"

namespace lx {

namespace {

constexpr int topMargin = 40;  // px
constexpr int aboveFace = 2;   // px from the top margin up to the ends of the jambs

// Walls and openings under this share one scale.
constexpr std::int64_t smallSize = 200;  // mm
constexpr double smallSpan = 500.0;      // mm across the preview
constexpr double wallsDown = 2.5;
constexpr double openingsAcross = 1.8;

double scaleFor(std::int64_t mm, int pixels, double times) {
    return mm < smallSize ? pixels / smallSpan : pixels / static_cast<double>(mm) / times;
}

}  // namespace

int PlanSheet::faceY(std::int64_t across) const {
    return truncatedPixel(jamb.y + static_cast<double>(across) * scale);
}

int PlanSheet::alongX(double mm) const {
    return truncatedPixel(jamb.x + mm * scale);
}

Point PlanSheet::strip(double along, double across) const {
    return {truncatedPixel(middle.x + along * scale), truncatedPixel(middle.y - across * scale)};
}

Point PlanSheet::folded(std::int64_t level, double across) const {
    return {truncatedPixel(middle.x - static_cast<double>(level) * scale),
            truncatedPixel(middle.y - across * scale)};
}

PlanSheet planSheet(Canvas& canvas, const PlanInput& input) {
    const CRez& head = *input.head;
    const std::int64_t opening = shownOpeningSize(input.openingWidth);
    const double scale = std::min(scaleFor(head.width, input.client.height, wallsDown),
                                  scaleFor(opening, input.client.width, openingsAcross));
    const double width = input.client.width;
    const double openingPixels = static_cast<double>(opening) * scale;
    return {{canvas, {}},
            input.client,
            scale,
            opening,
            input.foldedSection,
            overhangEditable(head),
            {truncatedPixel((width - openingPixels) / 2.0), topMargin - aboveFace},
            {truncatedPixel(width / 2.0), truncatedPixel(topMargin + head.width * scale)}};
}

}  // namespace lx
