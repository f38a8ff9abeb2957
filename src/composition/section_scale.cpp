#include "composition/section_scale.h"

#include "composition/layout.h"
#include "composition/saturate.h"
#include "platform/numbers.h"

namespace lx {

namespace {

constexpr std::int32_t thinWall = 200;  // mm; thinner walls share one scale
constexpr double thinWallSpan = 500.0;  // mm across the preview
constexpr double wallsAcrossPreview = 2.5;
constexpr double panX = 25;  // pixels
constexpr double panY = 50;

// True when a run has changed.
bool settleRuns(CRez& head) {
    bool changed = false;
    std::int64_t position = 0;
    for (CZalom* bend = head.bends.get(); bend; bend = bend->next.get()) {
        if (bend->flag) {
            const std::int32_t rest = saturated(head.width - position);
            changed = changed || rest != bend->run;
            bend->run = rest;
        }
        position += bend->run;
    }
    return changed;
}

void liftLayers(CRez& head, const SectionScale& scale) {
    const FlaggedBand band = flaggedBand(head, scale);
    for (CRez* layer = head.next; layer; layer = layer->next) {
        const int bottom = truncateToInt(scale.origin.y - layer->level * scale.scale);
        if (bottom <= band.bottom && bottom > band.top) {
            layer->level =
                truncateToInt((static_cast<double>(scale.origin.y) - band.top) / scale.scale);
        }
    }
}

}  // namespace

bool hasFlaggedBend(const CRez& head) {
    for (const CZalom* bend = head.bends.get(); bend; bend = bend->next.get()) {
        if (bend->flag) return true;
    }
    return false;
}

SectionScale sectionScale(std::int32_t wall, Size client) {
    SectionScale result;
    result.scale = wall < thinWall ? client.width / thinWallSpan
                                   : static_cast<double>(client.width) / wall / wallsAcrossPreview;
    result.origin.x = truncateToInt(client.width / 3.0 + panX);
    result.origin.y = truncateToInt(client.height / 1.5 - panY);
    return result;
}

FlaggedBand flaggedBand(const CRez& head, const SectionScale& scale) {
    FlaggedBand band;
    std::int64_t line = scale.origin.y;
    for (const CZalom* bend = head.bends.get(); bend; bend = bend->next.get()) {
        const std::int64_t above = line - truncateToInt(bend->step * scale.scale);
        if (bend->flag) {
            band = {saturated(line), saturated(above)};
        } else {
            line = above;
        }
    }
    return band;
}

void settleSection(CRez& head, Size client) {
    if (client.width <= 0 || client.height <= 0 || !hasFlaggedBend(head)) return;
    if (settleRuns(head)) layOut(head);
    liftLayers(head, sectionScale(head.width, client));
}

}  // namespace lx
