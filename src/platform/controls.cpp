#include "platform/controls.h"

namespace lx {

const char* cursorName(CursorShape shape) {
    switch (shape) {
        case CursorShape::hand:
            return "hand";
        case CursorShape::upArrow:
            return "upArrow";
        case CursorShape::splitLeftRight:
            return "splitLeftRight";
        case CursorShape::splitUpDown:
            return "splitUpDown";
        case CursorShape::text:
            return "text";
        case CursorShape::arrow:
            break;
    }
    return "arrow";
}

}  // namespace lx
