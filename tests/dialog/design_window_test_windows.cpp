// The window of the design dialog: what other programs may send to it, and its cursor.
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
        d.press("1 zalomení");
        d.mouseDown("section", d.regionPoint("section", "run 1"));
        d.type("77");
        SetActiveWindow(other);
        SendMessageW(window, WM_TIMER, 1, 0);
        EXPECT_EQ(GetActiveWindow(), window);
        // What was being typed is still open.
        EXPECT_EQ(d.visible("#1022") ? d.text("#1022") : "", "77");
        EXPECT_NE(d.focusedControl().find("#1022"), std::string::npos);
        DestroyWindow(other);
        d.press("Zrušit");
    });
}

TEST_F(DesignDialog, AHandOfItsOwnPointsWithTheTipOfItsFinger) {
    run([](Driver& d) {
        const HWND window = FindWindowW(nullptr, L"N\u00E1vrh p\u0159ekladu");
        const HWND picture = GetDlgItem(window, id::sectionPreview);
        const auto cursor = [picture] {
            SendMessageW(picture, WM_SETCURSOR, reinterpret_cast<WPARAM>(picture),
                         MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
            return GetCursor();
        };
        d.selectTab("Prefa překlady");
        d.press("Vložit izolaci");
        EXPECT_EQ(cursor(), LoadCursorW(nullptr, IDC_ARROW));
        d.mouseMove("section", d.regionPoint("section", "layer 1"), false);
        ICONINFO hand = {};
        ASSERT_TRUE(GetIconInfo(cursor(), &hand));
        EXPECT_EQ(std::pair(hand.xHotspot, hand.yHotspot), std::pair(DWORD{8}, DWORD{1}));
        EXPECT_FALSE(hand.fIcon);
        // Without colours the mask holds both planes, one below the other.
        BITMAP mask = {};
        GetObjectW(hand.hbmMask, sizeof mask, &mask);
        EXPECT_EQ(std::pair(mask.bmWidth, mask.bmHeight),
                  std::pair(32L, hand.hbmColor ? 32L : 64L));
        const HDC dc = CreateCompatibleDC(nullptr);
        const HGDIOBJ before = SelectObject(dc, hand.hbmMask);
        EXPECT_EQ(GetPixel(dc, 8, 1), RGB(0, 0, 0)) << "the finger covers the screen";
        EXPECT_EQ(GetPixel(dc, 4, 1), RGB(255, 255, 255)) << "beside it the screen shows";
        SelectObject(dc, before);
        DeleteDC(dc);
        DeleteObject(hand.hbmMask);
        if (hand.hbmColor) DeleteObject(hand.hbmColor);
        d.press("Zrušit");
    });
}

TEST_F(DesignDialog, TheListOfTheInPlaceBoxHasRoomForItsValues) {
    for (const auto& [key, value] :
         {std::pair{"nr", "3"}, {"0", "100"}, {"1", "200"}, {"2", "150"}}) {
        set("LXDATA6DLG.dat", "COMBO_NADPR2_1", key, value);
    }
    run([](Driver& d) {
        d.press("1 zalomení");
        d.mouseDown("section", d.regionPoint("section", "run 1"));
        d.key("Alt+Down");
        COMBOBOXINFO box = {};
        box.cbSize = sizeof box;
        EXPECT_TRUE(GetComboBoxInfo(GetParent(GetFocus()), &box));
        RECT list = {};
        GetClientRect(box.hwndList, &list);
        EXPECT_GE(list.bottom, 3 * SendMessageW(box.hwndList, LB_GETITEMHEIGHT, 0, 0));
        d.press("Zrušit");
    });
}

}  // namespace
}  // namespace lx
