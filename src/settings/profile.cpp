#include "settings/profile.h"

#include <algorithm>

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
    const KeyPlace place = findKey(file.text(), section, key);
    if (!place.line || !place.line->value) return std::nullopt;
    return Text(withoutQuotes(*place.line->value));
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

struct Change {
    std::size_t begin = 0;  // indices of the text: what stands there gives way to
    std::size_t end = 0;
    Text text;
};

Change newLine(std::string_view text, std::optional<std::size_t> insertAt, std::string_view section,
               std::string_view key, std::string_view value) {
    const std::string_view lineEnd = lineEndOf(text);
    const std::size_t at = insertAt.value_or(text.size());
    Change change{at, at, {}};
    const bool openLine = at > 0 && text[at - 1] != '\n' && text[at - 1] != '\r';
    if (openLine) change.text += lineEnd;
    if (!insertAt) change.text.append("[").append(trimmedBlanks(section)).append("]") += lineEnd;
    change.text.append(trimmedBlanks(key)).append("=").append(value) += lineEnd;
    return change;
}

// none when the text says it already.
std::optional<Change> changeFor(std::string_view text, std::string_view section,
                                std::string_view key, std::optional<std::string_view> wanted) {
    const KeyPlace place = findKey(text, section, key);
    if (!wanted) {
        if (!place.line) return std::nullopt;
        return Change{place.line->start, place.line->next, {}};
    }
    // A line break would end the value; the platform's functions read up to it as well.
    const std::string_view value =
        trimmedBlanks(wanted->substr(0, wanted->find_first_of(lineEnds)));
    if (!place.line) return newLine(text, place.insertAt, section, key, value);
    if (!place.line->value) {
        return Change{place.line->contentEnd, place.line->contentEnd, "=" + Text(value)};
    }
    if (*place.line->value == value) return std::nullopt;
    return Change{place.line->valueStart, place.line->contentEnd, Text(value)};
}

std::optional<Bytes> changed(std::string_view bytes, std::string_view section, std::string_view key,
                             std::optional<std::string_view> value) {
    if (!storable(section, key)) return std::nullopt;
    const EncodedText file(bytes);
    const std::optional<Change> change = changeFor(file.text(), section, key, value);
    if (!change) return std::nullopt;
    const std::size_t begin = file.offset(change->begin);
    const std::size_t end = file.offset(change->end);
    const Bytes insert = file.encode(change->text);
    Bytes result;
    result.reserve(bytes.size() + insert.size());
    result.append(bytes.substr(0, begin)).append(insert).append(bytes.substr(end));
    return result;
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

std::optional<std::vector<ProfileEntry>> Profile::readableEntries(std::string_view section) const {
    const FileRead file = m_files.read(m_path);
    if (file.status == ReadStatus::failed) return std::nullopt;
    std::vector<ProfileEntry> result;
    const EncodedText text(file.bytes);
    for (const KeyLine& line : keyLines(text.text(), section)) {
        ProfileEntry& entry = result.emplace_back();
        entry.key = line.name;
        if (line.value) entry.value = Text(withoutQuotes(*line.value));
    }
    return result;
}

bool Profile::write(std::string_view section, std::string_view key, std::string_view value) {
    const ProfileChange change{section, key, value};
    return apply({&change, 1});
}

bool Profile::writeInt(std::string_view section, std::string_view key, std::int32_t value) {
    return write(section, key, formatInt(value));
}

bool Profile::erase(std::string_view section, std::string_view key) {
    const ProfileChange change{section, key, std::nullopt};
    return apply({&change, 1});
}

bool Profile::apply(std::span<const ProfileChange> changes) {
    const FileRead file = m_files.read(m_path);
    if (file.status == ReadStatus::failed) return false;
    Bytes bytes = file.bytes;
    bool different = false;
    for (const ProfileChange& change : changes) {
        if (!storable(change.section, change.key)) return false;
        std::optional<Bytes> next = changed(bytes, change.section, change.key, change.value);
        if (!next) continue;
        bytes = *std::move(next);
        different = true;
    }
    if (!different) return true;
    // A replacement would get past a write protection.
    if (file.status == ReadStatus::ok && !m_files.writable(m_path)) return false;
    return m_files.replace(m_path, bytes);
}

Bytes profileWritten(std::string_view file, std::string_view section, std::string_view key,
                     std::optional<std::string_view> value) {
    return changed(file, section, key, value).value_or(Bytes(file));
}

}  // namespace lx
