#include "resources/menus.h"

#include <iterator>

#include "resources/ids.h"
#include "resources/strings.h"

namespace lx {

Menu designMenu() {
    Menu bends;
    for (std::size_t i = 0; i < std::size(texts::bends); ++i) {
        bends.push_back({texts::bends[i], id::commandBends + static_cast<int>(i), {}});
    }
    return {{"Automatický návrh"_cz, id::commandCompose, {}},
            {"Zalomené nadpraží"_cz, 0, bends},
            {"Přidat překlad"_cz, 0, {{"Databáze"_cz, id::commandBrowseToAdd, {}}}},
            {},
            {"Databáze"_cz, id::commandBrowse, {}},
            {"Přidat"_cz, id::commandBrowseToAdd, {}},
            {"Odstranit"_cz, id::commandRemove, {}},
            {"Přidat izolaci"_cz, id::commandInsulation, {}}};
}

Menu precastCatalogueMenu() {
    return {{"&Nový"_cz, 0, {{"&Typ"_cz, id::newType, {}}, {"&Překlad"_cz, id::newItem, {}}}}};
}

Menu steelCatalogueMenu() {
    return {
        {"&Nový"_cz, 0, {{"&Typ průřezu"_cz, id::newType, {}}, {"&Průřez"_cz, id::newItem, {}}}}};
}

Menu typesPopup() {
    return {{"Nový"_cz, id::newType, {}},
            {"Přejmenovat"_cz, id::renameType, {}},
            {"Vymazat"_cz, id::deleteType, {}}};
}

Menu itemsPopup() {
    return {{"Nový"_cz, id::newItemInList, {}},
            {"Upravit"_cz, id::editItem, {}},
            {"Vymazat"_cz, id::deleteItem, {}}};
}

}  // namespace lx
