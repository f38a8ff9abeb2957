#include "host/windows/host_window.h"

#include <exception>
#include <stdexcept>

namespace lx::host {

namespace {

constexpr UINT callNow = WM_APP;

std::string looksLike(const char* name, HWND window) {
    std::string text = std::string(name) + (IsWindowEnabled(window) ? " enabled" : " disabled");
    if (IsIconic(window)) text += " minimized";
    if (GetActiveWindow() == window) text += " active";
    return text;
}

}  // namespace

struct HostWindow::ModalCall {
    HostWindow& host;
    const std::function<void(void* owner)>& make;
    std::exception_ptr failure;
};

HostWindow::HostWindow() {
    WNDCLASSW look{};
    look.lpfnWndProc = DefWindowProcW;
    look.hInstance = GetModuleHandleW(nullptr);
    look.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    look.hbrBackground = GetSysColorBrush(COLOR_APPWORKSPACE);
    look.lpszClassName = L"VORDANLT";
    RegisterClassW(&look);
    constexpr int width = 1024;
    constexpr int height = 768;
    m_window = CreateWindowExW(0, look.lpszClassName, L"Stand-in", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                               CW_USEDEFAULT, CW_USEDEFAULT, width, height, nullptr, nullptr,
                               look.hInstance, nullptr);
}

HostWindow::~HostWindow() {
    DestroyWindow(m_window);
}

void HostWindow::call(const HostSettings& settings, const std::function<void(void* owner)>& make) {
    if (settings.window == "modal") return callFromDialog(make);
    if (settings.window == "none") return make(nullptr);
    if (settings.window == "minimized") ShowWindow(m_window, SW_MINIMIZE);
    make(m_window);
    if (IsIconic(m_window)) ShowWindow(m_window, SW_RESTORE);
}

void HostWindow::callFromDialog(const std::function<void(void* owner)>& make) {
    struct {
        DLGTEMPLATE dialog;
        WORD menu, windowClass, title;
    } empty{};
    empty.dialog.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | DS_MODALFRAME;
    empty.dialog.cx = 200;
    empty.dialog.cy = 100;
    ModalCall call{*this, make, {}};
    if (DialogBoxIndirectParamW(GetModuleHandleW(nullptr), &empty.dialog, m_window,
                                &dialogProcedure, reinterpret_cast<LPARAM>(&call)) == -1) {
        throw std::runtime_error("the host's own dialog cannot be made");
    }
    if (call.failure) std::rethrow_exception(call.failure);
}

INT_PTR CALLBACK HostWindow::dialogProcedure(HWND dialog, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        PostMessageW(dialog, callNow, 0, lParam);
        return TRUE;
    }
    if (message != callNow) return FALSE;
    auto& call = *reinterpret_cast<ModalCall*>(lParam);
    call.host.m_dialog = dialog;
    try {
        call.make(dialog);
    } catch (...) {
        call.failure = std::current_exception();
    }
    call.host.m_dialog = nullptr;
    EndDialog(dialog, 0);
    return TRUE;
}

std::vector<std::string> HostWindow::look() const {
    std::vector<std::string> items{looksLike("window", m_window)};
    if (m_dialog) items.push_back(looksLike("dialog", m_dialog));
    return items;
}

}  // namespace lx::host
