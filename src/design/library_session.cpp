#include "design/library_session.h"

#include <algorithm>
#include <set>

#include "composition/library.h"

namespace lx {

// As long as the file has not been read it must not be replaced by this list, should the folder
// become known in the meantime.
ProjectList LibrarySession::unreadProjects() {
    ProjectList list = defaultProjects();
    list.mayReplaceFile = false;
    return list;
}

std::optional<Path> LibrarySession::pathOf(std::string_view fileName) {
    std::optional<Path> path = m_host.getHostFolder(HostFolder::library);
    if (path) path->append(fileName);
    return path;
}

bool LibrarySession::available() {
    return m_host.getHostFolder(HostFolder::library).has_value();
}

bool LibrarySession::readOnly() {
    if (!m_lock) m_lock = std::make_unique<HostAccessLock>(m_host, HostResource::library);
    return !m_lock->isGranted();
}

std::int32_t LibrarySession::LoadProjects() {
    if (const auto path = pathOf(projectFileName)) m_projects = loadProjects(*path, m_files);
    return m_projects.currentId();
}

bool LibrarySession::SaveProjects() {
    if (readOnly()) return false;
    const auto path = pathOf(projectFileName);
    return path && saveProjects(*path, m_projects, m_files);
}

void LibrarySession::selectProject(int index) {
    if (index >= 0 && static_cast<std::size_t>(index) < m_projects.projects.size()) {
        m_projects.selected = index;
    }
}

bool LibrarySession::hasProject(std::string_view name) const {
    const std::string_view kept = name.substr(0, projectNameLimit);
    return std::any_of(
        m_projects.projects.begin(), m_projects.projects.end(),
        [kept](const Project& project) { return equalIgnoringCase(project.name, kept); });
}

void LibrarySession::addProject(std::string_view name) {
    // A list that was lost has left its designs behind: they are not to become this project's.
    std::set<std::int32_t> ids;
    if (const auto path = pathOf(libraryFileName)) ids = storedProjects(*path, m_files);
    for (const Project& project : m_projects.projects) ids.insert(project.id);
    m_projects.projects.push_back({newProjectId(ids), Text(name.substr(0, projectNameLimit))});
    m_projects.selected = static_cast<int>(m_projects.projects.size()) - 1;
}

std::optional<std::int32_t> LibrarySession::removeProject(int index) {
    std::vector<Project>& projects = m_projects.projects;
    if (index <= 0 || static_cast<std::size_t>(index) >= projects.size()) return std::nullopt;
    const std::int32_t id = projects[static_cast<std::size_t>(index)].id;
    projects.erase(projects.begin() + index);
    m_projects.selected = 0;
    return id;
}

Text LibrarySession::proposedProjectName() {
    constexpr std::size_t extension = 4;  // with its point
    const Text drawing = m_host.variable("DWGNAME");
    return drawing.size() > extension ? drawing.substr(0, drawing.size() - extension) : Text();
}

bool LibrarySession::DeleteEntries(std::int32_t project, std::optional<std::string_view> label) {
    if (readOnly()) return false;
    const auto path = pathOf(libraryFileName);
    return path && deleteEntries(*path, project, label, m_files);
}

bool LibrarySession::LoadLibrary(DesignModel& model) {
    LibraryRead read;
    const auto path = pathOf(libraryFileName);
    if (path) read = loadLibrary(*path, m_projects.currentId(), m_files);
    model.setStoredDesigns(std::move(read.entries));
    m_libraryRead = read.opened || read.missing;
    return m_libraryRead;
}

StoreAnswer LibrarySession::StoreDesign(DesignModel& model, std::string_view bubble) {
    if (readOnly() || model.head() == nullptr) return StoreAnswer::done;
    const auto path = pathOf(libraryFileName);
    if (!path) return StoreAnswer::done;
    // Labels that could not be read when the dialog opened would all look free.
    if (!m_libraryRead && !LoadLibrary(model)) return StoreAnswer::failed;

    const CRez& head = *model.head();
    const std::int32_t project = m_projects.currentId();
    const Text label = paddedLabel(bubble);
    Text replaced;
    if (model.listsLabel(label)) {
        if (!FindStoredSame(*path, project, label, head, model.values().sectionSize, m_files))
            return StoreAnswer::differs;
        replaced = label;
    }
    return appendDesign(*path, project, head, replaced, m_files) ? StoreAnswer::done
                                                                 : StoreAnswer::failed;
}

}  // namespace lx
