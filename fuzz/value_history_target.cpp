#include <algorithm>

#include "fuzz/targets.h"
#include "platform/numbers.h"
#include "settings/value_history.h"
#include "tests/support/memory_files.h"

namespace lx::fuzz {

void readValueHistory(std::string_view input) {
    MemoryFiles files;
    files.content["set"] = input;
    Profile profile(files, "set");
    ValueHistory history(profile, "COMBO_VYSKA");
    const std::vector<Text> before = history.shown();
    // Nobody has clicked so many together; the rest of them is not believed.
    constexpr std::int32_t most = 200000;
    const bool full = leadingInt(profile.read("COMBO_VYSKA", "nr", "0")) >= most;
    promise(before.size() <= most);
    promise(history.add("12345"));
    const std::vector<Text> added = history.shown();
    promise(full || std::find(added.begin(), added.end(), "12345") != added.end());
    promise(history.remove("12345"));
    if (!before.empty()) promise(history.remove(before.front()));
}

}  // namespace lx::fuzz
