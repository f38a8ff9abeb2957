#include "composition/stored_form.h"

#include <utility>

namespace lx {

namespace {

// A head has bends where a layer has its name.
class FieldWriter {
public:
    FieldWriter(BinaryWriter& writer, bool isHead) : m_writer(writer), m_isHead(isHead) {}

    template <class Field>
    void operator()(const Field&, std::int32_t value) {
        m_writer.int32(value);
    }
    template <class Field>
    void operator()(const Field&, bool value) {
        m_writer.byte(value ? 1 : 0);
    }
    void operator()(const RezField&, Kind kind) { m_writer.int32(code(kind)); }
    void operator()(const RezField&, char letter) {
        m_writer.byte(static_cast<unsigned char>(letter));
    }
    void operator()(const RezField&, const std::optional<Text>& name) {
        if (m_isHead) return;
        std::string_view text;
        if (name) text = std::string_view(*name).substr(0, storedNameLimit);
        m_writer.zeroTerminated(text.substr(0, text.find('\0')));
    }
    void operator()(const RezField&, const std::unique_ptr<CZalom>& bends) {
        if (!m_isHead) return;
        m_writer.int32(bends ? 1 : 0);
        for (const CZalom* bend = bends.get(); bend; bend = bend->next.get()) {
            m_writer.int32(bendTag);
            CZalom::eachField(*this, *bend);
            m_writer.int32(bend->next ? 1 : 0);
        }
    }

private:
    BinaryWriter& m_writer;
    bool m_isHead;
};

// A field that is cut short becomes 0, but for the letter.
class FieldReader {
public:
    FieldReader(BinaryReader& reader, bool isHead) : m_reader(reader), m_isHead(isHead) {}

    template <class Field>
    void operator()(const Field&, std::int32_t& value) {
        value = m_reader.int32();
    }
    template <class Field>
    void operator()(const Field&, bool& value) {
        value = m_reader.byte() != 0;
    }
    void operator()(const RezField&, Kind& kind) {
        kind = Kind{m_reader.int32()};
        if (m_isHead) kind = Kind::head;
    }
    void operator()(const RezField&, char& letter) {
        const auto read = static_cast<char>(m_reader.byte());
        if (!m_reader.cutShort()) letter = read;
    }
    void operator()(const RezField&, std::optional<Text>& name) {
        if (!m_isHead) name = Text(m_reader.zeroTerminated().substr(0, storedNameLimit));
    }
    void operator()(const RezField&, std::unique_ptr<CZalom>& bends) {
        std::unique_ptr<CZalom>* end = &bends;
        while (m_isHead && m_reader.int32() != 0) {
            m_reader.int32();  // the tag, which decides nothing
            if (!anyIntegerLeft()) return skipRest();
            *end = std::make_unique<CZalom>();
            CZalom::eachField(*this, **end);
            end = &(*end)->next;
        }
    }
    bool anyIntegerLeft() const { return m_reader.remaining() >= sizeof(std::int32_t); }

private:
    void skipRest() { m_reader.int32(); }

    BinaryReader& m_reader;
    bool m_isHead;
};

// What stands behind the tag. False when the bytes end before the first field.
bool readRecord(CRez& record, BinaryReader& reader, bool isHead) {
    FieldReader fields(reader, isHead);
    if (!fields.anyIntegerLeft()) return false;
    CRez::eachField(fields, record);
    return true;
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
