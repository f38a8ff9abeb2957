// What stands on the screen between two messages: a control that is painted anew must never show
// its bare ground meanwhile.
#include <windows.h>

#include <gtest/gtest.h>

#include "tests/support/bench.h"

namespace lx {
namespace {

constexpr int sketch = 10;
constexpr int rows = 11;
constexpr int table = 12;

constexpr ControlTemplate controls[] = {
    {ControlKind::picture, sketch, "", {5, 5, 80, 60}, style::border},
    {ControlKind::listBox, rows, "", {90, 5, 80, 60}, style::verticalScroll},
    {ControlKind::listView, table, "", {175, 5, 120, 60}, style::multipleSelection},
    {ControlKind::button, id::ok, "OK", {250, 75, 40, 14}, style::defaultButton},
};
constexpr DialogTemplate layout{"flicker", "Flicker", 300, 95, controls, DialogStyle::resizable};

// Looks at one pixel of each control after every message that the thread's windows are sent.
class Watch {
public:
    void add(const char* name, HWND window, POINT p) {
        m_pixels.push_back({name, window, p, colorAt(window, p), 0});
    }
    void start() {
        m_running = this;
        m_hook = SetWindowsHookExW(WH_CALLWNDPROCRET, &afterMessage, nullptr, GetCurrentThreadId());
    }
    ~Watch() {
        if (m_hook) UnhookWindowsHookEx(m_hook);
        m_running = nullptr;
    }
    // Controls that were seen in another colour, and how often.
    std::string flickering() const {
        std::string result;
        for (const Pixel& pixel : m_pixels) {
            if (pixel.others > 0) {
                result += std::string(pixel.name) + " " + std::to_string(pixel.others) + "\n";
            }
        }
        return result;
    }
    int looks() const { return m_looks; }

private:
    struct Pixel {
        const char* name;
        HWND window;
        POINT p;
        COLORREF color;
        int others;
    };

    static COLORREF colorAt(HWND window, POINT p) {
        const HDC dc = GetDC(window);
        const COLORREF color = GetPixel(dc, p.x, p.y);
        ReleaseDC(window, dc);
        return color;
    }
    static LRESULT CALLBACK afterMessage(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HC_ACTION && m_running) m_running->look();
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    void look() {
        ++m_looks;
        for (Pixel& pixel : m_pixels) {
            if (colorAt(pixel.window, pixel.p) != pixel.color) ++pixel.others;
        }
    }

    static inline Watch* m_running = nullptr;
    std::vector<Pixel> m_pixels;
    HHOOK m_hook = nullptr;
    int m_looks = 0;
};

TEST(FlickerTest, NothingShowsItsGroundWhileItIsPaintedAnew) {
    Bench bench;
    const auto dialog = bench.platform().createDialog(layout, {});
    auto& picture = dialog->get<Picture>(sketch);
    picture.onPaint = [](Canvas& canvas) { canvas.fillRect({0, 0, 2000, 2000}, {0, 0, 0}); };
    auto& list = dialog->get<ListBox>(rows);
    list.append({"row", {}, Color{187, 187, 221}});
    list.select(0);
    auto& view = dialog->get<ListView>(table);
    view.setColumns({{"column", 60}});
    view.cell = [](int, int) { return Text("x"); };
    view.setRowCount(100);
    std::vector<int> all(100);
    for (int i = 0; i < 100; ++i) all[static_cast<std::size_t>(i)] = i;
    view.selectRows(all);
    dialog->onSize = [&](Size client) {
        for (Control* control : {static_cast<Control*>(&view), static_cast<Control*>(&list),
                                 static_cast<Control*>(&picture)}) {
            Rect area = control->area();
            if (control == &view) area.right = client.width - 10;
            area.bottom = client.height - 60;
            control->setArea(area);
        }
    };
    bench.user().then([&](Driver& d) {
        const HWND window = FindWindowW(nullptr, L"Flicker");
        ASSERT_NE(window, nullptr);
        // Of the lists a place in a selected row, right of its text.
        Watch watch;
        watch.add("picture", GetDlgItem(window, sketch), {20, 20});
        watch.add("list box", GetDlgItem(window, rows), {100, 6});
        watch.add("list view", GetDlgItem(window, table), {50, 40});
        watch.start();
        const Size size = dialog->windowArea().size();
        for (const int step : {7, 14, 40, 21, 0}) {
            d.resizeDialog({size.width + step, size.height + step});
            EXPECT_EQ(watch.flickering(), "") << "resized, step " << step;
        }
        picture.redraw();
        list.redraw();
        view.redraw();
        for (const int control : {sketch, rows, table}) UpdateWindow(GetDlgItem(window, control));
        EXPECT_EQ(watch.flickering(), "") << "redrawn";
        // The dialog's ground, as when it is uncovered. Themed frames of lists are the system's to
        // paint.
        RedrawWindow(window, nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_NOCHILDREN);
        EXPECT_EQ(watch.flickering(), "") << "uncovered";
        EXPECT_GT(watch.looks(), 50);
        d.press("OK");
    });
    EXPECT_EQ(dialog->runModal(), id::ok);
    EXPECT_EQ(bench.user().failure(), "");
}

}  // namespace
}  // namespace lx
