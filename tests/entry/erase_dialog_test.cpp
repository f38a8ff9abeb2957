// The erase dialog as a user meets it, from the exported function to what the host gets.
#include <gtest/gtest.h>

#include <tuple>

#include "settings/profile.h"
#include "tests/entry/fake_modules.h"

namespace lx {
namespace {

TEST(EraseDialog, ShowsWhateverIsStoredAndReturnsIt) {
    LoadedModule module;
    Profile settings(module.bench.files(), module.bench.dataFolder() + "VD_preklady.dat");
    for (const auto& [stored, boxes, result] : {std::tuple{"6", "0110", 6},
                                                {"10", "0101", 10},
                                                {"abc", "0000", 0},
                                                {"5x", "1010", 5},
                                                {"16", "0000", 0}}) {
        settings.write("SETTINGS", "LINTEL_ERASE", stored);
        module.bench.user().inDialog("Vymazání překladu", [&](Driver& d) {
            std::string checked;
            for (const char* box : {"překlad", "sklopený řez", "bublina", "popis"}) {
                checked += d.checked(box) ? '1' : '0';
            }
            EXPECT_EQ(checked, boxes) << stored;
            d.key("Enter");
        });
        EXPECT_EQ(LintelErase(nullptr), result);
        EXPECT_EQ(module.bench.user().failure(), "");
        EXPECT_EQ(settings.read("SETTINGS", "LINTEL_ERASE", "none"), std::to_string(result));
    }
}

}  // namespace
}  // namespace lx
