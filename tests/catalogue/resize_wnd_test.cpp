// A dialog that the user resizes and whose divider is dragged, on the windows of this platform.
#include "catalogue/resize_wnd.h"

#include <gtest/gtest.h>

#include "tests/support/bench.h"

namespace lx {
namespace {

constexpr int types = 10;
constexpr int items = 11;
constexpr char key[] = "windowPosition";

constexpr ControlTemplate controls[] = {
    {ControlKind::listBox, types, "types", {5, 5, 80, 100}},
    {ControlKind::listBox, items, "items", {91, 5, 204, 100}},
    {ControlKind::button, id::cancel, "Zrušit"_cz, {245, 110, 50, 14}},
};
constexpr DialogTemplate layout{"lists", "Seznamy", 300, 130, controls, DialogStyle::resizable};

class ResizableDialog {
public:
    explicit ResizableDialog(Bench& bench)
        : dialog(bench.platform().createDialog(layout, {})),
          resizing(bench.platform(), *dialog),
          store(bench.files()) {
        store.open(bench.dataFolder() + "settings.dat", "SETTINGS");
        dialog->onInit = [this] { setUp(); };
        dialog->onDestroy = [this] { resizing.savePlacement(store, key); };
    }
    // A window that was never shown goes here, and what its end calls must still be there.
    ~ResizableDialog() { dialog.reset(); }
    ResizableDialog(const ResizableDialog&) = delete;
    ResizableDialog& operator=(const ResizableDialog&) = delete;

    Rect area(int control) const { return dialog->item(control).area(); }

    void setUp() {
        Control& list = dialog->item(items);
        resizing.addDivider(&list, Side::left, nullptr);
        resizing.addDivider(&list, Side::left, &dialog->item(types));
        resizing.initialise();
        resizing.setSize(list, 150, 0);
        resizing.addControl(dialog->item(types), edge::stretchesDown);
        resizing.addControl(list, edge::stretches);
        resizing.addControl(dialog->item(id::cancel), edge::staysInCorner);
        resizing.restorePlacement(store, key);
    }

    std::unique_ptr<Dialog> dialog;
    resizeWnd resizing;
    prf_store store;
};

struct Resizing : testing::Test {
    Bench bench;

    // Runs the dialog with one step of the user's, who then presses Cancel.
    void run(const std::function<void(Driver&, ResizableDialog&)>& step) {
        ResizableDialog open(bench);
        bench.user().inDialog("Seznamy", [&](Driver& d) {
            step(d, open);
            d.press("Zrušit");
        });
        EXPECT_EQ(open.dialog->runModal(), id::cancel);
        EXPECT_EQ(bench.user().failure(), "");
    }
};

TEST_F(Resizing, PlaceSizeAndDividerComeBack) {
    Rect list;
    std::string place;
    const auto remember = [&](Driver& d, const ResizableDialog& open) {
        place = d.placement();
        list = open.area(items);
    };
    run([&](Driver& d, ResizableDialog& open) {
        const ScreenSize start = d.dialogSize();
        const Rect before = open.area(items);
        d.resizeDialog({20, 20});  // the starting size is the smallest
        EXPECT_EQ(open.area(items), before);
        d.moveDialog({40, 30});
        d.resizeDialog({start.width + 50, start.height + 20});
        const ScreenPoint from{(open.area(types).right + before.left) / 2, 40};
        d.mouseDown("", from);
        d.mouseMove("", {from.x + 25, from.y}, true);
        d.mouseUp("", {from.x + 25, from.y});
        d.mouseMove("", {from.x + 60, 3}, false);
        EXPECT_EQ(open.area(items),
                  (Rect{before.left + 25, before.top, before.right + 50, before.bottom + 20}));
        EXPECT_EQ(d.cursor(""), "arrow");
        remember(d, open);
    });
    for (const char* state : {"maximized", "normal", "normal"}) {
        run([&](Driver& d, ResizableDialog& open) {
            EXPECT_EQ(d.placement(), place);
            EXPECT_EQ(open.area(items), list);
            d.setDialogState(state);
            remember(d, open);
        });
    }
}

TEST_F(Resizing, AMinimizedDialogIsLaidOutAsItWillBeSeen) {
    for (const std::int32_t state : {8, 2}) {
        ResizableDialog open(bench);
        const Rect start = open.dialog->windowArea();
        const std::int32_t dpi = bench.platform().screen().verticalDpi;
        const std::int32_t size[] = {start.width() + 50, start.height() + 20};
        const std::int32_t stored[] = {10, 10, size[0], size[1], dpi, state, items, 40};
        ASSERT_TRUE(open.store.set_int_array(key, stored));
        open.setUp();
        EXPECT_EQ(open.dialog->placement().normal,
                  (Rect{10, 10, start.width() + 60, start.height() + 30}));
        EXPECT_EQ(open.area(items).width(), 190) << state;
    }
}

TEST_F(Resizing, NothingIsSavedOfADialogThatWasNotSetUp) {
    ResizableDialog open(bench);
    open.resizing.savePlacement(open.store, resizeWnd::keyOf(17));
    EXPECT_EQ(bench.read(bench.dataFolder() + "settings.dat"), std::nullopt);
    open.resizing.initialise();
    open.resizing.savePlacement(open.store, resizeWnd::keyOf(17));
    const Bytes saved = bench.read(bench.dataFolder() + "settings.dat").value_or("");
    EXPECT_NE(saved.find("#17_WINDOW_SIZE="), Bytes::npos);
}

}  // namespace
}  // namespace lx
