#include "tabs/CTabOcel.h"

#include "resources/icons.h"
#include "resources/strings.h"
#include "resources/templates.h"
#include "tabs/page_window.h"

namespace lx {

CTabOcel::CTabOcel(DesignServices& services)
    : OfferPageWindow(services, steelTemplate, id::steelType, id::steelOffer),
      m_remove(get<Button>(id::steelRemove)) {
    dress(get<Button>(id::steelAdd), icon::add, texts::addSection);
    dress(m_remove, icon::remove, texts::removeLayer);
    dress(get<Button>(id::steelInsulation), icon::insulation, texts::addInsulation);
    dress(get<Button>(id::steelSpace), icon::space, texts::addSpace);
    m_remove.onClick = [this] { removeCurrentLayer(this->services()); };
    for (const int control : {id::steelCompose, id::steelAdd, id::steelInsulation, id::steelSpace,
                              id::steelCatalogue}) {
        get<Button>(control).enable(false);
    }
}

void CTabOcel::showAvailability(const Availability& available) {
    enableOrLeave(m_remove, available.remove, nabidka().list());
}

}  // namespace lx
