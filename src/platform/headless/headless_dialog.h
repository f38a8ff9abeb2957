// A dialog kept in memory: controls, pages, focus, keys, window placement, menus, timers. What
// headless_control.h says of a user's acts holds here as well.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/headless/headless_control.h"
#include "platform/platform.h"

namespace lx {

struct HeadlessMenuEntry {
    Text text;        // with its "&"; empty = separator
    int command = 0;  // 0 for an entry that opens its items
    bool enabled = true;
    std::vector<HeadlessMenuEntry> items;
};

class HeadlessButton;

class HeadlessDialog final : public Dialog {
public:
    HeadlessDialog(HeadlessPlatform& platform, const DialogTemplate& layout, Owner owner);
    ~HeadlessDialog() override;

    Control& item(int controlId) override;
    int runModal() override;
    void end(int result) override;
    bool running() const override { return m_running; }
    void setTitle(std::string_view title) override { m_title = title; }
    Text title() const override { return m_title; }
    void setIcon(int number) override { m_icon = number; }
    Rect clientArea() const override;
    Rect windowArea() const override;
    void setWindowArea(const Rect& area) override;
    WindowPlacement placement() const override { return m_placement; }
    void setPlacement(const WindowPlacement& placement) override;
    void setMinimumSize(Size size) override { m_minimumSize = size; }
    Rect toPixels(const UnitRect& units) const override;
    void setArea(const Rect& area) override;
    void show(bool on) override;
    bool visible() const override { return m_visible; }
    Control* focusedControl() override;
    void focusFirst() override;
    void bringToFront() override {}
    void setMenuBar(const Menu& menu) override;
    void enableMenu(int position, bool on) override;
    int popupMenu(const Menu& menu, Control& control, Point p,
                  const std::function<bool(int command)>& enabled) override;
    void startTimer(int timer, int milliseconds) override;
    void stopTimer(int timer) override;
    void post(std::function<void()> action) override;
    void captureMouse(bool on) override { m_captured = on; }
    void answerMessage(unsigned, int) override {}

    // ---- what there is
    HeadlessPlatform& platform() const { return m_platform; }
    // The template's name.
    const std::string& name() const { return m_name; }
    bool isPage() const { return m_style == DialogStyle::page; }
    // The top-level dialog of a page; any other dialog itself.
    HeadlessDialog& root();
    const HeadlessDialog& root() const { return const_cast<HeadlessDialog*>(this)->root(); }
    // Own controls in Tab order.
    const std::vector<std::unique_ptr<HeadlessControl>>& controls() const { return m_controls; }
    // In the order in which they were made, hidden ones too.
    const std::vector<HeadlessDialog*>& pages() const { return m_pages; }
    // Own controls and those of the pages, in Tab order.
    std::vector<HeadlessControl*> allControls() const;
    FocusOrderOf<HeadlessControl> focusOrder() const { return {*this, allControls()}; }
    HeadlessControl* focusedItem() const { return m_focus; }
    // The button that Enter presses now, whether or not it is enabled; null when there is none.
    HeadlessButton* defaultButton() const;
    int icon() const { return m_icon; }
    const std::vector<HeadlessMenuEntry>& menuBar() const { return m_menu; }
    // What stands under the mouse over the dialog's own client area.
    CursorShape cursorAt(Point p) const;
    Text describe(std::string_view topic) const { return onDescribe ? onDescribe(topic) : Text(); }
    // Shown, together with the dialog that it is a page of; of a top-level dialog always true.
    bool flagsShown() const;
    // Window less client area.
    Size frameSize() const;
    // Where the client area stands in that of the top-level dialog.
    Point originInRoot() const;

    // ---- acts
    // A key and the character that it types (Unicode, 0 = none), into the focused control.
    void userKey(const KeyEvent& event, char32_t typed = 0);
    // The key that types the character; '\r', '\n', '\t' and '\b' are Enter, Tab and Backspace.
    void userType(char32_t character);
    // The window's cross.
    void userClose();
    void userMenu(int command);
    void userMouseMove(Point p, bool leftDown);
    void userLeftDown(Point p);
    void userLeftUp(Point p);
    // Another program takes the mouse away while it is captured.
    void userLoseCapture();
    // The outer size, as by dragging a corner; not below the minimum size.
    void userResize(Size outer);
    void userMove(Point topLeft);
    void userShowState(ShowState state);

private:
    friend class HeadlessControl;
    friend class HeadlessPlatform;

    struct Timer {
        int id = 0;
        int period = 0;
        long long due = 0;
    };

    void checkOnTop(const char* act) const;
    void settle() const;
    void makeControl(const ControlTemplate& layout);
    // Takes controls out of those of a dialog that goes away.
    void sendGuestsHome(const HeadlessDialog& gone);
    void centre();
    void closeWindow();
    void loseCapture();

    // Focus. The user's way fires onBlur, the program's does not.
    void moveFocusByUser(HeadlessControl* control, bool byKey);
    void moveFocusByProgram(HeadlessControl* control);
    void leaveFocusIfLost();

    // True = used.
    void handleKey(const KeyEvent& event, char32_t typed);
    bool dialogKey(const KeyEvent& event);
    bool mnemonicKey(const KeyEvent& event, char32_t typed);
    bool perform(const FocusStep<HeadlessControl*>& step);

    HeadlessControl* controlAt(Point p) const;

    HeadlessPlatform& m_platform;
    HeadlessDialog* m_owner;
    std::string m_name;
    DialogStyle m_style;
    Text m_title;
    int m_icon = 0;
    std::vector<std::unique_ptr<HeadlessControl>> m_controls;
    std::vector<HeadlessDialog*> m_pages;
    HeadlessControl* m_focus = nullptr;
    bool m_running = false;
    bool m_closed = false;
    bool m_visible = false;
    int m_result = -1;
    WindowPlacement m_placement;
    bool m_placed = false;  // somebody chose the place
    Rect m_pageArea;
    Size m_minimumSize;
    std::vector<HeadlessMenuEntry> m_menu;
    std::vector<Timer> m_timers;
    bool m_captured = false;
};

}  // namespace lx
