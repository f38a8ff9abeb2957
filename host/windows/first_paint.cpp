#include "host/windows/first_paint.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <ostream>
#include <stdexcept>

namespace lx::host {

namespace {

constexpr wchar_t watcherClass[] = L"VORDANLT.watcher";
constexpr UINT tickMilliseconds = 10;
constexpr ULONG_PTR dialogClass = 0x8002;  // as the system numbers its own class

double milliseconds() {
    LARGE_INTEGER now{};
    LARGE_INTEGER perSecond{};
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&perSecond);
    return static_cast<double>(now.QuadPart) * 1000 / static_cast<double>(perSecond.QuadPart);
}

BOOL CALLBACK takeDialog(HWND window, LPARAM found) {
    const bool dialog = GetClassLongPtrW(window, GCW_ATOM) == dialogClass;
    if (!dialog || !IsWindowVisible(window)) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// Listens in the module's message loop. A timer's message is the last one that a loop is given:
// when one comes, nothing is left to be painted. It tells up to a tick too late.
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
        s_painted = 0;
        SetTimer(m_window, 1, tickMilliseconds, nullptr);
    }
    ~Watcher() { DestroyWindow(m_window); }
    Watcher(const Watcher&) = delete;
    Watcher& operator=(const Watcher&) = delete;

    // When the dialog was painted; 0 = there was none.
    double painted() const { return s_painted; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message != WM_TIMER) return DefWindowProcW(window, message, wParam, lParam);
        HWND dialog = nullptr;
        EnumThreadWindows(GetCurrentThreadId(), takeDialog, reinterpret_cast<LPARAM>(&dialog));
        if (!dialog) return 0;
        if (s_painted == 0) s_painted = milliseconds();
        PostMessageW(dialog, WM_CLOSE, 0, 0);
        return 0;
    }

    static double s_painted;
    HWND m_window = nullptr;
};

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
    if (watcher.painted() == 0) throw std::runtime_error("the dialog was not painted");
    return watcher.painted() - begin;
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
