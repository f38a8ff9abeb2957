#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "platform/recording_canvas.h"
#include "resources/icons.h"
#include "resources/strings.h"
#include "resources/templates.h"

namespace lx {
namespace {

const DialogTemplate* const all[] = {
    &lintelEraseTemplate, &nameTemplate,        &chooserTemplate,  &browserTemplate,
    &precastItemTemplate, &sectionTypeTemplate, &designTemplate,   &geometryTemplate,
    &precastTemplate,     &steelTemplate,       &monolithTemplate, &libraryTemplate,
    &annotationTemplate};

bool overlap(const UnitRect& a, const UnitRect& b) {
    return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height &&
           b.y < a.y + a.height;
}

TEST(Templates, ControlsLieInsideSideBySideUnderIdsOfTheirOwn) {
    std::set<int> ids;
    for (const DialogTemplate* dialog : all) {
        for (const ControlTemplate& control : dialog->controls) {
            if (control.id > id::help) {
                EXPECT_TRUE(ids.insert(control.id).second) << control.id;
            }
            const UnitRect& area = control.area;
            EXPECT_TRUE(area.x >= 0 && area.y >= 0 && area.width > 0 && area.height > 0 &&
                        area.x + area.width <= dialog->width &&
                        area.y + area.height <= dialog->height)
                << dialog->name << ' ' << control.id;
            for (const ControlTemplate& other : dialog->controls) {
                if (&other == &control || control.kind == ControlKind::groupBox ||
                    other.kind == ControlKind::groupBox ||
                    ((control.style | other.style) & style::hidden) != 0) {
                    continue;
                }
                EXPECT_FALSE(overlap(area, other.area))
                    << dialog->name << ' ' << control.id << ' ' << other.id;
            }
        }
    }
}

// Average characters are 4 units wide and Czech lower case is narrower: a text that is longer than
// that is cut on the screen.
TEST(Templates, TextsHaveRoom) {
    for (const DialogTemplate* dialog : all) {
        for (const ControlTemplate& control : dialog->controls) {
            const bool box =
                control.kind == ControlKind::checkBox || control.kind == ControlKind::radioButton;
            const int needed = static_cast<int>(control.text.size()) * 37 / 10 + (box ? 9 : 0);
            EXPECT_LE(needed, control.area.width) << dialog->name << ' ' << control.id;
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

const ControlTemplate& controlOf(const DialogTemplate& dialog, int number) {
    return *std::find_if(dialog.controls.begin(), dialog.controls.end(),
                         [number](const ControlTemplate& c) { return c.id == number; });
}

TEST(Templates, SteelItemsHaveTwoRowsLessAndTheOthersCloseUp) {
    std::vector<int> tops;
    for (int field = id::itemDesignation; field <= id::itemMark; field += 2) {
        const ControlTemplate& steel = controlOf(steelItemTemplate, field);
        const ControlTemplate& precast = controlOf(precastItemTemplate, field);
        EXPECT_EQ(steel.area.x, precast.area.x);
        EXPECT_EQ(steel.area.width, precast.area.width);
        const bool hidden = field == id::itemLength || field == id::itemMaxOpening;
        EXPECT_EQ((steel.style & style::hidden) != 0, hidden) << field;
        EXPECT_EQ((controlOf(steelItemTemplate, field - 1).style & style::hidden) != 0, hidden);
        if (!hidden) tops.push_back(steel.area.y);
    }
    const int step = controlOf(precastItemTemplate, id::itemLength).area.y -
                     controlOf(precastItemTemplate, id::itemDesignation).area.y;
    for (std::size_t i = 1; i < tops.size(); ++i) EXPECT_EQ(tops[i] - tops[i - 1], step);
    EXPECT_EQ(precastItemTemplate.height - steelItemTemplate.height, 2 * step);
    EXPECT_EQ(precastItemTemplate.height - controlOf(precastItemTemplate, id::ok).area.y,
              steelItemTemplate.height - controlOf(steelItemTemplate, id::ok).area.y);
}

TEST(Icons, EveryNumberThatDialogsAskForPaintsInsideItsSize) {
    const int numbers[] = {1001, 1002, 1003, 1004, 1005, 1006,        1991, 2066,
                           2070, 2071, 2017, 2018, 2063, 1997,        1998, 1999,
                           2004, 2073, 2014, 2015, 2019, icon::mirror};
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
    for (const int number : {0, -1, 1000, 1007, 1052, 9999}) {
        EXPECT_FALSE(iconExists(number));
        EXPECT_FALSE(paintIcon(canvas, number, {32, 32}));
    }
    EXPECT_TRUE(canvas.empty());
}

TEST(Strings, AreThereByNumberAndByteByByte) {
    EXPECT_EQ(str(1), "Zru\x9Ait");
    EXPECT_EQ(str(22), "Upozorn\xECn\xED");
    // These three become layer names in files.
    EXPECT_EQ(str(83), "IZOLACE");
    EXPECT_EQ(str(94), "MEZERA");
    EXPECT_EQ(str(95), "MONOLIT");
    // Trailing blanks matter where a value or a word follows.
    EXPECT_EQ(str(23), "Nov\xFD ");
    EXPECT_EQ(str(76), "Tlou\x9Atka : ");
    EXPECT_EQ(str(86),
              "Ozna\xE8"
              "en\xED: %s\r\nD\xE9lka: %d, %s %d, V\xFD\x9Aka: %d [mm]\r\n"
              "Ulo\x9E"
              "en\xED: %d mm");
    EXPECT_EQ(str(91), "V\xFD\x9Aka mimo povolen\xFD rozsah ( \xB1 150.000 m)");
    for (const int number : {-1, 0, 14, 71, 93, 115, 116, 100000}) {
        EXPECT_EQ(str(number), "");
        EXPECT_EQ(*str(number).data(), '\0');
    }
    // A string that a template shows is the string of the table.
    EXPECT_EQ(designTemplate.title, str(39));
    for (const ControlTemplate& control : designTemplate.controls) {
        const int number = control.id == id::propertiesLabel ? 40
                           : control.id == id::fromPreview   ? 41
                           : control.id == id::fromOffer     ? 42
                           : control.id == id::cancel        ? 1
                           : control.id == id::help          ? 100
                                                             : 0;
        if (number != 0) {
            EXPECT_EQ(control.text, str(number));
        }
    }
}

TEST(Strings, AreThoseThatTheAnnotationSettingsShow) {
    EXPECT_EQ(annotationTemplate.title, str(58));
    const std::map<int, int> numbers = {{id::cancel, 1},
                                        {id::help, 100},
                                        {id::bubbleGroup, 43},
                                        {id::bubbleColorLabel, 44},
                                        {id::lineLengthLabel, 45},
                                        {id::bubbleHeightLabel, 46},
                                        {id::turningGroup, 47},
                                        {id::followsOpening, 48},
                                        {id::angleLabel, 49},
                                        {id::descriptionColorLabel, 50},
                                        {id::descriptionGroup, 10},
                                        {id::descriptionHeightLabel, 51}};
    for (const ControlTemplate& control : annotationTemplate.controls) {
        const auto number = numbers.find(control.id);
        if (number != numbers.end()) {
            EXPECT_EQ(control.text, str(number->second));
        }
    }
}

TEST(Strings, AreThoseThatTheCatalogueDialogsShow) {
    EXPECT_EQ(chooserTemplate.title, str(99));
    EXPECT_EQ(sectionTypeTemplate.title, str(2));
    EXPECT_EQ(controlOf(steelItemTemplate, id::itemWeightLabel).text, str(8));
    const std::map<int, int> numbers = {{id::cancel, 1},
                                        {id::help, 100},
                                        {id::nameLabel, 3},
                                        {id::sectionNameLabel, 3},
                                        {id::itemDesignationLabel, 5},
                                        {id::itemLengthLabel, 11},
                                        {id::itemWidthLabel, 6},
                                        {id::itemHeightLabel, 7},
                                        {id::itemMaxOpeningLabel, 12},
                                        {id::itemWeightLabel, 13},
                                        {id::itemQuLabel, 9},
                                        {id::itemDescriptionLabel, 10}};
    for (const DialogTemplate* dialog : {&nameTemplate, &chooserTemplate, &browserTemplate,
                                         &precastItemTemplate, &sectionTypeTemplate}) {
        for (const ControlTemplate& control : dialog->controls) {
            const auto number = numbers.find(control.id);
            if (number != numbers.end()) {
                EXPECT_EQ(control.text, str(number->second));
            }
        }
    }
}

}  // namespace
}  // namespace lx
