#include "design/describe.h"

#include <utility>

#include "platform/numbers.h"

namespace lx {

namespace {

class Lines {
public:
    void add(std::string_view what, int index, std::string_view field, std::string_view value) {
        m_text.append(what).append(" ").append(formatInt(index)).append(" ");
        m_text.append(field).append(" ").append(value).append("\n");
    }
    void add(std::string_view what, int index, std::string_view field, std::int64_t value) {
        add(what, index, field, formatInt(value));
    }
    void last(std::string_view what, int index) {
        m_text.append(what).append(" ").append(formatInt(index)).append("\n");
    }
    Text take() { return std::move(m_text); }

private:
    Text m_text;
};

// The fields of a record or bend. What a head and a layer do not share stands behind.
class FieldLines {
public:
    FieldLines(Lines& lines, std::string_view what, int index)
        : m_lines(lines), m_what(what), m_index(index) {}

    void operator()(const char* field, std::int32_t value) const;
    void operator()(const RezField& field, std::int32_t value) const { (*this)(field.name, value); }
    void operator()(const RezField& field, Kind kind) const { (*this)(field.name, code(kind)); }
    void operator()(const RezField& field, char letter) const;
    void operator()(const RezField&, const std::optional<Text>&) const {}
    void operator()(const RezField&, const std::unique_ptr<CZalom>&) const {}

private:
    Lines& m_lines;
    std::string_view m_what;
    int m_index;
};

void FieldLines::operator()(const char* field, std::int32_t value) const {
    m_lines.add(m_what, m_index, field, value);
}

void FieldLines::operator()(const RezField& field, char letter) const {
    m_lines.add(m_what, m_index, field.name, std::string_view(&letter, 1));
}

void addRecord(Lines& lines, int index, const CRez& record) {
    CRez::eachField(FieldLines(lines, "record", index), record);
    if (record.isHead()) {
        lines.add("record", index, "label", record.label());
    } else {
        lines.add("record", index, "name", record.nameOrEmpty());
    }
}

void addBends(Lines& lines, const CZalom* bends) {
    int index = 0;
    for (const CZalom* bend = bends; bend != nullptr; bend = bend->next.get(), ++index) {
        CZalom::eachField(FieldLines(lines, "bend", index), *bend);
    }
}

}  // namespace

Text describeDesign(const CRez* head, const CRez* current) {
    Lines lines;
    int index = 0;
    int currentIndex = -1;
    for (const CRez* record = head; record != nullptr; record = record->next, ++index) {
        if (record == current) currentIndex = index;
        addRecord(lines, index, *record);
    }
    if (head != nullptr) addBends(lines, head->bends.get());
    lines.last("current", currentIndex);
    return lines.take();
}

}  // namespace lx
