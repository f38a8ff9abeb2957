#include "platform/headless/headless_edit.h"

#include <algorithm>

#include "platform/headless/headless_platform.h"
#include "platform/headless/svg_area.h"

namespace lx {

HeadlessEdit::HeadlessEdit(HeadlessDialog& dialog, const ControlTemplate& layout)
    : HeadlessBase(dialog, layout),
      m_field(layout.kind == ControlKind::multilineEdit),
      m_readOnly((layout.style & style::readOnly) != 0) {
    m_field.setText(layout.text);
}

bool HeadlessEdit::report(EditResult result) {
    if (result == EditResult::refused) platform().beep();
    if (result == EditResult::changed) callCopy(onChange);
    return result != EditResult::ignored;
}

bool HeadlessEdit::clipboardKey(const KeyEvent& event) {
    if (!event.ctrl || event.alt) return false;
    switch (event.key) {
        case 'A':
            m_field.selectAll();
            return true;
        case 'C':
        case 'X':
            if (const Text selected = m_field.selectedText(); !selected.empty()) {
                platform().setClipboardText(selected);
                if (event.key == 'X' && !m_readOnly) report(m_field.removeSelection());
            }
            return true;
        case 'V':
            if (!m_readOnly) report(m_field.paste(platform().clipboard()));
            return true;
        default:
            return false;
    }
}

bool HeadlessEdit::keyDown(const KeyEvent& event) {
    if (clipboardKey(event)) return true;
    const bool erases = event.key == key::backspace || event.key == key::del;
    if (erases && m_readOnly) return true;
    return report(m_field.press(event));
}

bool HeadlessEdit::character(char32_t character) {
    if (m_readOnly) return true;
    return report(m_field.type(character));
}

bool HeadlessEdit::wantsKey(const KeyEvent& event) const {
    return event.key == key::enter && m_field.multiline() && !m_readOnly;
}

void HeadlessEdit::userType(char32_t character) {
    checkReachable("be typed into");
    clickFocus();
    m_dialog->root().userType(character);
}

void HeadlessEdit::userPaste(std::string_view utf8) {
    checkReachable("be pasted into");
    if (m_readOnly) refuse("it is read-only");
    clickFocus();
    Text kept;
    bool lost = false;
    while (!utf8.empty()) {
        std::size_t length = 1;
        while (length < utf8.size() && (static_cast<unsigned char>(utf8[length]) & 0xC0U) == 0x80) {
            ++length;
        }
        if (const auto one = fromUtf8(utf8.substr(0, length))) {
            kept += *one;
        } else {
            lost = true;
        }
        utf8.remove_prefix(length);
    }
    if (lost) platform().beep();
    report(m_field.paste(kept));
    settle();
}

void HeadlessEdit::draw(SvgArea& area) const {
    area.fill(m_readOnly || !enabled() ? SvgArea::face : SvgArea::paper);
    const Point at{4, m_field.multiline() ? 3 : area.middleLine()};
    if (focused() && !m_field.multiline()) {
        const auto placeOf = [&](int offset) {
            const auto before = static_cast<std::size_t>(offset);
            return at.x + SvgArea::textWidth(text().substr(0, before));
        };
        const int left = placeOf(selection().begin);
        const int right = placeOf(selection().end);
        area.fill({left, at.y, std::max(right, left + 1), at.y + SvgArea::lineHeight},
                  {170, 205, 240});
    }
    area.lines(at, text(), ink());
    area.frameOfField(focused());
}

}  // namespace lx
