#include "host/driver/windows/stepper.h"

#include <cxxabi.h>

#include <algorithm>
#include <utility>

#include "host/driver/driver.h"
#include "host/driver/windows/menu_paths.h"

namespace lx::host {

namespace {

constexpr UINT tickMilliseconds = 10;
// A timer message comes only when nothing else is in the queue. One more covers what the window
// system of the machine hands over late.
constexpr int ticksUntilQuiet = 2;
// Windows that never run dry (an area that nobody paints) must not stop the user for ever.
constexpr int busyTicksAtMost = 50;
constexpr SIZE_T stackSize = 1U << 20U;

Stepper* active = nullptr;

// What the C++ runtime keeps per thread about exceptions being handled; each stack has its own.
struct Exceptions {
    void* caught = nullptr;
    unsigned int uncaught = 0;
};

void exchange(Exceptions& own) {
    auto* current = reinterpret_cast<Exceptions*>(abi::__cxa_get_globals());
    std::swap(*current, own);
}

// The system's own classes are known by fixed numbers.
constexpr ULONG_PTR menuClass = 0x8000;
constexpr ULONG_PTR dialogClass = 0x8002;

struct TopSearch {
    HWND dying = nullptr;
    std::vector<HWND> popups;
    std::vector<HWND> dialogs;  // all visible ones
    HWND dialog = nullptr;      // the first that takes acts
};

// Windows come from the front to the back.
BOOL CALLBACK lookAt(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<TopSearch*>(parameter);
    if (window == search.dying || !IsWindowVisible(window)) return TRUE;
    const ULONG_PTR atom = GetClassLongPtrW(window, GCW_ATOM);
    if (atom == menuClass) search.popups.push_back(window);
    if (atom == dialogClass) {
        search.dialogs.push_back(window);
        if (search.dialog == nullptr && IsWindowEnabled(window)) search.dialog = window;
    }
    return TRUE;
}

TopSearch search(HWND dying) {
    TopSearch result;
    result.dying = dying;
    EnumThreadWindows(GetCurrentThreadId(), lookAt, reinterpret_cast<LPARAM>(&result));
    return result;
}

}  // namespace

struct Stepper::Level {
    Stepper* owner = nullptr;
    void* fiber = nullptr;
    HWND base = nullptr;  // on top when it began to wait
    bool nests = false;   // what opens in front of base gets steps of its own meanwhile
    bool done = true;
    bool acting = false;  // its act is on the windows' stack
    std::function<void()> action;
    Exceptions exceptions;
};

Stepper::Stepper(int limitMilliseconds) : m_limit(limitMilliseconds) {}

Stepper::~Stepper() {
    drive(nullptr);
    for (const auto& level : m_spare) DeleteFiber(level->fiber);
    if (m_windowsFiber != nullptr) ConvertFiberToThread();
}

void Stepper::drive(std::function<void()> next) {
    settle();
    if (m_timer != 0) KillTimer(nullptr, m_timer);
    if (m_hook != nullptr) UnhookWindowsHookEx(m_hook);
    m_timer = 0;
    m_hook = nullptr;
    m_next = std::move(next);
    if (active == this) active = nullptr;
    if (!m_next) return;
    if (m_windowsFiber == nullptr) {
        m_windowsFiber = ConvertThreadToFiberEx(nullptr, FIBER_FLAG_FLOAT_SWITCH);
        if (m_windowsFiber == nullptr) throw DriverError("the thread of the windows has a driver");
    }
    active = this;
    m_timer = SetTimer(nullptr, 0, tickMilliseconds, onTimer);
    m_hook = SetWindowsHookExW(WH_CBT, onHook, nullptr, GetCurrentThreadId());
}

void Stepper::settle() {
    if (m_current != nullptr) return;
    m_over = true;
    while (!m_levels.empty() && !m_levels.back()->acting) resume(*m_levels.back());
    m_over = false;
}

void CALLBACK Stepper::onTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (active != nullptr) active->tick();
}

LRESULT CALLBACK Stepper::onHook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_DESTROYWND && active != nullptr) {
        active->destroyed(reinterpret_cast<HWND>(wParam));
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void Stepper::tick() {
    if (m_current != nullptr || !m_next || !quiet()) return;
    if (m_dying != nullptr && !IsWindow(m_dying)) m_dying = nullptr;
    const HWND now = top();
    if (m_levels.empty()) {
        if (now != nullptr) start();
        return;
    }
    Level& level = *m_levels.back();
    if (level.nests && level.base != nullptr && stands(level.base) && now != level.base) {
        // Between two windows none may be on top for a moment.
        if (now != nullptr) start();
        return;
    }
    if (!level.acting) resume(level);
}

// The modal call of this window is about to return; whatever comes after it must find the step
// done.
void Stepper::destroyed(HWND window) {
    if (m_current != nullptr || m_levels.empty()) return;
    Level& level = *m_levels.back();
    if (level.base != window || !level.nests || level.acting) return;
    m_dying = window;
    resume(level);
}

bool Stepper::quiet() {
    if (HIWORD(GetQueueStatus(QS_POSTMESSAGE | QS_INPUT | QS_PAINT)) != 0 &&
        ++m_busyTicks < busyTicksAtMost) {
        m_quietTicks = 0;
        return false;
    }
    if (++m_quietTicks < ticksUntilQuiet) return false;
    m_busyTicks = 0;
    return true;
}

bool Stepper::stands(HWND window) const {
    return window != m_dying && IsWindow(window) && IsWindowVisible(window);
}

HWND Stepper::top() const {
    const HWND menu = popup();
    return menu != nullptr ? menu : dialog();
}

HWND Stepper::dialog() const {
    const HWND front = GetActiveWindow();
    if (front != nullptr && front != m_dying && IsWindowVisible(front) && IsWindowEnabled(front) &&
        GetClassLongPtrW(front, GCW_ATOM) == dialogClass) {
        return front;
    }
    return search(m_dying).dialog;
}

std::vector<HWND> Stepper::dialogs() const {
    return search(m_dying).dialogs;
}

HWND Stepper::popup() const {
    const std::vector<HWND> open = search(m_dying).popups;
    for (const HWND candidate : open) {
        const HMENU menu = menuOfPopup(candidate);
        if (std::none_of(open.begin(), open.end(),
                         [&](HWND other) { return opensFrom(menuOfPopup(other), menu); })) {
            return candidate;
        }
    }
    return nullptr;
}

void Stepper::start() {
    if (m_spare.empty()) {
        auto level = std::make_unique<Level>();
        level->owner = this;
        level->fiber = CreateFiberEx(0, stackSize, FIBER_FLAG_FLOAT_SWITCH, runLevel, level.get());
        if (level->fiber == nullptr) return;
        m_spare.push_back(std::move(level));
    }
    m_levels.push_back(std::move(m_spare.back()));
    m_spare.pop_back();
    m_levels.back()->done = false;
    resume(*m_levels.back());
}

void CALLBACK Stepper::runLevel(void* parameter) {
    auto& level = *static_cast<Level*>(parameter);
    for (;;) {
        level.owner->m_next();
        level.done = true;
        SwitchToFiber(level.owner->m_windowsFiber);
    }
}

void Stepper::resume(Level& level) {
    do {
        m_current = &level;
        exchange(level.exceptions);
        SwitchToFiber(level.fiber);
        exchange(level.exceptions);
        m_current = nullptr;
        m_quietTicks = 0;
        if (level.action) {
            const std::function<void()> action = std::exchange(level.action, nullptr);
            level.acting = true;
            action();
            level.acting = false;
        }
    } while (m_over && !level.done);
    if (level.done) {
        m_spare.push_back(std::move(m_levels.back()));
        m_levels.pop_back();
    }
}

void Stepper::yield(HWND base, bool nests) {
    m_current->base = base;
    m_current->nests = nests;
    SwitchToFiber(m_windowsFiber);
}

void Stepper::restFrom(HWND base) {
    if (m_current == nullptr) {
        pump();
    } else if (!m_over) {
        yield(base, true);
    }
}

void Stepper::pause() {
    if (m_current == nullptr) {
        pump();
    } else if (!m_over) {
        yield(top(), false);
    }
}

void Stepper::act(std::function<void()> action) {
    if (m_current == nullptr) {
        action();
        pump();
        return;
    }
    m_current->action = std::move(action);
    yield(top(), true);
}

bool Stepper::waitUntil(const std::function<bool()>& done) {
    const ULONGLONG begin = GetTickCount64();
    while (!done()) {
        if (m_over || GetTickCount64() - begin > static_cast<ULONGLONG>(m_limit)) return false;
        if (m_current == nullptr) {
            pump();
            Sleep(tickMilliseconds);
        } else {
            yield(top(), false);
        }
    }
    return true;
}

void Stepper::sleep(int milliseconds) {
    const ULONGLONG begin = GetTickCount64();
    const HWND base = top();
    while (!m_over && GetTickCount64() - begin < static_cast<ULONGLONG>(milliseconds)) {
        if (m_current == nullptr) Sleep(tickMilliseconds);
        restFrom(base);
    }
}

void Stepper::pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace lx::host
