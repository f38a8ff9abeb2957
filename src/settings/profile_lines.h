// The lines of a private-profile text: where sections and keys stand, and where a new one goes.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

namespace lx {

// Blanks, tabs and the old end-of-file mark (0x1A) off both ends.
std::string_view trimmedBlanks(std::string_view text);

// A line "key = value"; positions are indices of the text. The value is none when there is no "=".
struct KeyLine {
    std::size_t start = 0;       // of the whole line
    std::size_t contentEnd = 0;  // behind the last byte that is no blank
    std::size_t next = 0;        // of the following line
    std::string_view name;
    std::optional<std::string_view> value;
    std::size_t valueStart = 0;
};

// None when the section or the key is missing. Of doubled keys and doubled sections the first one
// counts, even where only the second has what is looked for. The section "" is what stands before
// the first heading.
std::optional<KeyLine> findKey(std::string_view text, std::string_view section,
                               std::string_view key);
// Calls use for the lines of the first section of that name, comments too, until it answers false.
// Returns where a new line of the section goes when all were walked: behind its last line that is
// not blank; none when the section is missing.
std::optional<std::size_t> walkSection(std::string_view text, std::string_view section,
                                       const std::function<bool(const KeyLine&)>& use);

// Calls use for every line that is no heading, in their order, with the name of its section as the
// heading has it: another view for another heading, also of a doubled section.
void walkLines(std::string_view text,
               const std::function<void(std::string_view section, const KeyLine&)>& use);

}  // namespace lx
