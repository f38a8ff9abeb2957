// The module's texts by name, in code page 1250 and zero-terminated: the string table, and what no
// template holds or more than one does. Captions of one template or menu alone stand there.
#pragma once

#include <string_view>

#include "platform/text.h"

namespace lx::text {

// ---- the string table, behind each text its numbers
// "Tlouštka", "tlouštce" and "tohtoto" are spelled as the system has always shown them.

inline constexpr std::string_view cancel = "Zrušit"_cz;                        // 1
inline constexpr std::string_view newSectionType = "Přidání typu průřezu"_cz;  // 2
inline constexpr std::string_view name = "Název:"_cz;                          // 3
inline constexpr std::string_view newType = "Nový typ"_cz;                     // 4

// Values of catalogue items.
inline constexpr std::string_view designation = "Označení"_cz;            // 5
inline constexpr std::string_view itemWidth = "Šířka [mm]"_cz;            // 6
inline constexpr std::string_view itemHeight = "Výška [mm]"_cz;           // 7
inline constexpr std::string_view weightPerMetre = "Hmotnost [kg/m]"_cz;  // 8
inline constexpr std::string_view itemQu = "qu [kN/m]"_cz;                // 9
inline constexpr std::string_view description = "Popis"_cz;               // 10
inline constexpr std::string_view itemLength = "Délka [mm]"_cz;           // 11
inline constexpr std::string_view itemMaxOpening = "Max.otvor [mm]"_cz;   // 12
inline constexpr std::string_view itemWeight = "Hmotnost [kg]"_cz;        // 13
inline constexpr std::string_view notGiven = "nezadáno"_cz;               // 16

// Catalogue browser and the dialogs that ask for a name.
inline constexpr std::string_view nameTaken = "Již obsažen v databázi."_cz;             // 19
inline constexpr std::string_view designationMissing = "Nebylo vyplněno označení."_cz;  // 20
inline constexpr std::string_view askDeleteItem =
    "Opravdu si přejete vymazat\r\npřeklad \"%s\"?"_cz;                       // 21
inline constexpr std::string_view warning = "Upozornění"_cz;                  // 22
inline constexpr std::string_view newBefore = "Nový "_cz;                     // 23
inline constexpr std::string_view changeBefore = "Upravit "_cz;               // 24
inline constexpr std::string_view lintel = "překlad"_cz;                      // 25
inline constexpr std::string_view section = "průřez"_cz;                      // 26
inline constexpr std::string_view nameMissing = "Nebylo vyplněno jméno."_cz;  // 27
inline constexpr std::string_view askDeleteType =
    "Opravdu si přejete vymazat celou databázi překladů \"%s\" ?"_cz;      // 29
inline constexpr std::string_view renameType = "Přejmenovat typ"_cz;       // 30
inline constexpr std::string_view askDeleteEntry = "Smazat položku ?"_cz;  // 31

// Design dialog.
inline constexpr std::string_view bearing = "Uložení: %d mm"_cz;      // 38
inline constexpr std::string_view designTitle = "Návrh překladu"_cz;  // 39
inline constexpr std::string_view properties = "Vlastnosti:"_cz;      // 40
inline constexpr std::string_view fromPreview = "z náhledu"_cz;       // 41
inline constexpr std::string_view fromOffer = "z nabídky"_cz;         // 42

// Annotation settings.
inline constexpr std::string_view bubble = "Bublina"_cz;                           // 43
inline constexpr std::string_view bubbleColor = "Barva označení:"_cz;              // 44
inline constexpr std::string_view auxiliaryLineLength = "Délka pomocné čáry:"_cz;  // 45
inline constexpr std::string_view textHeight = "Výška textu:"_cz;                  // 46, 51
inline constexpr std::string_view bubbleTurning = "Natočení označení"_cz;          // 47
inline constexpr std::string_view followsOpening = "podle otvoru"_cz;              // 48
inline constexpr std::string_view angle = "Úhel:"_cz;                              // 49
inline constexpr std::string_view descriptionColor = "Barva popisu:"_cz;           // 50
inline constexpr std::string_view annotationSettings = "Nastavení..."_cz;          // 58

// Refused arguments of a call.
inline constexpr std::string_view wallTooWide =
    "Šířka stěny je větší než 2.0 m nebo bylo vybráno více otvorů."_cz;  // 70
inline constexpr std::string_view wallTooThin =
    "Šířka stěny je menší než 0.07 m nebo nebyl vybrán žádný otvor."_cz;  // 72
inline constexpr std::string_view openingTooNarrow =
    "Šířka otvoru je menší než 0.30 m nebo nebyl vybrán žádný otvor."_cz;  // 73

inline constexpr std::string_view newItem = "Nový překlad"_cz;             // 74
inline constexpr std::string_view wrongNumber = "Chybně zadané číslo"_cz;  // 75

// Previews and the properties of a layer.
inline constexpr std::string_view thickness = "Tlouštka : "_cz;              // 76
inline constexpr std::string_view width = "Šířka : "_cz;                     // 77
inline constexpr std::string_view height = "Výška : "_cz;                    // 78
inline constexpr std::string_view sectionTitle = "Řez:"_cz;                  // 79
inline constexpr std::string_view exterior = "Vnější"_cz;                    // 80
inline constexpr std::string_view interior = "Vnitřní"_cz;                   // 81
inline constexpr std::string_view openingWidth = "Šířka otvoru = %d mm"_cz;  // 82
inline constexpr std::string_view insulation = "IZOLACE"_cz;                 // 83
inline constexpr std::string_view propertiesWithLetter =
    "Označení: %s %C\r\nDélka: %d, %s %d, Výška: %d [mm]\r\nUložení: %d mm"_cz;  // 84
inline constexpr std::string_view wall = "<Stěna>"_cz;                           // 85
inline constexpr std::string_view propertiesOfLayer =
    "Označení: %s\r\nDélka: %d, %s %d, Výška: %d [mm]\r\nUložení: %d mm"_cz;                // 86
inline constexpr std::string_view bubbleMissing = "Musí být vyplněno označení bubliny"_cz;  // 87
inline constexpr std::string_view labelTaken =
    "Překlad tohtoto označení se liší od uloženého.\r\nZvolte jiné označení."_cz;  // 88
inline constexpr std::string_view ownDesign = "<výchozí>"_cz;                      // 89
inline constexpr std::string_view planTitle = "Půdorys:"_cz;                       // 90
inline constexpr std::string_view levelRefused =
    "Výška mimo povolený rozsah ( ± 150.000 m)"_cz;  // 91
inline constexpr std::string_view widthRefused =
    "Zadaná hodnota neodpovídá tlouštce stěny."_cz;         // 92
inline constexpr std::string_view space = "MEZERA"_cz;      // 94
inline constexpr std::string_view monolith = "MONOLIT"_cz;  // 95
inline constexpr std::string_view doesNotFit =
    "Navržený překlad nevyhovuje odměřené velikosti otvoru,\r\nnebude se vykreslovat."_cz;  // 96
inline constexpr std::string_view newProject = "Nová akce"_cz;                              // 97
inline constexpr std::string_view catalogue = "Databáze"_cz;                                // 99
inline constexpr std::string_view help = "Nápověda"_cz;                                     // 100
inline constexpr std::string_view catalogueReadOnly =
    "Databáze je otevřena pouze pro čtení."_cz;  // 110
inline constexpr std::string_view tooFewEdges =
    "Hodnota parametru 'počet hran' v nastavení bubliny, nesmí být menší než 3 a musí se jednat o celé číslo!"_cz;  // 111
inline constexpr std::string_view libraryReadOnly =
    "Knihovna je otevřena pouze pro čtení."_cz;  // 112
inline constexpr std::string_view catalogueNotAccessible =
    "Databáze překladů není přístupná"_cz;  // 113
inline constexpr std::string_view copyFailed =
    "Data se nepodařilo zkopírovat do schránky"_cz;  // 114

// ---- texts without a number

// The library could not be written at OK.
inline constexpr std::string_view storeFailed = "Překlad se nepodařilo uložit do knihovny."_cz;
// A catalogue could not be written, at OK or with a new item.
inline constexpr std::string_view catalogueNotWritten =
    "Databázi překladů se nepodařilo uložit."_cz;
// A layer of another family than the design's was to be added.
inline constexpr std::string_view wrongType = "Chybný typ"_cz;

// Title of the catalogue browser, with the name of the selected type.
inline constexpr std::string_view precastBrowser = "Databáze prefabrikátů (%s)"_cz;
inline constexpr std::string_view steelBrowser = "Databáze průřezů (%s)"_cz;

// Heading of the composition mark's column.
inline constexpr std::string_view compositionMark = "X"_cz;
// The same in the item editor.
inline constexpr std::string_view itemMark = "X (označení pro skladbu v VDLINTEL.TXT)"_cz;

// Properties text of an offered record without a name.
inline constexpr std::string_view noName = "<NULL>"_cz;

// Name of the project that every project list starts with.
inline constexpr std::string_view defaultProject = "DEFAULT"_cz;

// Captions in more than one template or menu.
inline constexpr std::string_view ok = "OK"_cz;
inline constexpr std::string_view itemEditor = "Editace"_cz;
inline constexpr std::string_view widthFactor = "Faktor šířky:"_cz;
inline constexpr std::string_view compose = "Skladba automaticky"_cz;
inline constexpr std::string_view type = "Typ:"_cz;
inline constexpr std::string_view newMenu = "&Nový"_cz;
inline constexpr std::string_view newEntry = "Nový"_cz;
inline constexpr std::string_view deleteEntry = "Vymazat"_cz;

// Tooltips of the pages' icon buttons.
inline constexpr std::string_view addPrecast = "Vložit vybraný překlad"_cz;
inline constexpr std::string_view addSection = "Vložit vybraný profil"_cz;
inline constexpr std::string_view addMonolith = "Vložit monolit"_cz;
inline constexpr std::string_view addInsulation = "Vložit izolaci"_cz;
inline constexpr std::string_view addSpace = "Vložit mezeru"_cz;
inline constexpr std::string_view removeLayer = "Vymazat vybraný prvek"_cz;
// Tooltips of the geometry page's bend buttons, in their order; the command menu names them alike.
inline constexpr std::string_view bends[] = {"Zrušit zalomení"_cz, "1 zalomení"_cz,
                                             "2 zalomení"_cz,      "3 zalomení"_cz,
                                             "4 zalomení"_cz,      "5 zalomení"_cz};
// Tooltips of the section shapes that can be chosen, from shape 1.
inline constexpr std::string_view shapes[] = {"I"_cz, "L"_cz, "U"_cz};

}  // namespace lx::text
