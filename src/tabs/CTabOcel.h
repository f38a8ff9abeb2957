// The page "Ocelové překlady": the steel offer, and the commands that build a lintel of sections.
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
    void addByDoubleClick() override;

    void addSelected();
    void insertInsulation();
    void insertSpace();

    Button& m_add;
    Button& m_remove;
    Button& m_insulation;
    Button& m_space;
};

}  // namespace lx
