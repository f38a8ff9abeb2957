// How a design stands to its opening: the head made from the host's call, how far lintels reach
// beyond the opening, whether a stored design suits it.
#pragma once

#include <lxdata6dlg.h>
#include <memory>
#include <optional>

#include "composition/CRez.h"

namespace lx {

// A host's length in mm becomes whole mm by adding 0.9 and truncating; saturates, not a number is
// 0.
std::int32_t wholeMillimetres(double length);
// The opening width as the user sees it: rounded to whole mm, a fraction of exactly 0.5 down.
std::int32_t shownOpening(double width);
// Its size, whatever its sign, as the previews tell it.
std::int64_t shownOpeningSize(double width);
// Bearing length at each end, mm: may be negative.
std::int32_t shownBearing(std::int32_t length, double openingWidth);

// openingWidth and wallThickness in mm, level in m.
std::unique_ptr<CRez> headFromCall(double openingWidth, double wallThickness, double level);

// A block that tells nothing: it names no head shape.
OpeningBlock emptyBlock();
// The block with its runs and steps in mm, or none when the host does not tell how many drawing
// units make a metre (0). The factor is a whole number, so units finer than a millimetre give 0.
std::optional<OpeningBlock> blockInMillimetres(const OpeningBlock& block, int unitsPerMetre);
// Replaces the head's bends by those of a block in mm.
void bendsFromBlock(CRez& head, const OpeningBlock& block);
// The wider of the block's two opening widths where that counts, in mm.
std::optional<double> widerOpening(const OpeningBlock& block);

// The head's bearing length becomes the overhang of its first layer, mm, negative for one that is
// shorter than the opening; 0 without layers. To be done when the plan that the user sees has to be
// drawn anew, and at no other time: elsewhere a bearing of 0 means the default one.
// openingWidth in mm.
void settleOverhang(CRez& head, double openingWidth);

// Whether another overhang can be typed: an element of a fixed length does not follow it.
bool overhangEditable(const CRez& head);

// A design suits an opening that its first layer other than insulation is made for; one with a cast
// part, or whose element names no largest opening, suits every opening. A missing name equals an
// empty one, as which it is stored. openingWidth in mm.
bool suitsOpening(const CRez& head, double openingWidth);

}  // namespace lx
