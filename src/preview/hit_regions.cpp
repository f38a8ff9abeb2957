#include "preview/hit_regions.h"

#include <algorithm>
#include <unordered_set>

#include "composition/saturate.h"
#include "platform/numbers.h"

namespace lx {

namespace {

Text nameOfValue(const EditTarget& target) {
    switch (target.field) {
        case EditField::width:
            return "width";
        case EditField::height:
            return "height";
        case EditField::bendRun:
            return "run " + formatInt(target.bend + 1);
        case EditField::bendStep:
            return "step " + formatInt(target.bend + 1);
        case EditField::headBearing:
            return "overhang";
        case EditField::length:
        case EditField::kind:
            break;
    }
    return {};
}

}  // namespace

bool HitRegion::contains(Point p) const {
    return p.x >= x && p.x - std::int64_t{x} <= width && p.y >= y &&
           p.y - std::int64_t{y} <= height;
}

const HitRegion* regionAt(const HitRegions& regions, Point p) {
    const auto found = std::find_if(regions.begin(), regions.end(),
                                    [p](const HitRegion& each) { return each.contains(p); });
    return found == regions.end() ? nullptr : &*found;
}

const HitRegion* nextNumber(const HitRegions& regions, const EditTarget& last, bool back) {
    std::vector<const HitRegion*> numbers;
    for (auto each = regions.rbegin(); each != regions.rend(); ++each) {
        if (each->kind != region::layerName && each->kind != region::mirror) {
            numbers.push_back(&*each);
        }
    }
    if (back) std::reverse(numbers.begin(), numbers.end());
    if (numbers.empty()) return nullptr;
    const auto found = std::find_if(numbers.begin(), numbers.end(), [&last](const HitRegion* each) {
        return each->target == last;
    });
    if (found == numbers.end() || found + 1 == numbers.end()) return numbers.front();
    return *(found + 1);
}

void forgetRemoved(HitRegions& regions, const RezChain& design) {
    std::unordered_set<const CRez*> records;
    for (const CRez* record = design.head(); record; record = record->next) records.insert(record);
    std::erase_if(regions, [&records](const HitRegion& region) {
        return !records.contains(region.target.record);
    });
}

std::vector<PictureRegion> pictureRegions(const HitRegions& regions) {
    std::vector<PictureRegion> result;
    int layers = 0;
    for (auto each = regions.rbegin(); each != regions.rend(); ++each) {
        Text name;
        switch (each->kind) {
            case region::layerName:
                name = "layer " + formatInt(++layers);
                break;
            case region::mirror:
                name = "mirror";
                break;
            case region::planLevel:
                name = "level";
                break;
            default:
                name = nameOfValue(each->target);
                break;
        }
        if (name.empty()) continue;
        const int right = saturated(std::int64_t{each->x} + each->width);
        const int bottom = saturated(std::int64_t{each->y} + each->height);
        result.push_back({std::move(name), {each->x, each->y, right, bottom}});
    }
    return result;
}

}  // namespace lx
