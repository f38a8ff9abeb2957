#include "settings/encoded_text.h"

namespace lx {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view utf16Mark = "\xFF\xFE";

unsigned char byteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}

char toByte(char32_t point) {
    const int byte = cp1250FromUnicode(point);
    return byte < 0 ? '?' : static_cast<char>(byte);
}

struct Sequence {
    std::size_t length = 1;
    char32_t point = 0xFFFD;
};

// A malformed sequence counts as one byte and is read as a character that the code page lacks.
Sequence utf8Sequence(std::string_view bytes, std::size_t at) {
    const unsigned char lead = byteAt(bytes, at);
    if (lead < 0x80) return {1, lead};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
    if (length == 0 || lead > 0xF4 || length > bytes.size() - at) return {};
    char32_t point = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned char next = byteAt(bytes, at + i);
        if ((next & 0xC0U) != 0x80) return {};
        point = point << 6U | (next & 0x3FU);
    }
    return {length, point};
}

}  // namespace

EncodedText::EncodedText(std::string_view bytes) : m_bytes(bytes) {
    if (bytes.starts_with(utf8Mark)) {
        m_form = Form::utf8;
        decodeUtf8();
    } else if (bytes.starts_with(utf16Mark)) {
        m_form = Form::utf16;
        decodeUtf16();
    }
}

void EncodedText::decodeUtf8() {
    m_decoded.reserve(m_bytes.size());
    for (std::size_t at = utf8Mark.size(); at < m_bytes.size();) {
        const Sequence sequence = utf8Sequence(m_bytes, at);
        m_decoded.push_back(toByte(sequence.point));
        at += sequence.length;
    }
}

void EncodedText::decodeUtf16() {
    m_decoded.reserve(m_bytes.size() / 2);
    for (std::size_t at = utf16Mark.size(); at + 1 < m_bytes.size(); at += 2) {
        const unsigned unit = byteAt(m_bytes, at) | static_cast<unsigned>(byteAt(m_bytes, at + 1))
                                                        << 8U;
        m_decoded.push_back(toByte(unit));
    }
}

EncodedText::Place EncodedText::start() const {
    if (m_form == Form::plain) return {};
    return {0, m_form == Form::utf16 ? utf16Mark.size() : utf8Mark.size()};
}

EncodedText::Place EncodedText::place(std::size_t index, Place from) const {
    if (m_form != Form::utf8) {
        const std::size_t bytesEach = m_form == Form::utf16 ? 2 : 1;
        return {index, from.offset + bytesEach * (index - from.index)};
    }
    for (; from.index < index && from.offset < m_bytes.size(); ++from.index) {
        from.offset += utf8Sequence(m_bytes, from.offset).length;
    }
    return from;
}

Bytes EncodedText::encode(std::string_view text) const {
    if (m_form == Form::plain) return Bytes(text);
    if (m_form == Form::utf8) return toUtf8(text);
    Bytes bytes;
    for (const char byte : text) {
        const char32_t point = unicodeFromCp1250(static_cast<unsigned char>(byte));
        bytes.push_back(static_cast<char>(point & 0xFFU));
        bytes.push_back(static_cast<char>(point >> 8U));
    }
    return bytes;
}

}  // namespace lx
