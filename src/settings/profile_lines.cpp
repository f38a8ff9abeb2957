#include "settings/profile_lines.h"

#include <algorithm>

#include "platform/text.h"

namespace lx {

namespace {

constexpr std::string_view blanks = " \t\v\f\r\n\x1A";

std::string_view upToZero(std::string_view text) {
    return text.substr(0, text.find('\0'));
}

struct Line {
    std::size_t start = 0;
    std::size_t next = 0;
    std::string_view content;  // without blanks around it
};

// Lines end at a carriage return or a line feed; the pair of them gives an empty line, which counts
// for nothing.
class Lines {
public:
    explicit Lines(std::string_view text) : m_text(text) {}

    bool next(Line& line) {
        while (m_position < m_text.size()) {
            line.start = m_position;
            const std::size_t end =
                std::min(m_text.find_first_of("\r\n", m_position), m_text.size());
            m_position = end;
            if (m_position < m_text.size()) ++m_position;
            if (end + 1 < m_text.size() && m_text[end] == '\r' && m_text[end + 1] == '\n') {
                ++m_position;
            }
            line.next = m_position;
            line.content = trimmedBlanks(m_text.substr(line.start, end - line.start));
            if (!line.content.empty()) return true;
        }
        return false;
    }

private:
    std::string_view m_text;
    std::size_t m_position = 0;
};

// The name between "[" and the last "]" of the line; what follows it counts for nothing. A line
// without "]" is no heading.
std::optional<std::string_view> headingName(std::string_view content) {
    if (content.front() != '[') return std::nullopt;
    const std::size_t close = content.rfind(']');
    if (close == std::string_view::npos) return std::nullopt;
    return upToZero(trimmedBlanks(content.substr(1, close - 1)));
}

KeyLine keyLine(std::string_view text, const Line& line) {
    const auto begin = static_cast<std::size_t>(line.content.data() - text.data());
    KeyLine result{line.start, begin + line.content.size(), line.next, {}, {}, 0};
    const std::size_t equals = line.content.find('=');
    result.name = upToZero(trimmedBlanks(line.content.substr(0, equals)));
    if (equals != std::string_view::npos) {
        const std::size_t first = line.content.find_first_not_of(blanks, equals + 1);
        const std::size_t start = first == std::string_view::npos ? line.content.size() : first;
        result.valueStart = begin + start;
        result.value = upToZero(line.content.substr(start));
    }
    return result;
}

}  // namespace

std::string_view trimmedBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return text.substr(0, 0);
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<std::size_t> walkSection(std::string_view text, std::string_view section,
                                       const std::function<bool(const KeyLine&)>& use) {
    const std::string_view wanted = trimmedBlanks(section);
    bool inside = wanted.empty();
    std::optional<std::size_t> insertAt;
    if (inside) insertAt = 0;
    Lines lines(text);
    for (Line line; lines.next(line);) {
        if (const auto heading = headingName(line.content)) {
            if (inside) break;
            inside = equalIgnoringCase(*heading, wanted);
            if (inside) insertAt = line.next;
        } else if (inside) {
            insertAt = line.next;
            if (!use(keyLine(text, line))) break;
        }
    }
    return insertAt;
}

void walkLines(std::string_view text,
               const std::function<void(std::string_view section, const KeyLine&)>& use) {
    std::string_view section;
    Lines lines(text);
    for (Line line; lines.next(line);) {
        if (const auto heading = headingName(line.content)) {
            section = *heading;
        } else {
            use(section, keyLine(text, line));
        }
    }
}

std::optional<KeyLine> findKey(std::string_view text, std::string_view section,
                               std::string_view key) {
    const std::string_view wanted = trimmedBlanks(key);
    std::optional<KeyLine> found;
    walkSection(text, section, [&](const KeyLine& line) {
        if (equalIgnoringCase(line.name, wanted)) found = line;
        return !found;
    });
    return found;
}

}  // namespace lx
