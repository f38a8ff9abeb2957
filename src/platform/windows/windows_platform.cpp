#include "platform/windows/windows_platform.h"

#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <cstring>

#include "platform/windows/hand_cursor.h"
#include "platform/windows/make_platform.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_dialog.h"

namespace lx {
namespace {

UINT nativeIcon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::stop:
            return MB_ICONSTOP;
        case MessageIcon::question:
            return MB_ICONQUESTION;
        case MessageIcon::warning:
            return MB_ICONWARNING;
        case MessageIcon::information:
            return MB_ICONINFORMATION;
        case MessageIcon::none:
            break;
    }
    return 0;
}

UINT nativeButtons(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::okCancel:
            return MB_OKCANCEL;
        case MessageButtons::yesNo:
            return MB_YESNO;
        case MessageButtons::ok:
            break;
    }
    return MB_OK;
}

// The clipboard is one for all programs: another one may hold it for a moment.
bool openClipboard(HWND owner) {
    for (int attempt = 0; attempt < 10; ++attempt) {
        if (OpenClipboard(owner)) return true;
        Sleep(10);
    }
    return false;
}

}  // namespace

WindowsPlatform::WindowsPlatform(HINSTANCE instance) : m_instance(instance) {}

WindowsPlatform::~WindowsPlatform() {
    // A cursor may not go while it is the one shown.
    if (m_hand && GetCursor() == m_hand) SetCursor(cursor(CursorShape::arrow));
    if (m_hand) DestroyCursor(m_hand);
    if (!m_pictureClass.empty()) UnregisterClassW(m_pictureClass.c_str(), m_instance);
}

// The class name carries the module's address: two copies of the module in one process would
// otherwise take each other's.
void WindowsPlatform::prepareWindows() {
    if (std::exchange(m_prepared, true)) return;
    InitCommonControls();
    m_describeMessage = RegisterWindowMessageW(describeMessageName);
    m_hand = makeHandCursor(m_instance);
    wchar_t name[64];
    std::swprintf(name, sizeof name / sizeof *name, L"lxdata6dlg.picture.%p.%p",
                  static_cast<void*>(m_instance), static_cast<void*>(this));
    WNDCLASSW picture = {};
    picture.lpfnWndProc = DefWindowProcW;
    picture.hInstance = m_instance;
    picture.lpszClassName = name;
    if (RegisterClassW(&picture)) m_pictureClass = name;
}

HCURSOR WindowsPlatform::cursor(CursorShape shape) const {
    const wchar_t* name = IDC_ARROW;
    switch (shape) {
        case CursorShape::hand:
            if (m_hand) return m_hand;
            name = IDC_HAND;
            break;
        case CursorShape::upArrow:
            name = IDC_UPARROW;
            break;
        case CursorShape::splitLeftRight:
            name = IDC_SIZEWE;
            break;
        case CursorShape::splitUpDown:
            name = IDC_SIZENS;
            break;
        case CursorShape::text:
            name = IDC_IBEAM;
            break;
        case CursorShape::arrow:
            break;
    }
    return LoadCursorW(nullptr, name);
}

std::unique_ptr<Dialog> WindowsPlatform::createDialog(const DialogTemplate& layout, Owner owner) {
    prepareWindows();
    return std::make_unique<WindowsDialog>(*this, layout, owner);
}

void WindowsPlatform::strike(WindowsDialog& dialog) {
    m_dialogs.erase(std::remove(m_dialogs.begin(), m_dialogs.end(), &dialog), m_dialogs.end());
}

HWND ownerWindow(const Owner& owner) {
    if (owner.dialog) {
        const WindowsDialog& top = static_cast<WindowsDialog*>(owner.dialog)->root();
        // A dialog that is still being prepared cannot be stood in front of.
        return top.visible() ? top.window() : ownerWindow(top.owner());
    }
    auto* host = static_cast<HWND>(owner.hostWindow);
    return host && IsWindow(host) ? GetAncestor(host, GA_ROOT) : nullptr;
}

MessageAnswer WindowsPlatform::messageBox(Owner owner, std::string_view message,
                                          std::string_view caption, MessageIcon icon,
                                          MessageButtons buttons) {
    const int answer = MessageBoxW(ownerWindow(owner), wide(message).c_str(), wide(caption).c_str(),
                                   nativeIcon(icon) | nativeButtons(buttons));
    switch (answer) {
        case IDOK:
            return MessageAnswer::ok;
        case IDYES:
            return MessageAnswer::yes;
        case IDNO:
            return MessageAnswer::no;
        case IDCANCEL:
            return MessageAnswer::cancel;
        default:
            break;
    }
    // The box could not be shown: what changes nothing is answered.
    if (buttons == MessageButtons::yesNo) return MessageAnswer::no;
    return buttons == MessageButtons::okCancel ? MessageAnswer::cancel : MessageAnswer::ok;
}

bool WindowsPlatform::setClipboardText(std::string_view text) {
    const std::wstring converted = wide(text);
    const std::size_t bytes = (converted.size() + 1) * sizeof(wchar_t);
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (!block) return false;
    bool done = false;
    if (void* memory = GlobalLock(block)) {
        std::memcpy(memory, converted.c_str(), bytes);
        GlobalUnlock(block);
        // The clipboard needs a window that owns what is put there.
        HWND owner = GetActiveWindow();
        for (const WindowsDialog* dialog : m_dialogs) {
            if (dialog->window()) owner = dialog->window();
        }
        if (openClipboard(owner)) {
            done = EmptyClipboard() && SetClipboardData(CF_UNICODETEXT, block);
            CloseClipboard();
        }
    }
    if (!done) GlobalFree(block);
    return done;
}

Screen WindowsPlatform::screen() {
    Screen result;
    result.size = {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    result.iconSize = {GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
    if (const HDC dc = GetDC(nullptr)) {
        result.verticalDpi = GetDeviceCaps(dc, LOGPIXELSY);
        ReleaseDC(nullptr, dc);
    }
    return result;
}

void WindowsPlatform::beep() {
    MessageBeep(MB_OK);
}

std::unique_ptr<Platform> makeWindowsPlatform(void* moduleInstance) {
    return std::make_unique<WindowsPlatform>(static_cast<HINSTANCE>(moduleInstance));
}

}  // namespace lx
