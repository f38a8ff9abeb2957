#include "widgets/CMyEdit.h"

#include "platform/numbers.h"
#include "resources/strings.h"

namespace lx {

namespace {

constexpr int firstLimitedKey = 32;
constexpr int lastLimitedKey = 254;

bool alwaysPasses(int code) {
    switch (code) {
        case key::backspace:
        case key::end:
        case key::home:
        case key::left:
        case key::up:
        case key::right:
        case key::down:
            return true;
        default:
            return code < firstLimitedKey || code > lastLimitedKey;
    }
}

// Digits with at most one point and a minus sign in the first place alone; not empty.
bool isPlainNumber(std::string_view text) {
    bool point = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (isDigit(c)) continue;
        if (c == '-' && i == 0) continue;
        if (c != '.' || point) return false;
        point = true;
    }
    return !text.empty();
}

}  // namespace

CMyEdit::CMyEdit(Platform& platform, Dialog& dialog, Edit& edit, int maxLength, int decimals)
    : m_platform(platform),
      m_dialog(dialog),
      m_edit(edit),
      m_maxLength(maxLength),
      m_decimals(decimals) {
    m_edit.onKey = [this](const KeyEvent& event) { return keyDown(event); };
}

KeyAnswer CMyEdit::keyDown(const KeyEvent& event) {
    // Shortcuts such as Ctrl+A and Alt+F4 produce no character; both together are AltGr, which
    // does.
    if (event.ctrl != event.alt) return KeyAnswer::pass;
    if (event.key == key::enter) {
        formatField();
        return KeyAnswer::asTab;
    }
    if (alwaysPasses(event.key)) return KeyAnswer::pass;
    if (static_cast<int>(m_edit.text().size()) < m_maxLength) return KeyAnswer::pass;
    const TextSelection selection = m_edit.selection();
    return selection.begin != selection.end ? KeyAnswer::pass : KeyAnswer::swallow;
}

void CMyEdit::formatField() {
    const Text before = m_edit.text();
    Text text = before;
    bool invalid = false;
    checkAndFormat(text, invalid);
    // Setting an unchanged text would move the caret for nothing.
    if (text != before) m_edit.setText(text);
}

bool CMyEdit::checkAndFormat(Text& text, bool& invalid) {
    invalid = m_decimals >= 0 && !isPlainNumber(text);
    if (m_decimals < 0) return true;
    if (invalid) {
        m_platform.messageBox({&m_dialog, nullptr}, text, text::wrongNumber, MessageIcon::stop,
                              MessageButtons::ok);
        text.clear();
    }
    text = formatFixed(leadingDouble(text), m_decimals);
    return true;
}

}  // namespace lx
