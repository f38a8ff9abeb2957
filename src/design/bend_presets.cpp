#include "design/bend_presets.h"

#include <cstddef>
#include <iterator>

namespace lx {

namespace {

constexpr std::size_t mostBends = 3;

struct Preset {
    std::int32_t parts;  // of the wall thickness; each run is one of them
    std::size_t count;
    std::int32_t steps[mostBends];  // mm
    bool sloping;                   // the last bend
};

constexpr Preset presets[] = {
    {1, 0, {}, false},              // straight
    {2, 1, {100}, false},           // one step up
    {3, 2, {100, 100}, false},      // two steps up
    {3, 2, {-100, 200}, false},     // down, then up
    {2, 2, {100, 100}, true},       // a step up, then a slope
    {3, 3, {100, 100, 100}, true},  // two steps up, then a slope
};

}  // namespace

void setBends(CRez& head, int shape) {
    head.bends.reset();
    if (shape < 0 || static_cast<std::size_t>(shape) >= std::size(presets)) return;
    const Preset& preset = presets[shape];
    for (std::size_t i = 0; i < preset.count; ++i) {
        const bool last = i + 1 == preset.count;
        head.addBend(head.width / preset.parts, preset.steps[i], last && preset.sloping);
    }
}

}  // namespace lx
