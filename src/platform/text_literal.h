// The code page table and the "..."_cz literal, which turns readable Czech in UTF-8 source into
// bytes of code page 1250 at compile time. Included by text.h.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace lx {

namespace detail {
// Code points of the bytes 0x80 to 0xFF (Windows code page 1250, as published by the Unicode
// consortium).
inline constexpr std::array<char16_t, 128> cp1250High = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, 0x0088, 0x2030, 0x0160, 0x2039,
    0x015A, 0x0164, 0x017D, 0x0179, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x0098, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141,
    0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB,
    0x013D, 0x02DD, 0x013E, 0x017C, 0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3,
    0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, 0x010D, 0x00E9, 0x0119, 0x00EB,
    0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};
}  // namespace detail

constexpr int cp1250FromUnicode(char32_t codePoint) {
    if (codePoint < 0x80) return static_cast<int>(codePoint);
    for (std::size_t i = 0; i < detail::cp1250High.size(); ++i) {
        if (detail::cp1250High[i] == codePoint) return static_cast<int>(0x80 + i);
    }
    return -1;
}

constexpr char32_t unicodeFromCp1250(unsigned char byte) {
    return byte < 0x80 ? static_cast<char32_t>(byte) : detail::cp1250High[byte - 0x80U];
}

template <std::size_t N>
struct CzechLiteral {
    char bytes[N] = {};
    std::size_t size = 0;

    // A character that code page 1250 lacks, or malformed UTF-8, does not compile.
    consteval CzechLiteral(const char (&utf8)[N]) {  // NOLINT(google-explicit-constructor)
        for (std::size_t i = 0; i + 1 < N;) {
            const auto lead = static_cast<unsigned char>(utf8[i]);
            const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : 3;
            char32_t point = lead < 0x80 ? lead : lead < 0xE0 ? lead & 0x1FU : lead & 0x0FU;
            for (std::size_t k = 1; k < length; ++k) {
                point = point << 6U | (static_cast<unsigned char>(utf8[i + k]) & 0x3FU);
            }
            const int byte = cp1250FromUnicode(point);
            if (byte < 0) throw "not a character of code page 1250";
            bytes[size++] = static_cast<char>(byte);
            i += length;
        }
    }
};

inline namespace literals {
// Zero-terminated, so data() may be used as a C string.
template <CzechLiteral L>
constexpr std::string_view operator""_cz() {
    return {L.bytes, L.size};
}
}  // namespace literals

}  // namespace lx
