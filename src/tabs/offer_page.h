// What the precast and the steel page have in common: the "Typ:" box and the offer list.
#pragma once

#include <memory>

#include "design/catalogue_choice.h"
#include "design/pages.h"
#include "design/services.h"
#include "tabs/CNabidka.h"

namespace lx {

class OfferPageWindow : public OfferPage {
public:
    Dialog& window() override { return *m_window; }
    void fillTypes(const std::vector<Text>& names) override;
    void selectType(int type) override;
    int selectedType() const override { return m_types.selected(); }
    Text selectedTypeName() const override { return m_types.text(); }
    void showOffer() override;
    void refreshOfferLooks() override;

protected:
    OfferPageWindow(DesignServices& services, const DialogTemplate& layout, int typeBox,
                    int offerList);

    DesignServices& services() { return m_services; }
    template <class C>
    C& get(int control) {
        return m_window->get<C>(control);
    }
    CNabidka& nabidka() { return m_offer; }
    // The model's offer that this page lists.
    virtual Offer& offer() = 0;
    virtual void changeType() = 0;
    // The page's command "add the selected element", when its button is enabled.
    virtual void addByDoubleClick() = 0;
    // After a command: lays out when the design has changed, or tells why it has not.
    void finish(CommandAnswer answer);
    // After a command and a new selection.
    void Refresh();

private:
    DesignServices& m_services;
    std::unique_ptr<Dialog> m_window;
    ComboBox& m_types;
    CNabidka m_offer;
};

}  // namespace lx
