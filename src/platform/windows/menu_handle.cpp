#include "platform/windows/menu_handle.h"

#include "platform/windows/wide_text.h"

namespace lx {
namespace {

void fill(HMENU menu, const Menu& items, const std::function<bool(int command)>& enabled) {
    for (const MenuItem& item : items) {
        const std::wstring text = wide(item.text);
        if (!item.items.empty()) {
            MenuHandle submenu(CreatePopupMenu());
            if (!submenu.get()) continue;
            fill(submenu.get(), item.items, enabled);
            if (AppendMenuW(menu, MF_POPUP | MF_STRING, reinterpret_cast<UINT_PTR>(submenu.get()),
                            text.c_str())) {
                submenu.handOver();
            }
        } else if (text.empty()) {
            AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
        } else {
            const bool grey = enabled && !enabled(item.command);
            AppendMenuW(menu, MF_STRING | (grey ? MF_GRAYED : 0U),
                        static_cast<UINT_PTR>(item.command), text.c_str());
        }
    }
}

}  // namespace

MenuHandle makeMenuBar(const Menu& menu) {
    MenuHandle result(CreateMenu());
    if (result.get()) fill(result.get(), menu, nullptr);
    return result;
}

MenuHandle makePopup(const Menu& menu, const std::function<bool(int command)>& enabled) {
    MenuHandle result(CreatePopupMenu());
    if (result.get()) fill(result.get(), menu, enabled);
    return result;
}

bool commandAvailable(HMENU menu, int command) {
    if (!menu || command == 0) return false;
    const UINT state = GetMenuState(menu, static_cast<UINT>(command), MF_BYCOMMAND);
    return state != static_cast<UINT>(-1) && !(state & (MF_GRAYED | MF_DISABLED));
}

}  // namespace lx
