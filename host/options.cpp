#include "host/options.h"

#include "host/parse.h"
#include "host/paths.h"

namespace lx::host {

namespace fs = std::filesystem;

namespace {

class Parser {
public:
    Parser(const std::vector<std::string>& arguments, Options& options)
        : m_arguments(arguments), m_options(options) {}

    void parse() {
        while (m_next < m_arguments.size() && m_options.error.empty()) {
            const std::string word = m_arguments[m_next++];
            if (word.starts_with("--")) {
                option(word.substr(2));
            } else {
                function(word);
            }
        }
        if (m_options.call) m_options.call->opening = m_opening;
    }

private:
    void fail(const std::string& message) {
        if (m_options.error.empty()) m_options.error = message;
    }

    std::string value(const std::string& name) {
        if (m_next < m_arguments.size()) return m_arguments[m_next++];
        fail("--" + name + " needs a value");
        return {};
    }

    int number(const std::string& name) {
        const std::string text = value(name);
        int parsed = 0;
        if (!parseNumber(text, parsed) || parsed < 0) {
            fail("--" + name + " is a number, not \"" + text + "\"");
        }
        return parsed;
    }

    void option(const std::string& name) {
        if (name == "help") {
            m_options.help = true;
        } else if (name == "play") {
            m_options.scenarios.push_back(value(name));
        } else if (name == "calls") {
            m_options.chance.calls = number(name);
        } else if (name == "seed") {
            m_options.chance.seed = static_cast<unsigned>(number(name));
        } else if (name == "out") {
            m_options.out = value(name);
        } else if (name == "data") {
            m_options.data = value(name);
        } else if (name == "temp") {
            m_options.temporary = value(name);
        } else if (name == "first-paint") {
            m_options.firstPaint = number(name);
            if (m_options.firstPaint <= 0) fail("--first-paint needs at least one call");
            function("CallLXdata6");
        } else if (HostSettings::known(name)) {
            fail(m_options.host.set(name, value(name)));
            m_options.profileGiven |= name == "profile";
            m_options.libraryGiven |= name == "library";
            m_options.catalogueGiven |= name == "catalogue";
        } else if (Opening::known(name)) {
            fail(m_opening.set(name, value(name)));
        } else {
            fail("there is no option --" + name);
        }
    }

    void function(const std::string& name) {
        const std::optional<Function> found = functionNamed(name);
        if (!found) return fail("\"" + name + "\" is none of the module's functions");
        if (m_options.call) return fail("one function at a time");
        CallRequest& call = m_options.call.emplace();
        call.function = *found;
        if (*found == Function::merge) mergeArguments(call);
    }

    void mergeArguments(CallRequest& call) {
        if (m_next + 3 > m_arguments.size()) {
            return fail("mergeLibraryFiles needs a source file, a folder (or none) and a mode");
        }
        call.source = m_arguments[m_next++];
        call.folder = m_arguments[m_next++];
        if (*call.folder == "none") call.folder.reset();
        const std::string& mode = m_arguments[m_next++];
        if (!parseNumber(mode, call.mode)) fail("the mode is a number, not \"" + mode + "\"");
    }

    const std::vector<std::string>& m_arguments;
    Options& m_options;
    Opening m_opening;
    std::size_t m_next = 0;
};

}  // namespace

Options parseOptions(const std::vector<std::string>& arguments, const std::string& programFolder) {
    Options options;
    options.data = asFolder(programFolder) + "data";
    Parser(arguments, options).parse();
    if (options.error.empty() && !options.help && !options.call && options.scenarios.empty()) {
        options.error = "nothing to do: name a function or a scenario to play";
    }
    if (options.call && !options.scenarios.empty()) {
        options.error = "either a function or scenarios, not both";
    }
    return options;
}

std::string optionsHelp(const std::string& programName) {
    return "Loads the lintel module as its host does and calls it.\n\n"
           "  " +
           programName +
           " [OPTION...] CallLXdata6 | CallLXdata6Base | LintelErase\n"
           "  " +
           programName +
           " [OPTION...] mergeLibraryFiles SOURCE FOLDER|none MODE\n"
           "  " +
           programName +
           " [OPTION...] --play SCENARIO [--play SCENARIO...]\n\n"
           "The call's result is printed, and of CallLXdata6 the text, A and B.\n"
           "Exit code: 0, or 1 when an expectation of a scenario failed, or 2 when nothing could "
           "be\n"
           "run. What scenarios are made of is told in docs/scenarios.md.\n\n"
           "  --calls N  --seed N                   of scenarios with chance: calls (40), what is "
           "drawn (1)\n"
           "  --out DIR                             where folders and pictures are made (out)\n"
           "  --data DIR                            LXDATA6.DAT, LXDATA6S.DAT, VDLINTEL.TXT "
           "(data beside the program)\n"
           "  --temp DIR                            the folder for temporary files\n"
           "  --first-paint N                       how long N dialogs of CallLXdata6 take to be "
           "painted\n"
           "                                        (VORDANLT.EXE); they are cancelled\n\n"
           "The host (a scenario sets the folders and may set the rest):\n" +
           HostSettings::help() + "\nThe opening of CallLXdata6:\n" + Opening::help();
}

std::string prepareFolders(Options& options) {
    const std::string out = utf8FromPath(fs::absolute(pathFromUtf8(options.out)));
    const std::string base = asFolder(asFolder(out) + "host");
    HostSettings& host = options.host;
    if (!options.profileGiven) host.profile = asFolder(base + "profile");
    if (!options.libraryGiven) host.library = asFolder(base + "library");
    if (!options.catalogueGiven) host.catalogue = asFolder(base + "catalogue");
    try {
        const std::string data = asFolder(host.profile) + "DAT";
        fs::create_directories(pathFromUtf8(data));
        if (host.library) fs::create_directories(pathFromUtf8(*host.library));
        if (host.catalogue) fs::create_directories(pathFromUtf8(*host.catalogue));
        if (!options.temporary.empty()) {
            fs::create_directories(pathFromUtf8(options.temporary));
            useTemporaryFolder(options.temporary);
        }
        const auto supply = [&options](const std::string& name, const std::string& folder) {
            const fs::path from = pathFromUtf8(asFolder(options.data) + name);
            const fs::path to = pathFromUtf8(asFolder(folder) + name);
            if (fs::exists(from) && !fs::exists(to)) fs::copy_file(from, to);
        };
        const std::string catalogue = host.catalogue.value_or(data);
        supply("LXDATA6.DAT", catalogue);
        supply("LXDATA6S.DAT", catalogue);
        supply("VDLINTEL.TXT", data);
    } catch (const fs::filesystem_error& error) {
        return error.what();
    }
    return {};
}

void useTemporaryFolder(const std::string& folder) {
    for (const char* name : {"TMP", "TEMP", "TMPDIR"}) {
        setEnvironment(name, utf8FromPath(fs::absolute(pathFromUtf8(folder))));
    }
}

}  // namespace lx::host
