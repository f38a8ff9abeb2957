// The order of the item list's texts: runs of digits by value, other characters in a fixed Czech
// order. Numbers come before characters, and characters that the order does not know (a blank, a
// point, "ň") are all alike and come before those that it knows.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace lx {

// 1 when a comes after b, else 0 (also when neither comes first). A strict weak ordering.
int compareNatural(std::string_view a, std::string_view b);
// Bytes that compare (as unsigned bytes) as the text does, for sorting many.
Text naturalKey(std::string_view text);

}  // namespace lx
