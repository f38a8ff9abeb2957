// The records of a design on the plan: the head with the wall and the dimensions, and a layer.
#pragma once

#include "composition/records.h"
#include "preview/plan_sheet.h"

namespace lx {

// Wall faces, jambs and dimensions; in the folded section the bent bottom and the level. Regions of
// the level and the overhang.
void drawPlanHead(PlanSheet& sheet, const CRez& head);

// The layer's strip along the wall, and its shape in the folded section.
void drawPlanLayer(PlanSheet& sheet, const CRez& layer, bool current);

}  // namespace lx
