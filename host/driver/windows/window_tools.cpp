#include "host/driver/windows/window_tools.h"

#include <algorithm>
#include <array>

#include "platform/text.h"

namespace lx::host {

std::wstring toWide(std::string_view utf8) {
    const int bytes = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, result.data(), length);
    return result;
}

std::string fromWide(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int bytes =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(bytes), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), bytes, nullptr, nullptr);
    return result;
}

namespace {

std::wstring className(HWND window) {
    std::array<wchar_t, 64> buffer{};
    const int length = GetClassNameW(window, buffer.data(), static_cast<int>(buffer.size()));
    return {buffer.data(), static_cast<std::size_t>(length)};
}

Kind kindOfButton(LONG_PTR windowStyle) {
    switch (windowStyle & BS_TYPEMASK) {
        case BS_GROUPBOX:
            return Kind::groupBox;
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
        case BS_3STATE:
        case BS_AUTO3STATE:
            return Kind::checkBox;
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return Kind::radioButton;
        default:
            return Kind::pushButton;
    }
}

Kind kindOfStatic(LONG_PTR windowStyle) {
    const LONG_PTR type = windowStyle & SS_TYPEMASK;
    return type == SS_ICON || type == SS_BITMAP || type == SS_OWNERDRAW ? Kind::icon : Kind::label;
}

void collect(HWND parent, std::vector<HWND>& found) {
    for (HWND child = GetWindow(parent, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        const Kind kind = kindOf(child);
        if (kind == Kind::dialog) {
            collect(child, found);
            continue;
        }
        found.push_back(child);
        // Pages may stand in a tab control, and a control may be a guest in a picture. What other
        // controls hold is their own business.
        if (kind == Kind::picture) collect(child, found);
        if (kind == Kind::tabControl) {
            for (HWND page = GetWindow(child, GW_CHILD); page != nullptr;
                 page = GetWindow(page, GW_HWNDNEXT)) {
                if (kindOf(page) == Kind::dialog) collect(page, found);
            }
        }
    }
}

class WindowLook final : public ControlLook {
public:
    explicit WindowLook(HWND window) : m_window(window) {}

    int id() const override { return GetDlgCtrlID(m_window); }
    Kind kind() const override { return kindOf(m_window); }
    bool shown() const override { return IsWindowVisible(m_window) != FALSE; }
    bool enabled() const override { return IsWindowEnabled(m_window) != FALSE; }
    bool checked() const override {
        return (kind() == Kind::checkBox || kind() == Kind::radioButton) &&
               SendMessageW(m_window, BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    bool focused() const override { return GetFocus() == m_window; }
    std::string text() const override { return windowText(m_window); }
    std::string textBefore() const override {
        const HWND before = GetWindow(m_window, GW_HWNDPREV);
        return before != nullptr && kindOf(before) == Kind::label ? windowText(before)
                                                                  : std::string();
    }
    std::string tooltip() const override { return ask(m_window, DescribeQuestion::tooltip); }

private:
    HWND m_window;
};

ControlLooks looksOf(const std::vector<HWND>& windows) {
    ControlLooks looks;
    for (const HWND window : windows) looks.push_back(std::make_unique<WindowLook>(window));
    return looks;
}

}  // namespace

Kind kindOf(HWND window) {
    const std::wstring name = className(window);
    const auto is = [&](const wchar_t* other) { return lstrcmpiW(name.c_str(), other) == 0; };
    const LONG_PTR windowStyle = GetWindowLongPtrW(window, GWL_STYLE);
    if (is(L"Button")) return kindOfButton(windowStyle);
    if (is(L"Static")) return kindOfStatic(windowStyle);
    if (is(L"Edit")) return Kind::edit;
    if (is(L"ListBox")) return Kind::listBox;
    if (is(L"ComboBox")) return Kind::comboBox;
    if (is(L"SysListView32")) return Kind::listView;
    if (is(L"SysTabControl32")) return Kind::tabControl;
    if (is(L"#32770")) return Kind::dialog;
    return Kind::picture;
}

std::string quotedName(std::string_view text) {
    return "\"" + std::string(text) + "\"";
}

std::string windowText(HWND window) {
    const auto length = SendMessageW(window, WM_GETTEXTLENGTH, 0, 0);
    std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
    const auto copied = SendMessageW(window, WM_GETTEXT, static_cast<WPARAM>(text.size()),
                                     reinterpret_cast<LPARAM>(text.data()));
    return fromWide(std::wstring_view(text).substr(0, static_cast<std::size_t>(copied)));
}

std::string plainText(HWND window) {
    return withoutMnemonic(windowText(window));
}

std::string ask(HWND window, DescribeQuestion question, int index, const char* topic) {
    static const UINT message = RegisterWindowMessageW(describeMessageName);
    std::string buffer(256, '\0');
    for (;;) {
        DescribeRequest request;
        request.topic = topic;
        request.index = index;
        request.buffer = buffer.data();
        request.capacity = buffer.size();
        const auto size = static_cast<std::size_t>(SendMessageW(
            window, message, static_cast<WPARAM>(question), reinterpret_cast<LPARAM>(&request)));
        if (size <= buffer.size()) return toUtf8(std::string_view(buffer).substr(0, size));
        buffer.resize(size);
    }
}

bool isOurs(HWND dialog) {
    static const UINT message = RegisterWindowMessageW(describeMessageName);
    DescribeRequest request;
    return SendMessageW(dialog, message, static_cast<WPARAM>(DescribeQuestion::isOurs),
                        reinterpret_cast<LPARAM>(&request)) != 0;
}

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == separator) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

std::vector<HWND> controlsOf(HWND dialog) {
    std::vector<HWND> found;
    collect(dialog, found);
    return found;
}

bool isPushButton(HWND window) {
    return window != nullptr && kindOf(window) == Kind::pushButton;
}

HWND findControl(HWND dialog, std::string_view name) {
    const std::vector<HWND> all = controlsOf(dialog);
    const std::size_t place = findNamed(looksOf(all), name);
    return place < all.size() ? all[place] : nullptr;
}

std::string describeControl(HWND control) {
    return describeControl(WindowLook(control));
}

std::string dumpControls(HWND dialog) {
    return dumpControls(windowText(dialog), looksOf(controlsOf(dialog)));
}

}  // namespace lx::host
