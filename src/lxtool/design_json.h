// Designs as JSON. A head and its layers have their stored fields by their names; fields that are
// left out are those of a new record, and layers without a place are laid out.
#pragma once

#include <string>

#include "composition/CRez.h"
#include "lxtool/json_reader.h"

namespace lx::lxtool {

// Of the form {"project": 0, "label": "A1", "head": {...}, "layers": [...]}, a layer a line. The
// label without blanks behind it.
std::string designAsJson(std::int32_t project, std::string_view label, const CRez& head);

struct JsonDesign {
    std::size_t line = 0;
    std::int32_t project = 0;
    Text label;
    RezChain design;
};
// None, all that is wrong told, when the value is no design.
std::optional<JsonDesign> designFromJson(Session& session, std::string_view file,
                                         const JsonValue& value);

// The members of an object one by one; what is wrong with them is told.
class JsonMembers {
public:
    // what: the object in words, such as "the design".
    JsonMembers(Session& session, std::string_view file, const JsonValue& object, std::string what)
        : m_session(session), m_file(file), m_object(object), m_what(std::move(what)) {}

    bool isObject();
    // Null when it is not there; required: told then.
    const JsonValue* find(std::string_view name, bool required);
    void take(std::string_view name, std::int32_t& value, bool required);
    // longest in bytes of code page 1250.
    void take(std::string_view name, Text& value, std::size_t longest, bool required);
    void take(std::string_view name, bool& value);
    // Members that were not taken are told.
    void end();
    void tell(const JsonValue& value, std::string_view name, const std::string& wanted);

private:
    Session& m_session;
    std::string_view m_file;
    const JsonValue& m_object;
    std::string m_what;
    std::vector<std::string_view> m_known;
};

}  // namespace lx::lxtool
