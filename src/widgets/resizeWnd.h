// Makes a dialog resizable: its controls follow their rules, dividers can be dragged, it does not
// become smaller than it began, and where it stood is remembered.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "settings/ini_store.h"
#include "widgets/resize_rules.h"

namespace lx {

// Controls are told apart by their ids, which must be their own.
class resizeWnd {
public:
    // Both must outlive the object, which must outlive the dialog's modal loop.
    resizeWnd(Platform& platform, Dialog& dialog);
    resizeWnd(const resizeWnd&) = delete;
    resizeWnd& operator=(const resizeWnd&) = delete;

    // With the control's place and size of now. replace: its earlier registrations go.
    void addControl(const Control& control, int rule, bool replace = false);
    // A divider at that side of the first control. Nothing when either is missing.
    void addDivider(const Control* control, Side side, const Control* partner);
    // Another minimum size; a negative number leaves the one there is.
    void setSize(const Control& control, int width, int height);

    // Once the dialog's controls exist. The dialog's size is the smallest from now on, and its size
    // and mouse events are this object's.
    void initialise();

    // The text key that stands for a key given as a number.
    static Text keyOf(int number);
    // Nothing before initialise.
    void savePlacement(ini_store& store, std::string_view key) const;
    // A list that is missing or does not fit this screen leaves the dialog as it is.
    void restorePlacement(ini_store& store, std::string_view key);

private:
    void move(const ControlMoves& moves);
    bool onLeftDown(Point p);
    bool onMouseMove(Point p);
    bool onLeftUp(Point p);
    std::optional<CursorShape> cursorOver(Point p) const;

    Platform& m_platform;
    Dialog& m_dialog;
    ResizeRules m_rules;
    Size m_minimum;
    WindowPlacement m_initial;
};

}  // namespace lx
