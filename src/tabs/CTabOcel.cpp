#include "tabs/CTabOcel.h"

#include "resources/strings.h"
#include "resources/templates.h"

namespace lx {

namespace {

constexpr OfferPageControls controls{id::steelType,  id::steelOffer,    id::steelCompose,
                                     id::steelAdd,   id::steelRemove,   id::steelInsulation,
                                     id::steelSpace, id::steelCatalogue};

}  // namespace

CTabOcel::CTabOcel(DesignServices& services)
    : OfferPage(services, steelTemplate, controls, text::addSection) {}

}  // namespace lx
