// The page "Ocelové překlady": the steel offer, and the commands that build a lintel of sections.
#pragma once

#include "tabs/offer_page.h"

namespace lx {

class CTabOcel : public OfferPage {
public:
    explicit CTabOcel(DesignServices& services);

private:
    Offer& offer() override { return services().model().steelOffer(); }
    void changeType() override { services().RebuildSteelOffer(); }
    void compose() override { services().ComposeSteel(); }
    void openCatalogue() override { services().OpenCatalogue(1); }
    CommandAnswer addElement(DesignEdit design, const CRez* element) override {
        return addSteel(design, element);
    }
    CommandAnswer addInsulationLayer(DesignEdit design) override {
        return addSteelInsulation(design);
    }
    bool addAvailable(const Availability& available) const override { return available.addSteel; }
};

}  // namespace lx
