// The page "Prefa překlady": the precast offer, and the commands that build a lintel from it.
#pragma once

#include "tabs/offer_page.h"

namespace lx {

class CTabPrefa : public OfferPageWindow {
public:
    explicit CTabPrefa(DesignServices& services);

    void showAvailability(const Availability& available) override;

private:
    Offer& offer() override { return services().model().precastOffer(); }
    void changeType() override { services().RebuildPrecastOffer(); }
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
