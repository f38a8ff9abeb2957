#include "platform/windows/windows_edit.h"

#include <algorithm>

#include "platform/keys.h"
#include "platform/windows/wide_text.h"

namespace lx {
namespace {

constexpr WPARAM controlA = 1;

void refuse() {
    MessageBeep(MB_OK);
}

// Holds the clipboard while it lives: no other program gets at it meanwhile.
class ClipboardText {
public:
    explicit ClipboardText(HWND owner) : m_open(OpenClipboard(owner) != 0) {
        if (m_open) m_data = GetClipboardData(CF_UNICODETEXT);
        if (m_data) m_units = static_cast<const wchar_t*>(GlobalLock(m_data));
    }
    ClipboardText(const ClipboardText&) = delete;
    ClipboardText& operator=(const ClipboardText&) = delete;
    ~ClipboardText() {
        if (m_units) GlobalUnlock(m_data);
        if (m_open) CloseClipboard();
    }
    std::wstring copy() const {
        if (!m_units) return {};
        const wchar_t* const end = m_units + GlobalSize(m_data) / sizeof(wchar_t);
        return {m_units, std::find(m_units, end, L'\0')};
    }

private:
    bool m_open;
    HANDLE m_data = nullptr;
    const wchar_t* m_units = nullptr;
};

std::wstring clipboardText(HWND owner) {
    if (!IsClipboardFormatAvailable(CF_UNICODETEXT)) return {};
    return ClipboardText(owner).copy();
}

// A single-line field takes the text up to the first line break, as the system pastes it.
void pasteWhatFits(HWND edit, const std::wstring& text) {
    std::wstring fitting = wide(narrow(text));
    if (!(GetWindowLongPtrW(edit, GWL_STYLE) & ES_MULTILINE)) {
        fitting.resize(std::min(fitting.find_first_of(L"\r\n"), fitting.size()));
    }
    SendMessageW(edit, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(fitting.c_str()));
}

}  // namespace

std::optional<LRESULT> filterCharacters(HWND edit, UINT message, WPARAM wParam) {
    if (message == WM_CHAR) {
        if (wParam == controlA) {
            SendMessageW(edit, EM_SETSEL, 0, -1);
            return 0;
        }
        const auto unit = static_cast<wchar_t>(wParam);
        if (fitsCodePage(std::wstring_view(&unit, 1))) return std::nullopt;
        refuse();
        return 0;
    }
    if (message == WM_PASTE && !(GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY)) {
        const std::wstring text = clipboardText(edit);
        if (fitsCodePage(text)) return std::nullopt;
        refuse();
        pasteWhatFits(edit, text);
        return 0;
    }
    return std::nullopt;
}

WindowsEdit::WindowsEdit(WindowsDialog& dialog, const ControlTemplate& layout)
    : WindowsControl(dialog, layout), m_readOnly((layout.style & style::readOnly) != 0) {}

WindowClass WindowsEdit::windowClass() const {
    DWORD bits = multiline() ? ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN : ES_AUTOHSCROLL;
    if (m_readOnly) bits |= ES_READONLY;
    if (hasStyle(style::verticalScroll)) bits |= WS_VSCROLL;
    return {L"EDIT", bits, WS_EX_CLIENTEDGE};
}

void WindowsEdit::attached() {
    send(EM_SETLIMITTEXT, 0);
}

void WindowsEdit::command(WORD code) {
    if (code == EN_CHANGE) fire(onChange);
}

LRESULT WindowsEdit::message(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const auto result = filterCharacters(window(), message, wParam)) return *result;
    return ControlCore::message(message, wParam, lParam);
}

void WindowsEdit::select(TextSelection selection) {
    m_selection = selection;
    send(EM_SETSEL, static_cast<WPARAM>(selection.begin), selection.end);
    send(EM_SCROLLCARET);
}

TextSelection WindowsEdit::selection() const {
    if (!window()) return m_selection;
    DWORD begin = 0;
    DWORD end = 0;
    send(EM_GETSEL, reinterpret_cast<WPARAM>(&begin), reinterpret_cast<LPARAM>(&end));
    return {static_cast<int>(begin), static_cast<int>(end)};
}

// Enter makes a new line where the user may write one.
bool WindowsEdit::wantsKey(int key) const {
    return key == key::enter && multiline() && !m_readOnly;
}

}  // namespace lx
