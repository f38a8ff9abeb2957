// A host that destroys the owner of a modal dialog: the dialog goes with it, and its call comes
// back at once.
#include <windows.h>

#include <gtest/gtest.h>

#include <thread>

#include "tests/support/bench.h"

namespace lx {
namespace {

constexpr DWORD untilItWaits = 500;  // ms
constexpr DWORD longEnough = 5000;

constexpr ControlTemplate controls[] = {
    {ControlKind::button, id::ok, "OK", {5, 5, 40, 14}, style::defaultButton},
};
constexpr DialogTemplate layout{"owned", "Owned", 100, 30, controls, DialogStyle::modal};

// The message of another thread is handled inside the loop's wait.
TEST(Owner, DestroyedWhileTheLoopWaitsEndsTheDialog) {
    const auto platform = makeTestPlatform();
    const HWND owner =
        CreateWindowW(L"STATIC", L"", WS_POPUP, 0, 0, 90, 90, nullptr, nullptr, nullptr, nullptr);
    const auto dialog = platform->createDialog(layout, Owner{nullptr, owner});
    const HANDLE back = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    bool stuck = false;
    std::thread other([&, loop = GetCurrentThreadId()] {
        Sleep(untilItWaits);
        SendMessageW(owner, WM_CLOSE, 0, 0);
        stuck = WaitForSingleObject(back, longEnough) != WAIT_OBJECT_0;
        if (stuck) PostThreadMessageW(loop, WM_NULL, 0, 0);
    });
    EXPECT_EQ(dialog->runModal(), id::cancel);
    SetEvent(back);
    other.join();
    CloseHandle(back);
    EXPECT_FALSE(IsWindow(owner));
    EXPECT_FALSE(stuck);
}

}  // namespace
}  // namespace lx
