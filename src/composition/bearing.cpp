#include "composition/bearing.h"

#include "composition/saturate.h"

namespace lx {

std::int32_t settledBearing(CRez& head) {
    if (head.headBearing() == 0) head.headBearing() = defaultBearing;
    return head.headBearing();
}

std::int32_t lengthOver(std::int32_t opening, std::int32_t bearing) {
    return saturated(opening + 2 * std::int64_t{bearing});
}

}  // namespace lx
