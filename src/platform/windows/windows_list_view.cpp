#include "platform/windows/windows_list_view.h"

#include <algorithm>
#include <numeric>

#include "platform/windows/gdi_canvas.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_dialog.h"
#include "platform/windows/windows_platform.h"

namespace lx {
namespace {

// In image list order.
constexpr int arrowIcons[] = {ascendingIcon, descendingIcon};
constexpr Size arrowSize{16, 16};

bool isPermutation(const std::vector<int>& order) {
    std::vector<bool> seen(order.size());
    for (const int column : order) {
        if (column < 0 || static_cast<std::size_t>(column) >= order.size() ||
            seen[static_cast<std::size_t>(column)]) {
            return false;
        }
        seen[static_cast<std::size_t>(column)] = true;
    }
    return true;
}

}  // namespace

WindowsListView::~WindowsListView() {
    if (m_arrows) ImageList_Destroy(m_arrows);
}

WindowClass WindowsListView::windowClass() const {
    DWORD bits = LVS_REPORT | LVS_OWNERDATA | LVS_SHOWSELALWAYS | WS_CLIPCHILDREN;
    if (!hasStyle(style::multipleSelection)) bits |= LVS_SINGLESEL;
    return {WC_LISTVIEWW, bits, WS_EX_CLIENTEDGE};
}

void WindowsListView::attached() {
    send(CCM_SETUNICODEFORMAT, TRUE);
    send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0,
         LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES | LVS_EX_HEADERDRAGDROP);
}

void WindowsListView::keepState() {
    for (int column = 0; column < columnCount(); ++column) {
        m_columns[static_cast<std::size_t>(column)].width = columnWidth(column);
    }
    m_order = columnOrder();
    m_selected = selectedRows();
}

// When the list became narrower its headings still covered a part of the edge that was painted.
void WindowsListView::areaChanged() {
    RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
}

// ---- columns

void WindowsListView::setColumns(const std::vector<ListColumn>& columns) {
    const Setting guard(*this);
    for (int column = columnCount(); column-- > 0;) {
        send(LVM_DELETECOLUMN, static_cast<WPARAM>(column));
    }
    m_columns.clear();
    for (const ListColumn& column : columns) {
        std::wstring heading = wide(column.heading);
        LVCOLUMNW native = {};
        native.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
        native.fmt = LVCFMT_LEFT;
        native.cx = column.width;
        native.pszText = heading.data();
        native.iSubItem = columnCount();
        send(LVM_INSERTCOLUMNW, m_columns.size(), reinterpret_cast<LPARAM>(&native));
        m_columns.push_back({column.heading, column.width, HeadingArrow::none});
    }
    m_order.resize(m_columns.size());
    std::iota(m_order.begin(), m_order.end(), 0);
}

Text WindowsListView::heading(int column) const {
    return hasColumn(column) ? m_columns[static_cast<std::size_t>(column)].heading : Text();
}

int WindowsListView::columnWidth(int column) const {
    if (!hasColumn(column)) return 0;
    return window() ? static_cast<int>(send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)))
                    : m_columns[static_cast<std::size_t>(column)].width;
}

std::vector<int> WindowsListView::columnOrder() const {
    std::vector<int> order = m_order;
    if (window() && !order.empty()) {
        send(LVM_GETCOLUMNORDERARRAY, order.size(), reinterpret_cast<LPARAM>(order.data()));
    }
    return order;
}

void WindowsListView::setColumnOrder(const std::vector<int>& order) {
    const Setting guard(*this);
    if (order.size() == m_columns.size() && isPermutation(order)) {
        m_order = order;
    } else {
        std::iota(m_order.begin(), m_order.end(), 0);
    }
    std::vector<int> native = m_order;
    send(LVM_SETCOLUMNORDERARRAY, native.size(), reinterpret_cast<LPARAM>(native.data()));
    redraw();
}

HeadingArrow WindowsListView::headingArrow(int column) const {
    return hasColumn(column) ? m_columns[static_cast<std::size_t>(column)].arrow
                             : HeadingArrow::none;
}

void WindowsListView::setHeadingArrow(int column, HeadingArrow arrow) {
    if (!hasColumn(column)) return;
    m_columns[static_cast<std::size_t>(column)].arrow = arrow;
    if (window()) showArrow(column);
}

void WindowsListView::makeArrows() {
    if (m_arrows) return;
    m_arrows = ImageList_Create(arrowSize.width, arrowSize.height, ILC_COLOR32 | ILC_MASK, 2, 0);
    for (const int number : arrowIcons) {
        const HICON icon = dialog().icons().get(number, arrowSize);
        if (m_arrows && icon) ImageList_ReplaceIcon(m_arrows, -1, icon);
    }
    SendMessageW(header(), HDM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(m_arrows));
}

void WindowsListView::showArrow(int column) {
    makeArrows();
    const HeadingArrow arrow = headingArrow(column);
    HDITEMW native = {};
    native.mask = HDI_FORMAT;
    native.fmt = HDF_LEFT | HDF_STRING;
    if (arrow != HeadingArrow::none) {
        native.mask |= HDI_IMAGE;
        native.fmt |= HDF_IMAGE | HDF_BITMAP_ON_RIGHT;
        native.iImage = arrow == HeadingArrow::ascending ? 0 : 1;
    }
    SendMessageW(header(), HDM_SETITEMW, static_cast<WPARAM>(column),
                 reinterpret_cast<LPARAM>(&native));
}

// ---- rows and selection

void WindowsListView::setState(int row, UINT state, UINT mask) {
    LVITEMW item = {};
    item.state = state;
    item.stateMask = mask;
    send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void WindowsListView::setRowCount(int count) {
    const Setting guard(*this);
    if (count != m_rowCount) {
        setState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
        m_selected.clear();
    }
    m_rowCount = std::max(count, 0);
    send(LVM_SETITEMCOUNT, static_cast<WPARAM>(m_rowCount));
    redraw();
}

std::vector<int> WindowsListView::selectedRows() const {
    if (!window()) return m_selected;
    std::vector<int> rows;
    if (send(LVM_GETSELECTEDCOUNT) == m_rowCount) {
        rows.resize(static_cast<std::size_t>(m_rowCount));
        std::iota(rows.begin(), rows.end(), 0);
        return rows;
    }
    LRESULT row = -1;
    while ((row = send(LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED)) >= 0) {
        rows.push_back(static_cast<int>(row));
    }
    return rows;
}

void WindowsListView::selectRows(const std::vector<int>& rows) {
    const Setting guard(*this);
    m_selected.clear();
    for (const int row : rows) {
        if (row >= 0 && row < m_rowCount) m_selected.push_back(row);
    }
    std::sort(m_selected.begin(), m_selected.end());
    if (static_cast<int>(m_selected.size()) == m_rowCount && m_rowCount > 0) {
        setState(-1, LVIS_SELECTED, LVIS_SELECTED);
        return;
    }
    send(WM_SETREDRAW, FALSE);
    setState(-1, 0, LVIS_SELECTED);
    for (const int row : m_selected) setState(row, LVIS_SELECTED, LVIS_SELECTED);
    send(WM_SETREDRAW, TRUE);
    redraw();
}

void WindowsListView::select(int row) {
    const Setting guard(*this);
    setState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
    m_selected.clear();
    if (row < 0 || row >= m_rowCount) return;
    m_selected.push_back(row);
    setState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    send(LVM_SETSELECTIONMARK, 0, row);
    send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
}

int WindowsListView::rowAt(Point p) const {
    LVHITTESTINFO hit = {};
    hit.pt = {p.x, p.y};
    return window() ? static_cast<int>(send(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)))
                    : -1;
}

// ---- what the user does

std::optional<LRESULT> WindowsListView::notified(const NMHDR& header) {
    // A list that is being made is asked for its texts already.
    if (setting() && header.code != LVN_GETDISPINFOW) return std::nullopt;
    switch (header.code) {
        case LVN_GETDISPINFOW:
            giveText(reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(header)));
            return 0;
        case LVN_ITEMCHANGED:
        case LVN_ODSTATECHANGED:
            selectionMayHaveChanged();
            return 0;
        case LVN_COLUMNCLICK:
            fire(onHeading, reinterpret_cast<const NMLISTVIEW&>(header).iSubItem);
            return 0;
        case NM_RCLICK: {
            // Answered with 1, so that no context menu is asked for a second time.
            const POINT at = reinterpret_cast<const NMITEMACTIVATE&>(header).ptAction;
            if (onContext) openContext({static_cast<int>(at.x), static_cast<int>(at.y)});
            return onContext ? 1 : 0;
        }
        case NM_DBLCLK:
            fire(onDoubleClick);
            return 0;
        default:
            return std::nullopt;
    }
}

void WindowsListView::giveText(NMLVDISPINFOW& request) {
    LVITEMW& item = request.item;
    if (!(item.mask & LVIF_TEXT) || !item.pszText || item.cchTextMax <= 0) return;
    std::wstring text;
    const auto ask = cell;
    if (ask && item.iItem >= 0 && item.iItem < m_rowCount && hasColumn(item.iSubItem)) {
        text = wide(ask(item.iItem, item.iSubItem));
    }
    const std::size_t length = std::min(text.size(), static_cast<std::size_t>(item.cchTextMax) - 1);
    std::copy_n(text.begin(), length, item.pszText);
    item.pszText[length] = L'\0';
}

// One click changes several rows, each with a message of its own: told once, when all is done.
void WindowsListView::selectionMayHaveChanged() {
    if (m_reportDue) return;
    m_reportDue = true;
    dialog().root().post([this] { reportSelection(); });
}

void WindowsListView::reportSelection() {
    if (!std::exchange(m_reportDue, false)) return;
    std::vector<int> rows = selectedRows();
    if (rows == m_selected) return;
    m_selected = std::move(rows);
    fire(onSelect);
}

// The click that opens the menu may have selected a row, which is told first.
void WindowsListView::openContext(Point p) {
    reportSelection();
    fire(onContext, p);
}

// The ground and the rows in one go; the system would show the bare ground first.
void WindowsListView::paint() {
    const PaintScope scope(window());
    RECT client = {};
    GetClientRect(window(), &client);
    const OffScreen bitmap(scope.dc(), portableRect(client).size());
    if (!bitmap.dc()) return;
    FillRect(bitmap.dc(), &client, GetSysColorBrush(COLOR_WINDOW));
    inherited(WM_PAINT, reinterpret_cast<WPARAM>(bitmap.dc()), 0);
    bitmap.copyTo(scope.dc());
}

// Themes paint the bare ground along with the edge unless it is left out. invalid: what is to be
// painted, in screen coordinates; 1 = all.
LRESULT WindowsListView::paintEdge(WPARAM invalid) {
    RECT area = {};
    GetWindowRect(window(), &area);
    RECT client = {};
    GetClientRect(window(), &client);
    MapWindowPoints(window(), nullptr, reinterpret_cast<POINT*>(&client), 2);
    const HRGN edge = CreateRectRgnIndirect(&area);
    const HRGN inside = CreateRectRgnIndirect(&client);
    if (invalid != 1) CombineRgn(edge, edge, reinterpret_cast<HRGN>(invalid), RGN_AND);
    CombineRgn(edge, edge, inside, RGN_DIFF);
    const LRESULT result = inherited(WM_NCPAINT, reinterpret_cast<WPARAM>(edge), 0);
    DeleteObject(inside);
    DeleteObject(edge);
    return result;
}

LRESULT WindowsListView::message(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) return 1;
    if (message == WM_NCPAINT) return paintEdge(wParam);
    if (message == WM_PAINT) {
        paint();
        return 0;
    }
    // The right button's menu comes as a notification with the point clicked.
    if (message == WM_CONTEXTMENU && lParam == -1 && onContext) {
        openContext(keyboardContextPoint());
        return 0;
    }
    return ControlCore::message(message, wParam, lParam);
}

// The keyboard names no point: the menu then opens at the first selected row.
Point WindowsListView::keyboardContextPoint() const {
    const std::vector<int> rows = selectedRows();
    RECT area = {};
    area.left = LVIR_BOUNDS;
    if (rows.empty() || !send(LVM_GETITEMRECT, static_cast<WPARAM>(rows.front()),
                              reinterpret_cast<LPARAM>(&area))) {
        return {4, 4};
    }
    return {4, static_cast<int>(area.top + area.bottom) / 2};
}

}  // namespace lx
