// The text, caret and selection of an edit field, single- or multi-line, and what keys do to them.
// Shared by edits and editable combos. Offsets are bytes; a line end is the pair CR LF and is never
// cut in two.
#pragma once

#include "platform/controls.h"
#include "platform/keys.h"
#include "platform/text.h"

namespace lx {

// What a key or character did.
enum class EditResult { ignored, moved, changed, refused };

class EditField {
public:
    explicit EditField(bool multiline) : m_multiline(multiline) {}

    const Text& text() const { return m_text; }
    // The caret goes to the front.
    void setText(std::string_view text);
    TextSelection selection() const;
    // Offsets beyond the text mean its end.
    void select(TextSelection selection);
    void selectAll() { select({0, static_cast<int>(m_text.size())}); }
    Text selectedText() const;
    bool multiline() const { return m_multiline; }

    // A character replaces the selection; '\r' makes a line end in a multi-line field.
    EditResult type(char32_t character);
    EditResult paste(std::string_view text);
    EditResult removeSelection();
    // Backspace, Delete, arrows, Home, End, with Shift and Ctrl.
    EditResult press(const KeyEvent& event);

private:
    EditResult replaceSelection(std::string_view text);
    EditResult erase(bool forward);
    void moveCaret(std::size_t to, bool extend);
    std::size_t before(std::size_t offset) const;
    std::size_t behind(std::size_t offset) const;
    std::size_t lineStart(std::size_t offset) const;
    std::size_t lineEnd(std::size_t offset) const;
    std::size_t lineAway(std::size_t offset, bool down) const;

    Text m_text;
    std::size_t m_anchor = 0;
    std::size_t m_caret = 0;
    bool m_multiline;
};

}  // namespace lx
