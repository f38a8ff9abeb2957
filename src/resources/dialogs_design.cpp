#include "resources/strings.h"
#include "resources/template_rows.h"
#include "resources/templates.h"

namespace lx {

using namespace controls;

namespace {

// The tab control holds the largest page below two rows of tabs.
constexpr ControlTemplate designControls[] = {
    plain(ControlKind::tabControl, id::tabs, {333, 7, 200, 296}),
    label(id::propertiesLabel, text::properties, {7, 256, 60, 8}),
    plain(ControlKind::multilineEdit, id::properties, {7, 268, 319, 35},
          style::readOnly | style::noTabStop),
    radioButton(id::fromPreview, text::fromPreview, {198, 255, 60, 10}),
    radioButton(id::fromOffer, text::fromOffer, {266, 255, 60, 10}),
    plain(ControlKind::icon, id::moduleIcon, {7, 306, 21, 20}),
    defaultButton(id::ok, text::ok, {353, 309, 56, 14}),
    button(id::cancel, text::cancel, {415, 309, 56, 14}),
    button(id::help, text::help, {477, 309, 56, 14}),
    named(ControlKind::picture, id::sectionPreview, "section", {7, 7, 319, 243},
          style::focusable | style::border),
    plain(ControlKind::editableCombo, id::inPlaceBox, {12, 20, 48, 12}, style::hidden),
};

constexpr ControlTemplate geometryControls[] = {
    named(ControlKind::picture, id::planPreview, "plan", {4, 4, 180, 96},
          style::focusable | style::border),
    iconButton(id::bendNone, {4, 104, 28, 22}),
    iconButton(id::bend1, {34, 104, 28, 22}),
    iconButton(id::bend2, {64, 104, 28, 22}),
    iconButton(id::bend3, {95, 104, 28, 22}),
    iconButton(id::bend4, {125, 104, 28, 22}),
    iconButton(id::bend5, {156, 104, 28, 22}),
    label(id::descriptionLabel, "Popis:"_cz, {4, 130, 60, 8}),
    plain(ControlKind::multilineEdit, id::description, {4, 140, 180, 52}, style::verticalScroll),
    label(id::bubbleLabel, "Označení bubliny:"_cz, {4, 198, 66, 8}),
    plain(ControlKind::edit, id::bubbleName, {72, 196, 40, 12}),
    groupBox(id::insertGroup, "Vložit"_cz, {4, 211, 180, 46}),
    checkBox(id::insertBubble, "Bublinu"_cz, {12, 224, 44, 10}),
    checkBox(id::insertDescription, text::description, {12, 240, 44, 10}),
    checkBox(id::insertFoldedSection, "Sklopený řez"_cz, {58, 224, 58, 10}),
    checkBox(id::insertDiagonals, "Úhlopříčky"_cz, {58, 240, 58, 10}),
    button(id::annotationSettings, text::annotationSettings, {120, 230, 58, 14}),
};

constexpr ControlTemplate precastControls[] = {
    button(id::precastCompose, text::compose, {4, 4, 178, 14}),
    label(id::precastTypeLabel, text::type, {4, 24, 30, 8}),
    plain(ControlKind::dropDownList, id::precastType, {36, 22, 146, 12}),
    named(ControlKind::listBox, id::precastOffer, "offer", {36, 40, 146, 113},
          style::verticalScroll),
    iconButton(id::precastAdd, {4, 40, 26, 26}),
    iconButton(id::precastRemove, {4, 69, 26, 26}, style::disabled),
    iconButton(id::precastInsulation, {4, 98, 26, 26}, style::disabled),
    iconButton(id::precastSpace, {4, 127, 26, 26}, style::disabled),
    button(id::precastCatalogue, "Databáze prefabrikátů..."_cz, {4, 157, 178, 14}),
};

constexpr ControlTemplate steelControls[] = {
    button(id::steelCompose, text::compose, {4, 4, 178, 14}),
    label(id::steelTypeLabel, text::type, {4, 24, 30, 8}),
    plain(ControlKind::dropDownList, id::steelType, {36, 22, 146, 12}),
    named(ControlKind::listBox, id::steelOffer, "offer", {36, 40, 146, 113}, style::verticalScroll),
    iconButton(id::steelAdd, {4, 40, 26, 26}),
    iconButton(id::steelRemove, {4, 69, 26, 26}),
    iconButton(id::steelInsulation, {4, 98, 26, 26}),
    iconButton(id::steelSpace, {4, 127, 26, 26}),
    button(id::steelCatalogue, "Databáze ocelových průřezů"_cz, {4, 157, 178, 14}),
};

constexpr ControlTemplate monolithControls[] = {
    iconButton(id::monolithAdd, {4, 4, 31, 31}),
    iconButton(id::monolithRemove, {4, 39, 31, 31}),
    iconButton(id::monolithInsulation, {4, 74, 31, 31}),
};

constexpr ControlTemplate libraryControls[] = {
    label(id::projectLabel, "Akce:"_cz, {4, 6, 28, 8}),
    plain(ControlKind::dropDownList, id::projects, {34, 4, 100, 12}),
    button(id::newProject, "Nová..."_cz, {138, 3, 44, 14}),
    label(id::storedLabel, "Použité překlady:"_cz, {4, 23, 84, 8}),
    button(id::makeDefault, "Nastavit jako výchozí"_cz, {92, 20, 90, 12}, style::hidden),
    named(ControlKind::listBox, id::storedDesigns, "stored designs", {4, 34, 178, 121},
          style::verticalScroll),
    checkBox(id::checkBearing, "Kontrola min. délky uložení prefa překladů"_cz, {4, 160, 178, 10}),
};

}  // namespace

constexpr DialogTemplate designTemplate{"design", text::designTitle, 540,
                                        330,      designControls,    DialogStyle::modal};
constexpr DialogTemplate geometryTemplate{"geometry", "Geometrie"_cz,   188,
                                          261,        geometryControls, DialogStyle::page};
constexpr DialogTemplate precastTemplate{"precast", "Prefa překlady"_cz, 186,
                                         175,       precastControls,     DialogStyle::page};
constexpr DialogTemplate steelTemplate{"steel", "Ocelové překlady"_cz, 186,
                                       175,     steelControls,         DialogStyle::page};
constexpr DialogTemplate monolithTemplate{"monolith", "Monolitické překlady"_cz, 186,
                                          175,        monolithControls,          DialogStyle::page};
constexpr DialogTemplate libraryTemplate{"library", "Knihovna"_cz,   186,
                                         175,       libraryControls, DialogStyle::page};

}  // namespace lx
