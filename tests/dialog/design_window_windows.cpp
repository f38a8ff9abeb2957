// What other programs may send to the window of the design dialog.
#include <windows.h>

#include "resources/templates.h"
#include "tests/dialog/design_dialog_bench.h"

namespace lx {
namespace {

TEST_F(DesignDialog, ItsWindowTellsWhoseItIsAndComesToTheFrontAtATimer) {
    run([](Driver& d) {
        const HWND window = FindWindowW(nullptr, L"N\u00E1vrh p\u0159ekladu");
        EXPECT_EQ(SendMessageW(window, identifyMessage, 0, 0), 1);
        const HWND other = CreateWindowW(L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 90, 90,
                                         nullptr, nullptr, nullptr, nullptr);
        SetActiveWindow(other);
        SendMessageW(window, WM_TIMER, 1, 0);
        EXPECT_EQ(GetActiveWindow(), window);
        DestroyWindow(other);
        d.press("Zrušit");
    });
}

}  // namespace
}  // namespace lx
