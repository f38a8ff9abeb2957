#include "preview/plan_drawing.h"

#include <utility>

#include "preview/plan_sheet.h"
#include "resources/strings.h"

namespace lx {

namespace {

constexpr Point title{2, 5};

void drawRecord(PlanSheet& sheet, const PlanInput& input, const CRez& record) {
    if (&record == input.head || record.isHead()) {
        drawPlanHead(sheet, record);
    } else {
        drawPlanLayer(sheet, record, &record == input.current);
    }
}

// The current record comes once more over all others; its regions are there already.
void drawRecords(PlanSheet& sheet, const PlanInput& input) {
    const CRez* current = nullptr;
    for (const CRez* record = input.head; record; record = record->next) {
        drawRecord(sheet, input, *record);
        if (record == input.current) current = record;
    }
    if (!current) return;
    HitRegions regions = sheet.regions;
    drawRecord(sheet, input, *current);
    sheet.regions = std::move(regions);
}

}  // namespace

HitRegions drawPlan(Canvas& canvas, const PlanInput& input) {
    if (!prepareGround(canvas, input.client) || !input.head) return {};
    PlanSheet sheet = planSheet(canvas, input);
    drawRecords(sheet, input);
    canvas.setFont(labelFont());
    canvas.drawText(title, text::planTitle);
    return newestFirst(std::move(sheet.regions));
}

}  // namespace lx
