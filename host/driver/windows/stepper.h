// Runs the steps of a user in turn with the windows they act on. Each step has a stack of its own
// (a fiber of the windows' thread), so that it can post what a user would do, let the modal loop
// that is running anyway retrieve it, and go on when the windows are at rest. Only one of the two
// ever runs.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <vector>

namespace lx::host {

// One at a time in a process; everything is called on the thread of the windows.
class Stepper {
public:
    explicit Stepper(int limitMilliseconds);
    ~Stepper();
    Stepper(const Stepper&) = delete;
    Stepper& operator=(const Stepper&) = delete;

    // next is called whenever something modal waits for its user; null ends that.
    void drive(std::function<void()> next);
    // Brings every step that is still waiting to its end: nothing it waits for will come.
    void settle();
    bool settling() const { return m_over; }

    // ---- called by a step, or after a call has returned by anybody
    // Until all messages and paints have run out. What opened meanwhile in front of the window
    // that was on top has its own steps and is closed again when this returns.
    void rest() { restFrom(top()); }
    // The same where what opens in front belongs to the act itself, such as a submenu.
    void pause();
    // Runs the act on the windows' own stack, as it may open something modal; then rests.
    void act(std::function<void()> action);
    // Asks again whenever the windows are at rest; false when the limit passed first.
    bool waitUntil(const std::function<bool()>& done);
    void sleep(int milliseconds);

    // The popup menu, message box or dialog that waits for its user; null when there is none.
    HWND top() const;
    // The dialog or message box that would wait if no popup menu were open, or null.
    HWND dialog() const;
    // Every visible dialog and message box, from the front to the back.
    std::vector<HWND> dialogs() const;
    // The open popup menu, the innermost one, or null.
    HWND popup() const;

private:
    struct Level;

    static void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD);
    static LRESULT CALLBACK onHook(int code, WPARAM wParam, LPARAM lParam);
    static void CALLBACK runLevel(void* parameter);

    void tick();
    void destroyed(HWND window);
    bool quiet();
    bool stands(HWND window) const;
    void start();
    void resume(Level& level);
    void yield(HWND base, bool nests);
    void restFrom(HWND base);
    static void pump();

    int m_limit;
    std::function<void()> m_next;
    UINT_PTR m_timer = 0;
    HHOOK m_hook = nullptr;
    void* m_windowsFiber = nullptr;
    // The steps under way, each in front of what the one before it opened.
    std::vector<std::unique_ptr<Level>> m_levels;
    std::vector<std::unique_ptr<Level>> m_spare;
    Level* m_current = nullptr;  // running now; null = the windows are
    HWND m_dying = nullptr;      // being destroyed, no longer counted
    int m_quietTicks = 0;
    int m_busyTicks = 0;
    bool m_over = false;
};

}  // namespace lx::host
