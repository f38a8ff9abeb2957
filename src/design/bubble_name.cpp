#include "design/bubble_name.h"

namespace lx {

Text proposeBubbleName(std::string_view last) {
    if (last.empty()) return "0";
    if (!isDigit(last.back())) return Text(last) + '1';

    // The number part: the trailing nines and the digit before them, if there is one.
    std::size_t begin = last.size();
    while (begin > 0 && last[begin - 1] == '9') --begin;
    const std::size_t nines = last.size() - begin;
    if (begin > 0 && isDigit(last[begin - 1])) --begin;

    const std::size_t digits = last.size() - begin;
    Text result(last.substr(0, begin));
    result += digits == nines ? '1' : static_cast<char>(last[begin] + 1);
    return result.append(nines, '0');
}

bool bubbleNameAccepted(std::string_view name) {
    if (name.empty()) return false;
    const auto first = static_cast<unsigned char>(name.front());
    return first >= 33 && first < 128;
}

}  // namespace lx
