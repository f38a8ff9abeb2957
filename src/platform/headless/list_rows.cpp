#include "platform/headless/list_rows.h"

#include <algorithm>

namespace lx {

int rowAfterKey(int key, int current, int count, int page) {
    switch (key) {
        case key::up:
            return std::max(0, current - 1);
        case key::down:
            return std::min(count - 1, current + 1);
        case key::pageUp:
            return std::max(0, current - page);
        case key::pageDown:
            return std::min(count - 1, current + page);
        case key::home:
            return 0;
        case key::end:
            return count - 1;
        default:
            return -1;
    }
}

int topToShow(int row, int top, int shown) {
    if (row < 0) return top;
    if (row < top) return row;
    return row >= top + shown ? row - shown + 1 : top;
}

}  // namespace lx
