// The project file akce.bk6: the list of projects and which one is current.
#pragma once

#include <set>
#include <vector>

#include "platform/files.h"

namespace lx {

inline constexpr std::string_view projectFileName = "akce.bk6";
inline constexpr std::size_t projectNameLimit = 63;  // bytes; longer names are cut

struct Project {
    std::int32_t id = 0;
    Text name;
};

struct ProjectList {
    std::vector<Project> projects;  // never empty: at least "DEFAULT" with id 0
    int selected = 0;               // always inside the list
    bool mayReplaceFile =
        true;  // false: the file is there but could not be read; it must not be written over
    bool damaged = false;  // keep the file as .bak before the first save

    std::int32_t currentId() const { return projects[static_cast<std::size_t>(selected)].id; }
};

// The id of a new project: above all that are taken, or a free one where there is none above.
std::int32_t newProjectId(const std::set<std::int32_t>& taken);

// "DEFAULT" alone.
ProjectList defaultProjects();
ProjectList loadProjects(const Path& path, Files& files);
ProjectList parseProjects(std::string_view bytes);
Bytes projectBytes(const ProjectList& list);
// False when the file may not be replaced or could not be written. A damaged file is kept as .bak
// once; when that fails nothing is written.
bool saveProjects(const Path& path, ProjectList& list, Files& files);

}  // namespace lx
