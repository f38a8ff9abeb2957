#include "composition/stored_form.h"

#include <utility>

namespace lx {

namespace {

void writeBends(const CZalom* bend, BinaryWriter& writer) {
    writer.int32(bend ? 1 : 0);
    for (; bend; bend = bend->next.get()) {
        writer.int32(bendTag);
        writer.int32(bend->run);
        writer.int32(bend->step);
        writer.byte(bend->flag ? 1 : 0);
        writer.int32(bend->next ? 1 : 0);
    }
}

void readBends(CRez& head, BinaryReader& reader) {
    std::unique_ptr<CZalom>* end = &head.bends;
    while (reader.int32() != 0) {
        reader.int32();  // the tag, which decides nothing
        const std::int32_t run = reader.int32();
        if (reader.cutShort()) return;
        const std::int32_t step = reader.int32();
        *end = std::make_unique<CZalom>(run, step, reader.byte() != 0);
        end = &(*end)->next;
    }
}

// What stands behind the tag. False when the bytes end before the first field.
bool readRecord(CRez& record, BinaryReader& reader, bool isHead) {
    record.typeIndex = reader.int32();
    if (reader.cutShort()) return false;
    record.itemIndex = reader.int32();
    record.width = reader.int32();
    record.height = reader.int32();
    record.length = reader.int32();
    record.weight = reader.int32();
    record.maxOpening = reader.int32();
    record.offset = reader.int32();
    record.level = reader.int32();
    record.kind = Kind{reader.int32()};
    record.bearing = reader.int32();
    if (isHead) {
        record.kind = Kind::head;
        readBends(record, reader);
    } else {
        record.name = Text(reader.zeroTerminated().substr(0, storedNameLimit));
    }
    const auto letter = static_cast<char>(reader.byte());
    if (!reader.cutShort()) record.letter = letter;
    return true;
}

}  // namespace

void writeRecord(const CRez& record, BinaryWriter& writer, bool isHead) {
    writer.int32(isHead ? headTag : layerTag);
    writer.int32(record.typeIndex);
    writer.int32(record.itemIndex);
    writer.int32(record.width);
    writer.int32(record.height);
    writer.int32(record.length);
    writer.int32(record.weight);
    writer.int32(record.maxOpening);
    writer.int32(record.offset);
    writer.int32(record.level);
    writer.int32(code(record.kind));
    writer.int32(record.bearing);
    if (isHead) {
        writeBends(record.bends.get(), writer);
    } else {
        const std::string_view name = record.nameOrEmpty().substr(0, storedNameLimit);
        writer.zeroTerminated(name.substr(0, name.find('\0')));
    }
    writer.byte(static_cast<unsigned char>(record.letter));
}

void writeDesign(const CRez* head, BinaryWriter& writer) {
    for (const CRez* record = head; record; record = record->next) {
        writeRecord(*record, writer, record == head);
    }
}

DesignRead readDesign(BinaryReader& reader) {
    DesignRead result;
    while (!reader.atEnd() && !reader.cutShort()) {
        const bool isHead = reader.int32() == headTag;
        auto record = std::make_unique<CRez>();
        const bool secondHead = isHead && !result.design.empty();
        if (secondHead || !readRecord(*record, reader, isHead) || (!isHead && record->isHead())) {
            result.damaged = true;
            return result;
        }
        if (isHead) result.headWhole = !reader.cutShort();
        if (isHead || !result.design.empty()) {
            result.design.append(std::move(record));
        } else {
            result.damaged = true;
        }
    }
    if (reader.cutShort()) result.damaged = true;
    return result;
}

}  // namespace lx
