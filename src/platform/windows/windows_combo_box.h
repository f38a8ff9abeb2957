// Drop-down lists and editable combo boxes.
#pragma once

#include "platform/windows/control_core.h"

namespace lx {

class WindowsComboBox final : public WindowsControl<ComboBox> {
public:
    using WindowsControl::WindowsControl;
    void setText(std::string_view text) override;
    void clear() override;
    int add(std::string_view item) override;
    void remove(int index) override;
    int count() const override;
    Text item(int index) const override;
    void select(int index) override;
    int selected() const override;
    bool droppedDown() const override { return send(CB_GETDROPPEDSTATE) != 0; }
    void dropDown(bool open) override;
    void selectAllText() override;
    bool wantsKey(int key) const override;
    void enteredByTab() override { selectAllText(); }

protected:
    WindowClass windowClass() const override;
    void attached() override;
    void areaChanged() override { growForList(); }
    void keepState() override;
    void command(WORD code) override;
    Text windowText() const override;

private:
    static LRESULT CALLBACK fieldProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK listProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool editable() const { return kind() == ControlKind::editableCombo; }
    void growForList();
    void userSelected();

    std::vector<Text> m_items;               // the order of the list
    int m_selected = -1;                     // as last told or set
    std::optional<int> m_selectedAtOpening;  // while the list is open
    bool m_choosing = false;
    HWND m_field = nullptr;
    WNDPROC m_fieldInherited = nullptr;
    WNDPROC m_listInherited = nullptr;  // of an editable combo's list
};

}  // namespace lx
