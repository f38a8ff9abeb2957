#include <windows.h>

#include <commctrl.h>

#include "tests/dialog/foreign_commands.h"

namespace lx {

namespace {

constexpr ULONG_PTR dialogClass = 0x8002;

BOOL CALLBACK takeHidden(HWND window, LPARAM found) {
    if (IsWindowVisible(window) || GetClassLongPtrW(window, GCW_ATOM) != dialogClass) return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

BOOL CALLBACK sendTo(HWND control, LPARAM) {
    const HWND parent = GetParent(control);
    const int number = GetDlgCtrlID(control);
    SendMessageW(control, WM_KEYDOWN, VK_DOWN, 0);
    SendMessageW(control, WM_CHAR, 'x', 0);
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN}) {
        SendMessageW(control, message, 0, MAKELPARAM(5, 5));
    }
    SendMessageW(control, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(control), -1);
    for (const int code : {BN_CLICKED, LBN_SELCHANGE, LBN_DBLCLK, EN_CHANGE, CBN_EDITCHANGE}) {
        SendMessageW(parent, WM_COMMAND, MAKEWPARAM(number, code),
                     reinterpret_cast<LPARAM>(control));
    }
    NMHDR tab{control, static_cast<UINT_PTR>(number), static_cast<UINT>(TCN_SELCHANGE)};
    SendMessageW(parent, WM_NOTIFY, tab.idFrom, reinterpret_cast<LPARAM>(&tab));
    return TRUE;
}

}  // namespace

void sendEverything(Platform&) {
    HWND dialog = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), takeHidden, reinterpret_cast<LPARAM>(&dialog));
    EnumChildWindows(dialog, sendTo, 0);
    SendMessageW(dialog, WM_COMMAND, IDOK, 0);
    SendMessageW(dialog, WM_CLOSE, 0, 0);
}

}  // namespace lx
