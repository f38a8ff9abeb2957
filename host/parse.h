// Numbers as the command line and scenarios write them.
#pragma once

#include <charconv>
#include <string_view>

namespace lx::host {

// True when the whole text is a number of that type; a number then stands in value.
template <class T>
bool parseNumber(std::string_view text, T& value) {
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end;
}

}  // namespace lx::host
