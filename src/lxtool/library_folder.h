// The two files of a library as a command finds them.
#pragma once

#include <optional>
#include <string>

#include "composition/projects.h"
#include "lxtool/library_scan.h"
#include "lxtool/target.h"

namespace lx::lxtool {

struct LibraryFolder {
    std::string designsName;   // of preklady.bk6, as it is told
    std::string projectsName;  // of akce.bk6
    Bytes designs;
    Bytes projectFile;
    ProjectList projects;
};

// None, told, when one cannot be read, or neither is there unless they may be missing. One that is
// missing is empty.
std::optional<LibraryFolder> openLibrary(Session& session, const std::string& folder,
                                         bool mayBeMissing = false);
std::string designsNameIn(const std::string& folder);
std::string projectsNameIn(const std::string& folder);

// Both files, held while a command changes them.
struct HeldLibrary {
    HeldLibrary(Session& session, const std::string& folder)
        : designs(session, designsNameIn(folder)), projects(session, projectsNameIn(folder)) {}

    // None, told, when another program holds one of them, or openLibrary gives none.
    std::optional<LibraryFolder> open(Session& session, const std::string& folder,
                                      bool mayBeMissing = false) {
        if (!designs.open() || !projects.open()) return std::nullopt;
        return openLibrary(session, folder, mayBeMissing);
    }

    Target designs;
    Target projects;
};

// Tells all that is wrong with the files; false when something is.
bool isWhole(Session& session, const LibraryFolder& library);

// Which projects a command is about: all, or those of one name.
class ChosenProjects {
public:
    // None, told, when there is no project of that name (UTF-8).
    static std::optional<ChosenProjects> of(Session& session, const LibraryFolder& library,
                                            const std::optional<std::string>& name);
    bool has(std::int32_t id) const;

private:
    bool m_all = true;
    std::set<std::int32_t> m_ids;
};

}  // namespace lx::lxtool
