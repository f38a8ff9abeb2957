#include "design/stored_fit.h"

#include "composition/special_layers.h"

namespace lx {

namespace {

constexpr double tolerance = 0.000001;  // mm

}  // namespace

bool suitsOpening(const CRez& head, double openingWidth) {
    const CRez* bearing = nullptr;
    for (const CRez* layer = head.next; layer != nullptr; layer = layer->next) {
        if (layer->nameOrEmpty() == specialName(kind::monolith)) return true;
        if (bearing == nullptr && layer->name && *layer->name != specialName(kind::insulation)) {
            bearing = layer;
        }
    }
    if (bearing == nullptr || bearing->maxOpening == 0) return true;
    return openingWidth - tolerance <= bearing->maxOpening;
}

}  // namespace lx
