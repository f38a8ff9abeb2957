#pragma once

#include <vector>

#include "platform/headless/edit_field.h"
#include "platform/headless/headless_control.h"

namespace lx {

class HeadlessComboBox final : public HeadlessBase<ComboBox> {
public:
    HeadlessComboBox(HeadlessDialog& dialog, const ControlTemplate& layout);
    void setText(std::string_view text) override;
    Text text() const override;
    void clear() override;
    int add(std::string_view item) override;
    void remove(int index) override;
    int count() const override { return static_cast<int>(m_items.size()); }
    Text item(int index) const override;
    void select(int index) override;
    int selected() const override;
    bool droppedDown() const override { return m_open; }
    void dropDown(bool open) override;
    void selectAllText() override { m_field.selectAll(); }

    bool editable() const { return kind() == ControlKind::editableCombo; }
    TextSelection textSelection() const { return m_field.selection(); }
    // Opens the list, unless it is open, and picks the item; the list closes.
    void userSelect(int index);
    void userDropDown(bool open);
    // By way of the dialog's keys; the combo takes the focus first.
    void userType(char32_t character);

    void draw(SvgArea& area) const override;
    void drawOpenList(std::string& out) const override;

protected:
    bool keyDown(const KeyEvent& event) override;
    bool character(char32_t character) override;
    void enteredByKey() override { m_field.selectAll(); }
    void focusLost() override { m_open = false; }
    void areaChanged() override;
    bool wantsKey(const KeyEvent& event) const override;
    bool wantsCharacters() const override { return true; }

private:
    bool report(EditResult result);
    bool openOrClose(const KeyEvent& event);
    void pick(int index);
    void choose(int index);

    std::vector<Text> m_items;
    int m_selected = -1;
    int m_selectedAtOpening = -1;
    bool m_open = false;
    EditField m_field{false};
};

}  // namespace lx
