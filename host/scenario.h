// A scenario as text: lines cut into words, with includes put in place. What the words mean is the
// player's business.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lx::host {

struct ScenarioLine {
    std::shared_ptr<const std::string> file;  // as named, UTF-8
    int number = 0;                           // from 1
    std::vector<std::string> words;           // never empty
    // Of a "try" that cannot be done: index of the line to go on with, see chance.h.
    std::size_t goesOnAt = 0;

    std::string place() const { return *file + ":" + std::to_string(number); }
};

// What is wrong with a scenario, beginning with "file:line: ".
class ScenarioError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Words are parted by blanks; "..." holds blanks and the escapes \" \\ \r \n \t; a # that begins a
// word starts a comment. Throws std::invalid_argument with what is wrong.
std::vector<std::string> splitWords(std::string_view line);
// The other way round: as it could stand in a scenario.
std::string inQuotes(std::string_view text);

// Reads a file, and those it includes by "include NAME" (beside the including file). Throws
// ScenarioError. readFile gives none for a file that is not there.
std::vector<ScenarioLine> readScenario(
    const std::string& file,
    const std::function<std::optional<std::string>(const std::string&)>& readFile);

}  // namespace lx::host
