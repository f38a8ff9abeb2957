#include "host/ini_text.h"

#include <vector>

namespace lx::host {

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

char lowerAscii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lowerAscii(a[i]) != lowerAscii(b[i])) return false;
    }
    return true;
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        lines.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

constexpr std::size_t nowhere = std::string_view::npos;

struct Place {
    std::size_t line = nowhere;        // of the key
    std::size_t sectionEnd = nowhere;  // behind the section's last line that is not empty
};

Place find(const std::vector<std::string_view>& lines, std::string_view section,
           std::string_view key) {
    Place place;
    bool inside = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string_view line = trimmed(lines[i]);
        if (line.starts_with('[')) {
            if (inside) break;
            inside = sameName(trimmed(line.substr(1, line.find(']') - 1)), section);
            if (inside) place.sectionEnd = i + 1;
        } else if (inside) {
            if (!line.empty()) place.sectionEnd = i + 1;
            if (sameName(trimmed(line.substr(0, line.find('='))), key)) {
                place.line = i;
                break;
            }
        }
    }
    return place;
}

}  // namespace

std::optional<std::string> iniValue(std::string_view file, std::string_view section,
                                    std::string_view key) {
    const std::vector<std::string_view> lines = linesOf(file);
    const Place place = find(lines, section, key);
    if (place.line == nowhere) return std::nullopt;
    const std::string_view line = lines[place.line];
    const std::size_t equals = line.find('=');
    return std::string(equals == nowhere ? "" : trimmed(line.substr(equals + 1)));
}

std::string iniWithValue(std::string_view file, std::string_view section, std::string_view key,
                         std::string_view value) {
    const std::vector<std::string_view> lines = linesOf(file);
    const Place place = find(lines, section, key);
    const std::string entry = std::string(key) + "=" + std::string(value) + "\r\n";
    std::string result;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (place.line == nowhere && place.sectionEnd == i) result += entry;
        if (place.line == i) {
            result += entry;
        } else {
            result.append(lines[i]).append("\n");
        }
    }
    if (place.sectionEnd == nowhere) result += "[" + std::string(section) + "]\r\n";
    if (place.sectionEnd == nowhere ||
        (place.line == nowhere && place.sectionEnd == lines.size())) {
        result += entry;
    }
    return result;
}

}  // namespace lx::host
