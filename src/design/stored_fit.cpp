#include "design/stored_fit.h"

namespace lx {

namespace {

constexpr double tolerance = 0.000001;  // mm

}  // namespace

bool suitsOpening(const CRez& head, double openingWidth) {
    const CRez* bearing = nullptr;
    for (const CRez* layer = head.next; layer != nullptr; layer = layer->next) {
        const std::string_view name = layer->nameOrEmpty();
        if (name == traits(Kind::monolith).name) return true;
        if (bearing == nullptr && name != traits(Kind::insulation).name) bearing = layer;
    }
    if (bearing == nullptr || bearing->maxOpening == 0) return true;
    return openingWidth - tolerance <= bearing->maxOpening;
}

}  // namespace lx
