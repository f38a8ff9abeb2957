#include "design/stored_fit.h"

#include "resources/strings.h"

namespace lx {

namespace {

constexpr int insulationName = 83;
constexpr int monolithName = 95;
constexpr double tolerance = 0.000001;  // mm

}  // namespace

bool suitsOpening(const CRez& head, double openingWidth) {
    const CRez* bearing = nullptr;
    for (const CRez* layer = head.next; layer != nullptr; layer = layer->next) {
        if (layer->nameOrEmpty() == str(monolithName)) return true;
        if (bearing == nullptr && layer->name && *layer->name != str(insulationName)) {
            bearing = layer;
        }
    }
    if (bearing == nullptr || bearing->maxOpening == 0) return true;
    return openingWidth - tolerance <= bearing->maxOpening;
}

}  // namespace lx
