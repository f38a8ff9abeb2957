#include "preview/section_drawing.h"

#include <utility>

#include "composition/layout.h"
#include "composition/saturate.h"
#include "design/layer_texts.h"
#include "design/opening.h"
#include "platform/numbers.h"
#include "preview/section_sheet.h"
#include "resources/strings.h"

namespace lx {

namespace {

constexpr Pen markerPen{previewWhite, 1, PenStyle::dot};
constexpr int markerTop = -500;  // px
constexpr int markerBottom = 500;

constexpr Point title{2, 5};
constexpr Point side{2, 35};
constexpr int margin = 5;  // px on the right and at the bottom

void drawRecords(SectionSheet& sheet, const SectionInput& input) {
    for (const CRez* record = input.head; record; record = record->next) {
        if (record == input.head || record->isHead()) {
            drawHead(sheet, *record);
        } else {
            drawLayer(sheet, *record, record == input.current, input.iconSize);
        }
    }
}

void drawDropMarker(SectionSheet& sheet, int marker) {
    if (marker < 0) return;
    const int x = sheet.x(marker);
    sheet.canvas.setPen(markerPen);
    sheet.line({{x, markerTop}, {x, markerBottom}});
}

void drawSides(Canvas& canvas, const SectionInput& input) {
    canvas.drawText(title, text::sectionTitle);
    const std::string_view left = input.exteriorLeft ? text::exterior : text::interior;
    const std::string_view right = input.exteriorLeft ? text::interior : text::exterior;
    canvas.drawText(side, left);
    canvas.drawText({input.client.width - canvas.measure(right).width - margin, side.y}, right);
}

void drawOpeningWidth(Canvas& canvas, const SectionInput& input) {
    const Text text = fillIn(text::openingWidth, {formatInt(shownOpeningSize(input.openingWidth))});
    const Size size = canvas.measure(text);
    canvas.drawText(
        {input.client.width - size.width - margin, input.client.height - size.height - margin},
        text);
}

// One name a line, the last one a line above the bottom.
void drawLayerNames(SectionSheet& sheet, const CRez& head) {
    constexpr int left = 2;
    const int line = sheet.canvas.measure("A").height;
    std::int64_t linesUp = LayerCount(head) + 1;
    for (const CRez* layer = head.next; layer; layer = layer->next) {
        const Text name = shownDesignation(*layer);
        const int y = saturated(sheet.height - line * linesUp--);
        sheet.canvas.drawText({left, y}, name);
        const Size size = sheet.canvas.measure(name);
        sheet.addRegion(false, region::layerName, {layer}, {left, y}, size);
    }
}

}  // namespace

HitRegions drawSection(Canvas& canvas, const SectionInput& input) {
    const Size client = input.client;
    if (!prepareGround(canvas, client) || !input.head) return {};

    SectionSheet sheet{{canvas, {}}, sectionScale(input.head->width, client), client.height};
    drawRecords(sheet, input);
    drawDropMarker(sheet, input.dropMarker);
    canvas.setFont(labelFont());
    drawSides(canvas, input);
    drawOpeningWidth(canvas, input);
    drawLayerNames(sheet, *input.head);
    return newestFirst(std::move(sheet.regions));
}

}  // namespace lx
