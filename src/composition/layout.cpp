#include "composition/layout.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "composition/saturate.h"

namespace lx {

namespace {

// How far a layer is moved back over the one before it: insulation nests into the open side of a
// steel section and a section nests over insulation.
std::int64_t nesting(const CRez& layer, const CRez* previous) {
    if (!previous) return 0;
    if (layer.kind == Kind::insulation) {
        return nested(traits(previous->kind).underInsulation, previous->width);
    }
    if (previous->kind != Kind::insulation) return 0;
    return nested(traits(layer.kind).overInsulation, layer.width);
}

// The head up to a bend, from the one before.
struct HeadPart {
    std::int64_t end = 0;       // mm from the first wall face; runs of a file may lead back
    std::int64_t farthest = 0;  // of the ends up to this one
    std::int32_t level = 0;     // mm
};

std::size_t bendCount(const CZalom* bend) {
    std::size_t count = 0;
    for (; bend; bend = bend->next.get()) ++count;
    return count;
}

// The last part, behind all bends, ends behind every layer.
std::vector<HeadPart> headParts(const CZalom* bends) {
    constexpr std::int64_t endless = std::numeric_limits<std::int64_t>::max();
    std::vector<HeadPart> parts;
    parts.reserve(bendCount(bends) + 1);
    std::int64_t end = 0;
    std::int64_t farthest = std::numeric_limits<std::int64_t>::min();
    std::int64_t level = 0;
    for (const CZalom* bend = bends; bend; bend = bend->next.get()) {
        end += bend->run;
        farthest = std::max(farthest, end);
        parts.push_back({end, farthest, saturated(level)});
        level += bend->step;
    }
    parts.push_back({endless, endless, saturated(level)});
    return parts;
}

// The highest level put in at any of the places up to one, each in a logarithm of their number
// (a Fenwick tree).
class HighestUpTo {
public:
    explicit HighestUpTo(std::size_t places) : m_highest(places, lowest) {}

    void put(std::size_t place, std::int32_t level) {
        for (; place < m_highest.size(); place |= place + 1) {
            m_highest[place] = std::max(m_highest[place], level);
        }
    }
    std::int32_t upTo(std::size_t place) const {
        std::int32_t highest = lowest;
        for (++place; place > 0; place &= place - 1) {
            highest = std::max(highest, m_highest[place - 1]);
        }
        return highest;
    }

private:
    static constexpr std::int32_t lowest = -9999;  // mm; no level is found below it
    std::vector<std::int32_t> m_highest;
};

// Indices in the order of decreasing values.
template <class ValueAt>
std::vector<std::uint32_t> fromTheFarthest(std::size_t count, ValueAt valueAt) {
    std::vector<std::uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(),
              [&](std::uint32_t a, std::uint32_t b) { return valueAt(a) > valueAt(b); });
    return order;
}

}  // namespace

void placeLayers(CRez& head) {
    std::int64_t x = 0;
    std::int64_t floor = 0;  // no catalogue element starts before it
    const CRez* previous = nullptr;
    for (CRez* layer = head.next; layer; layer = layer->next) {
        if (layer->kind == Kind::insulation && previous) floor = x;
        x -= nesting(*layer, previous);
        if (x < floor && traits(layer->kind).heldByFloor) x = floor;
        layer->offset = saturated(x);
        x += layer->width;
        previous = layer;
    }
}

// A layer lies under the parts that end behind its beginning, up to the first one that reaches its
// end. Layers are taken from the last in the wall to the first, and parts join from the farthest
// on, so that those that have joined are those that end behind the beginning.
std::vector<std::int32_t> levelsAbove(const CRez& head) {
    std::vector<const CRez*> layers;
    for (const CRez* layer = head.next; layer; layer = layer->next) layers.push_back(layer);
    const std::vector<HeadPart> parts = headParts(head.bends.get());
    const auto ends = fromTheFarthest(parts.size(), [&](std::size_t i) { return parts[i].end; });
    auto joining = ends.begin();
    HighestUpTo joined(parts.size());
    std::vector<std::int32_t> levels(layers.size());
    for (const std::uint32_t i :
         fromTheFarthest(layers.size(), [&](std::size_t k) { return layers[k]->offset; })) {
        const std::int64_t begin = layers[i]->offset;
        const std::int64_t end = std::max(begin + layers[i]->width, begin + 1);
        for (; joining != ends.end() && parts[*joining].end > begin; ++joining) {
            joined.put(*joining, parts[*joining].level);
        }
        const auto reaching =
            std::partition_point(parts.begin(), parts.end(),
                                 [end](const HeadPart& part) { return part.farthest < end; });
        levels[i] = joined.upTo(static_cast<std::size_t>(reaching - parts.begin()));
    }
    return levels;
}

void layOut(CRez& head) {
    placeLayers(head);
    const std::vector<std::int32_t> levels = levelsAbove(head);
    auto level = levels.begin();
    for (CRez* layer = head.next; layer; layer = layer->next) layer->level = *level++;
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
        const Family family = traits(layer->kind).family;
        if (family != Family::none) return family;
    }
    return Family::none;
}

}  // namespace lx
