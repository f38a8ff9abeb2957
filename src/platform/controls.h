// The controls of a dialog. They belong to their Dialog and live until it is destroyed, also after
// its window has closed (setters then only keep the state). Events speak of the user's acts alone:
// no setter fires one. A handler may close its own dialog.
#pragma once

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/canvas.h"
#include "platform/geometry.h"
#include "platform/keys.h"
#include "platform/text.h"

namespace lx {

enum class CursorShape { arrow, hand, upArrow, splitLeftRight, splitUpDown, text };
// Its name in that list, for programs that act as the user.
const char* cursorName(CursorShape shape);

class Control {
public:
    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    virtual int id() const = 0;
    virtual void setText(std::string_view text) = 0;
    virtual Text text() const = 0;
    // Disabling the control that has the focus moves the focus to the next enabled Tab stop.
    virtual void enable(bool on) = 0;
    virtual bool enabled() const = 0;
    virtual void show(bool on) = 0;
    // The control's own flag, whatever its page's state.
    virtual bool visible() const = 0;
    virtual void focus() = 0;
    virtual bool focused() const = 0;
    // Pixels in the client area of the dialog, or of the control that moveInto named.
    virtual void setArea(const Rect& area) = 0;
    virtual Rect area() const = 0;
    virtual void redraw() = 0;
    // Makes the control a child of another control of the same dialog or of one of its pages; null
    // gives it back to its own dialog. Its area is then in the client coordinates of the new
    // parent.
    virtual void moveInto(Control* parent) = 0;
    // The text is asked for each time the tooltip is to be shown.
    virtual void setTooltip(std::function<Text()> text) = 0;

    // Sees a key down before the control and before the dialog's own keys (Enter, Esc, Tab).
    std::function<KeyAnswer(const KeyEvent&)> onKey;
    // Fired when the focus leaves for another control by the user's act. Show a message box from
    // here by Dialog::post alone.
    std::function<void()> onBlur;
};

class Label : public Control {};
class GroupBox : public Control {};

class Button : public Control {
public:
    // Icon resource number drawn instead of the text (icon buttons) or shown (icon controls); 0 =
    // none.
    virtual void setIcon(int number) = 0;
    virtual int icon() const = 0;
    std::function<void()> onClick;
};

class CheckBox : public Control {
public:
    virtual void check(bool on) = 0;
    virtual bool checked() const = 0;
    // After the box has changed its state.
    std::function<void()> onClick;
};

class RadioButton : public Control {
public:
    // Checking one clears the others of its group.
    virtual void check(bool on) = 0;
    virtual bool checked() const = 0;
    // After the group has changed its state.
    std::function<void()> onClick;
};

// Selection in bytes, end behind the last one.
struct TextSelection {
    int begin = 0;
    int end = 0;
};

// Characters outside code page 1250 are refused with a beep, typed or pasted.
class Edit : public Control {
public:
    virtual void select(TextSelection selection) = 0;
    virtual TextSelection selection() const = 0;
    void selectAll() { select({0, static_cast<int>(text().size())}); }
    virtual bool readOnly() const = 0;
    // The user changed the text.
    std::function<void()> onChange;
};

struct ListRow {
    Text text;
    std::optional<Color> textColor;  // none = the list's normal colours
    std::optional<Color> selectedBackground;
    int indent = 4;  // pixels from the left edge to the text
    int icon = 0;    // resource number of a 12 by 12 icon at (2, 2); 0 = none
    bool operator==(const ListRow&) const = default;
};

// Single selection. The list never sorts: the model does.
class ListBox : public Control {
public:
    // These rows instead of those that there are; none is selected.
    virtual void fill(std::vector<ListRow> rows) = 0;
    // index from 0 to count(); rows behind move down. The selection stays on its row.
    virtual void insert(int index, const ListRow& row) = 0;
    void append(const ListRow& row) { insert(count(), row); }
    virtual void set(int index, const ListRow& row) = 0;
    virtual void remove(int index) = 0;
    virtual int count() const = 0;
    virtual const ListRow& row(int index) const = 0;
    // -1 = none; a selected row is scrolled into view.
    virtual void select(int index) = 0;
    virtual int selected() const = 0;
    virtual void setRowHeight(int pixels) = 0;
    // Row under a point of the list's client area, or -1.
    virtual int rowAt(Point p) const = 0;

    std::function<void()> onSelect;
    std::function<void()> onDoubleClick;
    // Right click, or the menu key or Shift+F10 (then at the selected row), in the list's client
    // coordinates.
    std::function<void(Point)> onContext;
};

// A drop-down list (text() is the selected item's) or an editable combo (text() is the field's).
class ComboBox : public Control {
public:
    virtual void clear() = 0;
    // Returns the item's index (a sorted box chooses it).
    virtual int add(std::string_view item) = 0;
    virtual void remove(int index) = 0;
    virtual int count() const = 0;
    virtual Text item(int index) const = 0;
    // -1 = none. An editable combo shows the item in its field.
    virtual void select(int index) = 0;
    virtual int selected() const = 0;
    virtual bool droppedDown() const = 0;
    // The list of an editable combo opens on the item that the field shows, and completes nothing.
    virtual void dropDown(bool open) = 0;
    // Editable combos: the field's selection.
    virtual void selectAllText() = 0;

    std::function<void()> onSelect;
    // Editable combos: the user changed the field.
    std::function<void()> onChange;
};

struct ListColumn {
    Text heading;
    int width = 0;  // pixels
};

enum class HeadingArrow { none, ascending, descending };
// Resource numbers of the icons that show them.
inline constexpr int ascendingIcon = 2014;
inline constexpr int descendingIcon = 2015;

// A report list of any number of rows; texts are asked for as rows are shown.
class ListView : public Control {
public:
    virtual void setColumns(const std::vector<ListColumn>& columns) = 0;
    virtual int columnCount() const = 0;
    virtual Text heading(int column) const = 0;
    virtual int columnWidth(int column) const = 0;
    // Columns in display order; setting anything but a permutation keeps the natural order.
    virtual std::vector<int> columnOrder() const = 0;
    virtual void setColumnOrder(const std::vector<int>& order) = 0;
    virtual void setHeadingArrow(int column, HeadingArrow arrow) = 0;
    virtual HeadingArrow headingArrow(int column) const = 0;

    // Clears the selection when the number changes.
    virtual void setRowCount(int count) = 0;
    virtual int rowCount() const = 0;
    virtual std::vector<int> selectedRows() const = 0;
    virtual void selectRows(const std::vector<int>& rows) = 0;
    // Selects this row alone and scrolls it into view; -1 = none.
    virtual void select(int row) = 0;
    virtual int rowAt(Point p) const = 0;

    std::function<Text(int row, int column)> cell;
    std::function<void()> onSelect;
    // Also on the empty ground, where the first click has taken the selection away.
    std::function<void()> onDoubleClick;
    std::function<void(int column)> onHeading;
    std::function<void(Point)> onContext;
};

class TabControl : public Control {
public:
    virtual void addTab(std::string_view title) = 0;
    virtual int count() const = 0;
    virtual Text tabTitle(int index) const = 0;
    virtual void select(int index) = 0;
    virtual int selected() const = 0;
    // The area for a page, in the dialog's client coordinates.
    virtual Rect displayArea() const = 0;
    std::function<void()> onSelect;
};

// What a program that acts as the user may know of a picture: a named rectangle.
struct PictureRegion {
    Text name;  // such as "layer 2" or "width"; ASCII
    Rect area;  // right and bottom included
};

// A control painted by the program, off screen and without flicker.
class Picture : public Control {
public:
    virtual Size size() const = 0;  // client area
    // Shown while the mouse is over the picture.
    virtual void setCursor(CursorShape shape) = 0;
    virtual CursorShape cursor() const = 0;

    std::function<void(Canvas&)> onPaint;
    std::function<void(Point, bool leftDown)> onMouseMove;
    std::function<void(Point)> onLeftDown;
    std::function<void(Point)> onLeftUp;
    std::function<void(Point)> onRightDown;
    // The menu key or Shift+F10.
    std::function<void()> onContext;
    // Asked for when a paint that was due has happened.
    std::function<std::vector<PictureRegion>()> regions;
};

}  // namespace lx
