// The letters of a table: UTF-8, with or without its mark, or code page 1250.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace lx::lxtool {

inline constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

class TableEncoding {
public:
    // By looking: with the mark of UTF-8, or without it when all is well-formed UTF-8.
    explicit TableEncoding(std::string_view bytes);

    // Where the table begins, behind the mark.
    std::size_t start() const { return m_start; }
    // The cell in code page 1250; none when the page lacks a character or the cell is no UTF-8.
    std::optional<Text> text(std::string_view cell) const;
    // As it is shown in a message.
    std::string shown(std::string_view cell) const;

private:
    std::size_t m_start = 0;
    bool m_codePage = false;
};

// The first character that code page 1250 lacks, as it is named in a message: "ω" (U+03C9). None
// when the text is all of that page.
std::optional<std::string> characterLacking(std::string_view utf8);

}  // namespace lx::lxtool
