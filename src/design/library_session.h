// The library of stored designs during one design dialog: where it is, whether it may be written,
// its projects, and the storing of the confirmed design.
#pragma once

#include <memory>

#include "composition/projects.h"
#include "design/design_model.h"
#include "platform/host_access_lock.h"

namespace lx {

enum class StoreAnswer {
    done,     // stored, or nothing to store because the library is read-only
    differs,  // another design stands under that label
    failed    // the library could not be read or written
};

class LibrarySession {
public:
    LibrarySession(Host& host, Files& files) : m_host(host), m_files(files) {}

    // The host tells the library folder; without it nothing below reads or writes.
    bool available();
    // Asks for the lock at the first call and keeps it.
    bool readOnly();

    // "DEFAULT" alone until LoadProjects has found others.
    const ProjectList& projects() const { return m_projects; }
    // Id of the current project.
    std::int32_t LoadProjects();
    // False when read-only, or when the file must not or cannot be replaced.
    bool SaveProjects();

    // Inside the list.
    void selectProject(int index);
    // The name without regard to letter case.
    bool hasProject(std::string_view name) const;
    // Behind the others and selected, with an id above theirs and those in the library, or a free
    // one where there is none above; names are cut to what the file holds.
    void addProject(std::string_view name);
    // Takes a project out of the list and selects the first one. Its id; none, and nothing is done,
    // for the first one and outside the list.
    std::optional<std::int32_t> removeProject(int index);
    // What a new project is called at first: the drawing's file name without its extension.
    Text proposedProjectName();
    // Marks the project's stored designs of that label deleted, all of them without one. False
    // when there are none, and when read-only.
    bool DeleteEntries(std::int32_t project, std::optional<std::string_view> label);

    // Fills the model's list with the current project's designs; its own design becomes the one
    // being edited. False when the file is there but cannot be opened, or the folder is unknown.
    bool LoadLibrary(DesignModel& model);
    // Under the current project and the head's label. bubble: the whole name as typed; only when a
    // listed label equals it is the design compared with the stored one, so a name longer than a
    // label is never refused.
    StoreAnswer StoreDesign(DesignModel& model, std::string_view bubble);

private:
    std::optional<Path> pathOf(std::string_view fileName);

    Host& m_host;
    Files& m_files;
    std::unique_ptr<HostAccessLock> m_lock;
    ProjectList m_projects = unreadProjects();
    bool m_libraryRead = false;

    static ProjectList unreadProjects();
};

}  // namespace lx
