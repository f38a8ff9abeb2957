// What the catalogue browser shows when it is opened over a design.
#pragma once

#include <optional>

#include "design/design_model.h"

namespace lx {

// A catalogue element by its places; the record itself may be gone when the browser opens again.
struct CatalogueElement {
    CatalogueKind kind = CatalogueKind::precast;
    std::int32_t typeIndex = 0;
    std::int32_t itemIndex = 0;
    Text name;  // its designation
    bool operator==(const CatalogueElement&) const = default;
};

struct CatalogueChoice {
    CatalogueKind kind = CatalogueKind::precast;
    // None: the type shown in the page's "Typ:" box and its first item.
    std::optional<CatalogueElement> element;
    bool pickMode = false;  // items may be picked into the precast offer
};

// page: the one shown. last: the element shown first by the last browser. The catalogue is that of
// the page, or of the precast or steel page shown last, unless the current record says otherwise;
// items are picked from the precast catalogue alone, since they become precast layers.
CatalogueChoice chooseCatalogue(DesignModel& model, PropertiesSource source, int page, bool mayPick,
                                const std::optional<CatalogueElement>& last);

}  // namespace lx
