#include "composition/layout.h"

#include <algorithm>

#include "composition/saturate.h"

namespace lx {

namespace {

// How far a layer is moved back over the one before it: insulation nests into the open side of a
// steel section and a section nests over insulation.
std::int64_t nesting(const CRez& layer, const CRez* previous) {
    if (!previous) return 0;
    switch (layer.kind) {
        case kind::beam:
            return previous->kind == kind::insulation ? layer.width / 2 : 0;
        case kind::angleMirrored:
        case kind::channelMirrored:
            return previous->kind == kind::insulation ? layer.width : 0;
        case kind::insulation:
            if (previous->kind == kind::beam) return previous->width / 2;
            if (previous->kind == kind::angle || previous->kind == kind::channel) {
                return previous->width;
            }
            return 0;
        default:
            return 0;
    }
}

}  // namespace

void layOut(CRez& head) {
    std::int64_t x = 0;
    std::int64_t floor = 0;  // no catalogue element starts before it
    const CRez* previous = nullptr;
    for (CRez* layer = head.next; layer; layer = layer->next) {
        if (layer->kind == kind::insulation && previous) floor = x;
        x -= nesting(*layer, previous);
        if (x < floor && layer->kind < kind::special) x = floor;
        layer->offset = saturated(x);
        layer->level = levelAbove(head.bends.get(), layer->offset, layer->width);
        x += layer->width;
        previous = layer;
    }
}

std::int32_t levelAbove(const CZalom* bends, std::int32_t x, std::int32_t width) {
    const std::int64_t end = std::int64_t{x} + width;
    std::int64_t level = 0;
    std::int64_t best = -9999;
    std::int64_t position = 0;
    for (const CZalom* bend = bends; bend; bend = bend->next.get()) {
        position += bend->run;
        if (position > x) {
            best = std::max(best, level);
            if (position >= end) return saturated(best);
        }
        level += bend->step;
    }
    return saturated(std::max(best, level));
}

std::int32_t freeSpace(const CRez& head) {
    const CRez* last = head.next;
    if (!last) return head.width;
    while (last->next) last = last->next;
    return saturated(std::int64_t{head.width} - last->offset - last->width);
}

int LayerCount(const CRez& head) {
    int count = 0;
    for (const CRez* layer = head.next; layer; layer = layer->next) ++count;
    return count;
}

Family DesignFamily(const CRez& head) {
    for (const CRez* layer = head.next; layer; layer = layer->next) {
        if (layer->kind == kind::precast) return Family::precast;
        if (isSteel(layer->kind)) return Family::steel;
        if (layer->kind == kind::monolith) return Family::monolith;
    }
    return Family::none;
}

}  // namespace lx
