// A control kept in memory with the state that a real one keeps, and the acts of a user upon it. An
// act that a user could not do (the control is disabled, hidden or behind another dialog, the row
// does not exist) throws std::logic_error and changes nothing. After each act posted actions and
// paints run out. An act that opens a dialog, a message box or a popup menu returns when that has
// closed.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/controls.h"
#include "platform/focus_order.h"

namespace lx {

class HeadlessDialog;
class HeadlessPlatform;
class SvgArea;

// Calls a handler, if there is one, through a copy: it may be replaced, or its dialog closed,
// meanwhile. Answers the handler's answer, or a default one.
template <class Result, class... Parameters, class... Arguments>
Result callCopy(const std::function<Result(Parameters...)>& handler, Arguments&&... arguments) {
    const std::function<Result(Parameters...)> copy = handler;
    if (!copy) return Result();
    return copy(std::forward<Arguments>(arguments)...);
}

// Asks for the context menu.
bool isContextKey(const KeyEvent& event);

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

    // What the control looks like now, in its own coordinates; the open list stands in those of the
    // top-level dialog.
    virtual void draw(SvgArea& area) const = 0;
    virtual void drawOpenList(std::string&) const {}

    // A click into the control, or Tab up to it: the focus moves there.
    void userFocus();

protected:
    friend class HeadlessDialog;

    HeadlessPlatform& platform() const;
    // Of its text: grey while it cannot be used.
    Color ink() const;
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

}  // namespace lx
