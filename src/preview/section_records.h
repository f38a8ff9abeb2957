// The records of a design on the section: the head with its dimensions, and a layer.
#pragma once

#include "composition/records.h"
#include "preview/section_sheet.h"

namespace lx {

// The bent head, its outline and its dimensions; regions of its runs and steps.
void drawHead(SectionSheet& sheet, const CRez& head);

// The symbol of the layer's kind; of the current one also its values or its mirror button, of that
// size, with their regions.
void drawLayer(SectionSheet& sheet, const CRez& layer, bool current, Size mirrorButton);

}  // namespace lx
