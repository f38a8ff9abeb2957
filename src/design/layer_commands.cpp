#include "design/layer_commands.h"

#include "composition/layout.h"
#include "composition/offers.h"
#include "composition/saturate.h"
#include "resources/strings.h"

namespace lx {

namespace {

// Least free space that a command accepts, mm; its button asks for more.
constexpr std::int32_t insulationFrom = 10;
constexpr std::int32_t spaceFrom = 5;

constexpr std::int32_t insulationHeight = 200;  // mm, when there is no layer to take it from
constexpr std::int32_t spaceHeight = 100;       // mm

constexpr int insulationName = 83;
constexpr int spaceName = 94;

std::int32_t sum(std::int32_t length, std::int32_t bearing) {
    return saturated(std::int64_t{length} + 2 * std::int64_t{bearing});
}

// What a new layer starts from: the current layer, or nothing behind the head.
std::unique_ptr<CRez> likeCurrent(const CRez& current) {
    if (current.isHead()) return std::make_unique<CRez>();
    return std::make_unique<CRez>(current);
}

}  // namespace

std::int32_t settledBearing(CRez& head) {
    if (head.maxOpening == 0) head.maxOpening = defaultBearing;
    return head.maxOpening;
}

CommandAnswer addPrecast(DesignEdit design, const CRez* element) {
    if (design.chain.empty()) return CommandAnswer::nothing;
    const Family family = designFamily(*design.chain.head());
    if (family == Family::steel || family == Family::monolith) return CommandAnswer::wrongType;
    if (element == nullptr) return CommandAnswer::nothing;
    const bool known = design.chain.contains(design.current);
    CRez* place = known ? design.current : design.chain.last();
    design.current = design.chain.insertAfter(place, std::make_unique<CRez>(*element));
    return CommandAnswer::done;
}

CommandAnswer addInsulation(DesignEdit design) {
    if (design.chain.empty()) return CommandAnswer::nothing;
    CRez& head = *design.chain.head();
    const std::int32_t free = freeSpace(head);
    if (free < insulationFrom) return CommandAnswer::nothing;
    const std::int32_t total = sum(head.length, settledBearing(head));
    if (!design.chain.contains(design.current)) return CommandAnswer::nothing;

    auto layer = likeCurrent(*design.current);
    if (design.current->isHead()) {
        layer->height = insulationHeight;
        layer->length = total;
    }
    layer->width = free;
    layer->name = Text(str(insulationName));
    layer->kind = kind::insulation;
    design.current = design.chain.insertAfter(design.current, std::move(layer));
    return CommandAnswer::done;
}

CommandAnswer addSpace(DesignEdit design) {
    if (design.chain.empty()) return CommandAnswer::nothing;
    const std::int32_t free = freeSpace(*design.chain.head());
    if (free < spaceFrom) return CommandAnswer::nothing;
    const bool layerIsCurrent = design.chain.contains(design.current) && !design.current->isHead();
    if (!layerIsCurrent) return CommandAnswer::nothing;

    auto layer = std::make_unique<CRez>(*design.current);
    layer->width = free;
    layer->height = spaceHeight;
    layer->name = Text(str(spaceName));
    layer->kind = kind::space;
    design.current = design.chain.insertAfter(design.current, std::move(layer));
    return CommandAnswer::done;
}

CommandAnswer removeCurrent(DesignEdit design) {
    if (design.current == nullptr || design.current->isHead()) return CommandAnswer::nothing;
    CRez* before = design.chain.before(design.current);
    if (before == nullptr) return CommandAnswer::nothing;
    CRez* after = design.current->next;
    design.chain.unlink(design.current);
    design.current = after != nullptr ? after : before;
    return CommandAnswer::done;
}

}  // namespace lx
