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

std::string withoutColon(std::string text) {
    while (!text.empty() && (text.back() == ':' || text.back() == ' ')) text.pop_back();
    return text;
}

bool isNamedByLabel(Kind kind) {
    return kind == Kind::edit || kind == Kind::listBox || kind == Kind::comboBox ||
           kind == Kind::listView || kind == Kind::picture;
}

bool isNamedByItsText(Kind kind) {
    return kind == Kind::pushButton || kind == Kind::checkBox || kind == Kind::radioButton ||
           kind == Kind::picture || kind == Kind::listBox || kind == Kind::listView;
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

bool matches(HWND window, std::string_view name, int criterion) {
    const Kind kind = kindOf(window);
    switch (criterion) {
        case 0:
            return name == "#" + std::to_string(GetDlgCtrlID(window));
        case 1:
            return isNamedByItsText(kind) && plainText(window) == name;
        case 2:
            return isNamedByLabel(kind) && !labelBefore(window).empty() &&
                   labelBefore(window) == withoutColon(std::string(name));
        case 3:
            return !name.empty() && ask(window, DescribeQuestion::tooltip) == name;
        default:
            return kind == Kind::groupBox && plainText(window) == name;
    }
}
constexpr int criteria = 5;

std::string describeState(HWND window) {
    std::string state;
    if (!IsWindowVisible(window)) state += " hidden";
    if (!IsWindowEnabled(window)) state += " disabled";
    const Kind kind = kindOf(window);
    if ((kind == Kind::checkBox || kind == Kind::radioButton) &&
        SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED) {
        state += " checked";
    }
    if (GetFocus() == window) state += " focused";
    return state;
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

std::string kindName(Kind kind) {
    static constexpr std::array<const char*, 13> names = {
        "label",    "icon",      "group box", "button",      "check box", "radio button", "edit",
        "list box", "combo box", "list view", "tab control", "dialog",    "picture"};
    return names[static_cast<std::size_t>(kind)];
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
    for (const bool visible : {true, false}) {
        for (int criterion = 0; criterion < criteria; ++criterion) {
            const auto found = std::find_if(all.begin(), all.end(), [&](HWND window) {
                return (IsWindowVisible(window) != FALSE) == visible &&
                       matches(window, name, criterion);
            });
            if (found != all.end()) return *found;
        }
    }
    return nullptr;
}

std::string labelBefore(HWND control) {
    const HWND before = GetWindow(control, GW_HWNDPREV);
    if (before == nullptr || kindOf(before) != Kind::label) return {};
    return withoutColon(plainText(before));
}

std::string describeControl(HWND control) {
    const Kind kind = kindOf(control);
    std::string name;
    if (isNamedByItsText(kind) || kind == Kind::groupBox || kind == Kind::label) {
        name = plainText(control);
    }
    if (name.empty() && isNamedByLabel(kind)) name = labelBefore(control);
    if (name.empty()) name = ask(control, DescribeQuestion::tooltip);
    const std::string number = "#" + std::to_string(GetDlgCtrlID(control));
    return name.empty() ? number : number + " " + name;
}

std::string dumpControls(HWND dialog) {
    std::string result = "\"" + windowText(dialog) + "\"";
    for (const HWND window : controlsOf(dialog)) {
        const Kind kind = kindOf(window);
        result += "\n" + kindName(kind) + " " + describeControl(window);
        if (kind == Kind::edit || kind == Kind::comboBox) result += " = " + windowText(window);
        result += describeState(window);
    }
    return result;
}

}  // namespace lx::host
