// A JSON file whose members are lists of many things, one thing after another. Needs the memory of
// one of them, and tells what is wrong by its line.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "lxtool/session.h"

namespace lx::lxtool {

inline constexpr std::size_t deepestJson = 100;
inline constexpr std::size_t longestJsonText = 65536;  // bytes, as they stand in the file
inline constexpr std::size_t mostJsonValues = 100000;  // of one thing

struct JsonValue {
    enum class Kind { null, boolean, whole, number, text, list, object };

    Kind kind = Kind::null;
    std::size_t line = 0;
    bool flag = false;
    std::int64_t whole = 0;  // a number is any other one
    std::string text;        // UTF-8
    std::vector<JsonValue> items;
    std::vector<std::string> names;  // of an object's items

    // Null when the object has none of that name.
    const JsonValue* find(std::string_view name) const;
};

class JsonUse {
public:
    JsonUse() = default;
    JsonUse(const JsonUse&) = delete;
    JsonUse& operator=(const JsonUse&) = delete;
    virtual ~JsonUse() = default;

    // A member of the file's object that is no list.
    virtual void member(const std::string& name, const JsonValue& value) = 0;
    // A list begins, and its things.
    virtual void list(const std::string& name, std::size_t line) = 0;
    virtual void element(const std::string& name, const JsonValue& value) = 0;
};

// False, told, when the bytes are no object of JSON or over one of the limits.
bool readJson(Session& session, std::string_view name, std::string_view bytes, JsonUse& use);

}  // namespace lx::lxtool
