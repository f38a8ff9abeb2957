#include <windows.h>

#include <iterator>
#include <utility>

#include "host/held.h"

namespace lx::host {

namespace {

constexpr long long heapNoise = 65536;
constexpr long long privateNoise = 2 * 1024 * 1024;
// Handles of windows, menus and drawing objects are known by their low word alone.
constexpr UINT_PTR mostHandles = 0x10000;
// Each is asked of the system, which takes its time.
constexpr UINT_PTR mostKernelHandles = 0x4000;

bool ours(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

BOOL CALLBACK addOne(HWND, LPARAM count) {
    ++*reinterpret_cast<long long*>(count);
    return TRUE;
}

// With all that stand in it.
BOOL CALLBACK addWindow(HWND window, LPARAM count) {
    if (!ours(window)) return TRUE;
    addOne(window, count);
    EnumChildWindows(window, addOne, count);
    return TRUE;
}

long long windows() {
    long long count = 0;
    EnumWindows(addWindow, reinterpret_cast<LPARAM>(&count));
    HWND messageOnly = nullptr;
    while ((messageOnly = FindWindowExW(HWND_MESSAGE, messageOnly, nullptr, nullptr))) {
        addWindow(messageOnly, reinterpret_cast<LPARAM>(&count));
    }
    return count;
}

template <class Test>
long long countHandles(UINT_PTR limit, UINT_PTR step, Test test) {
    long long count = 0;
    for (UINT_PTR value = step; value < limit; value += step) count += test(value) ? 1 : 0;
    return count;
}

template <class Handle>
Handle asHandle(UINT_PTR value) {
    return reinterpret_cast<Handle>(value);
}

bool isIcon(UINT_PTR value) {
    ICONINFO info = {};
    if (!GetIconInfo(asHandle<HICON>(value), &info)) return false;
    if (info.hbmColor) DeleteObject(info.hbmColor);
    if (info.hbmMask) DeleteObject(info.hbmMask);
    return true;
}

// Wine does not tell the numbers of a process's objects: there they are all asked for. What is of
// another kind is counted under the last name.
void addDrawingObjects(std::vector<Held>& held) {
    if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) {
        held.push_back({"GDI objects", told, 0});
        return;
    }
    constexpr std::pair<DWORD, const char*> kinds[] = {
        {OBJ_PEN, "pens"},       {OBJ_BRUSH, "brushes"},   {OBJ_FONT, "fonts"},
        {OBJ_BITMAP, "bitmaps"}, {OBJ_REGION, "regions"},  {OBJ_DC, "window contexts"},
        {OBJ_MEMDC, "contexts"}, {0, "other GDI objects"},
    };
    long long counts[std::size(kinds)] = {};
    for (UINT_PTR value = 1; value < mostHandles; ++value) {
        const DWORD kind = GetObjectType(asHandle<HGDIOBJ>(value));
        if (kind == 0) continue;
        std::size_t i = 0;
        while (kinds[i].first != 0 && kinds[i].first != kind) ++i;
        ++counts[i];
    }
    for (std::size_t i = 0; i < std::size(kinds); ++i) {
        held.push_back({kinds[i].second, counts[i], 0});
    }
}

long long kernelHandles() {
    DWORD told = 0;
    if (GetProcessHandleCount(GetCurrentProcess(), &told) && told != 0) return told;
    return countHandles(mostKernelHandles, 4, [](UINT_PTR value) {
        DWORD flags = 0;
        return GetHandleInformation(asHandle<HANDLE>(value), &flags) != FALSE;
    });
}

long long openFiles() {
    return countHandles(mostKernelHandles, 4, [](UINT_PTR value) {
        return GetFileType(asHandle<HANDLE>(value)) == FILE_TYPE_DISK;
    });
}

long long bytesIn(HANDLE heap) {
    long long bytes = 0;
    if (!HeapLock(heap)) return 0;
    PROCESS_HEAP_ENTRY entry = {};
    while (HeapWalk(heap, &entry)) {
        if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
    }
    HeapUnlock(heap);
    return bytes;
}

long long heapBytes() {
    HANDLE heaps[256] = {};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(std::size(heaps)), heaps);
    long long bytes = 0;
    for (DWORD i = 0; i < count && i < std::size(heaps); ++i) bytes += bytesIn(heaps[i]);
    return bytes;
}

// Pages that are this process's own.
long long privateBytes() {
    long long bytes = 0;
    MEMORY_BASIC_INFORMATION pages = {};
    const char* at = nullptr;
    while (VirtualQuery(at, &pages, sizeof pages) != 0) {
        if (pages.State == MEM_COMMIT && pages.Type == MEM_PRIVATE) {
            bytes += static_cast<long long>(pages.RegionSize);
        }
        at = static_cast<const char*>(pages.BaseAddress) + pages.RegionSize;
    }
    return bytes;
}

}  // namespace

std::vector<Held> countHeld() {
    const auto isMenu = [](UINT_PTR value) { return IsMenu(asHandle<HMENU>(value)) != FALSE; };
    std::vector<Held> held = {{"windows", windows(), 0},
                              {"menus", countHandles(mostHandles, 1, isMenu), 0},
                              {"icons and cursors", countHandles(mostHandles, 1, isIcon), 0},
                              {"handles", kernelHandles(), 0},
                              {"files", openFiles(), 0},
                              {"heap bytes", heapBytes(), heapNoise},
                              {"private bytes", privateBytes(), privateNoise}};
    addDrawingObjects(held);
    if (const DWORD told = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS)) {
        held.push_back({"user objects", told, 0});
    }
    return held;
}

}  // namespace lx::host
