#include "host/driver/windows/keyboard.h"

#include <algorithm>
#include <utility>

namespace lx::host {

namespace {

constexpr std::array<std::pair<std::string_view, int>, 21> names = {{
    {"Enter", VK_RETURN},   {"Tab", VK_TAB},       {"Esc", VK_ESCAPE},   {"Delete", VK_DELETE},
    {"Backspace", VK_BACK}, {"Insert", VK_INSERT}, {"Home", VK_HOME},    {"End", VK_END},
    {"PageUp", VK_PRIOR},   {"PageDown", VK_NEXT}, {"PgUp", VK_PRIOR},   {"PgDn", VK_NEXT},
    {"Left", VK_LEFT},      {"Right", VK_RIGHT},   {"Up", VK_UP},        {"Down", VK_DOWN},
    {"Space", VK_SPACE},    {"Menu", VK_APPS},     {"Ctrl", VK_CONTROL}, {"Shift", VK_SHIFT},
    {"Alt", VK_MENU},
}};

bool takePrefix(std::string_view& text, std::string_view prefix) {
    if (text.size() <= prefix.size() || text.substr(0, prefix.size()) != prefix) return false;
    text.remove_prefix(prefix.size());
    return true;
}

int functionKey(std::string_view name) {
    if (name.size() < 2 || name.size() > 3 || name[0] != 'F') return 0;
    int number = 0;
    for (const char c : name.substr(1)) {
        if (c < '0' || c > '9') return 0;
        number = number * 10 + (c - '0');
    }
    return number >= 1 && number <= 24 ? VK_F1 + number - 1 : 0;
}

int plainKey(std::string_view name) {
    const auto* const found = std::find_if(names.begin(), names.end(),
                                           [&](const auto& entry) { return entry.first == name; });
    if (found != names.end()) return found->second;
    if (name.size() == 1) {
        const char c = name[0];
        if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z')) return c;
        if (c >= 'a' && c <= 'z') return c - 'a' + 'A';
        const std::optional<KeyPress> typing = keyTyping(static_cast<wchar_t>(c));
        return typing ? typing->key : 0;
    }
    return functionKey(name);
}

bool isExtended(int key) {
    return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE ||
           key == VK_APPS;
}

LPARAM keyParameter(const KeyPress& press, bool up) {
    const UINT scan = MapVirtualKeyW(static_cast<UINT>(press.key), MAPVK_VK_TO_VSC);
    LPARAM result = 1 | static_cast<LPARAM>((scan & 0xFFU) << 16U);
    if (isExtended(press.key)) result |= LPARAM{1} << 24;
    if (press.alt && !press.ctrl) result |= LPARAM{1} << 29;
    if (up) result |= (LPARAM{1} << 30) | static_cast<LPARAM>(0x80000000U);
    return result;
}

}  // namespace

std::optional<KeyPress> keyNamed(std::string_view name) {
    KeyPress press;
    for (bool more = true; more;) {
        more = false;
        if (takePrefix(name, "Ctrl+")) more = press.ctrl = true;
        if (takePrefix(name, "Shift+")) more = press.shift = true;
        if (takePrefix(name, "Alt+")) more = press.alt = true;
    }
    press.key = plainKey(name);
    return press.key == 0 ? std::nullopt : std::optional(press);
}

std::optional<KeyPress> keyTyping(wchar_t character) {
    switch (character) {
        case L'\r':
        case L'\n':
            return KeyPress{VK_RETURN, false, false, false};
        case L'\t':
            return KeyPress{VK_TAB, false, false, false};
        case L'\b':
            return KeyPress{VK_BACK, false, false, false};
        default:
            break;
    }
    const SHORT found = VkKeyScanExW(character, GetKeyboardLayout(0));
    const int held = HIBYTE(found);
    if (found == -1 || (held & ~1) != 0 || character < L' ') return std::nullopt;
    KeyPress press;
    press.key = LOBYTE(found);
    press.shift = (held & 1) != 0;
    return press;
}

HeldKeys::HeldKeys(const KeyPress& press) {
    GetKeyboardState(m_before.data());
    std::array<BYTE, 256> state = m_before;
    // What a person at the machine happens to hold does not count.
    constexpr BYTE down = 0x80;
    const auto set = [&](std::initializer_list<int> keys, bool on) {
        for (const int key : keys) state[static_cast<std::size_t>(key)] = on ? down : BYTE{0};
    };
    set({VK_CONTROL, VK_LCONTROL}, press.ctrl);
    set({VK_SHIFT, VK_LSHIFT}, press.shift);
    set({VK_MENU, VK_LMENU}, press.alt);
    set({VK_RCONTROL, VK_RSHIFT, VK_RMENU, VK_CAPITAL}, false);
    SetKeyboardState(state.data());
}

HeldKeys::~HeldKeys() {
    SetKeyboardState(m_before.data());
}

void postKey(HWND window, const KeyPress& press) {
    const bool system = (press.alt && !press.ctrl) || (press.key == VK_F10 && !press.ctrl);
    const auto key = static_cast<WPARAM>(press.key);
    PostMessageW(window, system ? WM_SYSKEYDOWN : WM_KEYDOWN, key, keyParameter(press, false));
    PostMessageW(window, system ? WM_SYSKEYUP : WM_KEYUP, key, keyParameter(press, true));
}

}  // namespace lx::host
