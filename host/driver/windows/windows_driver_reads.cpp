#include <windows.h>

#include <commctrl.h>

#include <array>
#include <numeric>

#include "host/driver/windows/lists.h"
#include "host/driver/windows/stepper.h"
#include "host/driver/windows/window_tools.h"
#include "host/driver/windows/windows_driver.h"

// What can be read off controls without changing anything.
namespace lx::host {

namespace {

struct Region {
    std::string name;
    RECT area{};  // right and bottom included
};

std::vector<Region> regionsOf(HWND picture) {
    std::vector<Region> found;
    for (const std::string& line : split(ask(picture, DescribeQuestion::regions), '\n')) {
        std::array<int, 4> sides{};
        int nameAt = 0;
        // NOLINTNEXTLINE(cert-err34-c): a line of another form is left out
        if (std::sscanf(line.c_str(), "%d %d %d %d %n", &sides[0], &sides[1], &sides[2], &sides[3],
                        &nameAt) != 4) {
            continue;
        }
        found.push_back({line.substr(static_cast<std::size_t>(nameAt)),
                         {sides[0], sides[1], sides[2], sides[3]}});
    }
    return found;
}

// The control that a user means by the window with the focus: not the field inside a box.
HWND ownControl(HWND focused) {
    const HWND parent = GetParent(focused);
    return parent != nullptr && kindOf(parent) == Kind::comboBox ? parent : focused;
}

class OpenClipboardScope {
public:
    OpenClipboardScope() {
        // Another program may hold it for a moment.
        for (int i = 0; i < 20 && !m_open; ++i) {
            m_open = OpenClipboard(nullptr) != FALSE;
            if (!m_open) Sleep(20);
        }
    }
    ~OpenClipboardScope() {
        if (m_open) CloseClipboard();
    }
    OpenClipboardScope(const OpenClipboardScope&) = delete;
    OpenClipboardScope& operator=(const OpenClipboardScope&) = delete;
    bool open() const { return m_open; }

private:
    bool m_open = false;
};

}  // namespace

std::string WindowsDriver::text(ControlName name) {
    const HWND window = control(name);
    const Kind kind = kindOf(window);
    if (kind == Kind::pushButton || kind == Kind::checkBox || kind == Kind::radioButton ||
        kind == Kind::groupBox || kind == Kind::label) {
        return plainText(window);
    }
    if (kind == Kind::listBox || kind == Kind::listView) {
        const std::vector<int> selected = selectedRowsOf(window);
        return selected.empty() ? std::string() : rowTextOf(window, selected.front());
    }
    return windowText(window);
}

int WindowsDriver::rowCount(ControlName name) {
    const HWND window = control(name);
    if (!isList(window)) {
        throw DriverError("\"" + std::string(name) + "\" is a " + kindName(kindOf(window)) +
                          ", not a list");
    }
    return rowCountOf(window);
}

RowLook WindowsDriver::row(ControlName name, int row) {
    const HWND window = list(name, row);
    RowLook look;
    look.text = rowTextOf(window, row);
    const std::vector<std::string> parts = split(ask(window, DescribeQuestion::rowLook, row), '|');
    if (parts.size() >= 3) {
        look.textColor = parts[0];
        look.background = parts[1];
        look.icon = std::atoi(parts[2].c_str());
    }
    return look;
}

std::vector<int> WindowsDriver::selectedRows(ControlName name) {
    const HWND window = control(name);
    rowCount(name);
    return selectedRowsOf(window);
}

std::string WindowsDriver::selectedTab() {
    for (const HWND window : controlsOf(topDialog())) {
        if (kindOf(window) != Kind::tabControl) continue;
        const std::vector<int> selected = selectedRowsOf(window);
        return selected.empty() ? std::string() : rowTextOf(window, selected.front());
    }
    throw DriverError("there are no tabs in " + dumpControls(topDialog()));
}

std::string WindowsDriver::focusedControl() {
    const HWND dialog = topDialog();
    const HWND focused = GetFocus();
    if (focused == nullptr || !IsChild(dialog, focused)) return {};
    return describeControl(ownControl(focused));
}

std::string WindowsDriver::defaultButton() {
    const HWND dialog = topDialog();
    HWND button = GetFocus();
    if (!isPushButton(button) || !IsChild(dialog, button)) {
        const auto answer = static_cast<DWORD>(SendMessageW(dialog, DM_GETDEFID, 0, 0));
        button = HIWORD(answer) == DC_HASDEFID ? GetDlgItem(dialog, LOWORD(answer)) : nullptr;
    }
    return button != nullptr ? plainText(button) : std::string();
}

std::string WindowsDriver::editSelection(ControlName name) {
    const HWND window = control(name);
    DWORD begin = 0;
    DWORD end = 0;
    const UINT question = kindOf(window) == Kind::comboBox ? UINT{CB_GETEDITSEL} : UINT{EM_GETSEL};
    SendMessageW(window, question, reinterpret_cast<WPARAM>(&begin),
                 reinterpret_cast<LPARAM>(&end));
    return std::to_string(begin) + "-" + std::to_string(end);
}

std::string WindowsDriver::tooltip(ControlName name) {
    return ask(control(name), DescribeQuestion::tooltip);
}

std::string WindowsDriver::cursor(ControlName picture) {
    if (!picture.empty()) return ask(control(picture), DescribeQuestion::cursor);
    const char* const point = m_mouseAt.empty() ? nullptr : m_mouseAt.c_str();
    return ask(topDialog(), DescribeQuestion::cursor, 0, point);
}

std::string WindowsDriver::drawing(ControlName picture) {
    return ask(control(picture), DescribeQuestion::drawing);
}

std::string WindowsDriver::clipboard() {
    const OpenClipboardScope scope;
    if (!scope.open()) throw DriverError("the clipboard cannot be opened");
    const HANDLE data = GetClipboardData(CF_UNICODETEXT);
    if (data == nullptr) return {};
    const auto* text = static_cast<const wchar_t*>(GlobalLock(data));
    const std::string result = text != nullptr ? fromWide(text) : std::string();
    GlobalUnlock(data);
    return result;
}

std::vector<std::string> WindowsDriver::headings(ControlName name) {
    const HWND window = listView(name);
    std::vector<std::string> result;
    for (int column = 0; column < columnCountOf(window); ++column) {
        result.push_back(headingText(window, column) + headingArrow(window, column));
    }
    return result;
}

std::vector<int> WindowsDriver::columnWidths(ControlName name) {
    const HWND window = listView(name);
    std::vector<int> widths;
    for (int column = 0; column < columnCountOf(window); ++column) {
        widths.push_back(static_cast<int>(
            SendMessageW(window, LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column), 0)));
    }
    return widths;
}

std::vector<int> WindowsDriver::columnOrder(ControlName name) {
    const HWND window = listView(name);
    std::vector<int> order(static_cast<std::size_t>(columnCountOf(window)));
    SendMessageW(window, LVM_GETCOLUMNORDERARRAY, order.size(),
                 reinterpret_cast<LPARAM>(order.data()));
    return order;
}

std::vector<std::string> WindowsDriver::regions(ControlName picture) {
    std::vector<std::string> lines;
    for (const Region& region : regionsOf(control(picture))) {
        lines.push_back(region.name + " " + std::to_string(region.area.left) + " " +
                        std::to_string(region.area.top) + " " + std::to_string(region.area.right) +
                        " " + std::to_string(region.area.bottom));
    }
    return lines;
}

ScreenPoint WindowsDriver::regionPoint(ControlName picture, std::string_view region) {
    for (const Region& known : regionsOf(control(picture))) {
        if (known.name == region) {
            return {std::midpoint(known.area.left, known.area.right),
                    std::midpoint(known.area.top, known.area.bottom)};
        }
    }
    std::string there;
    for (const std::string& line : regions(picture)) there += "\n" + line;
    throw DriverError("there is no region \"" + std::string(region) + "\" in \"" +
                      std::string(picture) + "\"; there are" + there);
}

}  // namespace lx::host
