#include "lxtool/messages.h"

namespace lx::lxtool {

void Messages::tell(std::string_view file, std::string_view what) {
    ++m_count;
    std::string line(file);
    m_console.error(line.append(": ").append(what).append("\n"));
}

void Messages::tell(std::string_view file, std::size_t line, std::string_view what) {
    tell(std::string(file) + ":" + std::to_string(line), what);
}

std::string inQuotes(std::string_view utf8) {
    constexpr std::size_t longest = 60;  // bytes
    std::size_t size = utf8.size();
    if (size > longest) {
        size = longest;
        // Not within a character.
        while (size > longest - 3 && (static_cast<unsigned char>(utf8[size]) & 0xC0U) == 0x80) {
            --size;
        }
    }
    std::string text = "\"";
    for (const char c : utf8.substr(0, size)) {
        const auto byte = static_cast<unsigned char>(c);
        text += byte < 0x20 || byte == 0x7F ? '?' : c;
    }
    return text += size < utf8.size() ? "...\"" : "\"";
}

std::string counted(std::size_t count, std::string_view what) {
    return std::to_string(count) + " " + std::string(what) + (count == 1 ? "" : "s");
}

}  // namespace lx::lxtool
