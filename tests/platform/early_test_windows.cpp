// What other programs send to a window that is not shown yet reaches no handler.
#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include "tests/support/bench.h"

namespace lx {
namespace {

constexpr int list = 10;
constexpr int menuCommand = 77;

constexpr ControlTemplate controls[] = {
    {ControlKind::listView, list, "", {50, 5, 45, 20}},
};
constexpr DialogTemplate layout{"early", "Early", 100, 30, controls, DialogStyle::modal};

// Each of them is an act of the user in a dialog that stands.
void sendActs(HWND window) {
    NMLISTVIEW heading{};
    heading.hdr = {GetDlgItem(window, list), list, LVN_COLUMNCLICK};
    SendMessageW(window, WM_COMMAND, menuCommand, 0);
    SendMessageW(window, WM_TIMER, 1, 0);
    SendMessageW(window, WM_LBUTTONDOWN, 0, MAKELPARAM(3, 3));
    SendMessageW(window, WM_NOTIFY, list, reinterpret_cast<LPARAM>(&heading));
    SendMessageW(window, WM_COMMAND, IDCANCEL, 0);
}

TEST(EarlyMessages, AreHeardOnceTheDialogStands) {
    const auto platform = makeTestPlatform();
    const auto dialog = platform->createDialog(layout, Owner{});
    std::string heard;
    dialog->onCommand = [&](int) { heard += "command "; };
    dialog->onTimer = [&](int) { heard += "timer "; };
    dialog->onLeftDown = [&](Point) { return heard += "button ", true; };
    dialog->get<ListView>(list).onHeading = [&](int) { heard += "heading "; };
    dialog->onInit = [&] {
        dialog->setMenuBar({{"Menu", menuCommand, {}}});
        const HWND window = FindWindowW(nullptr, L"Early");
        sendActs(window);
        heard += "shown: ";
        dialog->post([window] { sendActs(window); });
    };
    EXPECT_EQ(dialog->runModal(), id::cancel);
    EXPECT_EQ(heard, "shown: command timer button heading ");
}

}  // namespace
}  // namespace lx
