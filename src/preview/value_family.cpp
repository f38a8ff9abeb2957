#include "preview/value_family.h"

#include "platform/numbers.h"
#include "settings/setting_keys.h"

namespace lx {

namespace {

constexpr int labelsEnd = 140;  // px; bend regions begin behind it

// The numbers of a special layer with two of them: its height, made last, and its width. Only a
// bent head has a third number behind them, which is what they are recognised by.
struct LayerNumbers {
    std::size_t height = 0;
    std::size_t width = 0;
    bool cast = false;  // else insulation; the label "Výška" is wider than "Šířka" alone
};

std::optional<LayerNumbers> layerNumbers(const HitRegions& regions) {
    for (std::size_t i = 0; i + 2 < regions.size(); ++i) {
        const bool found = regions[i].kind == region::number &&
                           regions[i + 1].kind == region::specialWidth &&
                           regions[i + 2].kind == region::number;
        if (found) return LayerNumbers{i, i + 1, regions[i].x >= regions[i + 1].x};
    }
    return std::nullopt;
}

std::optional<std::string_view> familyOfLayer(const HitRegions& regions, std::size_t clicked) {
    const auto numbers = layerNumbers(regions);
    if (!numbers) return std::nullopt;
    if (clicked == numbers->height) {
        return numbers->cast ? settings::monolithHeight : settings::insulationHeight;
    }
    if (clicked == numbers->width) {
        return numbers->cast ? settings::monolithWidth : settings::insulationThickness;
    }
    return std::nullopt;
}

bool isNegative(const HitRegion& region, const RezChain& design) {
    const std::int32_t* value = valueOf(design, region.target);
    return value != nullptr && *value < 0;
}

// A region of a bend's run or step: the numbers under the wall stand to the right of the labels of
// the current layer.
bool isBendRegion(const HitRegion& region) {
    return region.kind == region::number && region.x > labelsEnd;
}

}  // namespace

Text valueFamily(const HitRegions& regions, std::size_t clicked, const RezChain& design) {
    if (const auto family = familyOfLayer(regions, clicked)) return Text(*family);
    int bends = 0;
    int number = 0;  // of the clicked region among those of bends
    bool thirdNegative = false;
    for (std::size_t i = 0; i < regions.size(); ++i) {
        if (!isBendRegion(regions[i])) continue;
        ++bends;
        if (i <= clicked) ++number;
        if (bends == 3) thirdNegative = isNegative(regions[i], design);
    }
    if (bends == 2) {
        return Text(number == 1 ? settings::singleBendStep : settings::singleBendRun);
    }
    return Text(settings::otherBends) + formatInt(number) + (thirdNegative ? "_3" : "_2");
}

}  // namespace lx
