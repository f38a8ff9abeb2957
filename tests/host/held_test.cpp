// Each counter sees what is held, and that it has gone again.
#include "host/held.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace lx::host {
namespace {

bool told(const std::string& name, const std::vector<Held>& before) {
    for (const std::string& line : leftBehind(before, countHeld())) {
        if (line.starts_with(name + ": ")) return true;
    }
    return false;
}

// What is taken is told as left behind until it is given back.
void expectSeen(const std::string& name, const std::function<std::function<void()>()>& take) {
    SCOPED_TRACE(name);
    take()();  // what the system keeps for itself from the first time on
    const std::vector<Held> before = countHeld();
    const std::function<void()> giveBack = take();
    EXPECT_TRUE(told(name, before));
    giveBack();
    EXPECT_FALSE(told(name, before));
}

TEST(Held, SeesMemoryAndFiles) {
    static constexpr std::size_t size = 4U << 20U;
    expectSeen("heap bytes", [] {
        const auto block = std::make_shared<std::vector<char>>(size, 'x');
        return [block] { std::vector<char>().swap(*block); };
    });
    expectSeen("files", [] {
        std::FILE* file = std::tmpfile();
        EXPECT_NE(file, nullptr);
        return [file] { std::fclose(file); };
    });
}

#if defined(_WIN32)

std::function<std::function<void()>()> windowUnder(HWND parent, DWORD style) {
    return [=] {
        const HWND window = CreateWindowExW(0, L"STATIC", L"", style, 0, 0, 9, 9, parent, nullptr,
                                            nullptr, nullptr);
        EXPECT_NE(window, nullptr);
        return [window] { DestroyWindow(window); };
    };
}

template <class Make>
std::function<std::function<void()>()> objectOf(Make make) {
    return [make] {
        const HGDIOBJ object = make();
        EXPECT_NE(object, nullptr);
        return [object] { DeleteObject(object); };
    };
}

// The one counter for all where the system tells their number.
std::string gdi(const char* name) {
    return GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS) != 0 ? "GDI objects" : name;
}

TEST(Held, SeesEachKindOfObject) {
    const HWND top = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr,
                                     nullptr, nullptr);
    expectSeen("windows", windowUnder(nullptr, WS_POPUP));
    expectSeen("windows", windowUnder(top, WS_CHILD));
    expectSeen("windows", windowUnder(HWND_MESSAGE, 0));
    DestroyWindow(top);
    expectSeen("menus", [] {
        const HMENU menu = CreatePopupMenu();
        return [menu] { DestroyMenu(menu); };
    });
    expectSeen("icons and cursors", [] {
        const HICON icon = CopyIcon(LoadIconW(nullptr, IDI_APPLICATION));
        return [icon] { DestroyIcon(icon); };
    });
    expectSeen(gdi("pens"), objectOf([] { return CreatePen(PS_SOLID, 3, RGB(1, 2, 3)); }));
    expectSeen(gdi("brushes"), objectOf([] { return CreateSolidBrush(RGB(1, 2, 3)); }));
    expectSeen(gdi("bitmaps"), objectOf([] { return CreateBitmap(9, 9, 1, 1, nullptr); }));
    expectSeen(gdi("regions"), objectOf([] { return CreateRectRgn(0, 0, 9, 9); }));
    expectSeen(gdi("fonts"), objectOf([] {
                   return CreateFontW(9, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, L"Arial");
               }));
    expectSeen(gdi("contexts"), objectOf([] { return CreateCompatibleDC(nullptr); }));
    expectSeen(gdi("other GDI objects"),
               objectOf([] { return CreateEnhMetaFileW(nullptr, nullptr, nullptr, nullptr); }));
    expectSeen(gdi("window contexts"), [] {
        const HDC dc = CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr);
        return [dc] { DeleteDC(dc); };
    });
    expectSeen("handles", [] {
        const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
        return [event] { CloseHandle(event); };
    });
    expectSeen("private bytes", [] {
        constexpr SIZE_T size = 16U << 20U;
        void* pages = VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
        SecureZeroMemory(pages, size);
        return [pages] { VirtualFree(pages, 0, MEM_RELEASE); };
    });
}

#endif

}  // namespace
}  // namespace lx::host
