#include "lxtool/library_folder.h"

#include "composition/library.h"

namespace lx::lxtool {

namespace {

std::string inFolder(const std::string& folder, std::string_view file) {
    const bool ended = !folder.empty() && (folder.back() == '/' || folder.back() == '\\');
    return folder + (ended ? "" : "/") + std::string(file);
}

}  // namespace

std::string designsNameIn(const std::string& folder) {
    return inFolder(folder, libraryFileName);
}

std::string projectsNameIn(const std::string& folder) {
    return inFolder(folder, projectFileName);
}

std::optional<LibraryFolder> openLibrary(Session& session, const std::string& folder,
                                         bool mayBeMissing) {
    LibraryFolder library;
    library.designsName = designsNameIn(folder);
    library.projectsName = projectsNameIn(folder);
    bool any = false;
    const auto read = [&](const std::string& name, Bytes& bytes) {
        const std::optional<Path> path = pathOf(session, name);
        if (!path) return false;
        FileRead file = session.files.read(*path);
        any = any || file.status != ReadStatus::missing;
        bytes = std::move(file.bytes);
        if (file.status != ReadStatus::failed) return true;
        session.messages.tell(name, "cannot be read; wanted is a plain file below 2 GB");
        return false;
    };
    if (!read(library.designsName, library.designs) ||
        !read(library.projectsName, library.projectFile)) {
        return std::nullopt;
    }
    if (!any && !mayBeMissing) {
        session.messages.tell(folder, "there is no library; wanted is a folder with " +
                                          std::string(libraryFileName) + " or " +
                                          std::string(projectFileName));
        return std::nullopt;
    }
    library.projects = parseProjects(library.projectFile);
    return library;
}

bool isWhole(Session& session, const LibraryFolder& library) {
    const std::size_t told = session.messages.count();
    tellProjectDamage(session, library.projectsName, library.projectFile);
    tellDesignDamage(session, library.designsName, library.designs);
    return session.messages.count() == told;
}

std::optional<ChosenProjects> ChosenProjects::of(Session& session, const LibraryFolder& library,
                                                 const std::optional<std::string>& name) {
    ChosenProjects chosen;
    if (!name) return chosen;
    chosen.m_all = false;
    const std::optional<Text> text = fromUtf8(*name);
    std::string names;
    for (const Project& project : library.projects.projects) {
        if (text && equalIgnoringCase(project.name, *text)) chosen.m_ids.insert(project.id);
        names.append(names.empty() ? "" : ", ").append(inQuotes(toUtf8(project.name)));
    }
    if (!chosen.m_ids.empty()) return chosen;
    session.messages.tell(library.projectsName,
                          "there is no project " + inQuotes(*name) + "; wanted is one of " + names);
    return std::nullopt;
}

bool ChosenProjects::has(std::int32_t id) const {
    return m_all || m_ids.contains(id);
}

}  // namespace lx::lxtool
