#include "lxtool/design_json.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

#include "composition/layout.h"
#include "composition/library_entries.h"
#include "composition/stored_form.h"
#include "lxtool/table_encoding.h"

namespace lx::lxtool {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view itemIndexName = "itemIndex";

std::int32_t labelBytes(std::string_view label) {
    CRez head;
    head.setLabel(label);
    return head.itemIndex;
}

// The values of a bend.
struct BendToJson {
    Json& object;

    template <class Value>
    void operator()(const char* name, const Value& value) const {
        object[name] = value;
    }
};

Json bendsAsJson(const CRez& head) {
    Json list = Json::array();
    for (const CZalom* bend = head.bends.get(); bend; bend = bend->next.get()) {
        Json one = Json::object();
        CZalom::eachField(BendToJson{one}, *bend);
        list.push_back(std::move(one));
    }
    return list;
}

// The fields of a record: a head has bends where a layer has kind and name.
struct FieldToJson {
    Json& object;
    const CRez& record;
    std::string_view label;  // of the head

    void operator()(const RezField& field, std::int32_t value) const {
        // The bytes of a head's label are those of the design's.
        const bool known =
            record.isHead() && field.name == itemIndexName && value == labelBytes(label);
        if (!known) object[field.name] = value;
    }
    void operator()(const RezField& field, Kind kind) const {
        if (!record.isHead()) object[field.name] = code(kind);
    }
    void operator()(const RezField& field, const std::optional<Text>& name) const {
        if (!record.isHead()) object[field.name] = toUtf8(name.value_or(Text()));
    }
    void operator()(const RezField& field, const std::unique_ptr<CZalom>&) const {
        if (record.isHead()) object[field.name] = bendsAsJson(record);
    }
    void operator()(const RezField& field, char letter) const {
        object[field.name] = letter == ' ' ? "" : toUtf8(std::string_view(&letter, 1));
    }
};

std::string recordAsJson(const CRez& record, std::string_view label) {
    Json object = Json::object();
    CRez::eachField(FieldToJson{object, record, label}, record);
    return object.dump();
}

struct BendFromJson {
    JsonMembers& members;

    void operator()(const char* name, std::int32_t& value) const {
        members.take(name, value, false);
    }
    void operator()(const char* name, bool& value) const { members.take(name, value); }
};

class FieldFromJson {
public:
    FieldFromJson(Session& session, std::string_view file, JsonMembers& members, CRez& record)
        : m_session(session), m_file(file), m_members(members), m_record(record) {}

    void operator()(const RezField& field, std::int32_t& value) const {
        m_members.take(field.name, value, false);
    }
    void operator()(const RezField& field, Kind& kind) const {
        if (m_record.isHead()) return;
        std::int32_t number = code(kind);
        m_members.take(field.name, number, false);
        kind = Kind{number};
    }
    void operator()(const RezField& field, std::optional<Text>& name) const {
        if (m_record.isHead()) return;
        name.emplace();
        m_members.take(field.name, *name, storedNameLimit, false);
    }
    void operator()(const RezField& field, std::unique_ptr<CZalom>& bends) const;
    void operator()(const RezField& field, char& letter) const {
        Text text;
        const JsonValue* const value = m_members.find(field.name, false);
        // A zero byte, which no text has.
        if (value && value->kind == JsonValue::Kind::text && value->text == std::string(1, '\0')) {
            letter = '\0';
            return;
        }
        m_members.take(field.name, text, 1, false);
        if (!text.empty()) letter = text.front();
    }

private:
    Session& m_session;
    std::string_view m_file;
    JsonMembers& m_members;
    CRez& m_record;
};

void FieldFromJson::operator()(const RezField& field, std::unique_ptr<CZalom>& bends) const {
    if (!m_record.isHead()) return;
    const JsonValue* const list = m_members.find(field.name, false);
    if (!list) return;
    if (list->kind != JsonValue::Kind::list) {
        m_members.tell(*list, field.name, "a list of bends");
        return;
    }
    std::unique_ptr<CZalom>* end = &bends;
    for (const JsonValue& one : list->items) {
        JsonMembers members(m_session, m_file, one, "a bend");
        if (!members.isObject()) continue;
        *end = std::make_unique<CZalom>();
        CZalom::eachField(BendFromJson{members}, **end);
        members.end();
        end = &(*end)->next;
    }
}

std::unique_ptr<CRez> recordFromJson(Session& session, std::string_view file,
                                     const JsonValue& value, bool isHead) {
    auto record = std::make_unique<CRez>();
    if (isHead) record->kind = Kind::head;
    JsonMembers members(session, file, value, isHead ? "the head" : "a layer");
    if (!members.isObject()) return record;
    CRez::eachField(FieldFromJson(session, file, members, *record), *record);
    members.end();
    if (!isHead && record->isHead()) {
        members.tell(*value.find("kind"), "kind", "a kind of layers, not -1");
    }
    return record;
}

}  // namespace

std::string designAsJson(std::int32_t project, std::string_view label, const CRez& head) {
    std::string text = "{\"project\": " + std::to_string(project) +
                       ", \"label\": " + Json(toUtf8(label)).dump() +
                       ",\n   \"head\": " + recordAsJson(head, label) + ",\n   \"layers\": [";
    std::string_view separator = "\n    ";
    for (const CRez* layer = head.next; layer; layer = layer->next) {
        text.append(separator).append(recordAsJson(*layer, {}));
        separator = ",\n    ";
    }
    return text + "]}";
}

std::optional<JsonDesign> designFromJson(Session& session, std::string_view file,
                                         const JsonValue& value) {
    const std::size_t told = session.messages.count();
    JsonDesign result;
    result.line = value.line;
    JsonMembers members(session, file, value, "the design");
    if (!members.isObject()) return std::nullopt;
    members.take("project", result.project, true);
    members.take("label", result.label, library_entry::labelLength, true);
    const JsonValue* const head = members.find("head", true);
    const JsonValue* const layers = members.find("layers", true);
    members.end();
    if (head) {
        result.design.append(recordFromJson(session, file, *head, true));
        if (!head->find(itemIndexName)) result.design.head()->setLabel(result.label);
    }
    if (layers && layers->kind != JsonValue::Kind::list) {
        members.tell(*layers, "layers", "a list of layers");
    } else if (layers && head) {
        bool placed = true;
        for (const JsonValue& layer : layers->items) {
            result.design.append(recordFromJson(session, file, layer, false));
            placed = placed && layer.find("offset") && layer.find("level");
        }
        if (!placed) layOut(*result.design.head());
    }
    if (session.messages.count() > told) return std::nullopt;
    return result;
}

bool JsonMembers::isObject() {
    if (m_object.kind == JsonValue::Kind::object) return true;
    m_session.messages.tell(m_file, m_object.line, m_what + " is no object; wanted is {...}");
    return false;
}

const JsonValue* JsonMembers::find(std::string_view name, bool required) {
    if (std::find(m_known.begin(), m_known.end(), name) == m_known.end()) m_known.push_back(name);
    const JsonValue* const value = m_object.find(name);
    if (!value && required) {
        m_session.messages.tell(m_file, m_object.line,
                                m_what + " lacks " + inQuotes(name) + "; wanted is one");
    }
    return value;
}

void JsonMembers::take(std::string_view name, std::int32_t& value, bool required) {
    using Limits = std::numeric_limits<std::int32_t>;
    const JsonValue* const member = find(name, required);
    if (!member) return;
    if (member->kind == JsonValue::Kind::whole && member->whole >= Limits::min() &&
        member->whole <= Limits::max()) {
        value = static_cast<std::int32_t>(member->whole);
    } else {
        tell(*member, name,
             "a whole number from " + std::to_string(Limits::min()) + " to " +
                 std::to_string(Limits::max()));
    }
}

void JsonMembers::take(std::string_view name, Text& value, std::size_t longest, bool required) {
    const JsonValue* const member = find(name, required);
    if (!member) return;
    std::optional<Text> text;
    if (member->kind == JsonValue::Kind::text) text = fromUtf8(member->text);
    if (text && text->size() <= longest) {
        value = *text;
        return;
    }
    std::string wanted =
        "a text of code page 1250 of at most " + std::to_string(longest) + " letters";
    const auto lacking =
        member->kind == JsonValue::Kind::text ? characterLacking(member->text) : std::nullopt;
    if (lacking) wanted += ", which lacks " + *lacking;
    tell(*member, name, wanted);
}

void JsonMembers::take(std::string_view name, bool& value) {
    const JsonValue* const member = find(name, false);
    if (!member) return;
    if (member->kind == JsonValue::Kind::boolean) {
        value = member->flag;
    } else {
        tell(*member, name, "true or false");
    }
}

void JsonMembers::end() {
    for (std::size_t i = 0; i < m_object.names.size(); ++i) {
        const std::string& name = m_object.names[i];
        if (std::find(m_known.begin(), m_known.end(), name) != m_known.end()) continue;
        std::string known;
        for (const std::string_view one : m_known)
            known.append(known.empty() ? "" : ", ").append(one);
        m_session.messages.tell(m_file, m_object.items[i].line,
                                m_what + " has " + inQuotes(name) + "; wanted are " + known);
    }
}

void JsonMembers::tell(const JsonValue& value, std::string_view name, const std::string& wanted) {
    std::string shown;
    switch (value.kind) {
        case JsonValue::Kind::text:
            shown = " is " + inQuotes(value.text);
            break;
        case JsonValue::Kind::whole:
            shown = " is " + std::to_string(value.whole);
            break;
        default:
            shown = " is wrong";
            break;
    }
    m_session.messages.tell(m_file, value.line,
                            inQuotes(name) + " of " + m_what + shown + "; wanted is " + wanted);
}

}  // namespace lx::lxtool
