// What is stored of a resizable dialog and comes back before it is shown, on the windows of this
// platform.
#include "widgets/resizeWnd.h"

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
};
constexpr DialogTemplate layout{"lists", "Seznamy", 300, 130, controls, DialogStyle::resizable};

struct ResizableDialog {
    explicit ResizableDialog(Bench& bench)
        : dialog(bench.platform().createDialog(layout, {})),
          resizing(bench.platform(), *dialog),
          store(bench.files()) {
        store.open(bench.dataFolder() + "settings.dat", "SETTINGS");
    }

    void setUp() {
        Control& list = dialog->item(items);
        resizing.addDivider(&list, Side::left, nullptr);
        resizing.addDivider(&list, Side::left, &dialog->item(types));
        resizing.initialise();
        resizing.setSize(list, 150, 0);
        resizing.addControl(dialog->item(types), edge::stretchesDown);
        resizing.addControl(list, edge::stretches);
        resizing.restorePlacement(store, key);
    }

    std::unique_ptr<Dialog> dialog;
    resizeWnd resizing;
    prf_store store;
};

TEST(Resizing, AMinimizedDialogIsLaidOutAsItWillBeSeen) {
    Bench bench;
    for (const std::int32_t state : {8, 2}) {
        ResizableDialog open(bench);
        const Rect start = open.dialog->windowArea();
        const int right = open.dialog->item(items).area().right;
        const std::int32_t dpi = bench.platform().screen().verticalDpi;
        const std::int32_t size[] = {start.width() + 50, start.height() + 20};
        const std::int32_t stored[] = {10, 10, size[0], size[1], dpi, state, items, 40};
        ASSERT_TRUE(open.store.set_int_array(key, stored));
        open.setUp();
        EXPECT_EQ(open.dialog->placement().normal,
                  (Rect{10, 10, start.width() + 60, start.height() + 30}));
        EXPECT_EQ(open.dialog->item(items).area().width(), 190) << state;
        EXPECT_EQ(open.dialog->item(items).area().right, right + 50) << state;
    }
}

TEST(Resizing, NothingIsSavedOfADialogThatWasNotSetUp) {
    Bench bench;
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
