// Menu bars and popup menus: their entries as paths, such as "Nový/Typ".
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace lx::host {

struct MenuPlace {
    HMENU menu = nullptr;
    int position = -1;     // -1: there is no such entry
    bool enabled = false;  // with everything on the way to it
};

// Entries that open others stand before them; a greyed entry ends in " (grey)".
std::vector<std::string> menuPaths(HMENU menu);
MenuPlace findMenuEntry(HMENU menu, std::string_view path);
// The menu that a popup menu's window shows.
HMENU menuOfPopup(HWND popup);
// Whether the menu is one that an entry of the other opens.
bool opensFrom(HMENU menu, HMENU other);
bool isHighlighted(const MenuPlace& place);

}  // namespace lx::host
