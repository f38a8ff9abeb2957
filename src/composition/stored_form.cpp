#include "composition/stored_form.h"

#include <utility>

namespace lx {

namespace {

// A head has bends where a layer has its name.
class FieldWriter {
public:
    FieldWriter(BinaryWriter& writer, bool isHead) : m_writer(writer), m_isHead(isHead) {}

    template <class Field>
    void operator()(const Field&, std::int32_t value) const {
        m_writer.int32(value);
    }
    template <class Field>
    void operator()(const Field&, bool value) const {
        m_writer.byte(value ? 1 : 0);
    }
    void operator()(const RezField&, Kind kind) const { m_writer.int32(code(kind)); }
    void operator()(const RezField&, char letter) const {
        m_writer.byte(static_cast<unsigned char>(letter));
    }
    void operator()(const RezField&, const std::optional<Text>& name) const;
    void operator()(const RezField&, const std::unique_ptr<CZalom>& bends) const;

private:
    BinaryWriter& m_writer;
    bool m_isHead;
};

void FieldWriter::operator()(const RezField&, const std::optional<Text>& name) const {
    if (m_isHead) return;
    std::string_view text;
    if (name) text = std::string_view(*name).substr(0, storedNameLimit);
    m_writer.zeroTerminated(text.substr(0, text.find('\0')));
}

void FieldWriter::operator()(const RezField&, const std::unique_ptr<CZalom>& bends) const {
    if (!m_isHead) return;
    m_writer.int32(bends ? 1 : 0);
    for (const CZalom* bend = bends.get(); bend; bend = bend->next.get()) {
        m_writer.int32(bendTag);
        CZalom::eachField(*this, *bend);
        m_writer.int32(bend->next ? 1 : 0);
    }
}

// A field that is cut short becomes 0, but for the letter.
class FieldReader {
public:
    FieldReader(BinaryReader& reader, bool isHead) : m_reader(reader), m_isHead(isHead) {}

    template <class Field>
    void operator()(const Field&, std::int32_t& value) const {
        value = m_reader.int32();
    }
    template <class Field>
    void operator()(const Field&, bool& value) const {
        value = m_reader.byte() != 0;
    }
    void operator()(const RezField&, Kind& kind) const {
        kind = Kind{m_reader.int32()};
        if (m_isHead) kind = Kind::head;
    }
    void operator()(const RezField&, char& letter) const {
        const auto byte = static_cast<char>(m_reader.byte());
        if (!m_reader.cutShort()) letter = byte;
    }
    void operator()(const RezField&, std::optional<Text>& name) const;
    void operator()(const RezField&, std::unique_ptr<CZalom>& bends) const;

private:
    BinaryReader& m_reader;
    bool m_isHead;
};

void FieldReader::operator()(const RezField&, std::optional<Text>& name) const {
    if (!m_isHead) name = Text(m_reader.zeroTerminated().substr(0, storedNameLimit));
}

// A bend without its run is none.
void FieldReader::operator()(const RezField&, std::unique_ptr<CZalom>& bends) const {
    std::unique_ptr<CZalom>* end = &bends;
    while (m_isHead && m_reader.int32() != 0) {
        m_reader.int32();  // the tag, which decides nothing
        const bool any = m_reader.remaining() >= sizeof(std::int32_t);
        auto bend = std::make_unique<CZalom>();
        CZalom::eachField(*this, *bend);
        if (!any) return;
        *end = std::move(bend);
        end = &(*end)->next;
    }
}

// What stands behind the tag. Null when the bytes end before the first field, or when a layer calls
// itself a head.
std::unique_ptr<CRez> readRecord(BinaryReader& reader, bool isHead) {
    if (reader.remaining() < sizeof(std::int32_t)) return nullptr;
    auto record = std::make_unique<CRez>();
    CRez::eachField(FieldReader(reader, isHead), *record);
    if (record->isHead() != isHead) return nullptr;
    return record;
}

// Up to the end or to what cannot be: a second head, a record that is none. Layers before the head
// are passed over.
void readRecords(BinaryReader& reader, DesignRead& result) {
    while (!reader.atEnd() && !reader.cutShort()) {
        const bool isHead = reader.int32() == headTag;
        const bool headIsThere = !result.design.empty();
        if (isHead == headIsThere) result.damaged = true;
        if (isHead && headIsThere) return;
        std::unique_ptr<CRez> record = readRecord(reader, isHead);
        if (record == nullptr) {
            result.damaged = true;
            return;
        }
        if (isHead) result.headWhole = !reader.cutShort();
        if (isHead || headIsThere) result.design.append(std::move(record));
    }
}

}  // namespace

void writeRecord(const CRez& record, BinaryWriter& writer, bool isHead) {
    writer.int32(isHead ? headTag : layerTag);
    CRez::eachField(FieldWriter(writer, isHead), record);
}

void writeDesign(const CRez* head, BinaryWriter& writer) {
    for (const CRez* record = head; record; record = record->next) {
        writeRecord(*record, writer, record == head);
    }
}

DesignRead readDesign(BinaryReader& reader) {
    DesignRead result;
    readRecords(reader, result);
    if (reader.cutShort()) result.damaged = true;
    return result;
}

}  // namespace lx
