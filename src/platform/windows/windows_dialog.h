// A dialog or page as a real window: its controls, modal loop, keys, focus, placement and menus.
#pragma once

#include <windows.h>

#include <deque>
#include <map>
#include <memory>
#include <span>
#include <vector>

#include "platform/dialog.h"
#include "platform/platform.h"
#include "platform/windows/control_core.h"
#include "platform/windows/icon_cache.h"
#include "platform/windows/menu_handle.h"

namespace lx {

class WindowsButton;
class WindowsPlatform;

class WindowsDialog final : public Dialog {
public:
    WindowsDialog(WindowsPlatform& platform, const DialogTemplate& layout, Owner owner);
    ~WindowsDialog() override;

    Control& item(int controlId) override;
    int runModal() override;
    void end(int result) override;
    bool running() const override { return m_running; }
    void setTitle(std::string_view title) override;
    Text title() const override { return m_title; }
    void setIcon(int number) override;
    Rect clientArea() const override;
    Rect windowArea() const override;
    void setWindowArea(const Rect& area) override;
    WindowPlacement placement() const override;
    void setPlacement(const WindowPlacement& placement) override;
    void setMinimumSize(Size size) override { m_minimumSize = size; }
    Rect toPixels(const UnitRect& units) const override;
    void setArea(const Rect& area) override;
    void show(bool on) override;
    bool visible() const override;
    Control* focusedControl() override;
    void focusFirst() override;
    void bringToFront() override;
    void setMenuBar(const Menu& menu) override;
    void enableMenu(int position, bool on) override;
    int popupMenu(const Menu& menu, Control& control, Point p,
                  const std::function<bool(int command)>& enabled) override;
    void startTimer(int timer, int milliseconds) override;
    void stopTimer(int timer) override;
    void post(std::function<void()> action) override;
    void captureMouse(bool on) override;
    void answerMessage(unsigned message, int value) override { m_answers[message] = value; }

    // ---- for the controls and the platform
    HWND window() const { return m_window; }
    HFONT font() const { return m_font; }
    // Of the dialog's font, in pixels.
    int textHeight() const;
    WindowsPlatform& platform() const { return m_platform; }
    const Owner& owner() const { return m_owner; }
    bool isPage() const { return m_style == DialogStyle::page; }
    // The top-level dialog of a page; any other dialog itself.
    WindowsDialog& root();
    DrawingTools drawingTools() const;
    IconCache& icons();
    // From when the dialog is shown until it ends; what other programs send before or behind that
    // is no act of the user and is refused.
    bool stands() const { return m_parent ? m_parent->stands() : m_running && m_shown; }
    // The window could be seen: its own flag and, for a page, the dialog's.
    bool reachable() const;
    const std::vector<std::unique_ptr<ControlCore>>& controls() const { return m_controls; }
    const std::vector<WindowsDialog*>& pages() const { return m_pages; }
    // Every control of this dialog and its pages, in Tab order.
    std::vector<ControlCore*> allControls() const;
    FocusOrderOf<ControlCore> focusOrder() const { return {*this, allControls()}; }
    // The control whose window this is; null for other windows.
    ControlCore* controlOf(HWND window) const;
    // Messages that a control sent to its parent, whichever window that is. True = handled.
    bool reflect(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    // An exception got as far as the system: the modal dialog ends with -1.
    void failed();
    void addTooltip(ControlCore& control);

    // ---- focus, kept by the top-level dialog
    // A control's window has got the focus.
    void focusArrived(ControlCore& control);
    // Moves the focus without telling anybody; null = to no control.
    void moveFocusQuietly(ControlCore* control);
    ControlCore* focusCore() const { return m_focus; }

private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    // ---- making and ending the window (windows_dialog.cpp)
    void make(const DialogTemplate& layout, const Owner& owner);
    void takeBack();
    void createWindow(const DialogTemplate& layout, HWND parent);
    void blendIntoTabs();
    void createControls(std::span<const ControlTemplate> controls);
    void firstShow();
    void closeWindow();
    void aboutToGo();
    void sendGuestsHome();
    void release();
    // An exception of the action ends the modal dialog and goes no further.
    template <class Action>
    void runGuarded(const Action& action) {
        try {
            action();
        } catch (...) {
            failed();
        }
    }

    // ---- place and state of the window (dialog_placement.cpp)
    void centre();

    // ---- the modal loop and its keys (dialog_loop.cpp)
    void loop();
    void runPosted();
    void dispatch(MSG& message);
    // What a message asks for: it is used up, to be handled as the control likes, or as the
    // system's dialogs do.
    enum class Course { done, toControl, usual };
    Course courseOf(const MSG& message);
    KeyAnswer seenByHandlers(const KeyEvent& event);
    bool dialogKey(const KeyEvent& event);
    void openContextMenu();
    bool perform(const FocusStep<ControlCore*>& step);
    void focusByUser(ControlCore* control);
    void showDefaultButton();
    WindowsButton* defaultButton() const;

    // ---- messages of the window (dialog_messages.cpp)
    bool handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    void handleCommand(int command);
    bool handleMouse(UINT message, LPARAM lParam);
    bool handleNotify(NMHDR& header, LRESULT& result);
    bool handleState(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    void sizeChanged();
    bool activated();
    CursorShape cursorOver(const char* point) const;
    Text describeSelf(DescribeQuestion question, const DescribeRequest& request);
    CursorShape cursorAt(Point p) const;
    bool showCursor();

    WindowsPlatform& m_platform;
    Text m_name;
    Text m_title;
    DialogStyle m_style;
    Owner m_owner;
    WindowsDialog* m_parent = nullptr;  // of a page
    HWND m_window = nullptr;
    HFONT m_font = nullptr;
    HWND m_tooltip = nullptr;
    std::wstring m_tooltipText;
    std::vector<std::unique_ptr<ControlCore>> m_controls;
    std::vector<WindowsDialog*> m_pages;
    std::unique_ptr<IconCache> m_icons;
    MenuHandle m_menu;
    int m_icon = 0;

    bool m_running = false;
    bool m_ready = false;   // controls are there, messages mean something
    bool m_shown = false;   // top-level: has been shown to the user
    bool m_placed = false;  // somebody chose the place
    bool m_pageVisible = false;
    bool m_closed = false;
    bool m_swallowCharacter = false;
    int m_result = -1;
    ShowState m_showState = ShowState::normal;
    Size m_minimumSize;
    Size m_clientSize;
    Rect m_windowArea;  // kept when the window is gone
    WindowPlacement m_placement;
    Rect m_unitScale;  // pixels of 400 by 800 dialog units
    bool m_capturing = false;
    std::map<UINT, int> m_answers;
    std::deque<std::function<void()>> m_posted;

    ControlCore* m_focus = nullptr;
    WindowsButton* m_defaultShown = nullptr;
    int m_quietFocus = 0;
};

}  // namespace lx
