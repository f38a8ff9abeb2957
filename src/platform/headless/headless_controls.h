// Controls kept in memory with the state that real ones keep, and the acts of a user upon them. An
// act that a user could not do (the control is disabled, hidden or behind another dialog, the row
// does not exist) throws std::logic_error and changes nothing. After each act posted actions and
// paints run out. An act that opens a dialog, a message box or a popup menu returns when that has
// closed.
#pragma once

#include <memory>
#include <set>
#include <string>

#include "platform/controls.h"
#include "platform/focus_order.h"
#include "platform/headless/edit_field.h"
#include "platform/recording_canvas.h"

namespace lx {

class HeadlessDialog;
class HeadlessPlatform;

// Calls a handler, if there is one, through a copy: it may be replaced, or its dialog closed,
// meanwhile. Answers the handler's answer, or a default one.
template <class Result, class... Parameters, class... Arguments>
Result callCopy(const std::function<Result(Parameters...)>& handler, Arguments&&... arguments) {
    const std::function<Result(Parameters...)> copy = handler;
    if (!copy) return Result();
    return copy(std::forward<Arguments>(arguments)...);
}

// What every control keeps. Beside, not under, the interface Control, which each kind has through
// its own interface class.
class HeadlessControl {
public:
    HeadlessControl(HeadlessDialog& dialog, const ControlTemplate& layout);
    HeadlessControl(const HeadlessControl&) = delete;
    HeadlessControl& operator=(const HeadlessControl&) = delete;
    virtual ~HeadlessControl();

    virtual Control& control() = 0;
    const Control& control() const { return const_cast<HeadlessControl*>(this)->control(); }

    ControlKind kind() const { return m_kind; }
    // Bits of lx::style; hidden and disabled tell the state at the start only.
    unsigned style() const { return m_style; }
    int controlId() const { return m_id; }
    // The dialog or page that the control was made with.
    HeadlessDialog& dialog() const { return *m_dialog; }
    // The control it was moved into, or null.
    HeadlessControl* container() const { return m_container; }
    Text tooltip() const { return m_tooltip ? m_tooltip() : Text(); }

    // Really to be seen: its own flag and those of its container, page and dialog.
    bool shown() const;
    // The same, but whether or not the dialog itself is on the screen already.
    bool flagsShown() const;
    // Enabled together with its container.
    bool usable() const;
    // Where it stands, in the client coordinates of the top-level dialog.
    Rect areaInDialog() const;
    // Width of the sunken edge around the control's client area.
    int sunkenEdge() const { return (m_style & style::border) ? 2 : 0; }
    // Whether the keyboard can reach the kind of control at all.
    bool takesFocus() const;
    // Whether it could have the focus now.
    bool focusable() const;
    ControlFacts facts() const;
    // "push me" of "&push me", and the mnemonic's lower-case byte, 0 without one.
    Text plainText() const;
    unsigned char mnemonic() const;

    // A click into the control, or Tab up to it: the focus moves there.
    void userFocus();

protected:
    friend class HeadlessDialog;

    HeadlessPlatform& platform() const;
    // Throws unless a user could act on the control now.
    void checkReachable(const char* act) const;
    [[noreturn]] void refuse(const std::string& why) const;
    // The focus follows a click.
    void clickFocus();
    // Lets posted actions and paints run out.
    void settle() const;

    // A key that neither a handler nor the dialog has used. True = used.
    virtual bool keyDown(const KeyEvent&) { return false; }
    // The character of a key that nobody has used. True = used.
    virtual bool character(char32_t) { return false; }
    // Reached by Tab, a mnemonic or at the start.
    virtual void enteredByKey() {}
    virtual void focusLost() {}
    // What a mnemonic or the space bar does.
    virtual void press() {}
    // Enter or Esc that the control needs itself now, before the dialog's own keys.
    virtual bool wantsKey(const KeyEvent&) const { return false; }
    virtual bool wantsCharacters() const { return false; }
    virtual void areaChanged() {}

    // The interface Control, for the kinds' classes.
    void doEnable(bool on);
    void doShow(bool on);
    void doFocus();
    bool doFocused() const;
    void doMoveInto(Control* parent);

    HeadlessDialog* m_dialog;
    HeadlessControl* m_container = nullptr;
    ControlKind m_kind;
    int m_id;
    unsigned m_style;
    Text m_text;
    Rect m_area;
    bool m_enabled;
    bool m_visible;
    std::function<Text()> m_tooltip;
};

template <class Interface>
class HeadlessBase : public Interface, public HeadlessControl {
public:
    using HeadlessControl::HeadlessControl;

    Control& control() override { return *this; }
    int id() const override { return m_id; }
    void setText(std::string_view text) override { m_text = text; }
    Text text() const override { return m_text; }
    void enable(bool on) override { doEnable(on); }
    bool enabled() const override { return m_enabled; }
    void show(bool on) override { doShow(on); }
    bool visible() const override { return m_visible; }
    void focus() override { doFocus(); }
    bool focused() const override { return doFocused(); }
    void setArea(const Rect& area) override {
        m_area = area;
        areaChanged();
    }
    Rect area() const override { return m_area; }
    void redraw() override {}
    void moveInto(Control* parent) override { doMoveInto(parent); }
    void setTooltip(std::function<Text()> text) override { m_tooltip = std::move(text); }
};

using HeadlessLabel = HeadlessBase<Label>;
using HeadlessGroupBox = HeadlessBase<GroupBox>;

// Buttons, icon buttons and icons (which cannot be pressed).
class HeadlessButton final : public HeadlessBase<Button> {
public:
    using HeadlessBase::HeadlessBase;
    void setIcon(int number) override { m_icon = number; }
    int icon() const override { return m_icon; }
    void userClick();

protected:
    void press() override;

private:
    int m_icon = 0;
};

class HeadlessCheckBox final : public HeadlessBase<CheckBox> {
public:
    using HeadlessBase::HeadlessBase;
    void check(bool on) override { m_checked = on; }
    bool checked() const override { return m_checked; }
    void userClick();

protected:
    void press() override;

private:
    bool m_checked = false;
};

class HeadlessRadioButton final : public HeadlessBase<RadioButton> {
public:
    using HeadlessBase::HeadlessBase;
    void check(bool on) override;
    bool checked() const override { return m_checked; }
    void userClick();

protected:
    void press() override;

private:
    bool m_checked = false;
};

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

class HeadlessListBox final : public HeadlessBase<ListBox> {
public:
    using HeadlessBase::HeadlessBase;
    void fill(std::vector<ListRow> rows) override;
    void insert(int index, const ListRow& row) override;
    void set(int index, const ListRow& row) override;
    void remove(int index) override;
    int count() const override { return static_cast<int>(m_rows.size()); }
    const ListRow& row(int index) const override;
    void select(int index) override;
    int selected() const override { return m_selected; }
    void setRowHeight(int pixels) override;
    int rowAt(Point p) const override;

    int rowHeight() const { return m_rowHeight; }
    int firstShownRow() const { return m_top; }
    void userSelect(int row);
    void userDoubleClick(int row);
    // -1 = below the last row.
    void userRightClick(int row);
    void userScroll(int row);

protected:
    bool keyDown(const KeyEvent& event) override;
    bool character(char32_t character) override;
    bool wantsCharacters() const override { return true; }
    void areaChanged() override { scrollTo(m_selected); }

private:
    int shownRows() const;
    void scrollTo(int row);
    // Of a row that is scrolled out it lies outside.
    Point pointOf(int row) const;
    void choose(int row);
    void checkRow(int row) const;

    std::vector<ListRow> m_rows;
    int m_selected = -1;
    int m_top = 0;
    int m_rowHeight = 16;
};

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

class HeadlessListView final : public HeadlessBase<ListView> {
public:
    using HeadlessBase::HeadlessBase;
    void setColumns(const std::vector<ListColumn>& columns) override;
    int columnCount() const override { return static_cast<int>(m_columns.size()); }
    Text heading(int column) const override;
    int columnWidth(int column) const override;
    std::vector<int> columnOrder() const override { return m_order; }
    void setColumnOrder(const std::vector<int>& order) override;
    void setHeadingArrow(int column, HeadingArrow arrow) override;
    HeadingArrow headingArrow(int column) const override;
    void setRowCount(int count) override;
    int rowCount() const override { return m_count; }
    std::vector<int> selectedRows() const override { return {m_rows.begin(), m_rows.end()}; }
    void selectRows(const std::vector<int>& rows) override;
    void select(int row) override;
    int rowAt(Point p) const override;

    Text cellText(int row, int column) const { return cell ? cell(row, column) : Text(); }
    int firstShownRow() const { return m_top; }
    static constexpr int headerHeight = 20;
    static constexpr int rowHeight = 17;
    // ctrl adds or takes the row away, shift selects from the row clicked last.
    void userSelect(int row, bool ctrl = false, bool shift = false);
    // -1 = below the last row.
    void userDoubleClick(int row);
    void userRightClick(int row);
    void userScroll(int row);
    void userHeading(int column);
    void userSetColumnWidth(int column, int pixels);
    void userSetColumnOrder(const std::vector<int>& order);

protected:
    bool keyDown(const KeyEvent& event) override;
    bool wantsCharacters() const override { return true; }
    void areaChanged() override { scrollTo(m_caret); }

private:
    int shownRows() const;
    void scrollTo(int row);
    // Of a row that is scrolled out it lies outside.
    Point pointOf(int row) const;
    void checkRow(int row) const;
    bool hasColumn(int column) const { return column >= 0 && column < columnCount(); }
    void checkColumn(int column) const;
    bool isPermutation(const std::vector<int>& order) const;
    // The user's new selection; fires when it is another one.
    void choose(std::set<int> rows, int caret);
    std::set<int> span(int a, int b) const;

    std::vector<ListColumn> m_columns;
    std::vector<int> m_order;
    std::vector<HeadingArrow> m_arrows;
    int m_count = 0;
    std::set<int> m_rows;
    int m_caret = -1;
    int m_anchor = -1;
    int m_top = 0;
};

class HeadlessTabControl final : public HeadlessBase<TabControl> {
public:
    using HeadlessBase::HeadlessBase;
    void addTab(std::string_view title) override;
    int count() const override { return static_cast<int>(m_titles.size()); }
    Text tabTitle(int index) const override;
    void select(int index) override;
    int selected() const override { return m_selected; }
    Rect displayArea() const override;

    static constexpr int headerHeight = 21;
    // A click on a tab: the focus stays where it is, unless the tab is the selected one.
    void userSelect(int index);

protected:
    bool keyDown(const KeyEvent& event) override;

private:
    void choose(int index);

    std::vector<Text> m_titles;
    int m_selected = -1;
};

class HeadlessPicture final : public HeadlessBase<Picture> {
public:
    using HeadlessBase::HeadlessBase;
    Size size() const override;
    void setCursor(CursorShape shape) override { m_cursor = shape; }
    CursorShape cursor() const override { return m_cursor; }
    void redraw() override { m_dirty = true; }

    // The picture as last painted; null before.
    const RecordingCanvas* drawing() const { return m_drawing.get(); }
    // Points are pixels of the picture; under a control that stands in the picture there is none.
    void userMouseMove(Point p, bool leftDown);
    void userLeftDown(Point p);
    void userLeftUp(Point p);
    void userRightDown(Point p);

    // Paints when a paint is due and the picture is to be seen.
    void paintIfDue();

protected:
    bool keyDown(const KeyEvent& event) override;
    void areaChanged() override { m_dirty = true; }

private:
    void checkPoint(const char* act, Point p) const;
    void checkPress(Point p) const;
    // By a control that was moved into the picture.
    bool covered(Point p) const;

    CursorShape m_cursor = CursorShape::arrow;
    bool m_dirty = true;
    std::unique_ptr<RecordingCanvas> m_drawing;
};

}  // namespace lx
