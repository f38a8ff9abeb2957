// The window of one control: creation, the state that outlives it, the messages that all kinds
// share. Each kind adds its own behaviour in a class made of its interface and this core.
#pragma once

#include <windows.h>

#include <optional>
#include <utility>

#include "platform/controls.h"
#include "platform/focus_order.h"
#include "platform/windows/describe_message.h"

namespace lx {

class WindowsDialog;
class WindowsPlatform;

// Calls a handler through a copy, so that it may replace itself or close its dialog.
template <class... Parameters, class... Arguments>
void fire(const std::function<void(Parameters...)>& handler, Arguments&&... arguments) {
    const auto copy = handler;
    if (copy) copy(std::forward<Arguments>(arguments)...);
}

struct WindowClass {
    const wchar_t* name;
    DWORD style = 0;
    DWORD extendedStyle = 0;
};

class ControlCore {
public:
    ControlCore(WindowsDialog& dialog, const ControlTemplate& layout);
    ControlCore(const ControlCore&) = delete;
    ControlCore& operator=(const ControlCore&) = delete;
    virtual ~ControlCore();

    // Makes the window in the dialog's; without one the control keeps its state in memory only.
    void create(bool startsGroup);
    virtual Control& face() = 0;

    HWND window() const { return m_window; }
    WindowsDialog& dialog() const { return m_dialog; }
    ControlKind kind() const { return m_kind; }
    int number() const { return m_id; }
    // The control whose window this one's window is a child of now, or null.
    ControlCore* host() const { return m_host; }
    bool isEnabled() const;
    bool isVisible() const;
    // Visible with its page or picture: somebody can work with it.
    bool isReachable() const;
    // A stop for the Tab key when enabled and visible.
    bool wantsTabStop() const { return takesTab(m_kind, m_style); }
    ControlFacts facts() const;
    // Puts the control back into its own dialog's window.
    void goHome();
    // Remembers everything that must be answered after the window is gone, then lets it go.
    void release();
    Text tooltipText() const { return m_tooltip ? m_tooltip() : Text(); }

    // Called by the dialog for messages that the control sent to its parent.
    void commandArrived(WORD code);
    virtual std::optional<LRESULT> notified(const NMHDR&) { return std::nullopt; }
    virtual void drawItem(const DRAWITEMSTRUCT&) {}
    // Keys that the control needs for itself now, before Enter and Esc mean the dialog's buttons.
    virtual bool wantsKey(int) const { return false; }
    // Reached by Tab.
    virtual void enteredByTab() {}

protected:
    // While one lives, what the window reports is the module's doing, not the user's.
    class Setting {
    public:
        explicit Setting(ControlCore& control) : m_control(control) { ++m_control.m_settings; }
        Setting(const Setting&) = delete;
        Setting& operator=(const Setting&) = delete;
        ~Setting() { --m_control.m_settings; }

    private:
        ControlCore& m_control;
    };
    // Nothing that the window reports now is the user's doing.
    bool setting() const;
    // A click, a key or a menu in a dialog that does not stand.
    bool refuses(UINT message) const;

    WindowsPlatform& platform() const;
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return m_window ? SendMessageW(m_window, message, wParam, lParam) : 0;
    }
    unsigned style() const { return m_style; }
    bool hasStyle(unsigned bits) const { return (m_style & bits) != 0; }

    virtual WindowClass windowClass() const = 0;
    // The window has just been made.
    virtual void attached() {}
    // The window is about to go.
    virtual void keepState() {}
    virtual void areaChanged() {}
    virtual void command(WORD) {}
    virtual LRESULT message(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT inherited(UINT message, WPARAM wParam, LPARAM lParam) const;
    // The answer to a describing question, empty for those that the kind does not know.
    virtual Text describe(DescribeQuestion, const DescribeRequest&) { return {}; }
    virtual Text windowText() const;

    // The interface Control, for the kinds' classes.
    void doSetText(std::string_view text);
    Text doText() const;
    void doEnable(bool on);
    void doShow(bool on);
    void doFocus();
    bool doFocused() const;
    void doSetArea(const Rect& area);
    Rect doArea() const;
    void doRedraw() const;
    void doMoveInto(Control* parent);
    void doSetTooltip(std::function<Text()> text);

    Text m_text;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void attachTo(HWND parent);
    bool containsFocus() const;

    WindowsDialog& m_dialog;
    ControlKind m_kind;
    int m_id;
    unsigned m_style;
    Rect m_area;
    bool m_enabled;
    bool m_visible;
    HWND m_window = nullptr;
    WNDPROC m_inherited = nullptr;
    ControlCore* m_host = nullptr;
    int m_settings = 0;
    std::function<Text()> m_tooltip;
    bool m_tooltipAdded = false;
};

// Copies the answer into the request's buffer; the message's result is the whole answer's length.
LRESULT answerDescribe(const DescribeRequest& request, const Text& answer);

template <class Interface>
class WindowsControl : public Interface, public ControlCore {
public:
    using ControlCore::ControlCore;

    Control& face() override { return *this; }
    int id() const override { return number(); }
    void setText(std::string_view text) override { doSetText(text); }
    Text text() const override { return doText(); }
    void enable(bool on) override { doEnable(on); }
    bool enabled() const override { return isEnabled(); }
    void show(bool on) override { doShow(on); }
    bool visible() const override { return isVisible(); }
    void focus() override { doFocus(); }
    bool focused() const override { return doFocused(); }
    void setArea(const Rect& area) override { doSetArea(area); }
    Rect area() const override { return doArea(); }
    void redraw() override { doRedraw(); }
    void moveInto(Control* parent) override { doMoveInto(parent); }
    void setTooltip(std::function<Text()> text) override { doSetTooltip(std::move(text)); }
};

}  // namespace lx
