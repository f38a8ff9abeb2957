#include <functional>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

#include "composition/layout.h"
#include "composition/library.h"
#include "composition/section_scale.h"
#include "composition/stored_form.h"
#include "design/bubble_name.h"
#include "lxtool/library_commands.h"
#include "lxtool/library_folder.h"
#include "lxtool/library_json.h"

namespace lx::lxtool {

namespace {

// Of any size: designs with a sloping step are compared as they are seen in the same preview.
constexpr Size preview{400, 300};

// What of a design decides whether another is the same, its label and project aside: equal bytes
// where compare tells no difference.
struct ComparedFields {
    BinaryWriter& writer;
    bool isHead;

    void operator()(const RezField& field, std::int32_t value) const {
        const std::string_view name = field.name;
        if (isHead && (name == "itemIndex" || name == "level")) return;
        if (field.use != FieldUse::carried) writer.int32(value);
    }
    void operator()(const RezField&, Kind kind) const { writer.int32(code(kind)); }
    void operator()(const RezField&, const std::optional<Text>& name) const {
        if (!isHead) writer.zeroTerminated(name.value_or(Text()));
    }
    void operator()(const RezField&, const std::unique_ptr<CZalom>& bends) const {
        std::int32_t count = 0;
        for (const CZalom* bend = bends.get(); bend; bend = bend->next.get()) ++count;
        if (isHead) writer.int32(count);
    }
    void operator()(const RezField&, char) const {}
};

Bytes comparedBytes(const CRez& head) {
    BinaryWriter bytes;
    for (const CRez* record = &head; record; record = record->next) {
        CRez::eachField(ComparedFields{bytes, record == &head}, *record);
    }
    return bytes.take();
}

// Of a design as it is stored.
Bytes comparedBytes(std::string_view stored) {
    BinaryReader reader(stored);
    const RezChain design = readDesign(reader).design;
    if (hasFlaggedBend(*design.head())) {
        layOut(*design.head());
        settleSection(*design.head(), preview);
    }
    return comparedBytes(*design.head());
}

Text withoutBlanks(Text label) {
    label.resize(label.find_last_not_of(' ') + 1);
    return label;
}

// The designs of a library by project and label.
class StoredDesigns {
public:
    void add(std::int32_t project, const Text& label, const Bytes& compared) {
        m_labels[key(project, label)].push_back(std::hash<Bytes>()(compared));
        m_designs.try_emplace(key(project, compared), label);
    }
    bool hasLabel(std::int32_t project, const Text& label) const {
        return m_labels.contains(key(project, label));
    }
    // Under that label; the bytes decide where their hashes are the same.
    bool has(std::int32_t project, const Text& label, const Bytes& compared) const {
        const auto found = m_labels.find(key(project, label));
        if (found == m_labels.end() || labelOf(project, compared) == nullptr) return false;
        const std::size_t hash = std::hash<Bytes>()(compared);
        return std::find(found->second.begin(), found->second.end(), hash) != found->second.end();
    }
    // A label of the same design in that project; null when there is none.
    const Text* labelOf(std::int32_t project, const Bytes& compared) const {
        const auto found = m_designs.find(key(project, compared));
        return found == m_designs.end() ? nullptr : &found->second;
    }

private:
    static Bytes key(std::int32_t project, std::string_view rest) {
        BinaryWriter writer;
        writer.int32(project);
        writer.raw(rest);
        return writer.take();
    }

    std::unordered_map<Bytes, std::vector<std::size_t>> m_labels;
    std::unordered_map<Bytes, Text> m_designs;
};

// The label that follows as the dialog proposes it; where that gets too long, one with the first
// letters and a number. None when all are taken.
std::optional<Text> nextFreeLabel(const Text& label,
                                  const std::function<bool(const Text&)>& taken) {
    constexpr std::size_t longest = library_entry::labelLength;
    for (Text next = proposeBubbleName(label); next.size() <= longest;
         next = proposeBubbleName(next)) {
        if (!taken(next)) return next;
    }
    const std::size_t letters = std::min(label.find_first_of("0123456789"), label.size());
    for (std::size_t kept = std::min(letters, longest - 1) + 1; kept-- > 0;) {
        for (Text next = label.substr(0, kept) + "0"; next.size() <= longest;
             next = proposeBubbleName(next)) {
            if (!taken(next)) return next;
        }
    }
    return std::nullopt;
}

class LibraryImport {
public:
    LibraryImport(Session& session, const std::string& file, LibraryFolder& library, bool relabel)
        : m_session(session), m_file(file), m_library(library), m_relabel(relabel) {
        for (LibraryScan scan(library.designs); scan.next();) {
            if (scan.isDeleted()) continue;
            m_ids.insert(scan.project());
            m_stored.add(scan.project(), paddedLabel(scan.label()), comparedBytes(scan.design()));
        }
        for (const Project& project : library.projects.projects) m_ids.insert(project.id);
    }

    // False, told, when a project has no name to go by.
    bool takeProjects(const std::vector<JsonProject>& projects);
    void takeDesign(JsonDesign read);

    std::size_t newProjects() const { return m_newProjects; }
    // What goes behind the library's entries.
    const Bytes& entries() const { return m_entries.bytes(); }
    std::string told() const {
        return m_told + counted(m_added, "design") + " and " + counted(m_newProjects, "project") +
               " added, " + std::to_string(m_there) + " there already, " +
               std::to_string(m_refused) + " not taken\n";
    }
    bool allTaken() const { return m_refused == 0; }

private:
    struct Place {
        std::int32_t id = 0;
        std::optional<std::int32_t> index;  // in the project file
        std::string name;                   // as it is told
    };
    Place place(const JsonProject& project);
    void add(const Place& project, const Text& label, const RezChain& design);

    Session& m_session;
    const std::string& m_file;
    LibraryFolder& m_library;
    bool m_relabel;
    std::set<std::int32_t> m_ids;            // of all projects
    std::map<std::int32_t, Place> m_places;  // by the ids in the file of JSON
    StoredDesigns m_stored;
    BinaryWriter m_entries;
    std::string m_told;
    std::size_t m_newProjects = 0;
    std::size_t m_added = 0;
    std::size_t m_there = 0;
    std::size_t m_refused = 0;
};

bool LibraryImport::takeProjects(const std::vector<JsonProject>& projects) {
    std::vector<Project>& listed = m_library.projects.projects;
    bool possible = true;
    for (const JsonProject& project : projects) {
        const auto same = [&](const Project& one) {
            return project.name ? equalIgnoringCase(one.name, *project.name) : one.id == project.id;
        };
        auto found = std::find_if(listed.begin(), listed.end(), same);
        Place& place = m_places[project.id];
        if (!project.name) {
            place = {project.id, std::nullopt, std::to_string(project.id)};
            if (found == listed.end()) continue;
            m_session.messages.tell(m_file, project.line,
                                    "the project " + std::to_string(project.id) +
                                        " has no name, and the library calls another one so; "
                                        "wanted is a name");
            possible = false;
            continue;
        }
        if (found == listed.end()) {
            const std::int32_t id = newProjectId(m_ids);
            m_ids.insert(id);
            found = listed.insert(listed.end(), {id, *project.name});
            ++m_newProjects;
        }
        place = {found->id, static_cast<std::int32_t>(found - listed.begin()),
                 inQuotes(toUtf8(found->name))};
    }
    return possible;
}

void LibraryImport::takeDesign(JsonDesign read) {
    const Place& project = m_places.at(read.project);
    CRez& head = *read.design.head();
    if (project.index) head.setProject(*project.index);
    BinaryWriter stored;
    writeDesign(&head, stored);
    const Bytes compared = comparedBytes(stored.bytes());
    Text label = paddedLabel(read.label);
    const std::string where = m_file + ":" + std::to_string(read.line) + ": ";
    const std::string named = inQuotes(toUtf8(read.label)) + " of project " + project.name;

    const Text* const other = m_relabel ? m_stored.labelOf(project.id, compared) : nullptr;
    if (m_stored.has(project.id, label, compared)) {
        ++m_there;
        m_told += where + named + " is there already\n";
        return;
    }
    if (m_stored.hasLabel(project.id, label)) {
        if (other) {
            ++m_there;
            m_told += where + named + " is there already as " +
                      inQuotes(toUtf8(withoutBlanks(*other))) + "\n";
            return;
        }
        const auto taken = [&](const Text& one) {
            return m_stored.hasLabel(project.id, paddedLabel(one));
        };
        const std::optional<Text> free =
            m_relabel ? nextFreeLabel(read.label, taken) : std::optional<Text>();
        if (!free) {
            ++m_refused;
            m_session.messages.tell(m_file, read.line,
                                    "another design has the label " + named +
                                        (m_relabel ? "; wanted is one that is free"
                                                   : "; wanted is one that is free, or a run "
                                                     "with --relabel"));
            return;
        }
        m_told += where + named + " becomes " + inQuotes(toUtf8(*free)) + "\n";
        head.setLabel(*free);
        label = paddedLabel(*free);
    }
    m_stored.add(project.id, label, compared);
    add(project, label, read.design);
}

void LibraryImport::add(const Place& project, const Text& label, const RezChain& design) {
    ++m_added;
    BinaryWriter bytes;
    writeDesign(design.head(), bytes);
    m_entries.int32(static_cast<std::int32_t>(library_entry::header + bytes.bytes().size()));
    m_entries.int32(project.id);
    Bytes field = label;
    field.resize(library_entry::labelField, '\0');
    m_entries.raw(field);
    m_entries.raw(bytes.bytes());
}

// One after another, without the empty ones.
NextPiece piecesOf(std::vector<std::string_view> pieces) {
    return [pieces = std::move(pieces), next = std::size_t{0}]() mutable {
        while (next < pieces.size() && pieces[next].empty()) ++next;
        return std::optional(next < pieces.size() ? pieces[next++] : std::string_view());
    };
}

}  // namespace

Result importLibrary(Session& session, const std::string& json, const std::string& folder,
                     bool relabel) {
    HeldLibrary held(session, folder);
    std::optional<LibraryFolder> library = held.open(session, folder, true);
    if (!library || !isWhole(session, *library)) return Result::failed;
    const std::optional<Bytes> bytes = readInput(session, json);
    if (!bytes) return Result::failed;
    const auto projects = projectsOfJson(session, json, *bytes);
    if (!projects) return Result::failed;
    LibraryImport work(session, json, *library, relabel);
    if (!work.takeProjects(*projects)) return Result::failed;
    eachDesignOfJson(session, json, *bytes,
                     [&work](JsonDesign design) { work.takeDesign(std::move(design)); });

    // A project without designs loses nothing, designs without their project would not be seen.
    const Bytes list = projectBytes(library->projects);
    if (work.newProjects() > 0 && !held.projects.write(piecesOf({list}))) return Result::failed;
    if (!work.entries().empty() &&
        !held.designs.write(piecesOf({library->designs, work.entries()}))) {
        return Result::failed;
    }
    return session.console.output(work.told()) && work.allTaken() ? Result::done : Result::failed;
}

}  // namespace lx::lxtool
