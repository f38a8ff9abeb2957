#include <array>
#include <iterator>

#include "resources/strings.h"
#include "resources/template_rows.h"
#include "resources/templates.h"

namespace lx {

using namespace controls;

namespace {

// Title, label and name are set by whoever asks.
constexpr ControlTemplate nameControls[] = {
    label(id::nameLabel, text::name, {7, 9, 36, 8}),
    plain(ControlKind::edit, id::name, {45, 7, 138, 12}),
    defaultButton(id::ok, text::ok, {19, 28, 50, 14}),
    button(id::cancel, text::cancel, {76, 28, 50, 14}),
    button(id::help, text::help, {133, 28, 50, 14}),
};

constexpr ControlTemplate chooserControls[] = {
    defaultButton(id::choosePrecast, "Prefa"_cz, {9, 9, 50, 14}),
    button(id::chooseSteel, "Ocel"_cz, {65, 9, 50, 14}),
    button(id::cancel, text::cancel, {121, 9, 50, 14}),
};

// The divider lies between the two lists.
constexpr ControlTemplate browserControls[] = {
    named(ControlKind::listBox, id::types, "types", {7, 7, 130, 263}, style::verticalScroll),
    named(ControlKind::listView, id::items, "items", {143, 7, 410, 263}, style::multipleSelection),
    plain(ControlKind::icon, id::browserIcon, {252, 275, 21, 20}),
    button(id::pickItems, "Načíst do seznamu"_cz, {283, 279, 84, 14}),
    defaultButton(id::ok, text::ok, {373, 279, 56, 14}),
    button(id::cancel, text::cancel, {435, 279, 56, 14}),
    button(id::help, text::help, {497, 279, 56, 14}),
};

// ---- item editor

struct ItemRow {
    int label;
    int field;
    std::string_view precast;
    std::string_view steel;  // empty: no such row
};
constexpr ItemRow itemRows[] = {
    {id::itemDesignationLabel, id::itemDesignation, text::designation, text::designation},
    {id::itemLengthLabel, id::itemLength, text::itemLength, {}},
    {id::itemWidthLabel, id::itemWidth, text::itemWidth, text::itemWidth},
    {id::itemHeightLabel, id::itemHeight, text::itemHeight, text::itemHeight},
    {id::itemMaxOpeningLabel, id::itemMaxOpening, text::itemMaxOpening, {}},
    {id::itemWeightLabel, id::itemWeight, text::itemWeight, text::weightPerMetre},
    {id::itemQuLabel, id::itemQu, text::itemQu, text::itemQu},
    {id::itemDescriptionLabel, id::itemDescription, text::description, text::description},
    {id::itemMarkLabel, id::itemMark, text::itemMark, text::itemMark},
};

constexpr int itemRowStep = 16;
constexpr int itemEditorWidth = 240;
constexpr int precastItemHeight = 180;
constexpr int steelItemHeight = precastItemHeight - 2 * itemRowStep;

// The last row's long label leaves room for a field of one character.
constexpr UnitRect itemLabelArea(const ItemRow& row, int top) {
    return {7, top + 2, row.field == id::itemMark ? 180 : 68, 8};
}
constexpr UnitRect itemFieldArea(const ItemRow& row, int top) {
    const int width = row.field == id::itemMark ? 20 : 156;
    return {itemEditorWidth - 7 - width, top, width, 12};
}

// A row that is hidden takes no room: the next one stands in its place.
constexpr auto itemControls(bool steel, int height) {
    std::array<ControlTemplate, 2 * std::size(itemRows) + 3> all{};
    auto next = all.begin();
    int top = 7;
    for (const ItemRow& row : itemRows) {
        const bool hidden = steel && row.steel.empty();
        const unsigned visibility = hidden ? style::hidden : 0;
        *next++ = label(row.label, steel && !hidden ? row.steel : row.precast,
                        itemLabelArea(row, top), visibility);
        *next++ = plain(ControlKind::edit, row.field, itemFieldArea(row, top), visibility);
        if (!hidden) top += itemRowStep;
    }
    const int buttons = height - 21;
    *next++ = defaultButton(id::ok, text::ok, {53, buttons, 56, 14});
    *next++ = button(id::cancel, text::cancel, {115, buttons, 56, 14});
    *next++ = button(id::help, text::help, {177, buttons, 56, 14});
    return all;
}

constexpr auto precastItemControls = itemControls(false, precastItemHeight);
constexpr auto steelItemControls = itemControls(true, steelItemHeight);

// ---- section type

constexpr int shapeButtons = 14;
constexpr int shapesInFirstRow = 6;
constexpr int usableShapes = 3;

constexpr ControlTemplate shapeButton(int shape) {
    const int control = id::firstShape + shape - 1;
    if (shape > shapesInFirstRow) {
        const int column = shape - shapesInFirstRow - 1;
        return iconButton(control, {7 + 20 * column, 46, 18, 10}, style::hidden);
    }
    return iconButton(control, {7 + 28 * (shape - 1), 24, 23, 22},
                      shape > usableShapes ? style::disabled : 0);
}

constexpr auto sectionTypeControls = [] {
    std::array<ControlTemplate, 2 + shapeButtons + 4> all{};
    auto next = all.begin();
    *next++ = label(id::sectionNameLabel, text::name, {7, 9, 28, 8});
    *next++ = plain(ControlKind::edit, id::sectionName, {37, 7, 133, 12});
    for (int shape = 1; shape <= shapeButtons; ++shape) *next++ = shapeButton(shape);
    *next++ = plain(ControlKind::icon, id::sectionIcon, {7, 54, 17, 16});
    *next++ = defaultButton(id::ok, text::ok, {30, 56, 44, 14});
    *next++ = button(id::cancel, text::cancel, {78, 56, 44, 14});
    *next++ = button(id::help, text::help, {126, 56, 44, 14});
    return all;
}();

}  // namespace

constexpr DialogTemplate nameTemplate{"name", text::newType, 190,
                                      49,     nameControls,  DialogStyle::modal};
constexpr DialogTemplate chooserTemplate{"chooser", text::catalogue, 180,
                                         32,        chooserControls, DialogStyle::modal};
constexpr DialogTemplate browserTemplate{"browser", text::catalogue, 560,
                                         300,       browserControls, DialogStyle::resizable};
constexpr DialogTemplate precastItemTemplate{"item",
                                             text::itemEditor,
                                             itemEditorWidth,
                                             precastItemHeight,
                                             precastItemControls,
                                             DialogStyle::modal};
constexpr DialogTemplate steelItemTemplate{"item",          text::itemEditor,  itemEditorWidth,
                                           steelItemHeight, steelItemControls, DialogStyle::modal};
constexpr DialogTemplate sectionTypeTemplate{"section type",      text::newSectionType, 177, 77,
                                             sectionTypeControls, DialogStyle::modal};

}  // namespace lx
