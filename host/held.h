// What this process holds of its system: windows, menus, drawing objects, handles, files, memory.
// Two counts tell what was left behind in between.
#pragma once

#include <string>
#include <vector>

namespace lx::host {

struct Held {
    std::string name;
    long long count = 0;
    long long noise = 0;  // how much more is no leak yet
};

// The same counters in the same order each time.
std::vector<Held> countHeld();

// "menus: 10 before, 12 now", a line for each counter.
std::vector<std::string> comparedHeld(const std::vector<Held>& before,
                                      const std::vector<Held>& now);
// Those of the lines whose count grew by more than noise.
std::vector<std::string> leftBehind(const std::vector<Held>& before, const std::vector<Held>& now);

}  // namespace lx::host
