#include "platform/windows/windows_list_box.h"

#include <algorithm>
#include <utility>

#include "platform/windows/gdi_canvas.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_dialog.h"

namespace lx {
namespace {

constexpr Size rowIcon{12, 12};
constexpr Point rowIconAt{2, 2};

Text colorText(const std::optional<Color>& color) {
    if (!color) return {};
    return std::to_string(color->red) + "," + std::to_string(color->green) + "," +
           std::to_string(color->blue);
}

// The same face in rows that are too low for it. height: of a whole line, in pixels.
HFONT lowerFont(HFONT font, int height) {
    LOGFONTW look = {};
    if (!GetObjectW(font, sizeof look, &look)) return nullptr;
    look.lfHeight = height;
    look.lfWidth = 0;
    return CreateFontIndirectW(&look);
}

}  // namespace

WindowsListBox::~WindowsListBox() {
    if (m_smallFont) DeleteObject(m_smallFont);
}

WindowClass WindowsListBox::windowClass() const {
    DWORD bits =
        LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_CLIPSIBLINGS;
    if (hasStyle(style::verticalScroll)) bits |= WS_VSCROLL;
    return {L"LISTBOX", bits, WS_EX_CLIENTEDGE};
}

void WindowsListBox::attached() {
    setRowHeight(m_rowHeight);
    addRows();
    send(LB_SETCURSEL, static_cast<WPARAM>(m_selected));
}

void WindowsListBox::setRowHeight(int pixels) {
    m_rowHeight = pixels;
    if (window()) {
        const int textHeight = dialog().textHeight();
        if (pixels <= 0) pixels = textHeight + 2;
        if (m_smallFont) DeleteObject(std::exchange(m_smallFont, nullptr));
        if (textHeight > pixels) m_smallFont = lowerFont(dialog().font(), pixels);
    }
    send(LB_SETITEMHEIGHT, 0, pixels);
    redraw();
}

// The list settles its scroll bar and what is to be painted at every row unless it is told to wait.
void WindowsListBox::fill(std::vector<ListRow> rows) {
    m_rows = std::move(rows);
    m_selected = -1;
    if (!window()) return;
    send(WM_SETREDRAW, FALSE);
    send(LB_RESETCONTENT);
    addRows();
    send(WM_SETREDRAW, TRUE);
    redraw();
}

void WindowsListBox::addRows() {
    std::size_t bytes = 0;
    for (const ListRow& row : m_rows) bytes += (row.text.size() + 1) * sizeof(wchar_t);
    send(LB_INITSTORAGE, m_rows.size(), static_cast<LPARAM>(bytes));
    for (const ListRow& row : m_rows) {
        send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide(row.text).c_str()));
    }
}

void WindowsListBox::insert(int index, const ListRow& row) {
    if (index < 0 || index > count()) return;
    const bool atEnd = index == count();
    const int before = atEnd ? m_selected : selected();
    m_rows.insert(m_rows.begin() + index, row);
    send(LB_INSERTSTRING, static_cast<WPARAM>(index),
         reinterpret_cast<LPARAM>(wide(row.text).c_str()));
    if (!atEnd && before >= index) select(before + 1);
}

void WindowsListBox::set(int index, const ListRow& row) {
    if (index < 0 || index >= count()) return;
    ListRow& place = m_rows[static_cast<std::size_t>(index)];
    const bool sameText = place.text == row.text;
    place = row;
    if (!window()) return;
    if (sameText) {
        RECT area = {};
        send(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&area));
        InvalidateRect(window(), &area, FALSE);
        return;
    }
    const int before = selected();
    const LRESULT top = send(LB_GETTOPINDEX);
    send(WM_SETREDRAW, FALSE);
    send(LB_DELETESTRING, static_cast<WPARAM>(index));
    send(LB_INSERTSTRING, static_cast<WPARAM>(index),
         reinterpret_cast<LPARAM>(wide(row.text).c_str()));
    send(LB_SETCURSEL, static_cast<WPARAM>(before));
    send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
    send(WM_SETREDRAW, TRUE);
    redraw();
}

void WindowsListBox::remove(int index) {
    if (index < 0 || index >= count()) return;
    const int before = selected();
    m_rows.erase(m_rows.begin() + index);
    send(LB_DELETESTRING, static_cast<WPARAM>(index));
    if (before == index) {
        select(-1);
    } else {
        select(before > index ? before - 1 : before);
    }
}

const ListRow& WindowsListBox::row(int index) const {
    static const ListRow none;
    return index >= 0 && index < count() ? m_rows[static_cast<std::size_t>(index)] : none;
}

void WindowsListBox::select(int index) {
    m_selected = index >= 0 && index < count() ? index : -1;
    const Setting guard(*this);
    send(LB_SETCURSEL, static_cast<WPARAM>(m_selected));
}

int WindowsListBox::selected() const {
    return window() ? static_cast<int>(send(LB_GETCURSEL)) : m_selected;
}

int WindowsListBox::rowAt(Point p) const {
    if (!window()) return -1;
    const LRESULT first = send(LB_GETTOPINDEX);
    const LRESULT height = send(LB_GETITEMHEIGHT);
    RECT client = {};
    GetClientRect(window(), &client);
    if (height <= 0 || !portableRect(client).contains(p)) return -1;
    const LRESULT row = first + p.y / height;
    return row < count() ? static_cast<int>(row) : -1;
}

void WindowsListBox::command(WORD code) {
    if (code == LBN_SELCHANGE && selected() != m_selected) {
        m_selected = selected();
        fire(onSelect);
    }
    if (code == LBN_DBLCLK) fire(onDoubleClick);
}

// Rows paint their own ground: only what is left below them.
void WindowsListBox::eraseBelowRows(HDC dc) const {
    RECT area = {};
    GetClientRect(window(), &area);
    const LRESULT rows = count() - send(LB_GETTOPINDEX);
    area.top = static_cast<LONG>(std::min<LRESULT>(rows * send(LB_GETITEMHEIGHT), area.bottom));
    FillRect(dc, &area, GetSysColorBrush(COLOR_WINDOW));
}

LRESULT WindowsListBox::message(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        eraseBelowRows(reinterpret_cast<HDC>(wParam));
        return 1;
    }
    if (message == WM_CONTEXTMENU && onContext) {
        fire(onContext, contextPoint(lParam));
        return 0;
    }
    return ControlCore::message(message, wParam, lParam);
}

// The keyboard names no point: the menu then opens at the selected row.
Point WindowsListBox::contextPoint(LPARAM lParam) const {
    if (lParam == -1) {
        RECT area = {};
        const int row = selected();
        if (row >= 0) {
            send(LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&area));
        }
        return {static_cast<int>(area.left) + 4,
                row >= 0 ? static_cast<int>(area.top + area.bottom) / 2 : 4};
    }
    POINT p = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    ScreenToClient(window(), &p);
    return {static_cast<int>(p.x), static_cast<int>(p.y)};
}

void WindowsListBox::drawItem(const DRAWITEMSTRUCT& item) {
    if (item.itemID >= m_rows.size()) {
        if (item.itemState & ODS_FOCUS) DrawFocusRect(item.hDC, &item.rcItem);
        return;
    }
    const bool marked = (item.itemState & ODS_SELECTED) != 0;
    drawRow(item.hDC, item.rcItem, m_rows[item.itemID], marked);
    if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT)) {
        DrawFocusRect(item.hDC, &item.rcItem);
    }
}

void WindowsListBox::drawRow(HDC dc, const RECT& area, const ListRow& row, bool marked) {
    COLORREF background = GetSysColor(marked ? COLOR_HIGHLIGHT : COLOR_WINDOW);
    COLORREF text = GetSysColor(marked ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT);
    if (marked && row.selectedBackground) {
        background = nativeColor(*row.selectedBackground);
        text = GetSysColor(COLOR_WINDOWTEXT);
    }
    if (row.textColor) text = nativeColor(*row.textColor);
    if (!isEnabled()) text = GetSysColor(COLOR_GRAYTEXT);

    const std::wstring shown = wide(row.text);
    const int saved = SaveDC(dc);
    SelectObject(dc, m_smallFont ? m_smallFont : dialog().font());
    SetTextColor(dc, text);
    SetBkColor(dc, background);
    SIZE size = {};
    GetTextExtentPoint32W(dc, shown.c_str(), static_cast<int>(shown.size()), &size);
    const int y =
        static_cast<int>(area.top) +
        std::max(0, (static_cast<int>(area.bottom - area.top) - static_cast<int>(size.cy)) / 2);
    // Ground and text at once.
    ExtTextOutW(dc, static_cast<int>(area.left) + row.indent, y, ETO_CLIPPED | ETO_OPAQUE, &area,
                shown.c_str(), static_cast<UINT>(shown.size()), nullptr);
    RestoreDC(dc, saved);
    if (row.icon) {
        GdiCanvas canvas(dc, dialog().drawingTools());
        canvas.drawIcon(
            row.icon,
            {static_cast<int>(area.left) + rowIconAt.x, static_cast<int>(area.top) + rowIconAt.y},
            rowIcon);
    }
}

Text WindowsListBox::describe(DescribeQuestion question, const DescribeRequest& request) {
    if (question != DescribeQuestion::rowLook || request.index < 0 || request.index >= count()) {
        return {};
    }
    const ListRow& asked = row(request.index);
    return colorText(asked.textColor) + "|" + colorText(asked.selectedBackground) + "|" +
           (asked.icon ? std::to_string(asked.icon) : Text());
}

}  // namespace lx
