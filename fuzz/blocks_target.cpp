// Values of the typed store: binary blocks, lists and numbers as anybody may have written them. The
// input is the value.
#include <algorithm>

#include "fuzz/targets.h"
#include "settings/ini_store.h"
#include "tests/support/memory_files.h"
#include "widgets/placement_list.h"
#include "widgets/resize_rules.h"

namespace lx::fuzz {

namespace {

// A window of two lists with a divider between them, as a stored position finds it.
void restore(const std::vector<std::int32_t>& stored) {
    placementFrom(stored, {200, 100}, {{1280, 1024}, 96, {32, 32}});
    ResizeRules rules([](int) { return true; });
    rules.addControl(1, {0, 0, 100, 100}, edge::stretches, true);
    rules.addControl(2, {104, 0, 200, 100}, edge::stretches, true);
    rules.addDivider(2, {104, 0, 200, 100}, Side::left, 1, {0, 0, 100, 100});
    rules.initialise({200, 100});
    rules.restoreSurpluses(stored);
    for (const std::int32_t width : stored) rules.relayout({std::clamp(width, 0, 30000), 100});
}

}  // namespace

void readBlocks(std::string_view input) {
    MemoryFiles files;
    files.content["set"] = "[S]\r\nK=" + Bytes(input) + "\r\n";
    prf_store settings(files);
    settings.open("set", "S");
    Bytes block;
    if (settings.read_binary("K", block)) {
        promise(block.size() < 32768);
        Bytes again;
        promise(settings.write_binary("K2", block) && settings.read_binary("K2", again));
        promise(again == block);
    }
    for (const bool text : {true, false}) {
        settings.text_mode = text;
        std::int32_t number = 0;
        double real = 0;
        std::vector<std::int32_t> numbers;
        std::vector<double> reals;
        std::vector<Text> texts;
        settings.get_int("K", number);
        settings.get_double("K", real);
        settings.get_double_array("K", reals);
        settings.get_string_list("K", texts);
        if (!settings.get_int_array("K", numbers)) continue;
        restore(numbers);
        if (numbers.empty()) continue;
        std::vector<std::int32_t> again;
        promise(settings.set_int_array("L", numbers) && settings.get_int_array("L", again));
        promise(again == numbers);
    }
}

}  // namespace lx::fuzz
