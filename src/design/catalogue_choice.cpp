#include "design/catalogue_choice.h"

#include "design/page_index.h"

namespace lx {

namespace {

std::optional<CatalogueElement> elementOf(const CRez* record, CatalogueKind kind) {
    if (record == nullptr || record->isHead()) return std::nullopt;
    return CatalogueElement{kind, record->typeIndex, record->itemIndex,
                            Text(record->nameOrEmpty())};
}

CatalogueKind kindOf(const CRez& record, CatalogueKind otherwise) {
    const Family family = traits(record.kind).family;
    if (family == Family::precast) return CatalogueKind::precast;
    return family == Family::steel ? CatalogueKind::steel : otherwise;
}

}  // namespace

CatalogueChoice chooseCatalogue(DesignModel& model, PropertiesSource source, int page, bool mayPick,
                                const std::optional<CatalogueElement>& last) {
    CatalogueChoice choice;
    choice.kind = model.browserKind;
    if (source == PropertiesSource::preview) {
        const CRez* current = model.current();
        if (current != nullptr && !current->isHead()) choice.kind = kindOf(*current, choice.kind);
        choice.element = elementOf(current, choice.kind);
    } else if (page == page::precast) {
        choice.kind = CatalogueKind::precast;
        choice.element = elementOf(model.precastOffer().selectedRecord(), choice.kind);
    } else if (page == page::steel) {
        choice.kind = CatalogueKind::steel;
        choice.element = elementOf(model.steelOffer().selectedRecord(), choice.kind);
    } else if (last && last->kind == choice.kind) {
        choice.element = last;
    }
    choice.pickMode = mayPick && choice.kind == CatalogueKind::precast;
    return choice;
}

}  // namespace lx
