#include "design/layer_commands.h"

#include <algorithm>

#include "composition/bearing.h"
#include "composition/layout.h"
#include "composition/saturate.h"
#include "composition/special_layers.h"

namespace lx {

namespace {

// Free space in mm: from how much a button is offered, and the least that its command accepts when
// it comes from elsewhere.
struct Room {
    std::int32_t offered;
    std::int32_t accepted;
};
constexpr Room roomOfMonolith{30, 5};
constexpr Room roomOfInsulation{leastInsulation, 10};
constexpr Room roomOfSpace{10, 5};

constexpr std::int32_t insulationHeight = 200;  // mm, when there is no layer to take it from
constexpr std::int32_t spaceHeight = 100;       // mm
constexpr std::int32_t monolithHeight = 300;    // mm

constexpr std::int64_t firstInsulationWidth = 80;  // mm at most, in a wall without layers
constexpr std::int32_t thinInsulationWidth = 30;   // mm
constexpr std::int32_t leastCastBearing = 50;      // mm; less becomes the default

CRez& insertBehindCurrent(DesignEdit design, std::unique_ptr<CRez> layer) {
    design.current = design.chain.insertAfter(design.current, std::move(layer));
    return *design.current;
}

CRez& insertElement(DesignEdit design, const CRez& element) {
    if (!design.chain.contains(design.current)) design.current = design.chain.last();
    return insertBehindCurrent(design, std::make_unique<CRez>(element));
}

// A new layer behind the current record: a copy of it, or of nothing behind the head.
CRez& insertSpecial(DesignEdit design, Kind kind, std::int32_t width) {
    const CRez& current = *design.current;
    auto layer = current.isHead() ? std::make_unique<CRez>() : std::make_unique<CRez>(current);
    makeSpecial(*layer, kind);
    layer->width = width;
    return insertBehindCurrent(design, std::move(layer));
}

enum class Neighbour { before, behind };

// The neighbour that is preferred becomes current; a layer always has one before it.
CommandAnswer remove(DesignEdit design, Neighbour preferred) {
    CRez* before = design.chain.before(design.current);
    if (before == nullptr) return CommandAnswer::nothing;
    CRez* behind = design.current->next;
    design.chain.unlink(design.current);
    design.current = preferred == Neighbour::behind && behind != nullptr ? behind : before;
    return CommandAnswer::done;
}

}  // namespace

std::int64_t insulationRoom(const CRez& head, const CRez* current) {
    const std::int64_t room = freeSpace(head);
    if (current == nullptr) return room;
    return room + nested(traits(current->kind).underInsulation, current->width);
}

Availability availability(const CRez* head, const CRez* current, const CRez* precast,
                          const CRez* steel) {
    if (head == nullptr) return {};
    const std::int32_t free = freeSpace(*head);
    const bool layerIsCurrent = current != nullptr && !current->isHead();
    Availability result;
    result.remove = layerIsCurrent && head->next != nullptr;
    result.addPrecast = precast != nullptr && precast->width <= free;
    result.addSteel = steel != nullptr && steel->width <= free;
    result.addMonolith = free >= roomOfMonolith.offered;
    result.insertInsulation = insulationRoom(*head, current) >= roomOfInsulation.offered;
    result.insertSpace = free >= roomOfSpace.offered;
    return result;
}

CommandAnswer addPrecast(DesignEdit design, const CRez* element) {
    if (design.chain.empty()) return CommandAnswer::nothing;
    const Family family = DesignFamily(*design.chain.head());
    if (family == Family::steel || family == Family::monolith) return CommandAnswer::wrongType;
    if (element == nullptr) return CommandAnswer::nothing;
    insertElement(design, *element);
    return CommandAnswer::done;
}

CommandAnswer addSteel(DesignEdit design, const CRez* element) {
    if (design.chain.empty()) return CommandAnswer::nothing;
    CRez& head = *design.chain.head();
    const Family family = DesignFamily(head);
    if (family == Family::precast || family == Family::monolith) return CommandAnswer::wrongType;
    if (element == nullptr) return CommandAnswer::nothing;
    const std::int32_t total = lengthOver(head.length, settledBearing(head));
    CRez& section = insertElement(design, *element);
    if (section.next == nullptr) section.length = total;
    return CommandAnswer::done;
}

CommandAnswer addInsulation(DesignEdit design) {
    if (!design.chain.contains(design.current)) return CommandAnswer::nothing;
    CRez& head = *design.chain.head();
    const std::int32_t free = freeSpace(head);
    if (free < roomOfInsulation.accepted) return CommandAnswer::nothing;
    const std::int32_t total = lengthOver(head.length, settledBearing(head));

    const bool behindHead = design.current->isHead();
    CRez& layer = insertSpecial(design, Kind::insulation, free);
    if (behindHead) {
        layer.height = insulationHeight;
        layer.length = total;
    }
    return CommandAnswer::done;
}

CommandAnswer addSpace(DesignEdit design) {
    const bool layerIsCurrent = design.chain.contains(design.current) && !design.current->isHead();
    if (!layerIsCurrent) return CommandAnswer::nothing;
    const std::int32_t free = freeSpace(*design.chain.head());
    if (free < roomOfSpace.accepted) return CommandAnswer::nothing;
    insertSpecial(design, Kind::space, free).height = spaceHeight;
    return CommandAnswer::done;
}

CommandAnswer addSteelInsulation(DesignEdit design) {
    if (!design.chain.contains(design.current)) return CommandAnswer::nothing;
    CRez& head = *design.chain.head();
    std::int64_t room = insulationRoom(head, design.current);
    if (room < roomOfInsulation.accepted) return CommandAnswer::nothing;
    if (head.next == nullptr) room = std::min(room, firstInsulationWidth);
    const std::int32_t total = lengthOver(head.length, settledBearing(head));

    const bool behindHead = design.current->isHead();
    CRez& layer = insertSpecial(design, Kind::insulation, saturated(room));
    if (behindHead) layer.height = insulationHeight;
    layer.length = total;
    return CommandAnswer::done;
}

CommandAnswer addMonolith(DesignEdit design) {
    if (!design.chain.contains(design.current)) return CommandAnswer::nothing;
    CRez& head = *design.chain.head();
    const std::int32_t free = freeSpace(head);
    if (free < roomOfMonolith.accepted) return CommandAnswer::nothing;
    if (head.headBearing() < leastCastBearing) head.headBearing() = defaultBearing;
    CRez& layer = insertSpecial(design, Kind::monolith, free);
    layer.height = monolithHeight;
    layer.length = lengthOver(head.length, head.headBearing());
    return CommandAnswer::done;
}

CommandAnswer insertInsulation(DesignEdit design) {
    if (!design.chain.contains(design.current)) return CommandAnswer::nothing;
    const CRez& current = *design.current;
    auto layer = std::make_unique<CRez>();
    makeSpecial(*layer, Kind::insulation);
    layer->width = thinInsulationWidth;
    layer->length = current.length;
    layer->height = current.height;
    layer->offset = saturated(std::int64_t{current.offset} + current.width);
    insertBehindCurrent(design, std::move(layer));
    return CommandAnswer::done;
}

CommandAnswer moveCurrent(DesignEdit design, CRez* target) {
    RezChain& chain = design.chain;
    CRez* current = design.current;
    const bool movable = chain.before(current) != nullptr && chain.contains(target);
    if (!movable || target == current || target == current->next) return CommandAnswer::nothing;
    std::unique_ptr<CRez> moved = chain.unlink(current);
    CRez* place = target->isHead() ? chain.last() : chain.before(target);
    design.current = chain.insertAfter(place, std::move(moved));
    return CommandAnswer::done;
}

CommandAnswer removeCurrent(DesignEdit design) {
    return remove(design, Neighbour::behind);
}

CommandAnswer removeCurrentGoingBack(DesignEdit design) {
    return remove(design, Neighbour::before);
}

}  // namespace lx
