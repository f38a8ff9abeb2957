#include "tabs/CTabKnihovna.h"

#include "resources/templates.h"
#include "tabs/CNabidka.h"
#include "tabs/page_window.h"

namespace lx {

CTabKnihovna::CTabKnihovna(DesignServices& services)
    : m_services(services),
      m_window(makePageWindow(services, libraryTemplate)),
      m_projects(m_window->get<ComboBox>(id::projects)),
      m_designs(m_window->get<ListBox>(id::storedDesigns)),
      m_bearingCheck(m_window->get<CheckBox>(id::checkBearing)) {
    m_bearingCheck.onClick = [this] { m_services.model().bearingCheck = m_bearingCheck.checked(); };
    // A project or design that the user could choose here without effect would be stored over.
    for (const int control : {id::projects, id::newProject, id::storedDesigns, id::makeDefault}) {
        m_window->item(control).enable(false);
    }
}

void CTabKnihovna::showProjects() {
    const ProjectList& list = m_services.library().projects();
    m_projects.clear();
    for (const Project& project : list.projects) m_projects.add(project.name);
    m_projects.select(list.selected);
}

void CTabKnihovna::showDesigns() {
    m_designs.clear();
    for (const Text& label : m_services.model().storedLabels()) {
        m_designs.append(listRow(label, true));
    }
    m_designs.select(0);
}

}  // namespace lx
