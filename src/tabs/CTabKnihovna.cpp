#include "tabs/CTabKnihovna.h"

#include "browser/CAddVyrobce.h"
#include "design/opening.h"
#include "resources/strings.h"
#include "resources/templates.h"
#include "tabs/page_window.h"

namespace lx {

namespace {

KeyAnswer onDelete(const KeyEvent& event, const std::function<bool()>& command) {
    const bool plain = !event.ctrl && !event.shift && !event.alt;
    if (event.key != key::del || !plain) return KeyAnswer::pass;
    return command() ? KeyAnswer::swallow : KeyAnswer::pass;
}

}  // namespace

CTabKnihovna::CTabKnihovna(DesignServices& services)
    : m_services(services),
      m_window(makePageWindow(services, libraryTemplate)),
      m_projects(m_window->get<ComboBox>(id::projects)),
      m_designs(m_window->get<ListBox>(id::storedDesigns), services.model()),
      m_bearingCheck(m_window->get<CheckBox>(id::checkBearing)) {
    ComboBox& projects = m_projects.box();
    projects.onSelect = [this, &projects] {
        m_services.library().selectProject(projects.selected());
        changeProject();
    };
    projects.onKey = [this](const KeyEvent& event) {
        return onDelete(event, [this] { return deleteProject(); });
    };
    ListBox& designs = m_designs.list();
    designs.onSelect = [this, &designs] { useStored(designs.selected()); };
    designs.onKey = [this](const KeyEvent& event) {
        return onDelete(event, [this] { return deleteStored(); });
    };
    m_bearingCheck.onClick = [this] {
        m_services.model().bearingCheck = m_bearingCheck.checked();
        useStored(m_services.model().shownStored());
    };
    Button& create = m_window->get<Button>(id::newProject);
    create.onClick = [this] { newProject(); };
    create.enable(!services.library().readOnly());
}

void CTabKnihovna::showProjects() {
    m_projects.fill(m_services.library().projects());
}

void CTabKnihovna::useStored(int entry) {
    m_services.endEdit();
    DesignModel& model = m_services.model();
    model.showStored(entry);
    m_services.Relayout();
    // Also with "z náhledu" the bearing is what is shown, until something else is selected: it
    // tells whether the design suits this opening.
    const CRez* first = model.head() != nullptr ? model.head()->next : nullptr;
    const double opening = model.values().openingWidth;
    m_services.showBearing(first != nullptr ? shownBearing(first->length, opening) : 0);
    const bool fits = model.shownFits();
    m_services.enableConfirmation(fits);
    if (!fits) m_services.showMessage(text::doesNotFit, MessageIcon::stop);
}

void CTabKnihovna::changeProject() {
    m_services.endEdit();
    if (m_services.library().available()) m_services.library().LoadLibrary(m_services.model());
    m_services.model().showStored(0);
    showDesigns();
    useStored(0);
}

void CTabKnihovna::newProject() {
    m_services.endEdit();
    LibrarySession& library = m_services.library();
    CAddVyrobce dialog(m_services.context().platform, m_services.context().host,
                       Owner{&m_services.window(), nullptr});
    dialog.title = text::newProject;
    dialog.label = text::name;
    dialog.name = library.proposedProjectName();
    while (dialog.doModal()) {
        if (dialog.name.empty()) {
            dialog.showMessage(text::nameMissing);
        } else if (library.hasProject(dialog.name)) {
            dialog.showMessage(text::nameTaken);
        } else {
            library.addProject(dialog.name);
            showProjects();
            return changeProject();
        }
    }
}

CTabKnihovna::Deletion CTabKnihovna::askDeletion() {
    if (m_services.library().readOnly()) {
        m_services.showMessage(text::libraryReadOnly, MessageIcon::none);
        return Deletion::refused;
    }
    const MessageAnswer answer =
        m_services.showMessage(text::askDeleteEntry, MessageIcon::question, MessageButtons::yesNo);
    return answer == MessageAnswer::yes ? Deletion::agreed : Deletion::declined;
}

// The question closes an open list, which puts back the project that it was opened on: the one to
// delete is noted before.
bool CTabKnihovna::deleteProject() {
    LibrarySession& library = m_services.library();
    const int index = library.projects().selected;
    if (index == 0) return false;
    m_projects.box().dropDown(false);
    const Deletion answer = askDeletion();
    if (answer != Deletion::agreed) return answer == Deletion::refused;
    const auto id = library.removeProject(index);
    showProjects();
    changeProject();
    if (id) library.DeleteEntries(*id, std::nullopt);
    return true;
}

bool CTabKnihovna::deleteStored() {
    DesignModel& model = m_services.model();
    if (model.shownStored() == 0) return false;
    const Deletion answer = askDeletion();
    if (answer != Deletion::agreed) return answer == Deletion::refused;
    m_services.endEdit();
    const auto label = model.removeShownStored();
    showDesigns();
    m_services.Relayout();
    LibrarySession& library = m_services.library();
    if (label) library.DeleteEntries(library.projects().currentId(), *label);
    if (model.bearingCheck) useStored(model.shownStored());
    return true;
}

}  // namespace lx
