// The module's texts: the string table by number, and those that have a name instead. All in code
// page 1250, zero-terminated.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace lx {

// Text 1 to 115; empty for a number without a text.
std::string_view str(int number);

// Texts of the module that have no number. The texts of dialogs and pages stand in their templates.
namespace texts {
// The library could not be written at OK.
inline constexpr std::string_view storeFailed = "Překlad se nepodařilo uložit do knihovny."_cz;
// A layer of another family than the design's was to be added.
inline constexpr std::string_view wrongType = "Chybný typ"_cz;

// Title of the catalogue browser, with the name of the selected type.
inline constexpr std::string_view precastBrowser = "Databáze prefabrikátů (%s)"_cz;
inline constexpr std::string_view steelBrowser = "Databáze průřezů (%s)"_cz;

// Properties text of an offered record without a name.
inline constexpr std::string_view noName = "<NULL>"_cz;

// Name of the project that every project list starts with.
inline constexpr std::string_view defaultProject = "DEFAULT"_cz;

// Tooltips of the pages' icon buttons.
inline constexpr std::string_view addPrecast = "Vložit vybraný překlad"_cz;
inline constexpr std::string_view addSection = "Vložit vybraný profil"_cz;
inline constexpr std::string_view addMonolith = "Vložit monolit"_cz;
inline constexpr std::string_view addInsulation = "Vložit izolaci"_cz;
inline constexpr std::string_view addSpace = "Vložit mezeru"_cz;
inline constexpr std::string_view removeLayer = "Vymazat vybraný prvek"_cz;
// Tooltips of the geometry page's bend buttons, in their order.
inline constexpr std::string_view bends[] = {"Zrušit zalomení"_cz, "1 zalomení"_cz,
                                             "2 zalomení"_cz,      "3 zalomení"_cz,
                                             "4 zalomení"_cz,      "5 zalomení"_cz};
// Tooltips of the section shapes that can be chosen, from shape 1.
inline constexpr std::string_view shapes[] = {"I"_cz, "L"_cz, "U"_cz};
}  // namespace texts

}  // namespace lx
