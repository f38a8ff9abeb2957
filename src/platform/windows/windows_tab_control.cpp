#include "platform/windows/windows_tab_control.h"

#include <windows.h>

#include <commctrl.h>

#include "platform/windows/gdi_canvas.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_dialog.h"

namespace lx {

// Clipped by its siblings: the pages stand above it. Tabs that do not fit side by side stand in
// several rows.
WindowClass WindowsTabControl::windowClass() const {
    return {WC_TABCONTROLW, WS_CLIPSIBLINGS | TCS_MULTILINE};
}

void WindowsTabControl::attached() {
    send(CCM_SETUNICODEFORMAT, TRUE);
}

void WindowsTabControl::keepState() {
    m_selected = selected();
    m_displayArea = displayArea();
}

void WindowsTabControl::addTab(std::string_view title) {
    const Setting guard(*this);
    std::wstring text = wide(title);
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    send(TCM_INSERTITEMW, m_titles.size(), reinterpret_cast<LPARAM>(&item));
    m_titles.emplace_back(title);
    if (m_selected < 0) m_selected = 0;
}

Text WindowsTabControl::tabTitle(int index) const {
    return index >= 0 && index < count() ? m_titles[static_cast<std::size_t>(index)] : Text();
}

void WindowsTabControl::select(int index) {
    if (index < 0 || index >= count()) return;
    const Setting guard(*this);
    m_selected = index;
    send(TCM_SETCURSEL, static_cast<WPARAM>(index));
}

int WindowsTabControl::selected() const {
    return window() ? static_cast<int>(send(TCM_GETCURSEL)) : m_selected;
}

Rect WindowsTabControl::displayArea() const {
    if (!window()) return m_displayArea;
    RECT area = nativeRect(doArea());
    send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    return portableRect(area);
}

std::optional<LRESULT> WindowsTabControl::notified(const NMHDR& header) {
    if (header.code != TCN_SELCHANGE) return std::nullopt;
    if (!setting()) fire(onSelect);
    return 0;
}

}  // namespace lx
