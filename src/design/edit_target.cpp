#include "design/edit_target.h"

namespace lx {

namespace {

CZalom* bendOf(const CRez& record, int index) {
    CZalom* bend = record.bends.get();
    while (bend != nullptr && index-- > 0) bend = bend->next.get();
    return bend;
}

}  // namespace

CRez* recordOf(const RezChain& design, const EditTarget& target) {
    CRez* record = design.head();
    while (record != nullptr && record != target.record) record = record->next;
    return record;
}

std::int32_t* valueOf(const RezChain& design, const EditTarget& target) {
    CRez* record = recordOf(design, target);
    if (record == nullptr) return nullptr;
    switch (target.field) {
        case EditField::width:
            return &record->width;
        case EditField::height:
            return &record->height;
        case EditField::length:
            return &record->length;
        case EditField::headBearing:
            return &record->headBearing();
        case EditField::kind:
            return nullptr;
        case EditField::bendRun:
        case EditField::bendStep:
            break;
    }
    CZalom* bend = bendOf(*record, target.bend);
    if (bend == nullptr) return nullptr;
    return target.field == EditField::bendRun ? &bend->run : &bend->step;
}

}  // namespace lx
