#include "host/driver/windows/menu_paths.h"

#include <array>

#include "host/driver/windows/window_tools.h"

namespace lx::host {

namespace {

std::string entryText(HMENU menu, int position) {
    std::array<wchar_t, 256> buffer{};
    const int length = GetMenuStringW(menu, static_cast<UINT>(position), buffer.data(),
                                      static_cast<int>(buffer.size()), MF_BYPOSITION);
    std::string text;
    for (const char c : fromWide({buffer.data(), static_cast<std::size_t>(length)})) {
        // What follows a tab stop is the name of a key.
        if (c == '\t') break;
        if (c != '&') text += c;
    }
    return text;
}

UINT entryState(HMENU menu, int position) {
    return GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION);
}

bool entryEnabled(HMENU menu, int position) {
    // For an entry that opens others the high byte is their number.
    return (entryState(menu, position) & (MF_GRAYED | MF_DISABLED)) == 0;
}

void addPaths(HMENU menu, const std::string& before, std::vector<std::string>& paths) {
    for (int position = 0; position < GetMenuItemCount(menu); ++position) {
        if ((entryState(menu, position) & MF_SEPARATOR) != 0 &&
            GetSubMenu(menu, position) == nullptr) {
            continue;
        }
        const std::string path = before + entryText(menu, position);
        paths.push_back(entryEnabled(menu, position) ? path : path + " (grey)");
        if (const HMENU items = GetSubMenu(menu, position)) addPaths(items, path + "/", paths);
    }
}

}  // namespace

std::vector<std::string> menuPaths(HMENU menu) {
    std::vector<std::string> paths;
    if (menu != nullptr) addPaths(menu, {}, paths);
    return paths;
}

MenuPlace findMenuEntry(HMENU menu, std::string_view path) {
    MenuPlace place;
    place.enabled = true;
    for (const std::string& part : split(path, '/')) {
        if (menu == nullptr) return {};
        place.menu = menu;
        place.position = -1;
        for (int position = 0; position < GetMenuItemCount(menu); ++position) {
            if (entryText(menu, position) == part) place.position = position;
        }
        if (place.position < 0) return {};
        place.enabled = place.enabled && entryEnabled(menu, place.position);
        menu = GetSubMenu(menu, place.position);
    }
    return place;
}

HMENU menuOfPopup(HWND popup) {
    constexpr UINT askForMenu = 0x01E1;
    return reinterpret_cast<HMENU>(SendMessageW(popup, askForMenu, 0, 0));
}

bool opensFrom(HMENU menu, HMENU other) {
    for (int position = 0; position < GetMenuItemCount(other); ++position) {
        if (menu != nullptr && GetSubMenu(other, position) == menu) return true;
    }
    return false;
}

bool isHighlighted(const MenuPlace& place) {
    return (entryState(place.menu, place.position) & MF_HILITE) != 0;
}

}  // namespace lx::host
