#include "lxtool/json_reader.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>
#include <utility>

#include "lxtool/progress.h"

namespace lx::lxtool {

namespace {

// What JSON may hold at all but this reader would need too much memory for.
class Limits {
public:
    explicit Limits(std::string_view bytes) : m_bytes(bytes) {}

    // What is over a limit, with its line; empty when nothing is.
    std::string exceeded() {
        for (; m_position < m_bytes.size(); ++m_position) {
            const char c = m_bytes[m_position];
            if (c == '"') {
                if (!passText()) return "a text of more than 65536 bytes; wanted is a shorter one";
                continue;
            }
            if (c == '\n') ++m_line;
            if (c == '[' || c == '{') ++m_depth;
            if ((c == ']' || c == '}') && m_depth > 0) --m_depth;
            if (m_depth > deepestJson) return "is nested too deep; wanted are at most 100 levels";
            const bool between =
                std::string_view("[]{},: \t\r\n").find(c) != std::string_view::npos;
            m_word = between ? 0 : m_word + 1;
            if (m_word > longestJsonText) {
                return "a number of more than 65536 digits; wanted is a shorter one";
            }
        }
        return {};
    }
    std::size_t line() const { return m_line; }

private:
    bool passText() {
        const std::size_t start = ++m_position;
        for (; m_position < m_bytes.size() && m_bytes[m_position] != '"'; ++m_position) {
            if (m_bytes[m_position] == '\\') ++m_position;
            if (m_position - start >= longestJsonText) return false;
        }
        return true;
    }

    std::string_view m_bytes;
    std::size_t m_position = 0;
    std::size_t m_line = 1;
    std::size_t m_depth = 0;
    std::size_t m_word = 0;
};

// Where the parser has come to.
struct Come {
    std::size_t line = 1;
    std::size_t bytes = 0;
};

// The bytes as the parser takes them.
class LineCounter {
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    LineCounter(const char* place, Come* come) : m_place(place), m_come(come) {}
    reference operator*() const { return *m_place; }
    LineCounter& operator++() {
        if (*m_place++ == '\n') ++m_come->line;
        ++m_come->bytes;
        return *this;
    }
    LineCounter operator++(int) {
        LineCounter before = *this;
        ++*this;
        return before;
    }
    bool operator==(const LineCounter& other) const { return m_place == other.m_place; }
    bool operator!=(const LineCounter& other) const { return m_place != other.m_place; }

private:
    const char* m_place;
    Come* m_come;
};

constexpr std::size_t mostMembers = 100;  // of an object; each is compared with those before

// Takes what the parser meets: the file's object at depth 1, its lists at depth 2.
class Handler {
public:
    using number_integer_t = nlohmann::json::number_integer_t;
    using number_unsigned_t = nlohmann::json::number_unsigned_t;
    using number_float_t = nlohmann::json::number_float_t;
    using string_t = nlohmann::json::string_t;
    using binary_t = nlohmann::json::binary_t;

    Handler(Session& session, std::string_view name, std::size_t size, JsonUse& use,
            const Come& come)
        : m_session(session),
          m_name(name),
          m_use(use),
          m_come(come),
          m_progress(session.console, "read", size) {}

    bool null() { return take(made(JsonValue::Kind::null)); }
    bool boolean(bool value) {
        JsonValue one = made(JsonValue::Kind::boolean);
        one.flag = value;
        return take(std::move(one));
    }
    bool number_integer(number_integer_t value) {
        JsonValue one = made(JsonValue::Kind::whole);
        one.whole = value;
        return take(std::move(one));
    }
    bool number_unsigned(number_unsigned_t value) {
        const bool fits = value <= static_cast<number_unsigned_t>(INT64_MAX);
        JsonValue one = made(fits ? JsonValue::Kind::whole : JsonValue::Kind::number);
        one.whole = fits ? static_cast<std::int64_t>(value) : 0;
        return take(std::move(one));
    }
    bool number_float(number_float_t, const string_t&) {
        return take(made(JsonValue::Kind::number));
    }
    bool string(string_t& value) {
        JsonValue one = made(JsonValue::Kind::text);
        one.text = std::move(value);
        return take(std::move(one));
    }
    bool binary(binary_t&) { return false; }
    bool start_object(std::size_t) { return start(JsonValue::Kind::object); }
    bool start_array(std::size_t) { return start(JsonValue::Kind::list); }
    bool end_object() { return end(); }
    bool end_array() { return end(); }
    bool key(string_t& value) {
        if (m_open.empty()) {
            m_member = value;
            if (std::find(m_members.begin(), m_members.end(), value) != m_members.end()) {
                return tell("stands twice", value);
            }
            if (m_members.size() == mostMembers) return tell("is one member too many", value);
            m_members.push_back(value);
            return true;
        }
        JsonValue& object = m_open.back();
        if (object.names.size() == mostMembers) return tell("is one member too many", value);
        if (std::find(object.names.begin(), object.names.end(), value) != object.names.end()) {
            return tell("stands twice", value);
        }
        object.names.push_back(std::move(value));
        return true;
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& error) {
        // "[...] parse error at line 1, column 2: what it is"
        std::string what = error.what();
        const std::size_t column = what.find("column");
        const std::size_t colon = column == std::string::npos ? column : what.find(": ", column);
        what = colon == std::string::npos ? what : what.substr(colon + 2);
        for (char& c : what) {
            if (static_cast<unsigned char>(c) - 0x20U >= 0x5F) c = '?';
        }
        m_session.messages.tell(m_name, m_come.line, "is no JSON: " + what);
        return false;
    }

private:
    JsonValue made(JsonValue::Kind kind) const {
        JsonValue value;
        value.kind = kind;
        value.line = m_come.line;
        return value;
    }
    bool tell(const std::string& what, const std::string& which) {
        m_session.messages.tell(m_name, m_come.line, inQuotes(which) + " " + what);
        return false;
    }
    bool tellNoObject() {
        m_session.messages.tell(m_name, m_come.line, "is no object; wanted is {...}");
        return false;
    }
    bool counted() {
        m_progress.at(m_come.bytes);
        if (++m_values <= mostJsonValues) return true;
        m_session.messages.tell(m_name, m_come.line,
                                "holds more than " + std::to_string(mostJsonValues) +
                                    " values in one; wanted are fewer");
        return false;
    }
    bool start(JsonValue::Kind kind) {
        if (!m_inFile) {
            m_inFile = kind == JsonValue::Kind::object;
            return m_inFile || tellNoObject();
        }
        if (m_open.empty() && !m_inList && kind == JsonValue::Kind::list) {
            m_inList = true;
            m_use.list(m_member, m_come.line);
            return true;
        }
        m_open.push_back(made(kind));
        return counted();
    }
    bool end() {
        if (m_open.empty()) {
            m_inList = false;
            return true;
        }
        JsonValue value = std::move(m_open.back());
        m_open.pop_back();
        return put(std::move(value));
    }
    bool take(JsonValue value) {
        if (!m_inFile) return tellNoObject();
        return counted() && put(std::move(value));
    }
    bool put(JsonValue value) {
        if (!m_open.empty()) {
            m_open.back().items.push_back(std::move(value));
            return true;
        }
        m_values = 0;
        if (m_inList) {
            m_use.element(m_member, value);
        } else {
            m_use.member(m_member, value);
        }
        return true;
    }

    Session& m_session;
    std::string_view m_name;
    JsonUse& m_use;
    const Come& m_come;
    Progress m_progress;
    bool m_inFile = false;
    bool m_inList = false;
    std::string m_member;
    std::vector<std::string> m_members;
    std::vector<JsonValue> m_open;  // lists and objects of the thing, from the outermost
    std::size_t m_values = 0;       // of the thing so far
};

}  // namespace

const JsonValue* JsonValue::find(std::string_view name) const {
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? nullptr : &items[static_cast<std::size_t>(found - names.begin())];
}

bool readJson(Session& session, std::string_view name, std::string_view bytes, JsonUse& use) {
    Limits limits(bytes);
    const std::string exceeded = limits.exceeded();
    if (!exceeded.empty()) {
        session.messages.tell(name, limits.line(), exceeded);
        return false;
    }
    Come come;
    Handler handler(session, name, bytes.size(), use, come);
    return nlohmann::json::sax_parse(LineCounter(bytes.data(), &come),
                                     LineCounter(bytes.data() + bytes.size(), &come), &handler);
}

}  // namespace lx::lxtool
