// The commands of the design dialog: those that the pages share, and the menu over the section
// preview.
#include <algorithm>

#include "browser/CData6_1.h"
#include "catalogue/catalogue_edit.h"
#include "composition/offers.h"
#include "composition/rules_file.h"
#include "design/bend_presets.h"
#include "dialog/CObr1.h"
#include "resources/ids.h"
#include "resources/menus.h"

namespace lx {

namespace {

// The chosen element with its type, as far as it is still there; else the type that the page shows.
BrowserRequest browserRequest(const CatalogueChoice& choice, CPreklItem* catalogue,
                              const OfferPage& page) {
    BrowserRequest request;
    request.kind = choice.kind;
    request.pickMode = choice.pickMode;
    request.type = page.selectedType();
    request.typeName = page.selectedTypeName();
    if (choice.element) {
        request.element = {choice.element->typeIndex, choice.element->itemIndex};
        request.elementName = choice.element->name;
        const CPreklItem* type = typeAt(catalogue, choice.element->typeIndex);
        if (type != nullptr) request.typeName = type->nameOrEmpty();
    }
    return request;
}

// -1 for none.
int typePosition(CPreklItem* catalogue, const CPreklItem* type) {
    const std::vector<CPreklItem*> types = typeRecords(catalogue);
    const auto found = std::find(types.begin(), types.end(), type);
    return found == types.end() ? -1 : static_cast<int>(found - types.begin());
}

}  // namespace

void CObr1::bendHead(int shape) {
    endEdit();
    CRez* head = m_model.head();
    if (head == nullptr) return;
    setBends(*head, shape);
    Relayout();
}

void CObr1::ComposePrecast() {
    endEdit();
    const Profile rules(m_context.files, m_context.host.dataFolder() + Path(rulesFileName));
    if (m_model.ComposePrecast(rules)) Relayout();
}

void CObr1::ComposeSteel() {
    endEdit();
    if (m_model.ComposeSteel()) Relayout();
}

void CObr1::removeCurrentLayer() {
    endEdit();
    if (removeCurrent(m_model.edit()) == CommandAnswer::done) Relayout();
}

void CObr1::OpenCatalogue(int request) {
    endEdit();
    const CatalogueChoice choice =
        chooseCatalogue(m_model, m_source, m_tab, (request & pickRequest) != 0, m_browserElement);
    if (choice.element) m_browserElement = choice.element;
    const bool steel = choice.kind == CatalogueKind::steel;
    ModuleValues& values = m_context.values;
    Catalogue& catalogue = steel ? values.steel : values.precast;
    OfferPage& page = steel ? static_cast<OfferPage&>(*m_steel) : *m_precast;

    CData6_1 browser(m_context.platform, m_context.files, m_context.host, values.columnWidths,
                     Owner{m_window.get(), m_owner.hostWindow});
    browser.runOn(catalogue, steel ? values.steelState : values.precastState,
                  browserRequest(choice, catalogue.get(), page));

    // The design itself is as it was, so nothing is laid out: a description that the user has typed
    // would be lost.
    refillTypes(page, catalogue.get(), browser.requestedType());
    // The picked records belong to the catalogue: the offer takes copies of them before it can
    // change again.
    m_model.rebuildPrecastOffer(m_precast->selectedType(), browser.picked());
    m_precast->showOffer();
    RebuildSteelOffer();
}

// The type that was selected: itself, else by its name, else by its place.
void CObr1::refillTypes(OfferPage& page, CPreklItem* catalogue, const CPreklItem* selected) {
    const std::vector<Text> names = typeNames(catalogue);
    const Text name = page.selectedTypeName();
    int place = typePosition(catalogue, selected);
    if (place < 0) {
        const auto same = std::find(names.begin(), names.end(), name);
        place = same != names.end()
                    ? static_cast<int>(same - names.begin())
                    : std::min(page.selectedType(), static_cast<int>(names.size()) - 1);
    }
    page.fillTypes(names);
    page.selectType(place);
}

void CObr1::openCommandMenu() {
    endEdit();
    Picture& picture = m_window->get<Picture>(id::sectionPreview);
    const Size size = picture.size();
    const int command =
        m_window->popupMenu(designMenu(), picture, {size.width / 2, size.height / 2},
                            [this](int one) { return commandEnabled(one); });
    if (command != 0) run(command);
}

bool CObr1::commandEnabled(int command) {
    switch (command) {
        case id::commandCompose:
            return m_model.precastSelected();
        case id::commandRemove:
            return m_model.available().remove;
        case id::commandInsulation:
            return m_model.current() != nullptr;
        default:
            return true;
    }
}

void CObr1::run(int command) {
    switch (command) {
        case id::commandCompose:
            return ComposePrecast();
        case id::commandRemove:
            if (removeCurrentGoingBack(m_model.edit()) == CommandAnswer::done) Relayout();
            return;
        case id::commandInsulation:
            if (insertInsulation(m_model.edit()) == CommandAnswer::done) Relayout();
            return;
        case id::commandBrowse:
            return OpenCatalogue(0);
        case id::commandBrowseToAdd:
            return OpenCatalogue(1);
        default:
            return bendHead(command - id::commandBends);
    }
}

}  // namespace lx
