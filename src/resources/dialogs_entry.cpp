#include "resources/strings.h"
#include "resources/template_rows.h"
#include "resources/templates.h"

namespace lx {

using namespace controls;

namespace {

constexpr ControlTemplate eraseControls[] = {
    groupBox(id::eraseGroup, "Prvky překladu k vymazání:"_cz, {7, 7, 160, 72}),
    checkBox(id::eraseLintel, text::lintel, {17, 21, 133, 10}),
    checkBox(id::eraseSection, "sklopený řez"_cz, {17, 35, 133, 10}),
    checkBox(id::eraseBubble, "bublina"_cz, {17, 49, 133, 10}),
    checkBox(id::eraseDescription, "popis"_cz, {17, 63, 133, 10}),
    defaultButton(id::ok, text::ok, {7, 84, 50, 14}),
    button(id::cancel, "Storno"_cz, {62, 84, 50, 14}),
    button(id::help, text::help, {117, 84, 50, 14}),
};

}  // namespace

constexpr DialogTemplate lintelEraseTemplate{"erase", "Vymazání překladu"_cz, 174,
                                             105,     eraseControls,          DialogStyle::modal};

}  // namespace lx
