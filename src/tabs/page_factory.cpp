#include "tabs/page_factory.h"

#include "preview/CObr.h"
#include "tabs/CTabGeometrie.h"
#include "tabs/CTabKnihovna.h"
#include "tabs/CTabMonolit.h"
#include "tabs/CTabOcel.h"
#include "tabs/CTabPrefa.h"

namespace lx {

std::unique_ptr<GeometryPage> TabFactory::makeGeometry(DesignServices& services) {
    return std::make_unique<CTabGeometrie>(services);
}

std::unique_ptr<OfferPage> TabFactory::makePrecast(DesignServices& services) {
    return std::make_unique<CTabPrefa>(services);
}

std::unique_ptr<OfferPage> TabFactory::makeSteel(DesignServices& services) {
    return std::make_unique<CTabOcel>(services);
}

std::unique_ptr<MonolithPage> TabFactory::makeMonolith(DesignServices& services) {
    return std::make_unique<CTabMonolit>(services);
}

std::unique_ptr<LibraryPage> TabFactory::makeLibrary(DesignServices& services) {
    return std::make_unique<CTabKnihovna>(services);
}

std::unique_ptr<SectionPreview> TabFactory::makeSection(DesignServices& services,
                                                        Picture& picture) {
    return std::make_unique<CObr>(services, picture);
}

}  // namespace lx
