// Everything of the module that writes a file, as acts that can be tried again and again.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/text.h"

namespace lx::faults {

inline constexpr std::int32_t libraryProject = 1;
inline constexpr std::int32_t otherProject = 2;

enum class Answer { done, failed, untold };

struct Operation {
    std::string name;
    // Makes the files that are there before, in an empty folder; paths end in a separator.
    std::function<void(const Path& folder)> prepare;
    // The user's act, from its reading on. Done once more after trouble it is to complete.
    std::function<Answer(const Path& folder)> run;
    // Of a library: the stored designs that the act adds, replaces or deletes. Others must stay.
    Text label = {};
    bool stores = false;
    std::int32_t project = libraryProject;
    // Several settings are written one after another: of each file of them every line is there as
    // before or as after.
    bool stepwise = false;
};

inline void PrintTo(const Operation& operation, std::ostream* stream) {
    *stream << operation.name;
}

const std::vector<Operation>& operations();
void addBrowserSession(std::vector<Operation>& all);

}  // namespace lx::faults
