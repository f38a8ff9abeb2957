// The places of a preview that can be clicked, each bound to one value of the design or to one
// layer, and their names for programs that act as the user.
#pragma once

#include <vector>

#include "design/value_commit.h"
#include "platform/controls.h"

namespace lx {

// Kinds of hit regions; one of a number is the kind of the edit that it begins.
namespace region {
inline constexpr int specialWidth = edit_kind::specialWidth;
inline constexpr int number = edit_kind::number;
inline constexpr int layerName = 1;  // selects the layer
inline constexpr int mirror = 2;     // mirrors a steel section
inline constexpr int planLevel = 103;
}  // namespace region

struct HitRegion {
    bool absoluteOnly = false;  // a value typed in is stored as its absolute value
    int kind = region::number;
    EditTarget target;  // layerName: the record alone counts
    int x = 0;          // pixels of the preview; all four edges belong to the region
    int y = 0;
    int width = 0;
    int height = 0;

    bool contains(Point p) const;
    Point middle() const { return {x + width / 2, y + height / 2}; }
    bool operator==(const HitRegion&) const = default;
};

// Newest first: which value a number is can be told from the regions around it in this order.
using HitRegions = std::vector<HitRegion>;

// The newest region at that point, or null.
const HitRegion* regionAt(const HitRegions& regions, Point p);

// The number, in the order in which they were made, behind the one of that target, or before it;
// the first or the last one without such a target and at the end. Null when there are no numbers.
const HitRegion* nextNumber(const HitRegions& regions, const EditTarget& last, bool back);

// Drops the regions whose record is gone.
void forgetRemoved(HitRegions& regions, const RezChain& design);

// In the order of their making: "layer N" (a layer's name, from 1), "mirror", "width" and "height"
// of the current layer, "run N" and "step N" of a bend (from 1), "level" and "overhang" in the
// plan.
std::vector<PictureRegion> pictureRegions(const HitRegions& regions);

}  // namespace lx
