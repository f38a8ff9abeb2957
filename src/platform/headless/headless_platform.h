// A user interface without a screen: dialogs, message boxes and popup menus in memory, a virtual
// clock, and one place where the program that plays the user is asked for its next step.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/headless/headless_dialog.h"
#include "platform/platform.h"

namespace lx {

struct HeadlessMessageBox {
    Text message;
    Text caption;
    MessageIcon icon = MessageIcon::none;
    MessageButtons buttons = MessageButtons::ok;
    HeadlessDialog* owner = nullptr;

    bool has(MessageAnswer answer) const;
};

struct HeadlessPopup {
    std::vector<HeadlessMenuEntry> entries;
    HeadlessControl* control = nullptr;
    Point at;  // the control's client coordinates

    // Whether an enabled entry has that command.
    bool canChoose(int command) const;
};

class HeadlessPlatform final : public Platform {
public:
    std::unique_ptr<Dialog> createDialog(const DialogTemplate& layout, Owner owner) override;
    MessageAnswer messageBox(Owner owner, std::string_view message, std::string_view caption,
                             MessageIcon icon, MessageButtons buttons) override;
    bool setClipboardText(std::string_view text) override;
    Screen screen() override { return m_screen; }
    void beep() override { ++m_beeps; }

    // The user's next step, asked for whenever something modal waits and all is at rest. False =
    // nothing to do for now: then the clock goes on to the next timer, and when there is none (or
    // nobody has acted for 10 virtual minutes) what waits is cancelled and noted in stranded().
    std::function<bool()> onIdle;

    // ---- what there is
    // Running dialogs, the top one last.
    const std::vector<HeadlessDialog*>& dialogs() const { return m_dialogs; }
    // The dialog that takes acts now; null while a message box or a popup menu stands before it.
    HeadlessDialog* activeDialog() const;
    // The topmost running dialog, whatever stands before it.
    HeadlessDialog* topDialog() const;
    // The one that takes acts now, or null.
    const HeadlessMessageBox* openMessageBox() const;
    const HeadlessPopup* openPopup() const;
    int beeps() const { return m_beeps; }
    const Text& clipboard() const { return m_clipboard; }
    // Dialogs and message boxes that waited with nobody to act, as "dialog NAME", "message TEXT" or
    // "popup", UTF-8.
    const std::vector<std::string>& stranded() const { return m_stranded; }
    long long clock() const { return m_clock; }  // virtual milliseconds

    // ---- acts
    void answerMessageBox(MessageAnswer answer);
    // The cross or Esc of a message box; refused where only Yes and No are offered.
    void closeMessageBox();
    // An enabled entry's command.
    void choosePopup(int command);
    void closePopup();
    // Time passes; timers fire as they come due.
    void advanceClock(int milliseconds);
    // What stands on top ends as cancelled, whatever state its buttons are in.
    void cancelTop();

    // ---- for the dialogs
    // Runs posted actions and due paints until nothing is left.
    void settle();
    void post(HeadlessDialog& dialog, std::function<void()> action);
    Size screenSize() const { return m_screen.size; }

private:
    friend class HeadlessDialog;

    // What waits for the user: a dialog, a message box or a popup menu.
    struct Layer {
        HeadlessDialog* dialog = nullptr;
        HeadlessMessageBox* box = nullptr;
        HeadlessPopup* popup = nullptr;
        int answer = 0;
        bool answered = false;

        bool done() const;
    };
    class LayerScope;

    // The layer that takes acts now; null while it is about to close.
    Layer* top() const;
    static std::string nameOf(const Layer& layer);
    static void cancel(Layer& layer);
    int runDialog(HeadlessDialog& dialog);
    int runPopup(HeadlessPopup popup);
    // Blocks until the layer is done.
    void waitOn(Layer& layer);
    bool goOnToNextTimer(long long noLaterThan);
    bool runOnePosted();
    void paintAll();
    // Drops what is posted to the dialog and its pages.
    void forget(const HeadlessDialog& dialog);

    std::vector<HeadlessDialog*> m_dialogs;
    std::vector<Layer*> m_layers;
    std::deque<std::pair<HeadlessDialog*, std::function<void()>>> m_posted;
    std::vector<std::string> m_stranded;
    Screen m_screen{{1280, 1024}, 96, {32, 32}};
    Text m_clipboard;
    int m_beeps = 0;
    long long m_clock = 0;
    long long m_lastAct = 0;  // when the user did something last
};

}  // namespace lx
