// Edit fields, and the rule about the characters they take.
#pragma once

#include <optional>

#include "platform/windows/control_core.h"

namespace lx {

// What becomes of a message on its way to an edit window: characters and pasted texts that code
// page 1250 lacks are refused with a beep. A value means that the message has been dealt with.
std::optional<LRESULT> filterCharacters(HWND edit, UINT message, WPARAM wParam);

class WindowsEdit final : public WindowsControl<Edit> {
public:
    WindowsEdit(WindowsDialog& dialog, const ControlTemplate& layout);
    void select(TextSelection selection) override;
    TextSelection selection() const override;
    bool readOnly() const override { return m_readOnly; }
    bool wantsKey(int key) const override;
    void enteredByTab() override { send(EM_SETSEL, 0, -1); }

protected:
    WindowClass windowClass() const override;
    void attached() override;
    void keepState() override { m_selection = selection(); }
    void command(WORD code) override;
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    bool multiline() const { return kind() == ControlKind::multilineEdit; }

    TextSelection m_selection;
    bool m_readOnly;
};

}  // namespace lx
