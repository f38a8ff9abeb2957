// Short ways to make designs and to see them whole.
#pragma once

#include <memory>
#include <string>

#include "composition/CRez.h"
#include "composition/stored_form.h"
#include "platform/text.h"

namespace lx {

inline std::unique_ptr<CRez> layer(Kind kind, std::int32_t width, const char* name = "L") {
    auto record = std::make_unique<CRez>();
    record->kind = kind;
    record->width = width;
    record->name = name;
    return record;
}

inline std::unique_ptr<CRez> headOf(std::int32_t wall, std::string_view label = {}) {
    auto record = std::make_unique<CRez>();
    record->kind = Kind::head;
    record->width = wall;
    record->setLabel(label);
    return record;
}

// A head with two bends, a lintel with every field set, and a space without a name.
inline RezChain sampleDesign(std::string_view label = "A1", std::int32_t wall = 300) {
    RezChain design;
    CRez* head = design.append(headOf(wall, label));
    head->length = 1200;
    head->height = 2300;
    head->level = 1;
    head->addBend(100, 50, false);
    head->addBend(120, -30, true);
    CRez* lintel = design.append(layer(Kind::precast, 70, "KPV 7/145"));
    lintel->bearing = 125;
    lintel->typeIndex = 2;
    lintel->itemIndex = 5;
    lintel->height = 238;
    lintel->length = 1450;
    lintel->weight = 52200;
    lintel->maxOpening = 1200;
    lintel->level = 50;
    lintel->letter = 'X';
    CRez* space = design.append(std::make_unique<CRez>());
    space->kind = Kind::space;
    space->offset = 70;
    return design;
}

// "run,step " of each bend, with "!" behind a sloping one.
inline std::string bendsOf(const CRez& head) {
    std::string text;
    for (const CZalom* bend = head.bends.get(); bend; bend = bend->next.get()) {
        text += std::to_string(bend->run) + "," + std::to_string(bend->step);
        text += bend->flag ? "! " : " ";
    }
    return text;
}

// "name width;" of each layer, in UTF-8.
inline std::string namesOf(const RezChain& design) {
    std::string names;
    for (const CRez* one = design.empty() ? nullptr : design.head()->next; one; one = one->next) {
        names += toUtf8(one->nameOrEmpty()) + " " + std::to_string(one->width) + ";";
    }
    return names;
}

// The stored form holds every field, so equal bytes are equal designs.
inline Bytes designBytes(const CRez* head) {
    BinaryWriter writer;
    writeDesign(head, writer);
    return writer.take();
}

inline Bytes recordBytes(const CRez& record, bool isHead) {
    BinaryWriter writer;
    writeRecord(record, writer, isHead);
    return writer.take();
}

}  // namespace lx
