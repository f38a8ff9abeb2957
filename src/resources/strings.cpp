#include "resources/strings.h"

#include <array>

namespace lx {

namespace {

constexpr int lastNumber = 115;

struct Entry {
    int number;
    std::string_view text;
};

// "Tlouštka", "tlouštce" and "tohtoto" are spelled as the system has always shown them.
constexpr Entry entries[] = {
    {1, "Zrušit"_cz},
    {2, "Přidání typu průřezu"_cz},
    {3, "Název:"_cz},
    {4, "Nový typ"_cz},
    {5, "Označení"_cz},
    {6, "Šířka [mm]"_cz},
    {7, "Výška [mm]"_cz},
    {8, "Hmotnost [kg/m]"_cz},
    {9, "qu [kN/m]"_cz},
    {10, "Popis"_cz},
    {11, "Délka [mm]"_cz},
    {12, "Max.otvor [mm]"_cz},
    {13, "Hmotnost [kg]"_cz},
    {16, "nezadáno"_cz},
    {19, "Již obsažen v databázi."_cz},
    {20, "Nebylo vyplněno označení."_cz},
    {21, "Opravdu si přejete vymazat\r\npřeklad \"%s\"?"_cz},
    {22, "Upozornění"_cz},
    {23, "Nový "_cz},
    {24, "Upravit "_cz},
    {25, "překlad"_cz},
    {26, "průřez"_cz},
    {27, "Nebylo vyplněno jméno."_cz},
    {29, "Opravdu si přejete vymazat celou databázi překladů \"%s\" ?"_cz},
    {30, "Přejmenovat typ"_cz},
    {31, "Smazat položku ?"_cz},
    {38, "Uložení: %d mm"_cz},
    {39, "Návrh překladu"_cz},
    {40, "Vlastnosti:"_cz},
    {41, "z náhledu"_cz},
    {42, "z nabídky"_cz},
    {43, "Bublina"_cz},
    {44, "Barva označení:"_cz},
    {45, "Délka pomocné čáry:"_cz},
    {46, "Výška textu:"_cz},
    {47, "Natočení označení"_cz},
    {48, "podle otvoru"_cz},
    {49, "Úhel:"_cz},
    {50, "Barva popisu:"_cz},
    {51, "Výška textu:"_cz},
    {58, "Nastavení..."_cz},
    {70, "Šířka stěny je větší než 2.0 m nebo bylo vybráno více otvorů."_cz},
    {72, "Šířka stěny je menší než 0.07 m nebo nebyl vybrán žádný otvor."_cz},
    {73, "Šířka otvoru je menší než 0.30 m nebo nebyl vybrán žádný otvor."_cz},
    {74, "Nový překlad"_cz},
    {75, "Chybně zadané číslo"_cz},
    {76, "Tlouštka : "_cz},
    {77, "Šířka : "_cz},
    {78, "Výška : "_cz},
    {79, "Řez:"_cz},
    {80, "Vnější"_cz},
    {81, "Vnitřní"_cz},
    {82, "Šířka otvoru = %d mm"_cz},
    {83, "IZOLACE"_cz},
    {84, "Označení: %s %C\r\nDélka: %d, %s %d, Výška: %d [mm]\r\nUložení: %d mm"_cz},
    {85, "<Stěna>"_cz},
    {86, "Označení: %s\r\nDélka: %d, %s %d, Výška: %d [mm]\r\nUložení: %d mm"_cz},
    {87, "Musí být vyplněno označení bubliny"_cz},
    {88, "Překlad tohtoto označení se liší od uloženého.\r\nZvolte jiné označení."_cz},
    {89, "<výchozí>"_cz},
    {90, "Půdorys:"_cz},
    {91, "Výška mimo povolený rozsah ( ± 150.000 m)"_cz},
    {92, "Zadaná hodnota neodpovídá tlouštce stěny."_cz},
    {94, "MEZERA"_cz},
    {95, "MONOLIT"_cz},
    {96, "Navržený překlad nevyhovuje odměřené velikosti otvoru,\r\nnebude se vykreslovat."_cz},
    {97, "Nová akce"_cz},
    {99, "Databáze"_cz},
    {100, "Nápověda"_cz},
    {110, "Databáze je otevřena pouze pro čtení."_cz},
    {111,
     "Hodnota parametru 'počet hran' v nastavení bubliny, nesmí být menší než 3 a musí se jednat o celé číslo!"_cz},
    {112, "Knihovna je otevřena pouze pro čtení."_cz},
    {113, "Databáze překladů není přístupná"_cz},
    {114, "Data se nepodařilo zkopírovat do schránky"_cz},
};

constexpr auto table = [] {
    std::array<std::string_view, lastNumber + 1> texts{};
    texts.fill(""_cz);
    for (const Entry& entry : entries)
        texts.at(static_cast<std::size_t>(entry.number)) = entry.text;
    return texts;
}();

}  // namespace

std::string_view str(int number) {
    return table[number >= 1 && number <= lastNumber ? static_cast<std::size_t>(number) : 0];
}

}  // namespace lx
