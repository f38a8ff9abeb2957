#include "host/driver/windows/screenshot.h"

#include <cstdint>
#include <vector>

#include "host/driver/png.h"

namespace lx::host {

namespace {

constexpr int margin = 12;  // pixels of what stands around

// Dialogs, message boxes, menus and tooltips pop up; the host program's own window does not. A
// dialog behind another one is disabled.
BOOL CALLBACK addArea(HWND window, LPARAM parameter) {
    auto& all = *reinterpret_cast<RECT*>(parameter);
    RECT area{};
    const LONG_PTR bits = GetWindowLongPtrW(window, GWL_STYLE);
    const bool popsUp = (bits & WS_POPUP) != 0 && (bits & WS_DISABLED) == 0;
    if (popsUp && IsWindowVisible(window) && GetWindowRect(window, &area)) {
        UnionRect(&all, &all, &area);
    }
    return TRUE;
}

RECT screenArea() {
    const int left = GetSystemMetrics(SM_XVIRTUALSCREEN);
    const int top = GetSystemMetrics(SM_YVIRTUALSCREEN);
    return {left, top, left + GetSystemMetrics(SM_CXVIRTUALSCREEN),
            top + GetSystemMetrics(SM_CYVIRTUALSCREEN)};
}

RECT areaOfOurWindows() {
    const RECT screen = screenArea();
    RECT ours{};
    EnumThreadWindows(GetCurrentThreadId(), addArea, reinterpret_cast<LPARAM>(&ours));
    if (IsRectEmpty(&ours)) return screen;
    InflateRect(&ours, margin, margin);
    RECT shown{};
    return IntersectRect(&shown, &ours, &screen) ? shown : screen;
}

BITMAPINFO rowsFromTheTop(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

}  // namespace

std::string pictureOfOurWindows() {
    const RECT area = areaOfOurWindows();
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const BITMAPINFO info = rowsFromTheTop(width, height);
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    std::string png;
    if (bitmap != nullptr) {
        const HGDIOBJ before = SelectObject(memory, bitmap);
        if (BitBlt(memory, 0, 0, width, height, screen, area.left, area.top,
                   SRCCOPY | CAPTUREBLT)) {
            GdiFlush();
            const auto* pixel = static_cast<const std::uint8_t*>(bits);
            std::vector<std::uint8_t> rgb;
            rgb.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 3);
            for (int i = 0; i < width * height; ++i, pixel += 4) {
                rgb.insert(rgb.end(), {pixel[2], pixel[1], pixel[0]});
            }
            png = encodePng(width, height, rgb);
        }
        SelectObject(memory, before);
        DeleteObject(bitmap);
    }
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return png;
}

}  // namespace lx::host
