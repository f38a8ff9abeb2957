#include "design/availability.h"

#include "composition/layout.h"

namespace lx {

namespace {
// Least free space in mm for which a button is offered. The commands themselves accept less.
constexpr std::int32_t monolithFrom = 30;
constexpr std::int32_t insulationFrom = 20;
constexpr std::int32_t spaceFrom = 10;
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
    result.addMonolith = free >= monolithFrom;
    result.insertInsulation = insulationRoom(*head, current) >= insulationFrom;
    result.insertSpace = free >= spaceFrom;
    return result;
}

}  // namespace lx
