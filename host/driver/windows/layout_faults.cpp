#include "host/driver/windows/layout_faults.h"

#include <algorithm>

#include "host/driver/windows/window_tools.h"

namespace lx::host {

namespace {

// What a button keeps free around its text, and what the mark of a box takes, in pixels.
constexpr int buttonEdges = 6;
constexpr int boxMark = 17;

RECT screenArea(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    return area;
}

RECT screenClient(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

std::string numbers(const RECT& area) {
    return "(" + std::to_string(area.left) + " " + std::to_string(area.top) + " " +
           std::to_string(area.right) + " " + std::to_string(area.bottom) + ")";
}

std::string named(HWND window) {
    return kindName(kindOf(window)) + " " + describeControl(window) + " " +
           numbers(screenArea(window));
}

// Group boxes and tab controls stand around others on purpose; a guest lies on its picture.
bool mayOverlap(HWND a, HWND b) {
    const auto frames = [](HWND window) {
        const Kind kind = kindOf(window);
        return kind == Kind::groupBox || kind == Kind::tabControl;
    };
    return frames(a) || frames(b) || IsChild(a, b) || IsChild(b, a);
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

bool cutsItsText(HWND window) {
    const Kind kind = kindOf(window);
    const LONG_PTR windowStyle = GetWindowLongPtrW(window, GWL_STYLE);
    RECT client{};
    GetClientRect(window, &client);
    int width = client.right;
    UINT flags = DT_SINGLELINE;
    if (kind == Kind::pushButton) {
        // Such a button shows an icon, its text is for the ear only.
        if ((windowStyle & BS_TYPEMASK) == BS_OWNERDRAW || (windowStyle & BS_ICON) != 0) {
            return false;
        }
        width -= buttonEdges;
    } else if (kind == Kind::checkBox || kind == Kind::radioButton) {
        width -= boxMark;
        if ((windowStyle & BS_MULTILINE) != 0) flags = DT_WORDBREAK;
    } else if (kind == Kind::label) {
        const LONG_PTR type = windowStyle & SS_TYPEMASK;
        if (type == SS_LEFT || type == SS_RIGHT || type == SS_CENTER) flags = DT_WORDBREAK;
        if ((windowStyle & SS_NOPREFIX) != 0) flags |= DT_NOPREFIX;
    } else if (kind == Kind::comboBox) {
        // A text that may be edited scrolls; here there is the button that opens the list.
        if ((windowStyle & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST) return false;
        width -= GetSystemMetrics(SM_CXVSCROLL) + buttonEdges;
        flags |= DT_NOPREFIX;
    } else if (kind != Kind::groupBox) {
        return false;
    }
    const std::string text = windowText(window);
    if (text.empty()) return false;
    const SIZE needed = TextMeasure(window).size(text, width, flags);
    return needed.cx > width || (kind != Kind::groupBox && needed.cy > client.bottom);
}

}  // namespace

std::vector<std::string> layoutFaultsOf(HWND dialog) {
    std::vector<HWND> seen = controlsOf(dialog);
    seen.erase(std::remove_if(seen.begin(), seen.end(),
                              [](HWND window) { return !IsWindowVisible(window); }),
               seen.end());
    std::vector<std::string> faults;
    for (std::size_t i = 0; i < seen.size(); ++i) {
        const RECT area = screenArea(seen[i]);
        const RECT room = screenClient(GetParent(seen[i]));
        RECT common{};
        if (!IntersectRect(&common, &area, &room) || !EqualRect(&common, &area)) {
            faults.push_back(named(seen[i]) + " sticks out of " + numbers(room));
        }
        if (cutsItsText(seen[i])) {
            faults.push_back(named(seen[i]) + " cuts its text \"" + windowText(seen[i]) + "\"");
        }
        if (tooLowForItsFont(seen[i])) {
            faults.push_back(named(seen[i]) + " is too low for its font");
        }
        for (std::size_t k = i + 1; k < seen.size(); ++k) {
            const RECT other = screenArea(seen[k]);
            if (!mayOverlap(seen[i], seen[k]) && IntersectRect(&common, &area, &other)) {
                faults.push_back(named(seen[i]) + " overlaps " + named(seen[k]));
            }
        }
    }
    return faults;
}

}  // namespace lx::host
