// A dialog made from a template: its controls by id, its modal loop, its window.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "platform/controls.h"
#include "platform/dialog_template.h"

namespace lx {

// Ids that every dialog shares.
namespace id {
inline constexpr int ok = 1;
inline constexpr int cancel = 2;
inline constexpr int help = 9;
}  // namespace id

enum class ShowState { normal, minimized, maximized };

// Screen pixels; the rectangle is the one of the normal state.
struct WindowPlacement {
    Rect normal;
    ShowState state = ShowState::normal;
};

// The window is made, hidden, with the object. Keys of a dialog: Enter presses the default button
// (the focused one, if it is a button) when that is enabled; Esc and the cross press the button
// id::cancel, or end the dialog with id::cancel when it has none. A button id::ok or id::cancel
// without a handler ends the dialog with its id.
class Dialog {
public:
    Dialog() = default;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    virtual ~Dialog() = default;

    // The control of that id, which the template must hold with that kind.
    template <class C>
    C& get(int controlId) {
        return dynamic_cast<C&>(item(controlId));
    }
    virtual Control& item(int controlId) = 0;

    // Runs onInit, shows the window (unless onInit ended it) and blocks until end(). The owner is
    // disabled meanwhile. Returns the result given to end, -1 when the window could not be made.
    virtual int runModal() = 0;
    virtual void end(int result) = 0;
    // True between the start of runModal and end.
    virtual bool running() const = 0;

    virtual void setTitle(std::string_view title) = 0;
    virtual Text title() const = 0;
    // Icon resource number for the caption, small and large.
    virtual void setIcon(int number) = 0;

    virtual Rect clientArea() const = 0;  // left and top are 0
    virtual Rect windowArea() const = 0;  // screen pixels
    virtual void setWindowArea(const Rect& area) = 0;
    virtual WindowPlacement placement() const = 0;
    virtual void setPlacement(const WindowPlacement& placement) = 0;
    // Smallest outer size that the user can make.
    virtual void setMinimumSize(Size size) = 0;
    virtual Rect toPixels(const UnitRect& units) const = 0;
    // Pages: placed and shown by the dialog that they belong to, in its client coordinates.
    virtual void setArea(const Rect& area) = 0;
    virtual void show(bool on) = 0;
    virtual bool visible() const = 0;
    // The control of this dialog or of one of its pages that has the focus, or null.
    virtual Control* focusedControl() = 0;
    // The first enabled, visible Tab stop of this dialog or page takes the focus.
    virtual void focusFirst() = 0;
    virtual void bringToFront() = 0;

    virtual void setMenuBar(const Menu& menu) = 0;
    // Greys out a top entry of the menu bar.
    virtual void enableMenu(int position, bool on) = 0;
    // Shows a popup menu at a point of that control's client area and returns the chosen command, 0
    // when none. Commands for which enabled answers false are greyed out.
    virtual int popupMenu(const Menu& menu, Control& control, Point p,
                          const std::function<bool(int command)>& enabled) = 0;

    virtual void startTimer(int timer, int milliseconds) = 0;
    virtual void stopTimer(int timer) = 0;
    // Runs the action once the current event has been handled. Dropped when the dialog closes
    // first.
    virtual void post(std::function<void()> action) = 0;
    // Mouse messages of the dialog's own client area go to its handlers until released or lost.
    virtual void captureMouse(bool on) = 0;
    // The window answers this private message with that value and does nothing else.
    virtual void answerMessage(unsigned message, int value) = 0;

    // Before the window is shown; may end the dialog.
    std::function<void()> onInit;
    // Sees every key down of the dialog and its pages before the focused control's onKey.
    std::function<KeyAnswer(const KeyEvent&)> onKey;
    std::function<void(int timer)> onTimer;
    std::function<void(int command)> onCommand;
    std::function<void(Size client)> onSize;
    // The dialog's own client area. True = handled.
    std::function<bool(Point)> onLeftDown;
    std::function<bool(Point)> onLeftUp;
    std::function<bool(Point)> onMouseMove;
    std::function<void()> onCaptureLost;
    // Which cursor stands over that point; none = the arrow.
    std::function<std::optional<CursorShape>(Point)> onCursor;
    // Once, when the window is about to be destroyed and its controls still answer.
    std::function<void()> onDestroy;
    // Answers a program that asks for "design" and the like with text, one item a line; ASCII
    // topics.
    std::function<Text(std::string_view topic)> onDescribe;
};

}  // namespace lx
