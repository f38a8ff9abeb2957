#include "tabs/CTabPrefa.h"

#include "resources/icons.h"
#include "resources/strings.h"
#include "resources/templates.h"
#include "tabs/page_window.h"

namespace lx {

CTabPrefa::CTabPrefa(DesignServices& services)
    : OfferPageWindow(services, precastTemplate, id::precastType, id::precastOffer),
      m_add(get<Button>(id::precastAdd)),
      m_remove(get<Button>(id::precastRemove)),
      m_insulation(get<Button>(id::precastInsulation)),
      m_space(get<Button>(id::precastSpace)) {
    dress(m_add, icon::add, texts::addPrecast);
    dress(m_remove, icon::remove, texts::removeLayer);
    dress(m_insulation, icon::insulation, texts::addInsulation);
    dress(m_space, icon::space, texts::addSpace);
    m_add.onClick = [this] { addSelected(); };
    m_remove.onClick = [this] { this->services().RemoveCurrent(); };
    m_insulation.onClick = [this] { insertInsulation(); };
    m_space.onClick = [this] { insertSpace(); };
    get<Button>(id::precastCompose).onClick = [this] {
        this->services().ComposePrecast();
        Refresh();
    };
    get<Button>(id::precastCatalogue).onClick = [this] {
        this->services().OpenCatalogue(pickRequest | 1);
    };
}

void CTabPrefa::showAvailability(const Availability& available) {
    ListBox& list = nabidka().list();
    enableOrLeave(m_add, available.addPrecast, list);
    enableOrLeave(m_remove, available.remove, list);
    enableOrLeave(m_insulation, available.insertInsulation, list);
    enableOrLeave(m_space, available.insertSpace, list);
}

void CTabPrefa::addByDoubleClick() {
    if (m_add.enabled()) addSelected();
}

void CTabPrefa::addSelected() {
    services().EndEdit();
    DesignModel& model = services().model();
    finish(addPrecast(model.edit(), model.precastOffer().selectedRecord()));
}

void CTabPrefa::insertInsulation() {
    services().EndEdit();
    finish(addInsulation(services().model().edit()));
}

void CTabPrefa::insertSpace() {
    services().EndEdit();
    finish(addSpace(services().model().edit()));
}

}  // namespace lx
