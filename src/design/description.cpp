#include "design/description.h"

#include <algorithm>

#include "design/designation.h"
#include "platform/numbers.h"

namespace lx {

namespace {

constexpr std::string_view sizeFormat = " %d/%d - dl.%d";
constexpr std::string_view lengthFormat = " - dl.%d";
constexpr std::string_view countFormat = "%d x ";
constexpr std::string_view lineEnd = "\r\n";

Text sizeSuffix(std::int32_t width, std::int64_t height, std::int32_t length) {
    return fillIn(sizeFormat, {formatInt(width), formatInt(height), formatInt(length)});
}

}  // namespace

std::int64_t lowestLevel(const CZalom* bends) {
    std::int64_t lowest = 0;
    std::int64_t level = 0;
    for (const CZalom* bend = bends; bend != nullptr; bend = bend->next.get()) {
        level += bend->step;
        lowest = std::min(lowest, level);
    }
    return lowest;
}

Text layerLabel(const CRez& layer, std::int64_t lowest) {
    Text label = shownDesignation(layer);
    if (layer.kind == kind::insulation) {
        label += sizeSuffix(layer.width, layer.height, layer.length);
    } else if (isSteel(layer.kind)) {
        label += fillIn(lengthFormat, {formatInt(layer.length)});
    } else if (layer.kind == kind::monolith) {
        // A cast part reaches from above its own level down to the lowest point of the head.
        const std::int64_t height = std::int64_t{layer.height} + layer.level - lowest;
        label += sizeSuffix(layer.width, height, layer.length);
    }
    return label;
}

Text descriptionSummary(const CRez& head) {
    const std::int64_t lowest = lowestLevel(head.bends.get());
    Text summary;
    Text group;
    int count = 0;
    const auto closeGroup = [&] {
        if (count == 0) return;
        if (!summary.empty()) summary += lineEnd;
        summary += fillIn(countFormat, {formatInt(count)});
        summary += group;
    };
    for (const CRez* layer = head.next; layer != nullptr; layer = layer->next) {
        if (layer->kind == kind::space) continue;
        Text label = layerLabel(*layer, lowest);
        if (count > 0 && label == group) {
            ++count;
            continue;
        }
        closeGroup();
        group = std::move(label);
        count = 1;
    }
    closeGroup();
    return summary;
}

}  // namespace lx
