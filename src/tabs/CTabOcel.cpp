#include "tabs/CTabOcel.h"

#include "resources/icons.h"
#include "resources/strings.h"
#include "resources/templates.h"
#include "tabs/page_window.h"

namespace lx {

CTabOcel::CTabOcel(DesignServices& services)
    : OfferPageWindow(services, steelTemplate, id::steelType, id::steelOffer),
      m_add(get<Button>(id::steelAdd)),
      m_remove(get<Button>(id::steelRemove)),
      m_insulation(get<Button>(id::steelInsulation)),
      m_space(get<Button>(id::steelSpace)) {
    dress(m_add, icon::add, texts::addSection);
    dress(m_remove, icon::remove, texts::removeLayer);
    dress(m_insulation, icon::insulation, texts::addInsulation);
    dress(m_space, icon::space, texts::addSpace);
    m_add.onClick = [this] { addSelected(); };
    m_remove.onClick = [this] { this->services().RemoveCurrent(); };
    m_insulation.onClick = [this] { insertInsulation(); };
    m_space.onClick = [this] { insertSpace(); };
    get<Button>(id::steelCompose).onClick = [this] {
        this->services().ComposeSteel();
        Refresh();
    };
    get<Button>(id::steelCatalogue).onClick = [this] { this->services().OpenCatalogue(1); };
}

void CTabOcel::showAvailability(const Availability& available) {
    ListBox& list = nabidka().list();
    enableOrLeave(m_add, available.addSteel, list);
    enableOrLeave(m_remove, available.remove, list);
    enableOrLeave(m_insulation, available.insertInsulation, list);
    enableOrLeave(m_space, available.insertSpace, list);
}

void CTabOcel::addByDoubleClick() {
    if (m_add.enabled()) addSelected();
}

void CTabOcel::addSelected() {
    services().EndEdit();
    DesignModel& model = services().model();
    finish(addSteel(model.edit(), model.steelOffer().selectedRecord()));
}

void CTabOcel::insertInsulation() {
    services().EndEdit();
    finish(addSteelInsulation(services().model().edit()));
}

void CTabOcel::insertSpace() {
    services().EndEdit();
    finish(addSpace(services().model().edit()));
}

}  // namespace lx
