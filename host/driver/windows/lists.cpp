#include "host/driver/windows/lists.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

#include "host/driver/windows/window_tools.h"

namespace lx::host {

namespace {

constexpr std::size_t textCapacity = 1024;

WPARAM asParameter(int number) {
    return static_cast<WPARAM>(number);
}

// For the two kinds whose rows are asked for by length and text.
std::string textByLength(HWND list, UINT askLength, UINT askText, int row) {
    const auto length = SendMessageW(list, askLength, asParameter(row), 0);
    if (length < 0) return {};
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    SendMessageW(list, askText, asParameter(row), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(length));
    return fromWide(text);
}

std::string cellText(HWND listView, int row, int column) {
    std::array<wchar_t, textCapacity> buffer{};
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = buffer.data();
    item.cchTextMax = static_cast<int>(buffer.size());
    SendMessageW(listView, LVM_GETITEMTEXTW, asParameter(row), reinterpret_cast<LPARAM>(&item));
    return fromWide(item.pszText);
}

std::string tabTitle(HWND tabs, int index) {
    std::array<wchar_t, textCapacity> buffer{};
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = buffer.data();
    item.cchTextMax = static_cast<int>(buffer.size());
    SendMessageW(tabs, TCM_GETITEMW, asParameter(index), reinterpret_cast<LPARAM>(&item));
    return fromWide(item.pszText);
}

HDITEMW headingItem(HWND listView, int column, wchar_t* buffer, int capacity) {
    HDITEMW item{};
    item.mask = HDI_TEXT | HDI_FORMAT | HDI_IMAGE;
    item.pszText = buffer;
    item.cchTextMax = capacity;
    SendMessageW(headerOf(listView), HDM_GETITEMW, asParameter(column),
                 reinterpret_cast<LPARAM>(&item));
    return item;
}

RECT visiblePart(HWND window, RECT area) {
    RECT client;
    GetClientRect(window, &client);
    RECT result;
    return IntersectRect(&result, &area, &client) ? result : area;
}

RECT listBoxRow(HWND list, int row) {
    RECT area{};
    RECT client;
    GetClientRect(list, &client);
    SendMessageW(list, LB_GETITEMRECT, asParameter(row), reinterpret_cast<LPARAM>(&area));
    if (area.top < client.top || area.bottom > client.bottom) {
        SendMessageW(list, LB_SETTOPINDEX, asParameter(row), 0);
        SendMessageW(list, LB_GETITEMRECT, asParameter(row), reinterpret_cast<LPARAM>(&area));
    }
    return area;
}

RECT listViewRow(HWND list, int row) {
    SendMessageW(list, LVM_ENSUREVISIBLE, asParameter(row), FALSE);
    RECT area{};
    area.left = LVIR_LABEL;
    SendMessageW(list, LVM_GETITEMRECT, asParameter(row), reinterpret_cast<LPARAM>(&area));
    return area;
}

POINT middleOf(const RECT& area) {
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

}  // namespace

bool isList(HWND window) {
    const Kind kind = kindOf(window);
    return kind == Kind::listBox || kind == Kind::comboBox || kind == Kind::listView ||
           kind == Kind::tabControl;
}

int rowCountOf(HWND list) {
    switch (kindOf(list)) {
        case Kind::listBox:
            return static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
        case Kind::comboBox:
            return static_cast<int>(SendMessageW(list, CB_GETCOUNT, 0, 0));
        case Kind::listView:
            return static_cast<int>(SendMessageW(list, LVM_GETITEMCOUNT, 0, 0));
        default:
            return static_cast<int>(SendMessageW(list, TCM_GETITEMCOUNT, 0, 0));
    }
}

std::string rowTextOf(HWND list, int row) {
    switch (kindOf(list)) {
        case Kind::listBox:
            return textByLength(list, LB_GETTEXTLEN, LB_GETTEXT, row);
        case Kind::comboBox:
            return textByLength(list, CB_GETLBTEXTLEN, CB_GETLBTEXT, row);
        case Kind::listView: {
            std::string text;
            for (int column = 0; column < columnCountOf(list); ++column) {
                if (column > 0) text += " | ";
                text += cellText(list, row, column);
            }
            return text;
        }
        default:
            return tabTitle(list, row);
    }
}

int rowOf(HWND list, std::string_view text) {
    const bool hasCells = kindOf(list) == Kind::listView;
    for (int row = 0; row < rowCountOf(list); ++row) {
        if (rowTextOf(list, row) == text) return row;
        if (hasCells && cellText(list, row, 0) == text) return row;
    }
    return -1;
}

std::vector<int> selectedRowsOf(HWND list) {
    std::vector<int> rows;
    const Kind kind = kindOf(list);
    if (kind == Kind::listView) {
        auto row = SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
        while (row >= 0) {
            rows.push_back(static_cast<int>(row));
            row = SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(row), LVNI_SELECTED);
        }
        return rows;
    }
    const UINT question = kind == Kind::listBox    ? UINT{LB_GETCURSEL}
                          : kind == Kind::comboBox ? UINT{CB_GETCURSEL}
                                                   : UINT{TCM_GETCURSEL};
    const auto row = static_cast<int>(SendMessageW(list, question, 0, 0));
    if (row >= 0) rows.push_back(row);
    return rows;
}

POINT pointInRow(HWND list, int row) {
    switch (kindOf(list)) {
        case Kind::listView: {
            const RECT area = visiblePart(list, listViewRow(list, row));
            // Near the text's start, which stands in the first column whatever its width.
            return {std::min(area.left + 5, area.right - 1), (area.top + area.bottom) / 2};
        }
        case Kind::tabControl: {
            RECT area{};
            SendMessageW(list, TCM_GETITEMRECT, asParameter(row), reinterpret_cast<LPARAM>(&area));
            return middleOf(visiblePart(list, area));
        }
        default:
            return middleOf(visiblePart(list, listBoxRow(list, row)));
    }
}

std::optional<POINT> pointBelowRows(HWND listView) {
    RECT client{};
    GetClientRect(listView, &client);
    LVHITTESTINFO hit{};
    hit.pt = {5, client.bottom - 5};
    if (SendMessageW(listView, LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(&hit)) >= 0) {
        return std::nullopt;
    }
    return hit.pt;
}

HWND headerOf(HWND listView) {
    return reinterpret_cast<HWND>(SendMessageW(listView, LVM_GETHEADER, 0, 0));
}

int columnCountOf(HWND listView) {
    return static_cast<int>(SendMessageW(headerOf(listView), HDM_GETITEMCOUNT, 0, 0));
}

std::string headingText(HWND listView, int column) {
    std::array<wchar_t, textCapacity> buffer{};
    const HDITEMW item =
        headingItem(listView, column, buffer.data(), static_cast<int>(buffer.size()));
    return fromWide(item.pszText);
}

std::string headingArrow(HWND listView, int column) {
    std::array<wchar_t, textCapacity> buffer{};
    const HDITEMW item =
        headingItem(listView, column, buffer.data(), static_cast<int>(buffer.size()));
    if ((item.fmt & HDF_SORTUP) != 0) return " ^";
    if ((item.fmt & HDF_SORTDOWN) != 0) return " v";
    if ((item.fmt & HDF_IMAGE) == 0) return {};
    return item.iImage == 0 ? " ^" : " v";
}

// A user scrolls the list until the heading is to be seen.
POINT pointInHeading(HWND listView, int column) {
    const HWND header = headerOf(listView);
    RECT area{};
    SendMessageW(header, HDM_GETITEMRECT, asParameter(column), reinterpret_cast<LPARAM>(&area));
    RECT client{};
    GetClientRect(listView, &client);
    RECT seen = area;
    MapWindowPoints(header, listView, reinterpret_cast<POINT*>(&seen), 2);
    if (seen.left < client.left || seen.right > client.right) {
        SendMessageW(listView, LVM_SCROLL, asParameter(static_cast<int>(seen.left)), 0);
    }
    const LONG width = std::min(area.right - area.left, client.right - client.left);
    return {area.left + width / 2, (area.top + area.bottom) / 2};
}

}  // namespace lx::host
