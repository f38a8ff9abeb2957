// What the precast and the steel page have in common: the "Typ:" box, the offer list, and the
// buttons that build a lintel from it.
#pragma once

#include <memory>

#include "design/design_services.h"
#include "tabs/CNabidka.h"
#include "tabs/design_page.h"

namespace lx {

// Control ids of a page.
struct OfferPageControls {
    int typeBox = 0;
    int offerList = 0;
    int compose = 0;
    int add = 0;
    int remove = 0;
    int insulation = 0;
    int space = 0;
    int catalogue = 0;
};

class OfferPage : public DesignPage {
public:
    Dialog& window() override { return *m_window; }
    void showAvailability(const Availability& available) override;
    void fillTypes(const std::vector<Text>& names);
    // A type outside the box selects the first one.
    void selectType(int type);
    // From 0; -1 when the box is empty.
    int selectedType() const { return m_types.selected(); }
    // Its name; empty when the box is.
    Text selectedTypeName() const { return m_types.text(); }
    // Fills the list with the model's offer anew and selects the entry that the model has selected.
    void showOffer();
    // Which entries are drawn red depends on the free space.
    void refreshOfferLooks();

protected:
    // addTooltip: a text that lasts.
    OfferPage(DesignServices& services, const DialogTemplate& layout,
              const OfferPageControls& controls, std::string_view addTooltip);

    DesignServices& services() { return m_services; }
    // The model's offer that this page lists.
    virtual Offer& offer() = 0;
    virtual void changeType() = 0;
    virtual void compose() = 0;
    virtual void openCatalogue() = 0;
    virtual CommandAnswer addElement(DesignEdit design, const CRez* element) = 0;
    virtual CommandAnswer addInsulationLayer(DesignEdit design) = 0;
    // Whether the selected element may be added.
    virtual bool addAvailable(const Availability& available) const = 0;

private:
    void connect(const OfferPageControls& controls, std::string_view addTooltip);
    void addSelected();
    // After a command: lays out when the design has changed, or tells why it has not.
    void finish(CommandAnswer answer);
    // After a command and a new selection.
    void Refresh();

    DesignServices& m_services;
    std::unique_ptr<Dialog> m_window;
    ComboBox& m_types;
    CNabidka m_offer;
    Button& m_add;
    Button& m_remove;
    Button& m_insulation;
    Button& m_space;
};

}  // namespace lx
