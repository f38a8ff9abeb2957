// Keys as a user presses them: posted to a window, so that the modal loop sees them first, while
// the thread's keyboard state says which of Ctrl, Shift and Alt are held.
#pragma once

#include <windows.h>

#include <array>
#include <optional>
#include <string_view>

namespace lx::host {

struct KeyPress {
    int key = 0;  // virtual-key code
    bool ctrl = false;
    bool shift = false;
    bool alt = false;
};

// "Enter", "Shift+Tab", "Ctrl+A", "F10", ...; none for a name that means no key.
std::optional<KeyPress> keyNamed(std::string_view name);
// The key that types the character on this keyboard; none when no key does, or only together with
// Ctrl and Alt.
std::optional<KeyPress> keyTyping(wchar_t character);

// Holds Ctrl, Shift and Alt as long as it lives.
class HeldKeys {
public:
    explicit HeldKeys(const KeyPress& press);
    ~HeldKeys();
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    std::array<BYTE, 256> m_before{};
};

// Down and up again.
void postKey(HWND window, const KeyPress& press);

}  // namespace lx::host
