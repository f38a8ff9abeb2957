#include "resources/strings.h"
#include "resources/template_rows.h"
#include "resources/templates.h"

namespace lx {

using namespace controls;

namespace {

constexpr ControlTemplate annotationControls[] = {
    groupBox(id::bubbleGroup, text::bubble, {4, 4, 158, 148}),
    label(id::bubbleHeightLabel, text::textHeight, {10, 18, 84, 8}),
    plain(ControlKind::editableCombo, id::bubbleHeight, {100, 16, 56, 12}),
    checkBox(id::auxiliaryLine, {}, {10, 32, 12, 10}),
    label(id::lineLengthLabel, text::auxiliaryLineLength, {22, 33, 76, 8}),
    plain(ControlKind::edit, id::lineLength, {100, 31, 56, 12}),
    label(id::textStyleLabel, "Styl písma:"_cz, {10, 48, 84, 8}),
    plain(ControlKind::editableCombo, id::textStyle, {100, 46, 56, 12}, style::sorted),
    label(id::bubbleColorLabel, text::bubbleColor, {10, 63, 84, 8}),
    plain(ControlKind::dropDownList, id::bubbleColor, {100, 61, 56, 12}),
    label(id::bubbleWidthLabel, text::widthFactor, {10, 78, 84, 8}),
    plain(ControlKind::edit, id::bubbleWidthFactor, {100, 76, 56, 12}),
    label(id::diameterLabel, "Průměr:"_cz, {10, 93, 84, 8}),
    plain(ControlKind::edit, id::diameter, {100, 91, 56, 12}),
    checkBox(id::hasEdges, "Počet hran:"_cz, {10, 107, 84, 10}),
    plain(ControlKind::edit, id::edges, {100, 106, 56, 12}),
    groupBox(id::turningGroup, text::bubbleTurning, {10, 120, 146, 28}),
    checkBox(id::followsOpening, text::followsOpening, {16, 132, 58, 10}),
    label(id::angleLabel, text::angle, {77, 133, 21, 8}),
    plain(ControlKind::edit, id::angle, {100, 131, 50, 12}),
    groupBox(id::descriptionGroup, text::description, {4, 155, 158, 58}),
    label(id::descriptionColorLabel, text::descriptionColor, {10, 169, 84, 8}),
    plain(ControlKind::dropDownList, id::descriptionColor, {100, 167, 56, 12}),
    label(id::descriptionHeightLabel, text::textHeight, {10, 184, 84, 8}),
    plain(ControlKind::editableCombo, id::descriptionHeight, {100, 182, 56, 12}),
    label(id::descriptionWidthLabel, text::widthFactor, {10, 199, 84, 8}),
    plain(ControlKind::edit, id::descriptionWidthFactor, {100, 197, 56, 12}),
    defaultButton(id::ok, text::ok, {4, 219, 50, 14}),
    button(id::cancel, text::cancel, {58, 219, 50, 14}),
    button(id::help, text::help, {112, 219, 50, 14}),
};

}  // namespace

constexpr DialogTemplate annotationTemplate{"annotation",       text::annotationSettings, 166, 240,
                                            annotationControls, DialogStyle::modal};

}  // namespace lx
