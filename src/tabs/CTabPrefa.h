// The page "Prefa překlady": the precast offer, and the commands that build a lintel from it.
#pragma once

#include "design/catalogue_choice.h"
#include "tabs/offer_page.h"

namespace lx {

class CTabPrefa : public OfferPage {
public:
    explicit CTabPrefa(DesignServices& services);

private:
    Offer& offer() override { return services().model().precastOffer(); }
    void changeType() override { services().RebuildPrecastOffer(); }
    void compose() override { services().ComposePrecast(); }
    void openCatalogue() override { services().OpenCatalogue(pickRequest | 1); }
    CommandAnswer addElement(DesignEdit design, const CRez* element) override {
        return addPrecast(design, element);
    }
    CommandAnswer addInsulationLayer(DesignEdit design) override { return addInsulation(design); }
    bool addAvailable(const Availability& available) const override { return available.addPrecast; }
};

}  // namespace lx
