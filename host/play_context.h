// What the lines of a scenario work with while it is played.
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "host/calls.h"
#include "host/driver/driver.h"
#include "host/held.h"
#include "host/host_services.h"
#include "host/scenario_folders.h"

namespace lx::host {

struct PlayContext {
    HostServices& services;
    Driver& driver;
    ScenarioFolders folders;
    Opening opening;
    std::optional<CallOutcome> outcome;  // of the last call
    std::ostream& output;
    std::vector<Held> counted;  // by the last "count-held"
    std::function<std::vector<std::string>()> hostWindows;
    // A call made while one is under way.
    std::function<CallOutcome(const CallRequest&)> callAgain;
};

using Words = std::vector<std::string>;

// Where a line may stand.
enum class Where {
    anywhere,
    inCall,  // between "call" and "returns"
    outside
};

// A line that does something. Arguments are the words behind its name; a handler throws
// std::runtime_error with what went wrong.
struct Command {
    std::string_view name;
    std::size_t least = 0;  // number of arguments
    std::size_t most = 0;
    Where where = Where::anywhere;
    std::function<void(PlayContext&, const Words&)> run;
};
inline constexpr std::size_t anyNumber = 100000;

// Null for an unknown name.
const Command* findCommand(std::string_view name);

// Something that can be printed and compared: a list of items, mostly a single one.
struct Readable {
    std::string_view name;
    std::size_t arguments = 0;
    Where where = Where::anywhere;
    std::function<Words(PlayContext&, const Words&)> read;
};
const Readable* findReadable(std::string_view name);

// "expect" and "print": READABLE and its arguments, then for expect a comparison: is, is-not, has,
// lacks, contains. Both throw std::invalid_argument for a line that cannot be meant; expect throws
// std::runtime_error when the expectation does not hold.
void checkExpectWords(const Words& words);
void expect(PlayContext& context, const Words& words);
void checkPrintWords(const Words& words);
void print(PlayContext& context, const Words& words);
// Where the readable of such a line may stand.
Where whereOf(const Words& readableWords);

// Throws std::runtime_error for a text that is no whole number.
int wholeNumber(const std::string& text);

}  // namespace lx::host
