// Makes the real pages and previews of the design dialog.
#pragma once

#include "design/pages.h"

namespace lx {

class TabFactory : public PageFactory {
public:
    std::unique_ptr<GeometryPage> makeGeometry(DesignServices& services) override;
    std::unique_ptr<OfferPage> makePrecast(DesignServices& services) override;
    std::unique_ptr<OfferPage> makeSteel(DesignServices& services) override;
    std::unique_ptr<MonolithPage> makeMonolith(DesignServices& services) override;
    std::unique_ptr<LibraryPage> makeLibrary(DesignServices& services) override;
    std::unique_ptr<SectionPreview> makeSection(DesignServices& services,
                                                Picture& picture) override;
};

}  // namespace lx
