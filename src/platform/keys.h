// Keys as the platform reports them: the virtual-key codes of Windows, which headless uses as well.
#pragma once

namespace lx {

namespace key {
inline constexpr int backspace = 0x08;
inline constexpr int tab = 0x09;
inline constexpr int enter = 0x0D;
inline constexpr int escape = 0x1B;
inline constexpr int space = 0x20;
inline constexpr int pageUp = 0x21;
inline constexpr int pageDown = 0x22;
inline constexpr int end = 0x23;
inline constexpr int home = 0x24;
inline constexpr int left = 0x25;
inline constexpr int up = 0x26;
inline constexpr int right = 0x27;
inline constexpr int down = 0x28;
inline constexpr int insert = 0x2D;
inline constexpr int del = 0x2E;
inline constexpr int apps = 0x5D;  // the menu key
inline constexpr int f2 = 0x71;
inline constexpr int f4 = 0x73;
inline constexpr int f10 = 0x79;
}  // namespace key

struct KeyEvent {
    int key = 0;
    bool ctrl = false;
    bool shift = false;
    bool alt = false;
};

// What a key handler wants done with the key: hand it on, drop it, or act as if Tab had been
// pressed.
enum class KeyAnswer { pass, swallow, asTab };

}  // namespace lx
