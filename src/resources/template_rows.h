// Short forms for the rows of a dialog template. Areas are dialog units: x, y, width, height.
#pragma once

#include "platform/dialog_template.h"

namespace lx::controls {

constexpr ControlTemplate label(int id, std::string_view text, UnitRect area, unsigned style = 0) {
    return {ControlKind::label, id, text, area, style};
}
constexpr ControlTemplate groupBox(int id, std::string_view text, UnitRect area) {
    return {ControlKind::groupBox, id, text, area, 0};
}
constexpr ControlTemplate button(int id, std::string_view text, UnitRect area, unsigned style = 0) {
    return {ControlKind::button, id, text, area, style};
}
constexpr ControlTemplate defaultButton(int id, std::string_view text, UnitRect area) {
    return {ControlKind::button, id, text, area, style::defaultButton};
}
constexpr ControlTemplate iconButton(int id, UnitRect area, unsigned style = 0) {
    return {ControlKind::iconButton, id, {}, area, style};
}
constexpr ControlTemplate checkBox(int id, std::string_view text, UnitRect area) {
    return {ControlKind::checkBox, id, text, area, 0};
}
constexpr ControlTemplate radioButton(int id, std::string_view text, UnitRect area) {
    return {ControlKind::radioButton, id, text, area, 0};
}
constexpr ControlTemplate plain(ControlKind kind, int id, UnitRect area, unsigned style = 0) {
    return {kind, id, {}, area, style};
}
// Pictures and lists that no label names: the name is not to be seen, programs find them by it.
constexpr ControlTemplate named(ControlKind kind, int id, std::string_view name, UnitRect area,
                                unsigned style = 0) {
    return {kind, id, name, area, style};
}

}  // namespace lx::controls
