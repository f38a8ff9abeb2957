#include "tabs/CTabMonolit.h"

#include "resources/icons.h"
#include "resources/strings.h"
#include "resources/templates.h"
#include "tabs/page_window.h"

namespace lx {

CTabMonolit::CTabMonolit(DesignServices& services)
    : m_services(services),
      m_window(makePageWindow(services, monolithTemplate)),
      m_add(m_window->get<Button>(id::monolithAdd)),
      m_remove(m_window->get<Button>(id::monolithRemove)),
      m_insulation(m_window->get<Button>(id::monolithInsulation)) {
    dress(m_add, icon::monolith, text::addMonolith);
    dress(m_remove, icon::remove, text::removeLayer);
    dress(m_insulation, icon::insulation, text::addInsulation);
    m_add.onClick = [this] { insert(addMonolith); };
    m_remove.onClick = [this] { m_services.removeCurrentLayer(); };
    m_insulation.onClick = [this] { insert(addSteelInsulation); };
}

void CTabMonolit::showAvailability(const Availability& available) {
    // The one that can be used takes the focus of the one that goes.
    if (available.remove) m_remove.enable(true);
    enableOrLeave(m_add, available.addMonolith, m_remove);
    enableOrLeave(m_insulation, available.insertInsulation, m_remove);
    enableOrLeave(m_remove, available.remove, m_add);
}

void CTabMonolit::insert(CommandAnswer (*command)(DesignEdit)) {
    m_services.endEdit();
    if (command(m_services.model().edit()) == CommandAnswer::done) m_services.Relayout();
}

}  // namespace lx
