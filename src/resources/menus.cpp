#include "resources/menus.h"

#include <iterator>

#include "resources/ids.h"
#include "resources/strings.h"

namespace lx {

Menu designMenu() {
    Menu bends;
    for (std::size_t i = 0; i < std::size(text::bends); ++i) {
        bends.push_back({text::bends[i], id::commandBends + static_cast<int>(i), {}});
    }
    return {{"Automatický návrh"_cz, id::commandCompose, {}},
            {"Zalomené nadpraží"_cz, 0, bends},
            {"Přidat překlad"_cz, 0, {{text::catalogue, id::commandBrowseToAdd, {}}}},
            {},
            {text::catalogue, id::commandBrowse, {}},
            {"Přidat"_cz, id::commandBrowseToAdd, {}},
            {"Odstranit"_cz, id::commandRemove, {}},
            {"Přidat izolaci"_cz, id::commandInsulation, {}}};
}

Menu precastCatalogueMenu() {
    return {{text::newMenu, 0, {{"&Typ"_cz, id::newType, {}}, {"&Překlad"_cz, id::newItem, {}}}}};
}

Menu steelCatalogueMenu() {
    return {{text::newMenu,
             0,
             {{"&Typ průřezu"_cz, id::newType, {}}, {"&Průřez"_cz, id::newItem, {}}}}};
}

Menu typesPopup() {
    return {{text::newEntry, id::newType, {}},
            {"Přejmenovat"_cz, id::renameType, {}},
            {text::deleteEntry, id::deleteType, {}}};
}

Menu itemsPopup() {
    return {{text::newEntry, id::newItemInList, {}},
            {"Upravit"_cz, id::editItem, {}},
            {text::deleteEntry, id::deleteItem, {}}};
}

}  // namespace lx
