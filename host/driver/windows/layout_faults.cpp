#include "host/driver/windows/layout_faults.h"

#include <algorithm>

#include "host/driver/windows/window_tools.h"

namespace lx::host {

namespace {

ScreenArea portable(const RECT& area) {
    return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.right),
            static_cast<int>(area.bottom)};
}

ScreenArea screenArea(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return portable(area);
}

ScreenArea screenClient(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return portable(area);
}

class TextMeasure {
public:
    explicit TextMeasure(HWND window) : m_window(window), m_dc(GetDC(window)) {
        const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(window, WM_GETFONT, 0, 0));
        m_before = SelectObject(m_dc, font != nullptr ? font : GetStockObject(SYSTEM_FONT));
    }
    ~TextMeasure() {
        SelectObject(m_dc, m_before);
        ReleaseDC(m_window, m_dc);
    }
    TextMeasure(const TextMeasure&) = delete;
    TextMeasure& operator=(const TextMeasure&) = delete;

    // As broken into lines of that width.
    SIZE size(const std::string& utf8, int width, UINT flags) const {
        const std::wstring text = toWide(utf8);
        RECT area{0, 0, width, 0};
        DrawTextW(m_dc, text.c_str(), -1, &area, DT_CALCRECT | flags);
        return {area.right, area.bottom};
    }

private:
    HWND m_window;
    HDC m_dc;
    HGDIOBJ m_before;
};

// A combo box sees to its own height.
bool tooLowForItsFont(HWND window) {
    RECT client{};
    GetClientRect(window, &client);
    return kindOf(window) == Kind::edit &&
           client.bottom < TextMeasure(window).size("Á", client.right, DT_SINGLELINE).cy;
}

// Empty when all of it is to be seen.
std::string cutText(HWND window) {
    const Kind kind = kindOf(window);
    const LONG_PTR windowStyle = GetWindowLongPtrW(window, GWL_STYLE);
    RECT client{};
    GetClientRect(window, &client);
    int width = client.right - besideText(kind);
    UINT flags = DT_SINGLELINE;
    if (kind == Kind::pushButton) {
        // Such a button shows an icon, its text is for the ear only.
        if ((windowStyle & BS_TYPEMASK) == BS_OWNERDRAW || (windowStyle & BS_ICON) != 0) {
            return {};
        }
    } else if (kind == Kind::checkBox || kind == Kind::radioButton) {
        if ((windowStyle & BS_MULTILINE) != 0) flags = DT_WORDBREAK;
    } else if (kind == Kind::label) {
        const LONG_PTR type = windowStyle & SS_TYPEMASK;
        if (type == SS_LEFT || type == SS_RIGHT || type == SS_CENTER) flags = DT_WORDBREAK;
        if ((windowStyle & SS_NOPREFIX) != 0) flags |= DT_NOPREFIX;
    } else if (kind == Kind::comboBox) {
        // A text that may be edited scrolls; here there is the button that opens the list.
        if ((windowStyle & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST) return {};
        width -= GetSystemMetrics(SM_CXVSCROLL);
        flags |= DT_NOPREFIX;
    } else if (kind != Kind::groupBox) {
        return {};
    }
    std::string text = windowText(window);
    const SIZE needed = TextMeasure(window).size(text, width, flags);
    const bool cut = needed.cx > width || (kind != Kind::groupBox && needed.cy > client.bottom);
    return cut ? text : std::string();
}

}  // namespace

std::vector<std::string> layoutFaultsOf(HWND dialog) {
    std::vector<HWND> seen = controlsOf(dialog);
    seen.erase(std::remove_if(seen.begin(), seen.end(),
                              [](HWND window) { return !IsWindowVisible(window); }),
               seen.end());
    std::vector<ControlPlace> shown;
    for (const HWND window : seen) {
        const HWND parent = GetParent(window);
        ControlPlace place{describeControl(window), kindOf(window), screenArea(window),
                           screenClient(parent), cutText(window)};
        const auto host = std::find(seen.begin(), seen.end(), parent);
        if (host != seen.end()) place.host = static_cast<int>(host - seen.begin());
        place.low = tooLowForItsFont(window);
        shown.push_back(std::move(place));
    }
    return findLayoutFaults(shown);
}

}  // namespace lx::host
