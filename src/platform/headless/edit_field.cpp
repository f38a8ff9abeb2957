#include "platform/headless/edit_field.h"

#include <algorithm>

namespace lx {

void EditField::setText(std::string_view text) {
    m_text = text;
    m_anchor = m_caret = 0;
}

TextSelection EditField::selection() const {
    const auto [begin, end] = std::minmax(m_anchor, m_caret);
    return {static_cast<int>(begin), static_cast<int>(end)};
}

void EditField::select(TextSelection selection) {
    const int size = static_cast<int>(m_text.size());
    m_anchor = static_cast<std::size_t>(std::clamp(selection.begin, 0, size));
    m_caret = static_cast<std::size_t>(std::clamp(selection.end, 0, size));
}

Text EditField::selectedText() const {
    const auto [begin, end] = std::minmax(m_anchor, m_caret);
    return m_text.substr(begin, end - begin);
}

EditResult EditField::replaceSelection(std::string_view text) {
    const auto [begin, end] = std::minmax(m_anchor, m_caret);
    m_text.replace(begin, end - begin, text);
    m_anchor = m_caret = begin + text.size();
    return EditResult::changed;
}

EditResult EditField::type(char32_t character) {
    if (character == '\r' && m_multiline) return replaceSelection("\r\n");
    if (character < 0x20 || character == 0x7F) return EditResult::ignored;
    const int byte = cp1250FromUnicode(character);
    if (byte < 0) return EditResult::refused;
    const char typed = static_cast<char>(byte);
    return replaceSelection({&typed, 1});
}

EditResult EditField::paste(std::string_view text) {
    if (!m_multiline) text = text.substr(0, text.find_first_of("\r\n"));
    if (text.empty()) return EditResult::ignored;
    return replaceSelection(text);
}

EditResult EditField::removeSelection() {
    return m_anchor == m_caret ? EditResult::ignored : replaceSelection({});
}

EditResult EditField::erase(bool forward) {
    if (m_anchor == m_caret) m_anchor = forward ? behind(m_caret) : before(m_caret);
    return removeSelection();
}

void EditField::moveCaret(std::size_t to, bool extend) {
    m_caret = to;
    if (!extend) m_anchor = to;
}

EditResult EditField::press(const KeyEvent& event) {
    if (event.alt) return EditResult::ignored;
    switch (event.key) {
        case key::backspace:
            return erase(false);
        case key::del:
            return erase(true);
        case key::left:
            moveCaret(before(m_caret), event.shift);
            return EditResult::moved;
        case key::right:
            moveCaret(behind(m_caret), event.shift);
            return EditResult::moved;
        case key::home:
            moveCaret(event.ctrl ? 0 : lineStart(m_caret), event.shift);
            return EditResult::moved;
        case key::end:
            moveCaret(event.ctrl ? m_text.size() : lineEnd(m_caret), event.shift);
            return EditResult::moved;
        case key::up:
        case key::down:
            if (m_multiline) {
                moveCaret(lineAway(m_caret, event.key == key::down), event.shift);
            } else {
                const bool back = event.key == key::up;
                moveCaret(back ? before(m_caret) : behind(m_caret), event.shift);
            }
            return EditResult::moved;
        default:
            return EditResult::ignored;
    }
}

std::size_t EditField::before(std::size_t offset) const {
    if (offset >= 2 && m_text.compare(offset - 2, 2, "\r\n") == 0) return offset - 2;
    return offset > 0 ? offset - 1 : 0;
}

std::size_t EditField::behind(std::size_t offset) const {
    if (m_text.compare(offset, 2, "\r\n") == 0) return offset + 2;
    return std::min(offset + 1, m_text.size());
}

std::size_t EditField::lineStart(std::size_t offset) const {
    const std::size_t found = offset < 2 ? Text::npos : m_text.rfind("\r\n", offset - 2);
    return found == Text::npos ? 0 : found + 2;
}

std::size_t EditField::lineEnd(std::size_t offset) const {
    const std::size_t found = m_text.find("\r\n", offset);
    return found == Text::npos ? m_text.size() : found;
}

std::size_t EditField::lineAway(std::size_t offset, bool down) const {
    const std::size_t start = lineStart(offset);
    const std::size_t end = lineEnd(offset);
    if (down ? end == m_text.size() : start == 0) return offset;
    const std::size_t target = down ? end + 2 : lineStart(start - 2);
    return std::min(target + (offset - start), lineEnd(target));
}

}  // namespace lx
