// Menus of the system made from menu tables.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>

#include "platform/dialog_template.h"

namespace lx {

// Owns a menu with its submenus.
class MenuHandle {
public:
    MenuHandle() = default;
    explicit MenuHandle(HMENU menu) : m_menu(menu) {}
    MenuHandle(MenuHandle&& other) noexcept : m_menu(std::exchange(other.m_menu, nullptr)) {}
    MenuHandle& operator=(MenuHandle&& other) noexcept {
        std::swap(m_menu, other.m_menu);
        return *this;
    }
    ~MenuHandle() {
        if (m_menu) DestroyMenu(m_menu);
    }
    HMENU get() const { return m_menu; }
    // Another menu owns it from now on.
    void handOver() { m_menu = nullptr; }

private:
    HMENU m_menu = nullptr;
};

MenuHandle makeMenuBar(const Menu& menu);
// Commands for which enabled answers false are greyed out; without enabled, none is.
MenuHandle makePopup(const Menu& menu, const std::function<bool(int command)>& enabled);
// True when the command stands in the menu, and can be chosen now.
bool commandAvailable(HMENU menu, int command);

}  // namespace lx
