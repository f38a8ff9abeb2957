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

}  // namespace lx
