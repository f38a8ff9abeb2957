#include "tabs/CTabPrefa.h"

#include "resources/strings.h"
#include "resources/templates.h"

namespace lx {

namespace {

constexpr OfferPageControls controls{id::precastType,  id::precastOffer,    id::precastCompose,
                                     id::precastAdd,   id::precastRemove,   id::precastInsulation,
                                     id::precastSpace, id::precastCatalogue};

}  // namespace

CTabPrefa::CTabPrefa(DesignServices& services)
    : OfferPage(services, precastTemplate, controls, text::addPrecast) {}

}  // namespace lx
