// The module's string table: texts by number, in code page 1250.
#pragma once

#include <string_view>

namespace lx {

// Text 1 to 115; empty for a number without a text. Zero-terminated.
std::string_view str(int number);

// Texts of the module that have no number.
namespace texts {
extern const std::string_view storeFailed;  // the library could not be written at OK
}  // namespace texts

}  // namespace lx
