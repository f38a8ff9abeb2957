#pragma once

#include "platform/headless/edit_field.h"
#include "platform/headless/headless_control.h"

namespace lx {

class HeadlessEdit final : public HeadlessBase<Edit> {
public:
    HeadlessEdit(HeadlessDialog& dialog, const ControlTemplate& layout);
    void setText(std::string_view text) override { m_field.setText(text); }
    Text text() const override { return m_field.text(); }
    void select(TextSelection selection) override { m_field.select(selection); }
    TextSelection selection() const override { return m_field.selection(); }
    bool readOnly() const override { return m_readOnly; }

    // By way of the dialog's keys; the edit takes the focus first.
    void userType(char32_t character);
    // The context menu's Paste of UTF-8 text; what code page 1250 lacks is left out with a beep.
    void userPaste(std::string_view utf8);

    void draw(SvgArea& area) const override;

protected:
    bool keyDown(const KeyEvent& event) override;
    bool character(char32_t character) override;
    void enteredByKey() override {
        if (!m_field.multiline()) m_field.selectAll();
    }
    bool wantsKey(const KeyEvent& event) const override;
    bool wantsCharacters() const override { return true; }

private:
    bool report(EditResult result);
    bool clipboardKey(const KeyEvent& event);

    EditField m_field;
    bool m_readOnly;
};

}  // namespace lx
