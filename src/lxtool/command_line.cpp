#include "lxtool/command_line.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <CLI/Validators.hpp>
#include <algorithm>
#include <functional>
#include <new>
#include <utility>

#include "catalogue/catalogue_file.h"
#include "lxtool/catalogue_commands.h"
#include "lxtool/findings.h"
#include "lxtool/library_commands.h"

namespace lx::lxtool {

namespace {

constexpr const char* about = "Catalogues and libraries of lintels, without a dialog.";
constexpr const char* results =
    "\"-\" as the name of a file is standard input or output. Texts are UTF-8.\n"
    "Run it when no dialog is open on these files: it cannot ask the host program for its lock.\n"
    "Exit codes: 0 done; 1 found, different or failed; 2 wrong use. What is wrong is told on\n"
    "standard error as FILE:LINE: what is wrong and what is wanted.";
constexpr const char* kinds =
    "A catalogue whose name ends in LXDATA6S.DAT is one of steel sections, another one of precast\n"
    "lintels unless --steel says what it is; \"-\" needs --steel or --precast.\n";

// Of the one command that runs.
struct Given {
    std::string catalogue;
    std::vector<std::string> catalogues;
    std::string other;
    std::string rules;
    std::string folder;
    std::string project;
    bool json = false;
    bool relabel = false;
    std::vector<std::string> ignored;
    std::string table = std::string(standardStream);
    bool plain = false;
    bool steel = false;
    bool precast = false;
};

bool isNamed(const std::string& name, CatalogueKind kind) {
    return name.ends_with(catalogueFileName(kind));
}

class Commands {
public:
    explicit Commands(Session& session);

    Result run(const std::vector<std::string>& arguments);

private:
    using Act = Result (Commands::*)();

    CLI::App& addGroup(const std::string& name, const std::string& what);
    CLI::App& add(CLI::App& group, const std::string& name, const std::string& what, Act act,
                  const std::string& details);
    CLI::App& addOnCatalogue(CLI::App& group, const std::string& name, const std::string& what,
                             Act act, const std::string& details);
    void addCatalogueCommands();
    void addTableCommands(CLI::App& group);
    void addCheck(CLI::App& group);
    void addDiffAndMerge(CLI::App& group);
    void addLibraryCommands();
    CLI::App& addOnLibrary(CLI::App& group, const std::string& name, const std::string& what,
                           Act act, const std::string& details);
    void addProject(CLI::App& command);

    std::optional<std::string> project() const;
    bool streamOnce(const std::vector<std::string>& names);
    // None, told, when the name needs a flag or the flag contradicts it.
    std::optional<CatalogueKind> kindOf(const std::string& name);

    Result runExport();
    Result runImport();
    Result runCheck();
    Result runDiff();
    Result runMerge();
    Result runList();
    Result runLibraryCheck() { return checkLibrary(m_session, m_given.folder); }
    Result runRepair() { return repairLibrary(m_session, m_given.folder); }
    Result runLibraryExport() {
        return exportLibrary(m_session, m_given.folder, project(), m_given.table);
    }
    Result runLibraryImport() {
        return importLibrary(m_session, m_given.table, m_given.folder, m_given.relabel);
    }
    Result runCompact() { return compactLibrary(m_session, m_given.folder); }

    Session& m_session;
    CLI::App m_app{about, "lxtool"};
    Given m_given;
    Act m_act = nullptr;
};

Commands::Commands(Session& session) : m_session(session) {
    m_app.require_subcommand(1);
    m_app.allow_windows_style_options(false);
    m_app.footer(results);
    const auto formatter = std::make_shared<CLI::Formatter>();
    for (const auto& [label, shown] : {std::pair("TEXT", ""),
                                       {"REQUIRED", ""},
                                       {"OPTIONS", "OPTION..."},
                                       {"SUBCOMMAND", "COMMAND"},
                                       {"Subcommands", "Commands"}}) {
        formatter->label(label, shown);
    }
    m_app.formatter(formatter);
    addCatalogueCommands();
    addLibraryCommands();
}

CLI::App& Commands::addGroup(const std::string& name, const std::string& what) {
    CLI::App& group = *m_app.add_subcommand(name, what);
    group.require_subcommand(1);
    return group;
}

CLI::App& Commands::add(CLI::App& group, const std::string& name, const std::string& what, Act act,
                        const std::string& details) {
    CLI::App& command = *group.add_subcommand(name, what);
    command.callback([this, act] { m_act = act; });
    command.footer(details + results);
    return command;
}

CLI::App& Commands::addOnCatalogue(CLI::App& group, const std::string& name,
                                   const std::string& what, Act act, const std::string& details) {
    CLI::App& command = add(group, name, what, act, details + kinds);
    CLI::Option* const steel = command.add_flag("--steel", m_given.steel, "of steel sections");
    CLI::Option* const precast =
        command.add_flag("--precast", m_given.precast, "of precast lintels");
    steel->excludes(precast);
    for (CLI::Option* const option : {steel, precast}) option->option_text(" ");
    return command;
}

void Commands::addCatalogueCommands() {
    CLI::App& group = addGroup("catalogue", "catalogue files LXDATA6.DAT and LXDATA6S.DAT");
    addTableCommands(group);
    addCheck(group);
    addDiffAndMerge(group);
}

void Commands::addTableCommands(CLI::App& group) {
    {
        CLI::App& command = addOnCatalogue(
            group, "export", "writes the catalogue as a table (CSV)", &Commands::runExport,
            "The table is made for a Czech spreadsheet: UTF-8, semicolons, decimal commas.\n");
        command.add_option("CATALOGUE", m_given.catalogue, "the catalogue's file")->required();
        command.add_option("-o,--output", m_given.table, "the table's file, else standard output")
            ->option_text("CSV");
        command.add_flag("--plain", m_given.plain,
                         "commas between cells and points in numbers instead");
    }
    {
        CLI::App& command = addOnCatalogue(
            group, "import", "makes the table (CSV) the catalogue", &Commands::runImport,
            "Semicolons or commas, decimal commas or points, UTF-8 or code page 1250 are found by\n"
            "looking. The first row names the columns, in any order. When a cell is wrong all "
            "that\n"
            "are are told, and nothing is written. A damaged catalogue is kept as .bak.\n");
        command.add_option("CSV", m_given.table, "the table's file")->required();
        command
            .add_option("CATALOGUE", m_given.catalogue, "the catalogue's file, made or replaced")
            ->required();
    }
}

void Commands::addCheck(CLI::App& group) {
    std::vector<std::string> names;
    std::string list;
    for (const FindingName& finding : findingNames()) {
        std::string name(finding.name);
        names.push_back(name);
        name.resize(14, ' ');
        list.append("  ").append(name).append(finding.meaning).append("\n");
    }
    CLI::App& command = addOnCatalogue(
        group, "check", "tells what is wrong or suspicious", &Commands::runCheck,
        "Each finding ends in its name in brackets; --ignore NAME silences those of that name:\n" +
            list + "Lines are those of the table that export writes.\n");
    command.add_option("CATALOGUE", m_given.catalogues, "the catalogues' files")->required();
    command
        .add_option("--rules", m_given.rules, "rules of the automatic composition for precast ones")
        ->option_text("VDLINTEL.TXT");
    command.add_option("--ignore", m_given.ignored, "a finding that is not told; may be repeated")
        ->option_text("NAME")
        ->allow_extra_args(false)
        ->check(CLI::IsMember(names));
}

void Commands::addDiffAndMerge(CLI::App& group) {
    {
        CLI::App& command = addOnCatalogue(
            group, "diff", "tells what was added, changed and removed", &Commands::runDiff,
            "Types are the same by their names, items by their designations within a type. Added\n"
            "and changed ones are told by their line of NEW, removed ones by that of OLD. Ends "
            "with\n"
            "1 when there are differences; another order is none.\n");
        command.add_option("OLD", m_given.catalogue, "a catalogue's file")->required();
        command.add_option("NEW", m_given.other, "a catalogue's file")->required();
    }
    {
        CLI::App& command = addOnCatalogue(
            group, "merge", "brings a catalogue up to date", &Commands::runMerge,
            "Types of SUPPLIED go to those of the same name in INSTALLED, items to those of the\n"
            "same designation there, which take its values; others are added. Tells what was\n"
            "added and changed. The kind is that of SUPPLIED. A damaged INSTALLED is kept as "
            ".bak.\n");
        command.add_option("SUPPLIED", m_given.catalogue, "the newer catalogue's file")->required();
        command.add_option("INSTALLED", m_given.other, "the file that is changed")->required();
    }
}

CLI::App& Commands::addOnLibrary(CLI::App& group, const std::string& name, const std::string& what,
                                 Act act, const std::string& details) {
    CLI::App& command = add(group, name, what, act, details);
    command.add_option("FOLDER", m_given.folder, "the folder of preklady.bk6 and akce.bk6")
        ->required();
    return command;
}

void Commands::addProject(CLI::App& command) {
    command.add_option("--project", m_given.project, "the project of that name alone")
        ->option_text("NAME");
}

void Commands::addLibraryCommands() {
    CLI::App& group = addGroup("library", "stored designs and their projects");
    CLI::App& list = addOnLibrary(group, "list", "tells projects, designs, sizes, deleted designs",
                                  &Commands::runList, "");
    addProject(list);
    list.add_flag("--json", m_given.json, "as JSON, for programs");
    addOnLibrary(
        group, "check", "tells what is damaged", &Commands::runLibraryCheck,
        "Entries of preklady.bk6 and projects of akce.bk6 are told by their number, from 1,\n"
        "and their first byte.\n");
    addOnLibrary(
        group, "repair", "keeps what can be read", &Commands::runRepair,
        "Tells what was kept in part and what was left out. A file that was damaged is kept\n"
        "as .bak, one that was not is left alone.\n");
    addOnLibrary(group, "compact", "removes what is marked deleted", &Commands::runCompact, "");
    CLI::App& exported =
        addOnLibrary(group, "export", "writes designs and projects as JSON",
                     &Commands::runLibraryExport, "The form is told in docs/lxtool.md.\n");
    addProject(exported);
    exported.add_option("-o,--output", m_given.table, "the file of JSON, else standard output")
        ->option_text("JSON");
    CLI::App& imported =
        add(group, "import", "adds designs and projects of JSON", &Commands::runLibraryImport,
            "A project is the one of the same name, or a new one. A design that is there already "
            "is told,\n"
            "not doubled. A label that another design has is told, and that design not taken.\n");
    imported.add_option("JSON", m_given.table, "as export writes it")->required();
    imported.add_option("FOLDER", m_given.folder, "the folder of preklady.bk6 and akce.bk6")
        ->required();
    imported.add_flag("--relabel", m_given.relabel, "such a design gets the next free label");
}

std::optional<CatalogueKind> Commands::kindOf(const std::string& name) {
    const bool namedSteel = isNamed(name, CatalogueKind::steel);
    const bool namedPrecast = isNamed(name, CatalogueKind::precast);
    if (name == standardStream && !m_given.steel && !m_given.precast) {
        m_session.messages.tell(name,
                                "no name tells the kind of this catalogue; wanted is "
                                "--steel or --precast");
        return std::nullopt;
    }
    if ((namedSteel && m_given.precast) || (namedPrecast && m_given.steel)) {
        m_session.messages.tell(
            name, namedSteel ? "is named as one of steel sections; wanted is a run without "
                               "--precast"
                             : "is named as one of precast lintels; wanted is a run without "
                               "--steel");
        return std::nullopt;
    }
    return namedSteel || m_given.steel ? CatalogueKind::steel : CatalogueKind::precast;
}

Result Commands::runExport() {
    if (!kindOf(m_given.catalogue)) return Result::wrongUse;
    return exportCatalogue(m_session, m_given.catalogue, m_given.table,
                           m_given.plain ? plainTable : czechTable);
}

Result Commands::runImport() {
    if (!kindOf(m_given.catalogue)) return Result::wrongUse;
    return importCatalogue(m_session, m_given.table, m_given.catalogue);
}

Result Commands::runCheck() {
    std::vector<NamedCatalogue> catalogues;
    bool anyPrecast = false;
    for (const std::string& name : m_given.catalogues) {
        const std::optional<CatalogueKind> kind = kindOf(name);
        if (!kind) return Result::wrongUse;
        anyPrecast = anyPrecast || *kind == CatalogueKind::precast;
        catalogues.push_back({name, *kind});
    }
    if (!m_given.rules.empty() && !anyPrecast) {
        m_session.messages.tell(m_given.rules,
                                "rules are for precast lintels; wanted is a "
                                "catalogue of them, or a run without --rules");
        return Result::wrongUse;
    }
    if (!streamOnce(m_given.catalogues)) return Result::wrongUse;
    return checkCatalogues(m_session, catalogues, m_given.rules,
                           {m_given.ignored.begin(), m_given.ignored.end()});
}

Result Commands::runDiff() {
    if (!kindOf(m_given.catalogue) || !kindOf(m_given.other) ||
        !streamOnce({m_given.catalogue, m_given.other})) {
        return Result::wrongUse;
    }
    return diffCatalogues(m_session, m_given.catalogue, m_given.other);
}

Result Commands::runMerge() {
    const std::optional<CatalogueKind> kind = kindOf(m_given.catalogue);
    if (!kind) return Result::wrongUse;
    if (m_given.other == standardStream) {
        m_session.messages.tell(m_given.other, "cannot be changed in its place; wanted is a file");
        return Result::wrongUse;
    }
    const bool steel = *kind == CatalogueKind::steel;
    const CatalogueKind otherKind = steel ? CatalogueKind::precast : CatalogueKind::steel;
    if (isNamed(m_given.other, otherKind)) {
        m_session.messages.tell(m_given.other, std::string("is of the other kind; wanted is a "
                                                           "catalogue of ") +
                                                   (steel ? "steel sections" : "precast lintels"));
        return Result::wrongUse;
    }
    return mergeCatalogues(m_session, *kind, m_given.catalogue, m_given.other);
}

std::optional<std::string> Commands::project() const {
    if (m_given.project.empty()) return std::nullopt;
    return m_given.project;
}

Result Commands::runList() {
    return listLibrary(m_session, m_given.folder, project(), m_given.json);
}

// Standard input can be read once.
bool Commands::streamOnce(const std::vector<std::string>& names) {
    if (std::count(names.begin(), names.end(), standardStream) < 2) return true;
    m_session.messages.tell(standardStream, "standard input is named twice; wanted is a file");
    return false;
}

Result Commands::run(const std::vector<std::string>& arguments) {
    // The library takes them from the back.
    std::vector<std::string> backwards(arguments.rbegin(), arguments.rend());
    try {
        m_app.parse(std::move(backwards));
    } catch (const CLI::CallForHelp&) {
        const CLI::App* command = &m_app;
        std::string groups;
        while (!command->get_subcommands().empty()) {
            groups += (groups.empty() ? "" : " ") + command->get_name();
            command = command->get_subcommands().front();
        }
        return m_session.console.output(command->help(groups)) ? Result::done : Result::failed;
    } catch (const CLI::Error& error) {
        m_session.messages.tell("lxtool", std::string(error.what()) +
                                              "; lxtool --help and lxtool COMMAND --help tell what "
                                              "there is");
        return Result::wrongUse;
    }
    return (this->*m_act)();
}

}  // namespace

Result run(const std::vector<std::string>& arguments, const Console& console, Files& files) {
    Session session{files, console};
    try {
        return Commands(session).run(arguments);
    } catch (const std::bad_alloc&) {
        session.messages.tell("lxtool", "the memory is not enough");
        return Result::failed;
    }
}

}  // namespace lx::lxtool
