#include "lxtool/table_encoding.h"

#include <algorithm>
#include <cstdio>

namespace lx::lxtool {

namespace {

// Bytes of the character at the front, its code point behind; 0 for what is no UTF-8.
std::size_t characterAt(std::string_view utf8, char32_t& point) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || length > utf8.size()) return 0;
    point = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if ((byte & 0xC0U) != 0x80) return 0;
        point = point << 6U | (byte & 0x3FU);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = point >= 0xD800 && point < 0xE000;
    return point < smallest[length] || point > 0x10FFFF || surrogate ? 0 : length;
}

bool wellFormed(std::string_view utf8) {
    char32_t point = 0;
    while (!utf8.empty()) {
        const std::size_t length = characterAt(utf8, point);
        if (length == 0) return false;
        utf8.remove_prefix(length);
    }
    return true;
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) - 1U < 0x7F; });
}

}  // namespace

TableEncoding::TableEncoding(std::string_view bytes) {
    if (bytes.starts_with(utf8Mark)) {
        m_start = utf8Mark.size();
    } else {
        m_codePage = !wellFormed(bytes);
    }
}

std::optional<Text> TableEncoding::text(std::string_view cell) const {
    if (isAscii(cell)) return Text(cell);
    if (!m_codePage) return fromUtf8(cell);
    if (cell.find('\0') != std::string_view::npos) return std::nullopt;
    return Text(cell);
}

std::string TableEncoding::shown(std::string_view cell) const {
    if (m_codePage) return toUtf8(cell);
    std::string result;
    char32_t point = 0;
    while (!cell.empty()) {
        const std::size_t length = characterAt(cell, point);
        result += length == 0 ? "?" : cell.substr(0, length);
        cell.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return result;
}

std::optional<std::string> characterLacking(std::string_view utf8) {
    while (!utf8.empty()) {
        char32_t point = 0;
        const std::size_t length = characterAt(utf8, point);
        char number[32];
        if (length == 0) {
            std::snprintf(number, sizeof number, "the byte 0x%02X",
                          static_cast<unsigned char>(utf8.front()));
            return std::string(number) + ", which is no UTF-8";
        }
        if (point == 0 || cp1250FromUnicode(point) < 0) {
            std::snprintf(number, sizeof number, "U+%04X", static_cast<unsigned>(point));
            if (point == 0) return std::string(number);
            return "\"" + std::string(utf8.substr(0, length)) + "\" (" + number + ")";
        }
        utf8.remove_prefix(length);
    }
    return std::nullopt;
}

}  // namespace lx::lxtool
