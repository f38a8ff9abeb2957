// The private, read-only message by which a program in the same process may ask real windows what
// messages of the system cannot tell: row colours, a picture's regions, what a dialog holds.
#pragma once

#include <cstddef>

namespace lx {

// Registered with RegisterWindowMessageW; wParam = DescribeQuestion, lParam = DescribeRequest*.
inline constexpr wchar_t describeMessageName[] = L"lxdata6dlg.describe";

enum class DescribeQuestion : unsigned {
    isOurs = 1,  // dialogs and pages: answers 1, writes the template's name
    rowLook,     // list boxes, row index: "textColor|background|icon", colours "r,g,b" or empty
    regions,     // pictures: one region a line, "left top right bottom name"
    cursor,  // pictures and dialogs: the cursor's name; a dialog's over the topic's "x y", if given
    drawing,  // pictures: the recorded operations, one a line
    topic,    // dialogs: Dialog::onDescribe of the topic
    tooltip,  // controls: the tooltip's text now
    icon      // buttons and dialogs: the icon's resource number
};

// The answer is code page 1250. The message returns the number of bytes that the whole answer has
// (0 when there is none); at most capacity of them are in the buffer, without a zero.
struct DescribeRequest {
    const char* topic = nullptr;  // zero-terminated
    int index = 0;
    char* buffer = nullptr;
    std::size_t capacity = 0;
};

}  // namespace lx
