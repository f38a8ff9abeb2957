#include "tabs/offer_page.h"

#include "resources/icons.h"
#include "resources/strings.h"
#include "tabs/page_window.h"

namespace lx {

OfferPage::OfferPage(DesignServices& services, const DialogTemplate& layout,
                     const OfferPageControls& controls, std::string_view addTooltip)
    : m_services(services),
      m_window(makePageWindow(services, layout)),
      m_types(m_window->get<ComboBox>(controls.typeBox)),
      m_offer(m_window->get<ListBox>(controls.offerList)),
      m_add(m_window->get<Button>(controls.add)),
      m_remove(m_window->get<Button>(controls.remove)),
      m_insulation(m_window->get<Button>(controls.insulation)),
      m_space(m_window->get<Button>(controls.space)) {
    connect(controls, addTooltip);
}

void OfferPage::connect(const OfferPageControls& controls, std::string_view addTooltip) {
    dress(m_add, icon::add, addTooltip);
    dress(m_remove, icon::remove, text::removeLayer);
    dress(m_insulation, icon::insulation, text::addInsulation);
    dress(m_space, icon::space, text::addSpace);
    m_add.onClick = [this] { addSelected(); };
    m_remove.onClick = [this] { m_services.removeCurrentLayer(); };
    m_insulation.onClick = [this] {
        m_services.endEdit();
        finish(addInsulationLayer(m_services.model().edit()));
    };
    m_space.onClick = [this] {
        m_services.endEdit();
        finish(addSpace(m_services.model().edit()));
    };
    m_window->get<Button>(controls.compose).onClick = [this] {
        compose();
        Refresh();
    };
    m_window->get<Button>(controls.catalogue).onClick = [this] { openCatalogue(); };
    m_types.onSelect = [this] {
        m_services.endEdit();
        changeType();
    };
    m_offer.list().onSelect = [this] {
        m_services.endEdit();
        offer().select(m_offer.list().selected());
        Refresh();
    };
    m_offer.list().onDoubleClick = [this] {
        if (m_add.enabled()) addSelected();
    };
}

void OfferPage::showAvailability(const Availability& available) {
    ListBox& list = m_offer.list();
    enableOrLeave(m_add, addAvailable(available), list);
    enableOrLeave(m_remove, available.remove, list);
    enableOrLeave(m_insulation, available.insertInsulation, list);
    enableOrLeave(m_space, available.insertSpace, list);
}

void OfferPage::addSelected() {
    m_services.endEdit();
    finish(addElement(m_services.model().edit(), offer().selectedRecord()));
}

void OfferPage::fillTypes(const std::vector<Text>& names) {
    m_types.clear();
    for (const Text& name : names) m_types.add(name);
}

void OfferPage::selectType(int type) {
    const bool known = type >= 0 && type < m_types.count();
    m_types.select(known ? type : m_types.count() > 0 ? 0 : -1);
}

void OfferPage::showOffer() {
    m_offer.fill(offer(), m_services.model().FreeSpace());
}

void OfferPage::refreshOfferLooks() {
    m_offer.refreshLooks(offer(), m_services.model().FreeSpace());
}

void OfferPage::finish(CommandAnswer answer) {
    if (answer == CommandAnswer::wrongType) {
        m_services.showMessage(text::wrongType, MessageIcon::stop);
        return;
    }
    if (answer == CommandAnswer::done) m_services.Relayout();
    Refresh();
}

void OfferPage::Refresh() {
    m_services.refreshAvailability();
    m_services.RefreshProperties();
}

}  // namespace lx
