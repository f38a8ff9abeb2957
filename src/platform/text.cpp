#include "platform/text.h"

namespace lx {

namespace {

// The code point at the front of utf8, which it is then removed from; none when malformed (an
// overlong form, a surrogate, a cut sequence). A zero byte cannot stand in a Text and counts as
// malformed.
std::optional<char32_t> takeCodePoint(std::string_view& utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    const std::size_t length = lead < 0x80   ? 1
                               : lead < 0xC2 ? 0
                               : lead < 0xE0 ? 2
                               : lead < 0xF0 ? 3
                               : lead < 0xF5 ? 4
                                             : 0;
    if (length == 0 || length > utf8.size() || lead == 0) return std::nullopt;
    constexpr unsigned char leadBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    char32_t point = lead & leadBits[length];
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if ((byte & 0xC0U) != 0x80) return std::nullopt;
        point = point << 6U | (byte & 0x3FU);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    if (point < smallest[length] || point > 0x10FFFF || (point >= 0xD800 && point < 0xE000)) {
        return std::nullopt;
    }
    utf8.remove_prefix(length);
    return point;
}

void appendUtf8(std::string& out, char32_t point) {
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | point >> 6U);
        put(0x80 | (point & 0x3FU));
    } else {
        put(0xE0 | point >> 12U);
        put(0x80 | (point >> 6U & 0x3FU));
        put(0x80 | (point & 0x3FU));
    }
}

}  // namespace

std::optional<Text> fromUtf8(std::string_view utf8) {
    Text result;
    result.reserve(utf8.size());
    while (!utf8.empty()) {
        const std::optional<char32_t> point = takeCodePoint(utf8);
        const int byte = point ? cp1250FromUnicode(*point) : -1;
        if (byte < 0) return std::nullopt;
        result.push_back(static_cast<char>(byte));
    }
    return result;
}

std::string toUtf8(std::string_view text) {
    std::string result;
    result.reserve(text.size() + text.size() / 8);
    for (const char c : text) appendUtf8(result, unicodeFromCp1250(static_cast<unsigned char>(c)));
    return result;
}

unsigned char lowerCase(unsigned char byte) {
    if (byte < 0x80)
        return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + 32) : byte;
    // From À's row on, the small letter stands 32 places behind; 0xD7 is the multiplication sign
    // and 0xDF the sharp s.
    if (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7) return static_cast<unsigned char>(byte + 32);
    switch (byte) {
        case 0x8A:  // Š
        case 0x8C:  // Ś
        case 0x8D:  // Ť
        case 0x8E:  // Ž
        case 0x8F:  // Ź
        case 0xA3:  // Ł
        case 0xAA:  // Ş
        case 0xAF:  // Ż
            return static_cast<unsigned char>(byte + 16);
        case 0xA5:  // Ą
            return 0xB9;
        case 0xBC:  // Ľ
            return 0xBE;
        default:
            return byte;
    }
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lowerCase(static_cast<unsigned char>(a[i])) !=
            lowerCase(static_cast<unsigned char>(b[i]))) {
            return false;
        }
    }
    return true;
}

std::string withoutMnemonic(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && ++i == text.size()) break;
        result.push_back(text[i]);
    }
    return result;
}

Text fillIn(std::string_view format, std::initializer_list<std::string_view> arguments) {
    Text result;
    const auto* next = arguments.begin();
    for (std::size_t i = 0; i < format.size(); ++i) {
        const char kind = format[i] == '%' && i + 1 < format.size() ? format[i + 1] : '\0';
        if (kind == 's' || kind == 'd' || kind == 'C') {
            if (next != arguments.end()) result.append(*next++);
            ++i;
        } else if (kind == '%') {
            result.push_back('%');
            ++i;
        } else {
            result.push_back(format[i]);
        }
    }
    return result;
}

}  // namespace lx
