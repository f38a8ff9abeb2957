#include "design/overhang.h"

#include "design/opening.h"

namespace lx {

void settleOverhang(CRez& head, double openingWidth) {
    head.headBearing() = 0;
    if (head.next == nullptr) return;
    const std::int64_t bothEnds = head.next->length - shownOpeningSize(openingWidth);
    head.headBearing() = static_cast<std::int32_t>(bothEnds / 2);
}

bool overhangEditable(const CRez& head) {
    for (const CRez* record = &head; record != nullptr; record = record->next) {
        if (record->kind == Kind::precast && record->bearing == 0) return false;
    }
    return true;
}

}  // namespace lx
