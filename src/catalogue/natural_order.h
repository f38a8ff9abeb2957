// The order of texts: of the item list's cells, and of the labels of stored designs. Both know a
// fixed Czech order of characters; those that it lacks (a blank, a point, "ň") are all alike and
// come before those that it has.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace lx {

// A cell's text made ready for being ordered among many: runs of digits count by their value, and
// numbers come before characters.
class NaturalText {
public:
    explicit NaturalText(std::string_view text);

    // 1 when a comes after b, else 0 (also when neither comes first). A strict weak ordering.
    friend int compareNatural(const NaturalText& a, const NaturalText& b);

private:
    Text m_key;  // its unsigned bytes compare as the text does
};

int compareNatural(const NaturalText& a, const NaturalText& b);

// True when a comes before b, without regard to letter case: digits are characters like others
// ("A10" before "A9"), between those without an order and the listed ones.
bool plainLess(std::string_view a, std::string_view b);

}  // namespace lx
