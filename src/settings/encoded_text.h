// The text of a settings file whatever Unicode form a text editor saved it in. What is read is code
// page 1250; every position leads back to the file's own bytes, so that a change leaves the rest of
// them alone.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace lx {

class EncodedText {
public:
    // The bytes must outlive the object. A byte order mark tells UTF-8 or UTF-16 (little-endian);
    // without one the bytes are the text.
    explicit EncodedText(std::string_view bytes);

    // A character that code page 1250 lacks reads as "?".
    std::string_view text() const { return m_form == Form::plain ? m_bytes : m_decoded; }
    // Where a character of text() stands in the file's bytes.
    struct Place {
        std::size_t index = 0;
        std::size_t offset = 0;
    };
    Place start() const;
    // The place of that index, counted on from an earlier one.
    Place place(std::size_t index, Place from) const;
    Bytes encode(std::string_view text) const;

private:
    enum class Form { plain, utf8, utf16 };

    void decodeUtf8();
    void decodeUtf16();

    std::string_view m_bytes;
    Form m_form = Form::plain;
    Text m_decoded;
};

}  // namespace lx
