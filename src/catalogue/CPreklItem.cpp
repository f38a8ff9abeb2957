#include "catalogue/CPreklItem.h"

#include <utility>

#include "platform/binary.h"

namespace lx {

namespace {

struct FieldReader {
    BinaryReader& reader;
    bool& damaged;

    void operator()(const char*, std::int32_t& value) const { value = reader.int32(); }
    void operator()(const char*, double& value) const { value = reader.float64(); }
    void operator()(const char*, char& value) const { value = static_cast<char>(reader.byte()); }
    void operator()(const char*, std::optional<Text>& value) const {
        std::string_view text = reader.zeroTerminated();
        if (text.empty()) return;
        if (text.size() > catalogueTextLimit) damaged = true;
        value = Text(text.substr(0, catalogueTextLimit));
    }
};

struct FieldWriter {
    BinaryWriter& writer;

    void operator()(const char*, std::int32_t value) const { writer.int32(value); }
    void operator()(const char*, double value) const { writer.float64(value); }
    void operator()(const char*, char value) const {
        writer.byte(static_cast<unsigned char>(value));
    }
    void operator()(const char*, const std::optional<Text>& value) const {
        std::string_view bytes;
        if (value) bytes = std::string_view(*value).substr(0, catalogueTextLimit);
        // A zero inside would end the text early and shift everything behind it.
        writer.zeroTerminated(bytes.substr(0, bytes.find('\0')));
    }
};

}  // namespace

CPreklItem::~CPreklItem() {
    for (std::unique_ptr<CPreklItem> rest = std::move(next); rest;) rest = std::move(rest->next);
}

bool CPreklItem::readRecord(BinaryReader& reader, bool& damaged) {
    if (reader.remaining() < sizeof(std::int32_t)) return false;
    eachField(FieldReader{reader, damaged}, *this);
    return !reader.cutShort();
}

void CPreklItem::writeRecord(BinaryWriter& writer) const {
    eachField(FieldWriter{writer}, *this);
}

}  // namespace lx
