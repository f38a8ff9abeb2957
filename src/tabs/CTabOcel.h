// The page "Ocelové překlady": the steel offer. Of its commands only the removal of a layer is
// there yet; the other buttons are disabled.
#pragma once

#include "tabs/offer_page.h"

namespace lx {

class CTabOcel : public OfferPageWindow {
public:
    explicit CTabOcel(DesignServices& services);

    void showAvailability(const Availability& available) override;

private:
    Offer& offer() override { return services().model().steelOffer(); }
    void changeType() override { services().RebuildSteelOffer(); }
    void addByDoubleClick() override {}

    Button& m_remove;
};

}  // namespace lx
