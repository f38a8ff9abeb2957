#include <map>
#include <nlohmann/json.hpp>
#include <vector>

#include "composition/layout.h"
#include "composition/library.h"
#include "composition/stored_form.h"
#include "lxtool/library_commands.h"
#include "lxtool/library_folder.h"

namespace lx::lxtool {

namespace {

struct ListedDesign {
    Text label;
    std::int32_t wall = 0;     // mm
    std::int32_t opening = 0;  // mm
    int layers = 0;
    std::size_t bytes = 0;
};

struct ListedProject {
    std::int32_t id = 0;
    std::optional<Text> name;  // none when the project file does not list it
    bool current = false;
    std::vector<ListedDesign> designs;
};

struct Listed {
    std::vector<ListedProject> projects;  // in the order of their file, then those without a name
    std::size_t deleted = 0;
    std::size_t deletedBytes = 0;
    std::size_t bytes = 0;
    bool damaged = false;
};

std::optional<ListedDesign> listed(const LibraryScan& scan) {
    BinaryReader reader(scan.design());
    const DesignRead read = readDesign(reader);
    if (read.design.empty()) return std::nullopt;
    const CRez& head = *read.design.head();
    return ListedDesign{scan.shownLabel(), head.width, head.length, LayerCount(head),
                        scan.whole().size()};
}

Listed listOf(const LibraryFolder& library, const ChosenProjects& chosen) {
    Listed list;
    std::map<std::int32_t, std::size_t> places;
    const auto place = [&](std::int32_t id) -> ListedProject& {
        const auto [found, isNew] = places.try_emplace(id, list.projects.size());
        if (isNew) list.projects.push_back({id, std::nullopt, false, {}});
        return list.projects[found->second];
    };
    int index = 0;
    for (const Project& project : library.projects.projects) {
        const bool current = index++ == library.projects.selected;
        if (!chosen.has(project.id)) continue;
        ListedProject& one = place(project.id);
        if (!one.name) one.name = project.name;
        one.current = one.current || current;
    }
    list.bytes = library.designs.size();
    for (LibraryScan scan(library.designs); scan.next();) {
        list.damaged = list.damaged || scan.damage();
        if (!scan.hasHeader()) continue;
        if (scan.isDeleted()) {
            ++list.deleted;
            list.deletedBytes += scan.whole().size();
            continue;
        }
        if (!chosen.has(scan.project())) continue;
        if (auto design = listed(scan)) place(scan.project()).designs.push_back(*design);
    }
    return list;
}

std::string asText(const Listed& list) {
    std::string text;
    for (const ListedProject& project : list.projects) {
        text += project.name ? "project " + inQuotes(toUtf8(*project.name))
                             : "project without a name, id " + std::to_string(project.id);
        text += (project.current ? ", current: " : ": ");
        text += counted(project.designs.size(), "design") + "\n";
        for (const ListedDesign& design : project.designs) {
            text += "  " + inQuotes(toUtf8(design.label)) + ": wall " +
                    std::to_string(design.wall) + " mm, opening " + std::to_string(design.opening) +
                    " mm, " + counted(static_cast<std::size_t>(design.layers), "layer") + ", " +
                    counted(design.bytes, "byte") + "\n";
        }
    }
    text += counted(list.deleted, "deleted design") + ", " + counted(list.deletedBytes, "byte") +
            " of " + std::to_string(list.bytes) + "\n";
    return text;
}

std::string asJsonText(const Listed& list) {
    using Json = nlohmann::ordered_json;
    Json all;
    all["projects"] = Json::array();
    for (const ListedProject& project : list.projects) {
        Json one;
        one["id"] = project.id;
        one["name"] = project.name ? Json(toUtf8(*project.name)) : Json();
        one["current"] = project.current;
        one["designs"] = Json::array();
        for (const ListedDesign& design : project.designs) {
            one["designs"].push_back({{"label", toUtf8(design.label)},
                                      {"wall", design.wall},
                                      {"opening", design.opening},
                                      {"layers", design.layers},
                                      {"bytes", design.bytes}});
        }
        all["projects"].push_back(std::move(one));
    }
    all["deleted"] = {{"designs", list.deleted}, {"bytes", list.deletedBytes}};
    all["bytes"] = list.bytes;
    return all.dump(2) + "\n";
}

}  // namespace

Result listLibrary(Session& session, const std::string& folder,
                   const std::optional<std::string>& project, bool asJson) {
    const std::optional<LibraryFolder> library = openLibrary(session, folder);
    if (!library) return Result::failed;
    const std::optional<ChosenProjects> chosen = ChosenProjects::of(session, *library, project);
    if (!chosen) return Result::failed;
    const Listed list = listOf(*library, *chosen);
    if (list.damaged || library->projects.damaged) {
        session.messages.tell(folder,
                              "the library is damaged, what can be read is listed; lxtool "
                              "library check tells where");
    }
    return session.console.output(asJson ? asJsonText(list) : asText(list)) &&
                   session.messages.count() == 0
               ? Result::done
               : Result::failed;
}

}  // namespace lx::lxtool
