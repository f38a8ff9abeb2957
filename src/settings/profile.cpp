#include "settings/profile.h"

#include <algorithm>
#include <map>
#include <vector>

#include "platform/numbers.h"
#include "settings/encoded_text.h"
#include "settings/profile_lines.h"

namespace lx {

namespace {

constexpr std::string_view lineEnds("\r\n\0", 3);
constexpr std::size_t intBuffer = 30;  // from which the platform reads a number

// One pair of quotes of either kind around the whole text.
std::string_view withoutQuotes(std::string_view text) {
    const bool quoted = text.size() > 1 && (text.front() == '"' || text.front() == '\'') &&
                        text.back() == text.front();
    return quoted ? text.substr(1, text.size() - 2) : text;
}

std::optional<Text> valueOf(std::string_view bytes, std::string_view section,
                            std::string_view key) {
    const EncodedText file(bytes);
    const std::optional<KeyLine> line = findKey(file.text(), section, key);
    if (!line || !line->value) return std::nullopt;
    return Text(withoutQuotes(*line->value));
}

// Names that would not be found again, or would make another line of the file.
bool storable(std::string_view section, std::string_view key) {
    const std::string_view name = trimmedBlanks(key);
    return section.find_first_of(lineEnds) == std::string_view::npos && !name.empty() &&
           name.front() != '[' && name.find('=') == std::string_view::npos &&
           name.find_first_of(lineEnds) == std::string_view::npos;
}

// The line ends that the file has already.
std::string_view lineEndOf(std::string_view text) {
    const std::size_t end = text.find_first_of("\r\n");
    if (end == std::string_view::npos || text.substr(end, 2) == "\r\n") return "\r\n";
    return text[end] == '\n' ? "\n" : "\r";
}

using Changes = std::span<const ProfileChange>;

// The line break that would end the value is where the platform's functions stop reading it, too.
std::string_view storedValue(std::string_view value) {
    return trimmedBlanks(value.substr(0, value.find_first_of(lineEnds)));
}

struct LessIgnoringCase {
    bool operator()(std::string_view a, std::string_view b) const {
        const auto less = [](char x, char y) {
            return lowerCase(static_cast<unsigned char>(x)) <
                   lowerCase(static_cast<unsigned char>(y));
        };
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), less);
    }
};
using ByKey = std::map<std::string_view, std::size_t, LessIgnoringCase>;

// What stands at indices of the text gives way to another text.
struct Edit {
    std::size_t begin = 0;
    std::size_t end = 0;
    Text text;
    std::size_t change = 0;  // from which it comes
};

// None when the line says it already.
std::optional<Edit> editOf(const KeyLine& line, const ProfileChange& change) {
    if (!change.value) return Edit{line.start, line.next, {}};
    const std::string_view value = storedValue(*change.value);
    if (!line.value) return Edit{line.contentEnd, line.contentEnd, "=" + Text(value)};
    if (*line.value == value) return std::nullopt;
    return Edit{line.valueStart, line.contentEnd, Text(value)};
}

// One walk over a section in which several changes are made.
class SectionWalk {
public:
    // Takes as many of the changes as can be made together.
    SectionWalk(std::string_view text, Changes changes);

    std::size_t taken() const { return m_taken; }
    // In the order of the text.
    std::vector<Edit>& edits() { return m_edits; }

private:
    void gather();
    void findLines();
    void addLines();
    bool deletes(const Edit& edit) const { return !m_changes[edit.change].value; }

    std::string_view m_text;
    Changes m_changes;
    ByKey m_byKey;
    std::size_t m_taken = 0;
    std::vector<bool> m_found;
    std::optional<std::size_t> m_insertAt;
    std::vector<Edit> m_edits;
};

SectionWalk::SectionWalk(std::string_view text, Changes changes)
    : m_text(text), m_changes(changes) {
    gather();
    findLines();
    addLines();
}

// Changes to one section, each of another key.
void SectionWalk::gather() {
    const std::string_view section = trimmedBlanks(m_changes.front().section);
    for (const ProfileChange& change : m_changes) {
        const bool joins = equalIgnoringCase(trimmedBlanks(change.section), section) &&
                           m_byKey.emplace(trimmedBlanks(change.key), m_taken).second;
        if (!joins) break;
        ++m_taken;
    }
}

void SectionWalk::findLines() {
    m_found.resize(m_taken);
    std::size_t missing = m_taken;
    m_insertAt = walkSection(m_text, m_changes.front().section, [&](const KeyLine& line) {
        const auto wanted = m_byKey.find(line.name);
        if (wanted == m_byKey.end() || m_found[wanted->second]) return true;
        m_found[wanted->second] = true;
        if (auto edit = editOf(line, m_changes[wanted->second])) {
            edit->change = wanted->second;
            m_edits.push_back(*std::move(edit));
        }
        return --missing > 0;
    });
}

// New lines go behind the section's last line, one behind the other. Where that is can be told only
// after the lines that go before them are gone: the first new line then begins another walk.
void SectionWalk::addLines() {
    const std::string_view lineEnd = lineEndOf(m_text);
    const std::size_t at = m_insertAt.value_or(m_text.size());
    Edit added{at, at, {}};
    for (std::size_t i = 0; i < m_taken; ++i) {
        const ProfileChange& change = m_changes[i];
        if (m_found[i] || !change.value) continue;
        const auto goneBefore = [&](const Edit& edit) { return edit.change < i && deletes(edit); };
        if (added.text.empty()) {
            if (std::any_of(m_edits.begin(), m_edits.end(), goneBefore)) {
                m_taken = i;
                std::erase_if(m_edits, [i](const Edit& edit) { return edit.change > i; });
                return;
            }
            if (!m_insertAt) {
                added.text.append("[").append(trimmedBlanks(change.section)).append("]") += lineEnd;
            }
        }
        added.text.append(trimmedBlanks(change.key)).append("=");
        added.text.append(storedValue(*change.value)) += lineEnd;
    }
    if (added.text.empty()) return;
    const bool openLine = at > 0 && m_text[at - 1] != '\n' && m_text[at - 1] != '\r';
    const bool lineGoes = !m_edits.empty() && m_edits.back().end == at && deletes(m_edits.back());
    if (openLine && !lineGoes) added.text.insert(0, lineEnd);
    m_edits.push_back(std::move(added));
}

Bytes edited(std::string_view bytes, const EncodedText& file, std::vector<Edit>& edits) {
    std::size_t size = bytes.size();
    for (Edit& edit : edits) {
        edit.text = file.encode(edit.text);
        size += edit.text.size();
    }
    Bytes result;
    result.reserve(size);
    EncodedText::Place place = file.start();
    std::size_t copied = 0;
    for (const Edit& edit : edits) {
        place = file.place(edit.begin, place);
        result.append(bytes.substr(copied, place.offset - copied)).append(edit.text);
        place = file.place(edit.end, place);
        copied = place.offset;
    }
    return result.append(bytes.substr(copied));
}

// True when the bytes have become others.
bool change(Bytes& bytes, Changes changes) {
    bool different = false;
    while (!changes.empty()) {
        const EncodedText file(bytes);
        SectionWalk walk(file.text(), changes);
        changes = changes.subspan(walk.taken());
        if (walk.edits().empty()) continue;
        bytes = edited(bytes, file, walk.edits());
        different = true;
    }
    return different;
}

// As the platform reads it: sign, then decimal digits or 0x, 0o, 0b with theirs; an overflow wraps.
std::int32_t leadingNumber(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && static_cast<unsigned char>(text[at]) <= ' ') ++at;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    std::uint32_t base = 10;
    const std::string_view prefix = text.substr(at, 2);
    if (prefix == "0x") base = 16;
    if (prefix == "0o") base = 8;
    if (prefix == "0b") base = 2;
    if (base != 10) at += 2;
    std::uint32_t value = 0;
    for (; at < text.size(); ++at) {
        const char c = text[at];
        std::uint32_t digit = base;
        if (isDigit(c)) digit = static_cast<std::uint32_t>(c - '0');
        if (c >= 'a' && c <= 'f') digit = static_cast<std::uint32_t>(c - 'a' + 10);
        if (c >= 'A' && c <= 'F') digit = static_cast<std::uint32_t>(c - 'A' + 10);
        if (digit >= base) break;
        value = value * base + digit;
    }
    return static_cast<std::int32_t>(negative ? 0U - value : value);
}

}  // namespace

std::int32_t profileInt(std::string_view value, std::int32_t fallback) {
    return value.empty() ? fallback : leadingNumber(value.substr(0, intBuffer - 1));
}

Profile::Profile(Files& files, Path path) : m_files(files), m_path(std::move(path)) {}

Text Profile::read(std::string_view section, std::string_view key, std::string_view fallback,
                   std::size_t bufferSize) const {
    std::optional<Text> value = find(section, key);
    if (!value) {
        fallback = fallback.substr(0, fallback.find_last_not_of(' ') + 1);
        value = Text(withoutQuotes(fallback));
    }
    value->resize(std::min(value->size(), bufferSize == 0 ? 0 : bufferSize - 1));
    return *std::move(value);
}

std::int32_t Profile::readInt(std::string_view section, std::string_view key,
                              std::int32_t fallback) const {
    return profileInt(read(section, key, {}), fallback);
}

std::optional<Text> Profile::find(std::string_view section, std::string_view key) const {
    const FileRead file = m_files.read(m_path);
    if (file.status != ReadStatus::ok) return std::nullopt;
    return valueOf(file.bytes, section, key);
}

bool Profile::eachEntry(std::string_view section, const ProfileEntryUse& use) const {
    const FileRead file = m_files.read(m_path);
    if (file.status == ReadStatus::failed) return false;
    const EncodedText text(file.bytes);
    walkSection(text.text(), section, [&use](const KeyLine& line) {
        if (line.name.empty() || line.name.front() == ';') return true;
        std::optional<std::string_view> value = line.value;
        if (value) value = withoutQuotes(*value);
        use(line.name, value);
        return true;
    });
    return true;
}

bool Profile::write(std::string_view section, std::string_view key, std::string_view value) {
    const ProfileChange change{section, key, value};
    return apply({&change, 1});
}

bool Profile::writeInt(const settings::IntKey& key, std::int32_t value) {
    return write(key.section, key.key, formatInt(value));
}

bool Profile::apply(std::span<const ProfileChange> changes) {
    FileRead file = m_files.read(m_path);
    if (file.status == ReadStatus::failed) return false;
    for (const ProfileChange& one : changes) {
        if (!storable(one.section, one.key)) return false;
    }
    if (!change(file.bytes, changes)) return true;
    // A replacement would get past a write protection.
    if (file.status == ReadStatus::ok && !m_files.writable(m_path)) return false;
    return m_files.replace(m_path, file.bytes);
}

}  // namespace lx
