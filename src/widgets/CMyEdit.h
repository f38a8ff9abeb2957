// CMyEdit: an edit control with a limit on what may be typed, and with the check and the format of
// a number.
#pragma once

#include "platform/dialog.h"
#include "platform/platform.h"

namespace lx {

class CMyEdit {
public:
    static constexpr int freeText = -1;

    // decimals: freeText, or 0 or more for a number shown with that many decimals. Takes the
    // control's onKey; dialog, edit and platform must outlive it.
    CMyEdit(Platform& platform, Dialog& dialog, Edit& edit, int maxLength, int decimals);
    CMyEdit(const CMyEdit&) = delete;
    CMyEdit& operator=(const CMyEdit&) = delete;

    // Most bytes that typing may produce; pasting and setText are not limited.
    void setMaxLength(int maxLength) { m_maxLength = maxLength; }
    // Brings the text into the field's format. A number that cannot be read is reported in a
    // message box and becomes 0. Always true; free text stays as it is and is never invalid.
    bool checkAndFormat(Text& text, bool& invalid);

private:
    KeyAnswer keyDown(const KeyEvent& event);
    void formatField();

    Platform& m_platform;
    Dialog& m_dialog;
    Edit& m_edit;
    int m_maxLength;
    int m_decimals;
};

}  // namespace lx
