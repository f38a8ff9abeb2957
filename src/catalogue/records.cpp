#include "catalogue/records.h"

#include <utility>

#include "platform/binary.h"

namespace lx {

namespace {

std::optional<Text> readText(BinaryReader& reader, bool& damaged) {
    std::string_view text = reader.zeroTerminated();
    if (text.empty()) return std::nullopt;
    if (text.size() > catalogueTextLimit) {
        damaged = true;
        text = text.substr(0, catalogueTextLimit);
    }
    return Text(text);
}

void writeText(const std::optional<Text>& text, BinaryWriter& writer) {
    std::string_view bytes;
    if (text) bytes = std::string_view(*text).substr(0, catalogueTextLimit);
    // A zero inside would end the text early and shift everything behind it.
    writer.zeroTerminated(bytes.substr(0, bytes.find('\0')));
}

}  // namespace

CPreklItem::~CPreklItem() {
    for (std::unique_ptr<CPreklItem> rest = std::move(next); rest;) rest = std::move(rest->next);
}

bool CPreklItem::readRecord(BinaryReader& reader, bool& damaged) {
    if (reader.remaining() < sizeof(std::int32_t)) return false;
    group = reader.int32();
    length = reader.int32();
    width = reader.int32();
    height = reader.int32();
    maxOpening = reader.int32();
    weight = reader.float64();
    qu = reader.float64();
    designation = readText(reader, damaged);
    description = readText(reader, damaged);
    compositionMark = static_cast<char>(reader.byte());
    return !reader.cutShort();
}

void CPreklItem::writeRecord(BinaryWriter& writer) const {
    writer.int32(group);
    writer.int32(length);
    writer.int32(width);
    writer.int32(height);
    writer.int32(maxOpening);
    writer.float64(weight);
    writer.float64(qu);
    writeText(designation, writer);
    writeText(description, writer);
    writer.byte(static_cast<unsigned char>(compositionMark));
}

}  // namespace lx
