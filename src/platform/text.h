// Text inside the module: bytes in code page 1250, exactly as the files hold them. Limits, sort
// ranks and label lengths are rules about bytes. Conversion to other encodings happens in platform/
// alone, but for settings files that are Unicode themselves (settings/encoded_text.h).
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace lx {

// Bytes in code page 1250, without an embedded zero.
using Text = std::string;
// Bytes of a file or folder name in the system's own code page; never converted, only joined.
using Path = std::string;
// Raw bytes of a file.
using Bytes = std::string;

// The byte of code page 1250 for a Unicode code point, or -1 when the page has none.
constexpr int cp1250FromUnicode(char32_t codePoint);
// The Unicode code point of a byte of code page 1250; the bytes that the page leaves open (0x81,
// 0x83, 0x88, 0x90, 0x98) stand for the control characters of the same number, as Windows treats
// them.
constexpr char32_t unicodeFromCp1250(unsigned char byte);

// UTF-8 to code page 1250; none when a character does not exist there or the UTF-8 is malformed.
std::optional<Text> fromUtf8(std::string_view utf8);
std::string toUtf8(std::string_view text);

constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Lower case of one byte, Czech letters included ("Č" gives "č").
unsigned char lowerCase(unsigned char byte);
// Comparison without regard to letter case, byte by byte after lowerCase.
bool equalIgnoringCase(std::string_view a, std::string_view b);

// The text of a control or menu entry as it is read: without the "&" that marks its mnemonic ("&&"
// is one "&").
std::string withoutMnemonic(std::string_view text);

// Replaces "%s", "%d" and "%C" in order by the arguments; "%%" is a percent sign. Surplus places
// stay empty, surplus arguments are left out. Numbers with decimals come as texts (formatFixed).
Text fillIn(std::string_view format, std::initializer_list<std::string_view> arguments);

}  // namespace lx

#include "platform/text_literal.h"
