#include "platform/windows/windows_combo_box.h"

#include "platform/keys.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_dialog.h"
#include "platform/windows/windows_edit.h"
#include "platform/windows/windows_platform.h"

namespace lx {
namespace {

constexpr int rowsShown = 12;

}  // namespace

WindowClass WindowsComboBox::windowClass() const {
    DWORD bits = WS_VSCROLL;
    bits |= editable() ? CBS_DROPDOWN | CBS_AUTOHSCROLL : CBS_DROPDOWNLIST;
    if (hasStyle(style::sorted)) bits |= CBS_SORT;
    return {L"COMBOBOX", bits};
}

void WindowsComboBox::attached() {
    send(CB_LIMITTEXT, 0);
    m_field = editable() ? FindWindowExW(window(), nullptr, L"EDIT", nullptr) : nullptr;
    if (m_field) {
        SetWindowLongPtrW(m_field, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        m_fieldInherited = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(m_field, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&fieldProcedure)));
    }
    COMBOBOXINFO parts = {};
    parts.cbSize = sizeof parts;
    if (m_field && GetComboBoxInfo(window(), &parts) && parts.hwndList) {
        SetWindowLongPtrW(parts.hwndList, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        m_listInherited = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
            parts.hwndList, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&listProcedure)));
    }
    growForList();
}

// A closed combo shows its field alone, but the window's height must hold the open list.
void WindowsComboBox::growForList() {
    RECT closed = {};
    GetWindowRect(window(), &closed);
    const LRESULT row = send(CB_GETITEMHEIGHT, 0);
    const int height = static_cast<int>(closed.bottom - closed.top + row * rowsShown) + 2;
    SetWindowPos(window(), nullptr, 0, 0, static_cast<int>(closed.right - closed.left), height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CALLBACK WindowsComboBox::fieldProcedure(HWND window, UINT message, WPARAM wParam,
                                                 LPARAM lParam) {
    auto* self = reinterpret_cast<WindowsComboBox*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self) return DefWindowProcW(window, message, wParam, lParam);
    const WNDPROC before = self->m_fieldInherited;
    if (message == WM_NCDESTROY) SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    if (self->window()) {
        try {
            if (self->refuses(message)) return 0;
            if (const auto result = filterCharacters(window, message, wParam)) return *result;
            const LRESULT result = CallWindowProcW(before, window, message, wParam, lParam);
            if (message == WM_SETFOCUS) self->dialog().root().focusArrived(*self);
            return result;
        } catch (...) {
            self->dialog().failed();
            return 0;
        }
    }
    return CallWindowProcW(before, window, message, wParam, lParam);
}

// A list that opens looks for an item that begins with the field's text, and puts it there: 150
// would become 1500 by a look at the list. Only the item that the field shows is to be found.
LRESULT CALLBACK WindowsComboBox::listProcedure(HWND window, UINT message, WPARAM wParam,
                                                LPARAM lParam) {
    auto* self = reinterpret_cast<WindowsComboBox*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!self) return DefWindowProcW(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    if (message == LB_FINDSTRING) message = LB_FINDSTRINGEXACT;
    return CallWindowProcW(self->m_listInherited, window, message, wParam, lParam);
}

void WindowsComboBox::keepState() {
    m_selected = selected();
    m_field = nullptr;
}

void WindowsComboBox::setText(std::string_view text) {
    m_choosing = false;
    if (editable()) doSetText(text);
}

// While the user's choice is being reported the system has not put it into the field yet.
Text WindowsComboBox::windowText() const {
    if (m_choosing || !editable()) return item(selected());
    return ControlCore::windowText();
}

void WindowsComboBox::clear() {
    const Setting guard(*this);
    m_items.clear();
    m_selected = -1;
    m_text.clear();
    send(CB_RESETCONTENT);
}

int WindowsComboBox::add(std::string_view item) {
    const Setting guard(*this);
    const int before = hasStyle(style::sorted) ? selected() : -1;
    LRESULT index = count();
    if (window()) {
        index = send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(item).c_str()));
        if (index < 0) return -1;
    }
    m_items.insert(m_items.begin() + index, Text(item));
    if (before >= index) select(before + 1);
    return static_cast<int>(index);
}

void WindowsComboBox::remove(int index) {
    if (index < 0 || index >= count()) return;
    const Setting guard(*this);
    const int before = selected();
    const Text shown = doText();
    m_items.erase(m_items.begin() + index);
    send(CB_DELETESTRING, static_cast<WPARAM>(index));
    select(before == index ? -1 : before > index ? before - 1 : before);
    // The field keeps what it shows.
    if (editable()) setText(shown);
}

int WindowsComboBox::count() const {
    return static_cast<int>(m_items.size());
}

Text WindowsComboBox::item(int index) const {
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)] : Text();
}

void WindowsComboBox::select(int index) {
    const Setting guard(*this);
    m_choosing = false;
    m_selected = index >= 0 && index < count() ? index : -1;
    m_text = item(m_selected);
    send(CB_SETCURSEL, static_cast<WPARAM>(m_selected));
}

// Typing leaves the system's list selection where it was; an item is selected only while the field
// shows it.
int WindowsComboBox::selected() const {
    if (!window()) return m_selected;
    const int index = static_cast<int>(send(CB_GETCURSEL));
    if (index < 0 || !editable() || m_choosing) return index;
    return ControlCore::windowText() == item(index) ? index : -1;
}

void WindowsComboBox::dropDown(bool open) {
    const Setting guard(*this);
    m_selectedAtOpening = open ? std::optional(selected()) : std::nullopt;
    send(CB_SHOWDROPDOWN, open);
    // Opening hides the mouse pointer until it moves.
    if (open) SetCursor(LoadCursorW(nullptr, IDC_ARROW));
}

void WindowsComboBox::selectAllText() {
    if (editable()) send(CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
}

// Enter and Esc close the open list.
bool WindowsComboBox::wantsKey(int key) const {
    return droppedDown() && (key == key::enter || key == key::escape);
}

void WindowsComboBox::command(WORD code) {
    if (code == CBN_DROPDOWN) m_selectedAtOpening = selected();
    if (code == CBN_SELENDCANCEL && m_selectedAtOpening && !editable()) {
        // Esc in an open list puts the old item back; not every version of the system does.
        send(CB_SETCURSEL, static_cast<WPARAM>(*m_selectedAtOpening));
        userSelected();
    }
    if (code == CBN_CLOSEUP) m_selectedAtOpening.reset();
    if (code == CBN_SELCHANGE) userSelected();
    if (code == CBN_EDITCHANGE) {
        m_selected = selected();
        fire(onChange);
    }
}

void WindowsComboBox::userSelected() {
    const int chosen = static_cast<int>(send(CB_GETCURSEL));
    if (chosen == m_selected) return;
    m_selected = chosen;
    m_choosing = true;
    fire(onSelect);
    m_choosing = false;
}

}  // namespace lx
