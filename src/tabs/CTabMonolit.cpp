#include "tabs/CTabMonolit.h"

#include "resources/icons.h"
#include "resources/strings.h"
#include "resources/templates.h"
#include "tabs/page_window.h"

namespace lx {

CTabMonolit::CTabMonolit(DesignServices& services)
    : m_window(makePageWindow(services, monolithTemplate)),
      m_remove(m_window->get<Button>(id::monolithRemove)) {
    Button& add = m_window->get<Button>(id::monolithAdd);
    Button& insulation = m_window->get<Button>(id::monolithInsulation);
    dress(add, icon::monolith, texts::addMonolith);
    dress(m_remove, icon::remove, texts::removeLayer);
    dress(insulation, icon::insulation, texts::addInsulation);
    m_remove.onClick = [&services] { removeCurrentLayer(services); };
    add.enable(false);
    insulation.enable(false);
}

void CTabMonolit::showAvailability(const Availability& available) {
    m_remove.enable(available.remove);
}

}  // namespace lx
