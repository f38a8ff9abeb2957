// Catalogues of any size, the same on every machine and in every run.
#pragma once

#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "catalogue/CPreklItem.h"
#include "platform/binary.h"

namespace lx {

// A new record behind the last one, whose link end is; end moves on.
inline CPreklItem& appended(Catalogue*& end) {
    *end = std::make_unique<CPreklItem>();
    CPreklItem& record = **end;
    end = &record.next;
    return record;
}

// Types "Typ 1", "Typ 2", ..., each followed by its items; designations such as "KPV 17/145" are
// alike only where seeds are. Every field is set somewhere, and texts are missing somewhere.
inline Catalogue madeCatalogue(int types, int itemsOfEach, unsigned seed = 1) {
    std::mt19937 random(seed);
    Catalogue head;
    Catalogue* end = &head;
    const auto add = [&end](std::int32_t group, std::string name) -> CPreklItem& {
        CPreklItem& record = appended(end);
        record.group = group;
        record.designation = std::move(name);
        return record;
    };
    for (std::int32_t type = 1; type <= types; ++type) {
        add(-type, "Typ " + std::to_string(type)).length = type % 4;
        for (int i = 0; i < itemsOfEach; ++i) {
            const auto number = static_cast<std::int32_t>(random() % 1000000);
            CPreklItem& item =
                add(type, "KPV " + std::to_string(number % 100) + "/" +
                              std::to_string(number / 100) + "." + std::to_string(i));
            item.length = number % 7 == 0 ? -125 : 1000 + number % 2500;
            item.width = 70 + number % 11;
            item.height = 238;
            item.maxOpening = item.length - 250;
            item.weight = number / 1000.0;
            item.qu = number % 3 == 0 ? 0.0 : number / 100000.0;
            if (number % 5 != 0) item.description = "nosny, 70x238x" + std::to_string(item.length);
            if (number % 9 == 0) item.compositionMark = static_cast<char>('A' + number % 26);
        }
    }
    return head;
}

// A record in short; names are UTF-8, an empty one is no designation.
struct CatalogueLine {
    std::int32_t group;
    std::string name;
    std::int32_t length = 0;
    std::int32_t width = 0;
    std::int32_t maxOpening = 0;
};

inline Catalogue catalogueOf(const std::vector<CatalogueLine>& lines) {
    Catalogue head;
    Catalogue* end = &head;
    for (const CatalogueLine& line : lines) {
        CPreklItem& record = appended(end);
        record.group = line.group;
        record.length = line.length;
        record.width = line.width;
        record.maxOpening = line.maxOpening;
        if (!line.name.empty()) record.designation = fromUtf8(line.name);
    }
    return head;
}

// As the file holds it.
inline Bytes catalogueBytes(const CPreklItem* head) {
    BinaryWriter writer;
    for (const CPreklItem* one = head; one; one = one->next.get()) one->writeRecord(writer);
    return writer.take();
}

// By way of its bytes.
inline Catalogue copyOf(const CPreklItem& record) {
    BinaryWriter writer;
    record.writeRecord(writer);
    BinaryReader reader(writer.bytes());
    auto copy = std::make_unique<CPreklItem>();
    bool damaged = false;
    copy->readRecord(reader, damaged);
    return copy;
}
inline Catalogue copyOf(const Catalogue& chain) {
    Catalogue head;
    Catalogue* end = &head;
    for (const CPreklItem* one = chain.get(); one; one = one->next.get()) {
        *end = copyOf(*one);
        end = &(*end)->next;
    }
    return head;
}

// "group:name" of every record, with ":length" where there is one; in UTF-8.
inline std::string shown(const Catalogue& chain) {
    std::string text;
    for (const CPreklItem* record = chain.get(); record; record = record->next.get()) {
        text += (text.empty() ? "" : " ") + std::to_string(record->group) + ":" +
                toUtf8(record->designation.value_or(""));
        if (record->length != 0) text += ":" + std::to_string(record->length);
    }
    return text;
}

}  // namespace lx
