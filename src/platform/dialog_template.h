// Dialogs and menus described as data: one table per dialog, in dialog units, shown alike by each
// platform.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "platform/geometry.h"
#include "platform/text.h"

namespace lx {

enum class ControlKind {
    label,
    groupBox,
    button,
    iconButton,  // shows the icon set by Button::setIcon instead of its text
    checkBox,
    radioButton,  // radio buttons that follow one another without another kind between form one
                  // group
    edit,
    multilineEdit,
    listBox,  // single selection, rows as data
    // Combo boxes: the area is that of the closed box; the platform sees to the list's length.
    dropDownList,  // a combo box that only chooses
    editableCombo,
    listView,    // report view with headings
    tabControl,  // tabs that do not fit side by side stand in several rows
    picture,     // painted by the program
    icon         // shows an icon; no input
};

// Bits of ControlTemplate::style.
namespace style {
inline constexpr unsigned defaultButton = 1U << 0;
inline constexpr unsigned hidden = 1U << 1;
inline constexpr unsigned disabled = 1U << 2;
inline constexpr unsigned readOnly = 1U << 3;        // edits
inline constexpr unsigned verticalScroll = 1U << 4;  // edits and lists
inline constexpr unsigned sorted = 1U << 5;  // editable combos: the box keeps its items sorted
inline constexpr unsigned noTabStop = 1U << 6;
inline constexpr unsigned multipleSelection = 1U << 7;  // list views
inline constexpr unsigned focusable = 1U << 8;  // pictures that take the focus on a click or by Tab
inline constexpr unsigned border = 1U << 9;     // pictures with a sunken edge
}  // namespace style

struct ControlTemplate {
    ControlKind kind = ControlKind::label;
    int id = 0;
    std::string_view text;  // code page 1250; "&" marks the mnemonic
    UnitRect area;
    unsigned style = 0;
};

enum class DialogStyle {
    modal,      // caption, close box
    resizable,  // the same with a sizing frame and maximise box
    page        // a child without caption or frame, shown inside another dialog
};

// Order of the controls is the Tab order. Font: "MS Shell Dlg" 8.
struct DialogTemplate {
    std::string_view name;  // ASCII, for tests, traces and describing
    std::string_view title;
    int width = 0;   // dialog units
    int height = 0;  // dialog units
    std::span<const ControlTemplate> controls;
    DialogStyle style = DialogStyle::modal;
};

struct MenuItem {
    std::string_view text;  // "&" marks the mnemonic; empty = separator
    int command = 0;        // 0 for an entry that opens its items
    std::vector<MenuItem> items;
};
using Menu = std::vector<MenuItem>;

}  // namespace lx
