#include "tabs/offer_page.h"

#include "resources/strings.h"
#include "tabs/page_window.h"

namespace lx {

OfferPageWindow::OfferPageWindow(DesignServices& services, const DialogTemplate& layout,
                                 int typeBox, int offerList)
    : m_services(services),
      m_window(makePageWindow(services, layout)),
      m_types(m_window->get<ComboBox>(typeBox)),
      m_offer(m_window->get<ListBox>(offerList)) {
    m_types.onSelect = [this] {
        m_services.EndEdit();
        changeType();
    };
    m_offer.list().onSelect = [this] {
        m_services.EndEdit();
        offer().select(m_offer.list().selected());
        Refresh();
    };
    m_offer.list().onDoubleClick = [this] { addByDoubleClick(); };
}

void OfferPageWindow::fillTypes(const std::vector<Text>& names) {
    m_types.clear();
    for (const Text& name : names) m_types.add(name);
}

void OfferPageWindow::selectType(int type) {
    const bool known = type >= 0 && type < m_types.count();
    m_types.select(known ? type : m_types.count() > 0 ? 0 : -1);
}

void OfferPageWindow::showOffer() {
    m_offer.fill(offer(), m_services.model().FreeSpace());
}

void OfferPageWindow::refreshOfferLooks() {
    m_offer.refreshLooks(offer(), m_services.model().FreeSpace());
}

void OfferPageWindow::finish(CommandAnswer answer) {
    if (answer == CommandAnswer::wrongType) {
        m_services.showMessage(texts::wrongType, MessageIcon::stop);
        return;
    }
    if (answer == CommandAnswer::done) m_services.Relayout();
    Refresh();
}

void OfferPageWindow::Refresh() {
    m_services.RefreshAvailability();
    m_services.RefreshProperties();
}

}  // namespace lx
