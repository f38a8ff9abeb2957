#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "platform/recording_canvas.h"
#include "resources/icons.h"
#include "resources/templates.h"

namespace lx {
namespace {

const DialogTemplate* const all[] = {
    &lintelEraseTemplate, &nameTemplate,        &chooserTemplate,  &browserTemplate,
    &precastItemTemplate, &sectionTypeTemplate, &designTemplate,   &geometryTemplate,
    &precastTemplate,     &steelTemplate,       &monolithTemplate, &libraryTemplate,
    &annotationTemplate};

TEST(Templates, ControlsHaveIdsOfTheirOwn) {
    std::set<int> ids;
    for (const DialogTemplate* dialog : all) {
        for (const ControlTemplate& control : dialog->controls) {
            if (control.id > id::help) {
                EXPECT_TRUE(ids.insert(control.id).second) << control.id;
            }
        }
    }
}

TEST(Templates, DesignDialogFitsASmallScreenAndHoldsTheLargestPage) {
    EXPECT_LE(designTemplate.width * 6 / 4 + 16, 1024);
    EXPECT_LE(designTemplate.height * 13 / 8 + 40, 728);
    const auto tabs = std::find_if(designTemplate.controls.begin(), designTemplate.controls.end(),
                                   [](const ControlTemplate& c) { return c.id == id::tabs; });
    ASSERT_NE(tabs, designTemplate.controls.end());
    // Two rows of tabs are 42 pixels high, the borders 4 at each side.
    EXPECT_LE(geometryTemplate.width * 6 / 4 + 8, tabs->area.width * 6 / 4);
    EXPECT_LE(geometryTemplate.height * 13 / 8 + 42 + 8, tabs->area.height * 13 / 8);
}

TEST(Icons, EveryNumberThatDialogsAskForPaintsInsideItsSize) {
    std::vector<int> numbers{icon::add,       icon::remove,     icon::space,  icon::steel,
                             icon::ascending, icon::descending, icon::module, icon::insulation,
                             icon::monolith,  icon::mirror};
    numbers.insert(numbers.end(), std::begin(icon::bends), std::end(icon::bends));
    for (int shape = 1; shape <= 6; ++shape) numbers.push_back(icon::shapeBase + shape);
    std::set<std::string> pictures;
    for (const int number : numbers) {
        EXPECT_TRUE(iconExists(number)) << number;
        for (const int size : {12, 16, 32, 48}) {
            RecordingCanvas canvas;
            EXPECT_TRUE(paintIcon(canvas, number, {size, size}));
            EXPECT_FALSE(canvas.empty()) << number;
            if (size == 12) {
                EXPECT_TRUE(pictures.insert(canvas.asText()).second) << number;
            }
        }
    }
    RecordingCanvas canvas;
    for (const int number : {0, -1, icon::shapeBase, icon::shapeBase + 7, 9999}) {
        EXPECT_FALSE(iconExists(number));
        EXPECT_FALSE(paintIcon(canvas, number, {32, 32}));
    }
    EXPECT_TRUE(canvas.empty());
}

}  // namespace
}  // namespace lx
