#include "design/designation.h"

#include "platform/numbers.h"

namespace lx {

Text shownDesignation(const CRez& layer) {
    Text result(layer.nameOrEmpty());
    if (layer.bearing == 0) return result;
    const std::size_t place = result.find('?');
    if (place != Text::npos) result.replace(place, 1, formatInt(layer.length));
    return result;
}

}  // namespace lx
