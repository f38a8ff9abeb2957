#include "lxtool/library_json.h"

#include <map>
#include <set>
#include <utility>

#include "composition/library.h"
#include "composition/projects.h"

namespace lx::lxtool {

namespace {

class LibraryUse : public JsonUse {
public:
    LibraryUse(Session& session, std::string_view file) : m_session(session), m_file(file) {}

    void member(const std::string& name, const JsonValue& value) override {
        if (name == "format") {
            m_format = value.kind == JsonValue::Kind::text && value.text == libraryFormat;
            if (!m_format) tell(value.line, "is another format");
        } else if (name == "version") {
            m_version = value.kind == JsonValue::Kind::whole && value.whole == libraryVersion;
            if (!m_version) tell(value.line, "is another version");
        } else {
            tell(value.line, "has a member " + inQuotes(name));
        }
    }
    void list(const std::string& name, std::size_t line) override {
        if (name == "projects") {
            m_projectList = true;
        } else if (name == "designs") {
            m_designList = true;
        } else {
            tell(line, "has a list " + inQuotes(name));
        }
    }
    void element(const std::string& name, const JsonValue& value) override {
        if (name == "projects") takeProject(value);
        if (name != "designs") return;
        std::optional<JsonDesign> design = designFromJson(m_session, m_file, value);
        if (design) use(std::move(*design));
    }
    void end() {
        if (!m_format || !m_version || !m_projectList || !m_designList) {
            tell(1, "lacks one of its members");
        }
    }

    std::vector<JsonProject> projects;
    std::function<void(JsonDesign)> use;

private:
    void tell(std::size_t line, const std::string& what) {
        m_session.messages.tell(m_file, line,
                                what + "; wanted are \"format\": \"" + std::string(libraryFormat) +
                                    "\", \"version\": " + std::to_string(libraryVersion) +
                                    ", \"projects\" and \"designs\"");
    }
    void takeProject(const JsonValue& value);

    Session& m_session;
    std::string_view m_file;
    std::set<std::int32_t> m_ids;
    bool m_format = false;
    bool m_version = false;
    bool m_projectList = false;
    bool m_designList = false;
};

void LibraryUse::takeProject(const JsonValue& value) {
    JsonMembers members(m_session, m_file, value, "the project");
    if (!members.isObject()) return;
    JsonProject project;
    project.line = value.line;
    members.take("id", project.id, true);
    const JsonValue* const name = members.find("name", true);
    if (name && name->kind != JsonValue::Kind::null) {
        project.name.emplace();
        members.take("name", *project.name, projectNameLimit, false);
    }
    bool current = false;
    members.take("current", current);
    members.end();
    if (project.id == deletedProject || !m_ids.insert(project.id).second) {
        members.tell(value.find("id") ? *value.find("id") : value, "id",
                     "one that no other project has, not -1");
    }
    projects.push_back(std::move(project));
}

}  // namespace

std::optional<std::vector<JsonProject>> projectsOfJson(Session& session, std::string_view file,
                                                       std::string_view bytes) {
    const std::size_t told = session.messages.count();
    LibraryUse all(session, file);
    // Which line of the file first speaks of a project.
    std::map<std::int32_t, std::size_t> spokenOf;
    all.use = [&spokenOf](const JsonDesign& design) {
        spokenOf.try_emplace(design.project, design.line);
    };
    if (readJson(session, file, bytes, all)) all.end();
    if (session.messages.count() > told) return std::nullopt;
    for (const JsonProject& project : all.projects) spokenOf.erase(project.id);
    for (const auto& [id, line] : spokenOf) {
        session.messages.tell(file, line,
                              "the design is of project " + std::to_string(id) +
                                  "; wanted is the id of one of \"projects\"");
    }
    if (!spokenOf.empty()) return std::nullopt;
    return std::move(all.projects);
}

void eachDesignOfJson(Session& session, std::string_view file, std::string_view bytes,
                      const std::function<void(JsonDesign)>& use) {
    LibraryUse all(session, file);
    all.use = use;
    readJson(session, file, bytes, all);
}

}  // namespace lx::lxtool
