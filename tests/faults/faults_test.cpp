// Nothing is lost: every act that writes is tried with each of its system calls failing in turn,
// and with the process killed there. Each file must then read as before the act or as after it, of
// the library each stored design, and doing the act once more must complete it.
//
// LX_FAULTS=full tries pairs of failing calls and every place where a write can be cut as well;
// tools/faults prints the table of it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <sstream>

#include "composition/library.h"
#include "settings/setting_keys.h"
#include "tests/faults/operations.h"
#include "tests/faults/system_calls.h"
#include "tests/support/bench.h"
#include "tests/support/designs.h"

namespace lx::faults {
namespace {

namespace fs = std::filesystem;

bool tryingAll() {
    const char* wanted = std::getenv("LX_FAULTS");
    return wanted != nullptr && std::string_view(wanted) == "full";
}

// Where a process takes long to start a part of the kills is tried: in the short form one of so
// many over all acts, else in each write at so many hundredths less.
#if defined(_WIN32)
constexpr int killStride = 8;
constexpr std::size_t killCutStep = 10;
#else
constexpr int killStride = 1;
constexpr std::size_t killCutStep = 1;
#endif

bool killing() {
    static int asked = 0;
    return tryingAll() || asked++ % killStride == 0;
}

// ---- the table

struct Row {
    std::map<Fault, int> tries;
    int losses = 0;
};

constexpr std::pair<Fault, const char*> columns[] = {
    {Fault::noSpace, "no space"},      {Fault::denied, "denied"}, {Fault::deniedTwice, "denied 2x"},
    {Fault::shortWrite, "short"},      {Fault::gone, "gone"},     {Fault::killed, "killed"},
    {Fault::killedInWrite, "in write"}};

void printRow(const std::string& name, Row& row) {
    std::printf("%-26s", name.c_str());
    for (const auto& [fault, heading] : columns) std::printf(" %9d", row.tries[fault]);
    std::printf(" %9d\n", row.losses);
}

// ---- what files read as

using Entry = std::pair<Text, Bytes>;  // label with its project, design
struct State {
    std::map<std::string, Bytes> files;  // by name, the library's own apart
    bool hasLibrary = false;
    Bytes library;
    std::vector<Entry> entries;

    bool operator==(const State&) const = default;
    std::set<Entry> distinct() const { return {entries.begin(), entries.end()}; }
    int count(const Entry& entry) const {
        return static_cast<int>(std::count(entries.begin(), entries.end(), entry));
    }
};

Text labelKey(std::int32_t project, const Text& label) {
    return std::to_string(project) + " " + label;
}

State stateOf(const Path& folder) {
    State state;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        state.files[name] = systemFiles().read(folder + name).bytes;
    }
    const auto library = state.files.find(std::string(libraryFileName));
    if (library == state.files.end()) return state;
    state.hasLibrary = true;
    state.library = library->second;
    for (const std::int32_t project : {libraryProject, otherProject, 0}) {
        for (const LibraryEntry& entry : parseLibrary(state.library, project).entries) {
            state.entries.emplace_back(labelKey(project, entry.label),
                                       designBytes(entry.design.head()));
        }
    }
    state.files.erase(library);
    return state;
}

std::optional<Bytes> find(const State& state, const std::string& name) {
    const auto found = state.files.find(name);
    return found == state.files.end() ? std::nullopt : std::optional(found->second);
}

// A name that the file layer writes beside the file that is to be replaced.
bool isWorkFile(const std::string& name) {
    return name.find(".new") != std::string::npos ||
           (name.starts_with("lx") && name.ends_with(".tmp"));
}

bool isSettings(const std::string& name) {
    return name == settings::userFile || name == settings::dialogFile;
}

std::set<std::string> linesOf(const std::optional<Bytes>& file) {
    std::set<std::string> lines;
    std::istringstream text(file.value_or(Bytes()));
    for (std::string line; std::getline(text, line);) lines.insert(line);
    return lines;
}

// Acts of several values only add lines.
bool settingsBetween(const std::optional<Bytes>& before, const std::optional<Bytes>& here,
                     const std::optional<Bytes>& after, bool done) {
    const auto first = linesOf(before);
    const auto now = linesOf(here);
    const auto last = linesOf(after);
    return std::includes(now.begin(), now.end(), first.begin(), first.end()) &&
           std::includes(last.begin(), last.end(), now.begin(), now.end()) &&
           (!done || now == last);
}

// ---- one operation and its trouble

struct Outcome {
    bool struck = false;
    bool ended = false;  // by the trouble, or beyond the reach of its own mending
    Answer answer = Answer::untold;
};

void prepare(const Operation& operation, const Path& folder) {
    fs::remove_all(folder);
    fs::create_directories(folder);
    operation.prepare(folder);
}

// In a process of its own, which may end in it. What was prepared in memory may be of no use to it.
void act(const Operation& operation, const Path& folder, const Trouble& trouble) {
    prepare(operation, folder);
    begin(trouble);
    operation.run(folder);
    end();
}

constexpr std::string_view actArgument = "--act";

std::vector<std::string> argumentsOf(const Operation& operation, const Path& folder,
                                     const Trouble& trouble) {
    // A separator before the closing quotation mark would take it into the argument.
    return {std::string(actArgument),
            operation.name,
            folder.substr(0, folder.size() - 1),
            std::to_string(static_cast<int>(trouble.fault)),
            std::to_string(trouble.call),
            std::to_string(trouble.cut)};
}

void actOn(char** arguments) {
    const Path folder = arguments[1] + std::string(separator);
    const Trouble trouble{static_cast<Fault>(std::atoi(arguments[2])), std::atoi(arguments[3]), 0,
                          static_cast<std::size_t>(std::atoi(arguments[4]))};
    for (const Operation& operation : operations()) {
        if (operation.name == arguments[0]) act(operation, folder, trouble);
    }
}

class Faults : public testing::TestWithParam<Operation> {
protected:
    static void SetUpTestSuite() {
        std::printf("%-26s", "");
        for (const auto& [fault, heading] : columns) std::printf(" %9s", heading);
        std::printf(" %9s\n", "losses");
    }
    static void TearDownTestSuite() { printRow("sum", s_sum); }
    void TearDown() override {
        printRow(GetParam().name, m_row);
        for (const auto& [fault, tries] : m_row.tries) s_sum.tries[fault] += tries;
        s_sum.losses += m_row.losses;
    }

    Outcome runHere(const Trouble& trouble);
    Outcome runInOwnProcess(const Trouble& trouble);
    void tryOnce(const Trouble& trouble);
    void tryTwoDenied(int first);

    std::string lossIn(const State& now, const Outcome& outcome) const;
    std::string libraryLossIn(const State& now, const Outcome& outcome) const;

    Bench m_bench;
    Path m_folder = m_bench.folder() + "faults" + std::string(separator);
    State m_before;
    State m_after;
    Course m_undisturbed;
    Row m_row;
    inline static Row s_sum;
};

Outcome Faults::runHere(const Trouble& trouble) {
    Outcome outcome;
    begin(trouble);
    outcome.answer = GetParam().run(m_folder);
    const Course course = end();
    outcome.struck = course.struck;
    outcome.ended = trouble.fault == Fault::gone || trouble.fault == Fault::deniedTwice;
    return outcome;
}

Outcome Faults::runInOwnProcess(const Trouble& trouble) {
    const int status = inOwnProcess([&] { act(GetParam(), m_folder, trouble); },
                                    argumentsOf(GetParam(), m_folder, trouble));
    EXPECT_TRUE(status == 0 || status == killedStatus) << "another end: " << status;
    return {status == killedStatus, true, Answer::untold};
}

// Empty when every stored design is there as before or as after.
std::string Faults::libraryLossIn(const State& now, const Outcome& outcome) const {
    const bool failed = !outcome.ended && outcome.answer == Answer::failed;
    if (failed && now.hasLibrary != m_before.hasLibrary) return "left by an act that failed";
    const Text own = labelKey(GetParam().project, GetParam().label);
    std::set<Entry> all = m_before.distinct();
    all.merge(m_after.distinct());
    for (const Entry& entry : now.distinct()) {
        if (!all.contains(entry)) return "a design that nobody stored under " + entry.first;
    }
    for (const Entry& entry : all) {
        const int before = m_before.count(entry);
        const int after = m_after.count(entry);
        const bool stored = GetParam().stores && entry.first == own;
        const int most = stored ? before + after : std::max(before, after);
        const int count = now.count(entry);
        if (count < std::min(before, after) || count > most) {
            return std::to_string(count) + " designs under " + entry.first;
        }
        if (failed && entry.first == own && count != before) return "changed, but told as failed";
        const bool done = outcome.answer == Answer::done;
        if (done && stored && count == 0) return "told as stored, but it is not there";
        if (done && !stored && entry.first == own && count == before && before > after)
            return "told as deleted, but it is there";
    }
    return {};
}

// Empty when every file reads as before or as after, and as was answered.
std::string Faults::lossIn(const State& now, const Outcome& outcome) const {
    std::set<std::string> names;
    for (const State* state : {&m_before, &m_after, &now}) {
        for (const auto& [name, bytes] : state->files) names.insert(name);
    }
    for (const std::string& name : names) {
        const auto before = find(m_before, name);
        const auto after = find(m_after, name);
        const auto here = find(now, name);
        if (outcome.ended && !before && !after && isWorkFile(name)) continue;
        if (GetParam().stepwise && isSettings(name)) {
            const bool done = outcome.answer == Answer::done;
            if (!settingsBetween(before, here, after, done)) return name + " has other values";
            continue;
        }
        if (here != before && here != after) return name + " reads as neither";
        const bool failed = !outcome.ended && outcome.answer == Answer::failed;
        if (failed && name.ends_with(".DAT.bak") && here != before) return name + " was left";
        if (name.ends_with(".bak")) continue;
        if (failed && here != before) return name + " changed, but told as failed";
        const bool done = outcome.answer == Answer::done;
        if (done && here != after) return name + " is not what was told as done";
        const auto kept = find(m_after, name + ".bak");
        if (kept && here != before && find(now, name + ".bak") != kept) {
            return name + " was written over without its backup";
        }
    }
    return libraryLossIn(now, outcome);
}

void Faults::tryOnce(const Trouble& trouble) {
    const bool kills = trouble.fault == Fault::killed || trouble.fault == Fault::killedInWrite;
    prepare(GetParam(), m_folder);
    const Outcome outcome = kills ? runInOwnProcess(trouble) : runHere(trouble);
    if (!outcome.struck) return;
    ++m_row.tries[trouble.fault];
    const State troubled = stateOf(m_folder);
    std::string loss = lossIn(troubled, outcome);
    if (loss.empty()) {
        runHere({});
        State repeated = stateOf(m_folder);
        // Names that a dying process left, and the backup of a tail that it left.
        std::erase_if(repeated.files, [this](const auto& file) {
            return !m_after.files.contains(file.first) && isWorkFile(file.first);
        });
        const std::string backup = std::string(libraryFileName) + ".bak";
        const auto kept = find(repeated, backup);
        const auto wanted = find(m_after, backup);
        if (kept && *kept == troubled.library) {
            repeated.files.erase(backup);
            if (wanted) repeated.files[backup] = *wanted;
        }
        // Also when it was done at once, a repeat finds its own work.
        loss = lossIn(repeated, {true, false, Answer::done});
        if (loss.empty() && repeated.entries.size() != m_after.entries.size())
            loss = "designs left";
        if (!loss.empty()) loss = "after a repeat: " + loss;
    }
    if (!loss.empty()) ++m_row.losses;
    EXPECT_EQ(loss, "") << "fault " << static_cast<int>(trouble.fault) << " at call "
                        << trouble.call << " second " << trouble.second << " cut " << trouble.cut;
}

void Faults::tryTwoDenied(int first) {
    // An act that goes on behind a refused call makes at most these more.
    constexpr int mendingCalls = 4;
    // A session is made of acts that know nothing of each other.
    constexpr int longestAct = 12;
    const int end = m_undisturbed.calls + mendingCalls;
    const int last = GetParam().stepwise ? std::min(end, first + longestAct) : end;
    for (int second = first + 1; second <= last; ++second) {
        tryOnce({Fault::deniedTwice, first, second});
    }
}

TEST_P(Faults, LoseNothing) {
    prepare(GetParam(), m_folder);
    m_before = stateOf(m_folder);
    begin({});
    GetParam().run(m_folder);
    m_undisturbed = end();
    m_after = stateOf(m_folder);
    ASSERT_FALSE(m_before == m_after) << "the operation writes nothing";
    ASSERT_GT(m_undisturbed.calls, 1);
    EXPECT_FALSE(m_undisturbed.unflushed) << "a power failure could lose what was told as done";

    // In the short form of a session, whose acts are mostly tried one by one as well.
    const int callStep = GetParam().stepwise && !tryingAll() ? 5 : 1;
    for (int call = 1; call <= m_undisturbed.calls; call += callStep) {
        for (const Fault fault : {Fault::noSpace, Fault::denied, Fault::gone}) {
            tryOnce({fault, call});
        }
        if (tryingAll()) tryTwoDenied(call);
    }
    // Between two changes it is all the same when the process ends.
    for (const int call : m_undisturbed.changes) {
        if (killing()) tryOnce({Fault::killed, call});
    }
    const std::size_t step = tryingAll() ? 1 : 60;
    for (const int call : m_undisturbed.writes) {
        for (std::size_t cut = step; cut < 100; cut += step) {
            for (const Fault fault : {Fault::shortWrite, Fault::gone}) {
                tryOnce({fault, call, 0, cut});
            }
            if (cut % killCutStep == 0 && killing()) tryOnce({Fault::killedInWrite, call, 0, cut});
        }
    }
}

std::string testName(const testing::TestParamInfo<Operation>& info) {
    std::string name;
    bool capital = true;
    for (const char c : info.param.name) {
        const bool letter = std::isalpha(static_cast<unsigned char>(c)) != 0;
        if (letter) name += capital ? static_cast<char>(std::toupper(c)) : c;
        capital = !letter;
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Operations, Faults, testing::ValuesIn(operations()), testName);

}  // namespace
}  // namespace lx::faults

int main(int argc, char** argv) {
    using namespace lx::faults;
    if (argc == 7 && argv[1] == actArgument) {
        actOn(argv + 2);
        return 0;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
