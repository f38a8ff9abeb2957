#include "host/windows/first_paint.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <ostream>
#include <stdexcept>

namespace lx::host {

namespace {

constexpr wchar_t watcherClass[] = L"VORDANLT.watcher";
constexpr UINT painted = WM_APP;
constexpr UINT tickMilliseconds = 10;
constexpr ULONG_PTR dialogClass = 0x8002;  // as the system numbers its own class

double milliseconds() {
    LARGE_INTEGER now{};
    LARGE_INTEGER perSecond{};
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&perSecond);
    return static_cast<double>(now.QuadPart) * 1000 / static_cast<double>(perSecond.QuadPart);
}

BOOL CALLBACK cancelDialog(HWND window, LPARAM) {
    const bool dialog = GetClassLongPtrW(window, GCW_ATOM) == dialogClass;
    if (!dialog || !IsWindowVisible(window)) return TRUE;
    PostMessageW(window, WM_CLOSE, 0, 0);
    return FALSE;
}

// Listens in the module's message loop. Paints are sent, or retrieved: a message posted then comes
// back right after the paint is done. A timer's comes only when there is nothing left to paint.
class Watcher {
public:
    Watcher() {
        WNDCLASSW look{};
        look.lpfnWndProc = procedure;
        look.hInstance = GetModuleHandleW(nullptr);
        look.lpszClassName = watcherClass;
        RegisterClassW(&look);
        m_window = CreateWindowExW(0, watcherClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                   look.hInstance, nullptr);
        s_window = m_window;
        s_painted = 0;
        m_retrieved = SetWindowsHookExW(WH_GETMESSAGE, retrieved, nullptr, GetCurrentThreadId());
        m_sent = SetWindowsHookExW(WH_CALLWNDPROCRET, sent, nullptr, GetCurrentThreadId());
        SetTimer(m_window, 1, tickMilliseconds, nullptr);
    }
    ~Watcher() {
        UnhookWindowsHookEx(m_sent);
        UnhookWindowsHookEx(m_retrieved);
        DestroyWindow(m_window);
    }
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    // When the last paint had been done; 0 = there was none.
    double lastPaint() const { return s_painted; }

private:
    static LRESULT CALLBACK retrieved(int code, WPARAM removed, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const MSG*>(lParam);
        if (code == HC_ACTION && (removed & PM_REMOVE) != 0 && message.message == WM_PAINT) {
            PostMessageW(s_window, painted, 0, 0);
        }
        return CallNextHookEx(nullptr, code, removed, lParam);
    }

    static LRESULT CALLBACK sent(int code, WPARAM wParam, LPARAM lParam) {
        const auto& message = *reinterpret_cast<const CWPRETSTRUCT*>(lParam);
        if (code == HC_ACTION && message.message == WM_PAINT) s_painted = milliseconds();
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == painted) s_painted = milliseconds();
        const bool busy = HIWORD(GetQueueStatus(QS_PAINT | QS_POSTMESSAGE)) != 0;
        if (message == WM_TIMER && !busy && s_painted != 0) {
            EnumThreadWindows(GetCurrentThreadId(), cancelDialog, 0);
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    static HWND s_window;
    static double s_painted;
    HWND m_window = nullptr;
    HHOOK m_retrieved = nullptr;
    HHOOK m_sent = nullptr;
};

HWND Watcher::s_window = nullptr;
double Watcher::s_painted = 0;

// What other windows still have to do belongs to no call.
void settle() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

double firstPaint(const ModuleCalls& calls, const CallRequest& request, void* parentWindow) {
    settle();
    const Watcher watcher;
    const double begin = milliseconds();
    run(calls, request, parentWindow);
    if (watcher.lastPaint() == 0) throw std::runtime_error("the dialog was not painted");
    return watcher.lastPaint() - begin;
}

}  // namespace

int tellFirstPaint(Options options, HostServices& services, const ModuleSource& module,
                   std::ostream& output, std::ostream& errors) {
    const std::string problem = prepareFolders(options);
    if (!problem.empty()) {
        errors << problem << std::endl;
        return 2;
    }
    services.settings = options.host;
    try {
        const ModuleCalls functions = module.load(services.settings);
        std::vector<double> times;
        while (std::ssize(times) < options.firstPaint) {
            module.call(services.settings, [&](void* owner) {
                times.push_back(firstPaint(functions, *options.call, owner));
            });
        }
        output << "first call " << times.front() << " ms\n";
        std::sort(times.begin(), times.end());
        output << "least " << times.front() << ", median " << times[times.size() / 2] << ", most "
               << times.back() << " ms of " << times.size() << " calls" << std::endl;
    } catch (const std::runtime_error& error) {
        errors << error.what() << std::endl;
        return 2;
    }
    module.unload();
    return 0;
}

}  // namespace lx::host
