// A program that acts as the user: on the headless platform's objects or on real windows by their
// handles and messages. Texts in and out are UTF-8. Dialogs and controls are named as a user sees
// them.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lx::host {

// What the user tried is not possible (no such control, a disabled button, no dialog within the
// limit), with what was looked for and what was there instead.
class DriverError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct ScreenPoint {
    int x = 0;
    int y = 0;
};
struct ScreenSize {
    int width = 0;
    int height = 0;
};
// right and bottom not included.
struct ScreenArea {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

struct RowLook {
    std::string text;
    std::string textColor;   // "233,17,12", or "" for the list's normal colour
    std::string background;  // while selected; "" for the normal one
    int icon = 0;
};

struct MessageBoxLook {
    std::string text;
    std::string caption;
    std::string icon;                  // "stop", "question", "warning", "information" or "none"
    std::vector<std::string> buttons;  // "OK", "Cancel", "Yes", "No"
};

// How a control is named, tried in this order: "#17" its id; its own text without "&" (buttons and
// boxes; pictures and lists may have a name that is not to be seen, such as "section"; labels' own
// text is not a match); the label before it in Tab order, with or without ":" (edits, lists,
// boxes); its tooltip; the title of a group box. Visible controls of the top dialog and of its
// shown page come before hidden ones.
using ControlName = std::string_view;

class Driver {
public:
    Driver() = default;
    Driver(const Driver&) = delete;
    Driver& operator=(const Driver&) = delete;
    virtual ~Driver() = default;

    // ---- the top dialog or message box
    // Waits (up to limit()) until the top dialog has that title.
    virtual void expectDialog(std::string_view title) = 0;
    virtual bool anyDialogOpen() = 0;
    virtual std::string title() = 0;
    // The message box on top; throws when there is none within the limit.
    virtual MessageBoxLook messageBox() = 0;
    virtual bool messageBoxOpen() = 0;
    // "OK", "Cancel", "Yes" or "No".
    virtual void answer(std::string_view button) = 0;
    // The window's cross.
    virtual void closeDialog() = 0;

    // ---- acts
    virtual void press(ControlName button) = 0;  // a click; throws when disabled or hidden
    virtual void check(ControlName box,
                       bool on) = 0;  // clicks when the state differs; radio: on only
    virtual void selectRow(ControlName list,
                           std::string_view row) = 0;  // list box, combo, list view, tab
    virtual void selectRowAt(ControlName list, int row) = 0;
    // Adds the row to a multiple selection (Ctrl and click).
    virtual void addRowAt(ControlName list, int row) = 0;
    virtual void doubleClickRow(ControlName list, int row) = 0;
    // Below the rows of a list with headings.
    virtual void doubleClickGround(ControlName list) = 0;
    virtual void rightClickRow(ControlName list, int row) = 0;
    // As by the wheel, until the row is seen; what is selected stays so.
    virtual void scrollToRow(ControlName list, int row) = 0;
    virtual void clickHeading(ControlName list, std::string_view heading) = 0;
    virtual void setColumnWidth(ControlName list, int column, int pixels) = 0;  // as if dragged
    virtual void setColumnOrder(ControlName list,
                                const std::vector<int>& order) = 0;  // as if dragged
    virtual void selectTab(std::string_view title) = 0;
    virtual void focus(ControlName control) = 0;   // as by a click into it or by Tab
    virtual void type(std::string_view text) = 0;  // characters into the focused control
    // One key for the focused control: "Enter", "Tab", "Shift+Tab", "Esc", "Delete", "Backspace",
    // "Ctrl+A", "Ctrl+C", "Home", "Left", "F10", "Shift+F10", "Menu", "Space", "Alt+N", ...
    virtual void key(std::string_view name) = 0;
    virtual void chooseMenu(std::string_view path) = 0;  // menu bar, "Nový/Typ"
    virtual void choosePopup(
        std::string_view path) = 0;  // the popup menu that is open or opens next
    virtual void closePopup() = 0;
    // The picture's client coordinates; "" names the dialog's own client area (a divider).
    virtual void mouseMove(ControlName picture, ScreenPoint p, bool leftDown) = 0;
    virtual void mouseDown(ControlName picture, ScreenPoint p) = 0;
    virtual void mouseUp(ControlName picture, ScreenPoint p) = 0;
    virtual void rightClick(ControlName picture, ScreenPoint p) = 0;
    // Middle of the named region of a picture, in its client coordinates.
    virtual ScreenPoint regionPoint(ControlName picture, std::string_view region) = 0;
    virtual std::vector<std::string> regions(
        ControlName picture) = 0;  // "name left top right bottom"
    virtual void resizeDialog(ScreenSize outer) = 0;
    virtual void moveDialog(ScreenPoint topLeft) = 0;
    virtual void setDialogState(std::string_view state) = 0;  // "normal", "maximized", "minimized"
    // The dialog in front and all in it paint themselves anew.
    virtual void repaint() = 0;
    // Lets the dialog's timers run for that long (headless: on its virtual clock).
    virtual void wait(int milliseconds) = 0;

    // ---- what can be read
    virtual std::string text(ControlName control) = 0;
    virtual bool exists(ControlName control) = 0;
    virtual bool enabled(ControlName control) = 0;
    virtual bool visible(ControlName control) = 0;
    virtual bool checked(ControlName box) = 0;
    // Pixels of the top dialog's client area, edges included; a drop-down's without its list.
    virtual ScreenArea area(ControlName control) = 0;
    virtual int rowCount(ControlName list) = 0;
    virtual RowLook row(ControlName list, int row) = 0;  // list view: cells joined by " | "
    virtual std::vector<int> selectedRows(ControlName list) = 0;
    virtual std::string selectedTab() = 0;
    virtual std::string focusedControl() = 0;  // "#id" and what it is called, such as "#1 OK"
    virtual std::string defaultButton() = 0;   // its text; the one that Enter presses now
    virtual std::string editSelection(
        ControlName edit) = 0;  // "begin-end", or the selected characters' count 0
    virtual std::string tooltip(ControlName control) = 0;
    // "arrow", "hand", "upArrow", "splitLeftRight", "splitUpDown" or "text"; "" = where the mouse
    // was last moved to over the dialog itself.
    virtual std::string cursor(ControlName picture) = 0;
    virtual std::string clipboard() = 0;
    virtual std::vector<std::string> headings(
        ControlName list) = 0;  // index order, arrow as " ^" or " v"
    virtual std::vector<int> columnWidths(ControlName list) = 0;
    virtual std::vector<int> columnOrder(ControlName list) = 0;
    virtual std::vector<std::string>
    menu() = 0;  // entries as paths; a greyed one ends in " (grey)"
    virtual std::vector<std::string> popup() = 0;  // of the open popup menu
    virtual ScreenSize dialogSize() = 0;
    virtual std::string placement() = 0;  // "left top width height state"
    // The dialog's own answer to a topic ("design"), and a picture's drawing, one item a line; ""
    // where the platform cannot tell.
    virtual std::string describe(std::string_view topic) = 0;
    virtual std::string drawing(ControlName picture) = 0;
    // What every control of the top dialog looks like, one a line: for messages and for `print
    // dialog`.
    virtual std::string dump() = 0;
    // Takes a picture of the whole screen or dialog: PNG on real windows, SVG headless; the
    // extension is added.
    virtual std::string screenshot(const std::string& fileWithoutExtension) = 0;
    // Controls of the top dialog that overlap, stick out, or cut their text; one a line, empty when
    // all is well.
    virtual std::vector<std::string> layoutFaults() = 0;

    // ---- running
    // next is called whenever a modal dialog or message box waits for its user and the windows are
    // at rest; it performs acts, and answers false when it has nothing to do for now. An act that
    // opens another dialog returns only after that has closed; next is called again meanwhile.
    virtual void drive(std::function<bool(Driver&)> next) = 0;
    // Ends the top dialog, message box or popup as if cancelled, whatever state its buttons are in;
    // nothing when none is open. For giving up: next is called again for what stood under it.
    virtual void cancelTop() = 0;
    // When next has answered false and still nothing has closed the dialog after limit() (headless:
    // when no timer is left that could), the driver cancels every dialog and keeps here which ones
    // had nobody to act, one a line; empty when none. The next drive() clears it.
    virtual std::string abandoned() = 0;
    // Brings every next that still waits for something to its end. Call it before reading what next
    // writes, once the modal call has returned: on real windows next may be behind.
    virtual void settle() = 0;
    // Longest wait for anything, in milliseconds.
    virtual int limit() const = 0;
};

}  // namespace lx::host
