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

void addRecord(Lines& lines, int index, const CRez& record) {
    const std::pair<std::string_view, std::int32_t> fields[] = {{"kind", code(record.kind)},
                                                                {"bearing", record.bearing},
                                                                {"typeIndex", record.typeIndex},
                                                                {"itemIndex", record.itemIndex},
                                                                {"width", record.width},
                                                                {"height", record.height},
                                                                {"length", record.length},
                                                                {"weight", record.weight},
                                                                {"maxOpening", record.maxOpening},
                                                                {"offset", record.offset},
                                                                {"level", record.level}};
    for (const auto& [field, value] : fields) lines.add("record", index, field, value);
    if (record.isHead()) {
        lines.add("record", index, "label", record.label());
    } else {
        lines.add("record", index, "name", record.nameOrEmpty());
    }
    lines.add("record", index, "letter", std::string_view(&record.letter, 1));
}

void addBends(Lines& lines, const CZalom* bends) {
    int index = 0;
    for (const CZalom* bend = bends; bend != nullptr; bend = bend->next.get(), ++index) {
        lines.add("bend", index, "run", bend->run);
        lines.add("bend", index, "step", bend->step);
        lines.add("bend", index, "flag", bend->flag ? 1 : 0);
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
