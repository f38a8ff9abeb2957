// What is wrong, told a line each as compilers do: "FILE:LINE: what is wrong and what is wanted".
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "lxtool/console.h"

namespace lx::lxtool {

class Messages {
public:
    explicit Messages(const Console& console) : m_console(console) {}

    void tell(std::string_view file, std::string_view what);
    // Lines count from 1; those of a catalogue are the rows of its table.
    void tell(std::string_view file, std::size_t line, std::string_view what);
    std::size_t count() const { return m_count; }

private:
    const Console& m_console;
    std::size_t m_count = 0;
};

// A text of a file as it is shown in a message: in quotes, short, without control characters.
std::string inQuotes(std::string_view utf8);

// "1 design", "2 designs".
std::string counted(std::size_t count, std::string_view what);

}  // namespace lx::lxtool
