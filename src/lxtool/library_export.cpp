#include <nlohmann/json.hpp>

#include "composition/library.h"
#include "composition/stored_form.h"
#include "lxtool/design_json.h"
#include "lxtool/library_commands.h"
#include "lxtool/library_folder.h"
#include "lxtool/library_json.h"
#include "lxtool/progress.h"
#include "lxtool/target.h"

namespace lx::lxtool {

namespace {

constexpr std::size_t pieceSize = 262144;  // bytes that are written at a time

// A library as JSON piece by piece: all but its designs at once, then one after another.
class LibraryAsJson {
public:
    LibraryAsJson(const Console& console, const LibraryFolder& library,
                  const ChosenProjects& chosen)
        : m_library(library),
          m_chosen(chosen),
          m_scan(library.designs),
          m_progress(console, "export", library.designs.size()) {}

    std::string_view next() {
        m_piece.clear();
        if (!std::exchange(m_begun, true)) m_piece = head();
        while (!m_ended && m_piece.size() < pieceSize) {
            m_ended = !m_scan.next();
            m_progress.at(m_scan.position());
            if (m_ended) m_piece += m_any ? "\n  ]\n}\n" : "]\n}\n";
            if (m_ended || m_scan.isDeleted() || !m_chosen.has(m_scan.project())) continue;
            BinaryReader reader(m_scan.design());
            const DesignRead read = readDesign(reader);
            m_piece += std::exchange(m_any, true) ? ",\n  " : "\n  ";
            m_piece += designAsJson(m_scan.project(), m_scan.shownLabel(), *read.design.head());
        }
        return m_piece;
    }

private:
    // Projects without a name are those that have designs but are not listed.
    std::string head() const {
        std::string text = std::string("{\n  \"format\": \"") + std::string(libraryFormat) +
                           "\",\n  \"version\": " + std::to_string(libraryVersion) +
                           ",\n  \"projects\": [";
        std::string_view separator = "\n    ";
        const auto add = [&](std::int32_t id, const nlohmann::ordered_json& name, bool current) {
            nlohmann::ordered_json one{{"id", id}, {"name", name}};
            if (current) one["current"] = true;
            text.append(separator).append(one.dump());
            separator = ",\n    ";
        };
        std::set<std::int32_t> ids;
        const std::vector<Project>& projects = m_library.projects.projects;
        for (std::size_t i = 0; i < projects.size(); ++i) {
            if (!m_chosen.has(projects[i].id) || !ids.insert(projects[i].id).second) continue;
            add(projects[i].id, toUtf8(projects[i].name),
                i == static_cast<std::size_t>(m_library.projects.selected));
        }
        for (LibraryScan scan(m_library.designs); scan.next();) {
            if (scan.isDeleted() || !m_chosen.has(scan.project())) continue;
            if (ids.insert(scan.project()).second) add(scan.project(), nullptr, false);
        }
        return text + (ids.empty() ? "" : "\n  ") + "],\n  \"designs\": [";
    }

    const LibraryFolder& m_library;
    const ChosenProjects& m_chosen;
    LibraryScan m_scan;
    Progress m_progress;
    std::string m_piece;
    bool m_begun = false;
    bool m_any = false;
    bool m_ended = false;
};

}  // namespace

Result exportLibrary(Session& session, const std::string& folder,
                     const std::optional<std::string>& project, const std::string& output) {
    Target target(session, output);
    if (!target.open()) return Result::failed;
    const std::optional<LibraryFolder> library = openLibrary(session, folder);
    if (!library || !isWhole(session, *library)) return Result::failed;
    const std::optional<ChosenProjects> chosen = ChosenProjects::of(session, *library, project);
    if (!chosen) return Result::failed;
    LibraryAsJson json(session.console, *library, *chosen);
    return target.write([&json] { return std::optional(json.next()); }) ? Result::done
                                                                        : Result::failed;
}

}  // namespace lx::lxtool
