// Chance in a scenario: alternatives between "or" and "end" are drawn, and numbers, before anything
// is played. The same seed draws the same session on every platform.
#pragma once

#include <vector>

#include "host/scenario.h"

namespace lx::host {

struct Chance {
    unsigned seed = 1;
    int calls = 40;  // what "random calls" means
};

// The lines as they are to be played: "random COUNT", "or" and "end" are gone, "any:LOW:HIGH" is a
// number. Alternatives are dealt as from a shuffled pack: none comes again before all have come
// once. Throws ScenarioError.
std::vector<ScenarioLine> drawn(const std::vector<ScenarioLine>& lines, const Chance& chance);

}  // namespace lx::host
