#include "host/player.h"

#include <algorithm>
#include <exception>
#include <ostream>
#include <stdexcept>
#include <utility>

#include "host/options.h"
#include "host/paths.h"
#include "host/play_context.h"
#include "host/scenario.h"

namespace lx::host {

namespace {

Words behind(const Words& words, std::size_t count) {
    return {words.begin() + static_cast<std::ptrdiff_t>(count), words.end()};
}

// "call FUNCTION ...", the files named as in a scenario. Values of an opening named here are those
// of this call alone.
CallRequest requestOf(const ScenarioFolders& folders, Opening opening, const Words& words) {
    CallRequest request;
    request.function = functionNamed(words[1]).value();
    if (request.function == Function::merge) {
        request.source = words[2].empty() ? "" : folders.resolve(words[2]);
        if (words[3] != "none") request.folder = folders.resolve(words[3]);
        request.mode = wholeNumber(words[4]);
    }
    if (request.function == Function::design) {
        for (std::size_t i = 2; i < words.size(); i += 2) {
            const std::string error = opening.set(words[i], words[i + 1]);
            if (!error.empty()) throw std::runtime_error(error);
        }
        request.opening = opening;
    }
    return request;
}

void checkCallWords(const Words& words) {
    if (words.size() < 2) throw std::invalid_argument("call needs a function");
    const std::optional<Function> function = functionNamed(words[1]);
    if (!function) {
        throw std::invalid_argument(inQuotes(words[1]) + " is none of the module's functions");
    }
    if (*function == Function::merge && words.size() != 5) {
        throw std::invalid_argument("mergeLibraryFiles takes a file, a folder (or none), a mode");
    }
    if (*function == Function::design && words.size() % 2 != 0) {
        throw std::invalid_argument("a value is missing");
    }
    const bool takesNothing = *function == Function::base || *function == Function::erase;
    if (takesNothing && words.size() != 2) throw std::invalid_argument("too many words");
}

void checkCommandWords(const Command& command, const Words& words) {
    const std::size_t count = words.size() - 1;
    if (count >= command.least && count <= command.most) return;
    std::string wanted = std::to_string(command.least);
    if (command.most == anyNumber) {
        wanted += " or more";
    } else if (command.most != command.least) {
        wanted += " to " + std::to_string(command.most);
    }
    throw std::invalid_argument(inQuotes(words[0]) + " takes " + wanted + " words, not " +
                                std::to_string(count));
}

// Finds what cannot be meant before anything is played.
class Checker {
public:
    void check(const std::vector<ScenarioLine>& lines) {
        for (const ScenarioLine& line : lines) {
            try {
                checkLine(line.words);
            } catch (const std::invalid_argument& error) {
                throw ScenarioError(line.place() + ": " + error.what());
            }
            m_last = &line;
        }
        if (m_inCall) throw ScenarioError(m_last->place() + ": \"returns\" is missing behind it");
    }

private:
    void checkLine(const Words& words) {
        const std::string& name = words[0];
        if (name == "try") {
            if (words.size() < 2) throw std::invalid_argument("try what?");
            checkPlace(name, Where::inCall);
            return checkLine(behind(words, 1));
        }
        if (name == "call" || name == "returns") return checkCall(words);
        if (name == "expect") {
            checkExpectWords(behind(words, 1));
            return checkPlace(name, whereOf(behind(words, 1)));
        }
        if (name == "print") {
            if (words.size() < 2) throw std::invalid_argument("print needs to be told what");
            checkPrintWords(behind(words, 1));
            return checkPlace(name, whereOf(behind(words, 1)));
        }
        if (name == "unload") return checkPlace(name, Where::outside);
        const Command* command = findCommand(name);
        if (command == nullptr) throw std::invalid_argument("nothing is called " + inQuotes(name));
        checkCommandWords(*command, words);
        checkPlace(name, command->where);
    }

    void checkCall(const Words& words) {
        const bool begins = words[0] == "call";
        if (begins == m_inCall) {
            throw std::invalid_argument(begins ? "the call before has no \"returns\""
                                               : "there is no call that could return");
        }
        m_inCall = begins;
        if (begins) return checkCallWords(words);
        if (words.size() != 2) throw std::invalid_argument("returns takes a number or \"any\"");
    }

    void checkPlace(const std::string& name, Where where) const {
        if (where == Where::inCall && !m_inCall) {
            throw std::invalid_argument(inQuotes(name) +
                                        " needs a dialog: it stands between "
                                        "\"call\" and \"returns\"");
        }
        if (where == Where::outside && m_inCall) {
            throw std::invalid_argument(inQuotes(name) + " stands behind \"returns\"");
        }
    }

    bool m_inCall = false;
    const ScenarioLine* m_last = nullptr;
};

std::string stemOf(const std::string& file) {
    return utf8FromPath(pathFromUtf8(file).stem());
}

}  // namespace

// One scenario while it is played.
class Player::Run {
public:
    Run(Player& player, const std::string& file, std::vector<ScenarioLine> lines)
        : m_player(player),
          m_lines(std::move(lines)),
          m_context{
              player.m_services,
              player.m_driver,
              ScenarioFolders(asFolder(player.m_folders.out) + stemOf(file), player.m_folders.data,
                              utf8FromPath(pathFromUtf8(file).parent_path())),
              {},
              std::nullopt,
              player.m_output,
              {},
              [this] { return hostWindows(); },
              [this](const CallRequest& request) { return run(*m_module, request, m_owner); }} {}

    ~Run() {
        m_context.driver.drive(nullptr);
        unload();
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

    // Empty when all held.
    std::string play() {
        setUp();
        while (m_next < m_lines.size() && m_failure.empty()) {
            const ScenarioLine& line = m_lines[m_next++];
            perform(line, [this, &line] { playOutside(line.words); });
        }
        return m_failure;
    }

private:
    void setUp() {
        const ScenarioFolders& folders = m_context.folders;
        folders.makeFresh();
        useTemporaryFolder(folders.temporary);
        HostServices& services = m_context.services;
        services.settings = HostSettings();
        services.clearLogs();
        services.settings.profile = folders.profile;
        services.settings.library = folders.library;
        services.settings.catalogue = folders.catalogue;
    }

    template <class F>
    void perform(const ScenarioLine& line, F act) {
        try {
            act();
        } catch (const std::exception& error) {
            if (line.words[0] != "try") return fail(line, error.what());
            m_next = std::max(m_next, line.goesOnAt);
        }
    }

    void fail(const ScenarioLine& line, const std::string& what) {
        if (m_failure.empty()) m_failure = line.place() + ": " + what;
    }

    void playOutside(const Words& words) {
        if (words[0] == "call") return call(words);
        if (words[0] == "unload") return unload();
        playAnywhere(words);
    }

    void playAnywhere(const Words& words) {
        if (words[0] == "try") return playAnywhere(behind(words, 1));
        if (words[0] == "expect") return expect(m_context, behind(words, 1));
        if (words[0] == "print") return print(m_context, behind(words, 1));
        findCommand(words[0])->run(m_context, behind(words, 1));
    }

    void call(const Words& words) {
        const CallRequest request = requestOf(m_context.folders, m_context.opening, words);
        if (!m_module) m_module = m_player.m_module.load(m_context.services.settings);
        Driver& driver = m_context.driver;
        m_player.m_module.call(m_context.services.settings, [&](void* owner) {
            m_owner = owner;
            m_inCall = true;
            driver.drive([this](Driver&) { return playNextInside(); });
            m_context.outcome = run(*m_module, request, owner);
            driver.settle();
            m_windowsAfter = hostWindows();
            m_inCall = false;
        });
        const std::string abandoned = driver.abandoned();
        driver.drive(nullptr);
        if (!m_failure.empty()) return;

        while (m_lines[m_next].words[0] == "try") ++m_next;
        const ScenarioLine& line = m_lines[m_next];
        const std::string result = std::to_string(m_context.outcome->result);
        if (line.words[0] != "returns") {
            return fail(line, "the call was over before this line, with result " + result);
        }
        if (!abandoned.empty()) {
            return fail(line, "the call was not over, nobody was left to act in " + abandoned);
        }
        if (line.words[1] != "any" && line.words[1] != result) {
            return fail(line, "expected result " + line.words[1] + ", there is " + result);
        }
        m_context.output << report(*m_context.outcome) << std::flush;
        ++m_next;
    }

    // The next line of a call; the line that opens a dialog has others played before it is done.
    bool playNextInside() {
        if (!m_failure.empty()) {
            m_context.driver.cancelTop();
            return true;
        }
        const ScenarioLine& line = m_lines[m_next];
        if (line.words[0] == "returns") return false;
        ++m_next;
        perform(line, [this, &line] { playAnywhere(line.words); });
        if (!m_failure.empty()) showFailedDialog();
        return true;
    }

    // What the user would have seen, beside the message.
    void showFailedDialog() {
        if (m_failureShown) return;
        m_failureShown = true;
        try {
            if (!m_context.driver.anyDialogOpen()) return;
            m_context.driver.screenshot(m_context.folders.resolve("out:failed"));
        } catch (const std::exception& error) {
            m_failure += std::string(" (no picture: ") + error.what() + ")";
        }
    }

    // Behind the call: as they were when it returned.
    Words hostWindows() const {
        if (!m_inCall) return m_windowsAfter;
        const ModuleSource& module = m_player.m_module;
        return module.windows ? module.windows() : Words();
    }

    void unload() {
        if (!m_module) return;
        m_module.reset();
        m_player.m_module.unload();
    }

    Player& m_player;
    std::vector<ScenarioLine> m_lines;
    PlayContext m_context;
    std::optional<ModuleCalls> m_module;
    void* m_owner = nullptr;  // of the call under way
    bool m_inCall = false;
    Words m_windowsAfter;
    std::size_t m_next = 0;
    std::string m_failure;
    bool m_failureShown = false;
};

Player::Player(HostServices& services, ModuleSource module, Driver& driver, PlayerFolders folders,
               std::ostream& output, const Chance& chance)
    : m_services(services),
      m_module(std::move(module)),
      m_driver(driver),
      m_folders(std::move(folders)),
      m_output(output),
      m_chance(chance) {}

Player::~Player() = default;

bool Player::play(const std::string& file) {
    m_failure.clear();
    try {
        std::vector<ScenarioLine> lines =
            drawn(readScenario(
                      file, [](const std::string& name) { return readFile(pathFromUtf8(name)); }),
                  m_chance);
        Checker().check(lines);
        m_failure = Run(*this, file, std::move(lines)).play();
    } catch (const std::exception& error) {
        m_failure = error.what();
    }
    return m_failure.empty();
}

const std::string& Player::failure() const {
    return m_failure;
}

}  // namespace lx::host
