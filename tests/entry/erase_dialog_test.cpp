// The erase dialog as a user meets it, from the exported function to what the host gets.
#include <gtest/gtest.h>

#include "settings/profile.h"
#include "tests/entry/fake_modules.h"

namespace lx {
namespace {

constexpr char title[] = "Vymazání překladu";

struct EraseDialog : testing::Test {
    LoadedModule module;
    Profile settings{module.bench.files(), module.bench.dataFolder() + "VD_preklady.dat"};

    // Acts in the dialog of one call and returns what the host gets.
    int erase(std::function<void(Driver&)> acts) {
        module.bench.user().inDialog(title, std::move(acts));
        const int result = LintelErase(nullptr);
        EXPECT_EQ(module.bench.user().failure(), "");
        return result;
    }
    // The boxes in order: "1" or "0" when checked or not, "-" behind a disabled one.
    static std::string boxes(Driver& d) {
        std::string look;
        for (const char* box : {"překlad", "sklopený řez", "bublina", "popis"}) {
            look += d.checked(box) ? "1" : "0";
            if (!d.enabled(box)) look += "-";
        }
        return look;
    }
    Text stored() { return settings.read("SETTINGS", "LINTEL_ERASE", "none"); }
};

TEST_F(EraseDialog, ShowsTheStoredChoiceAndReturnsItUnchanged) {
    const struct {
        const char* stored;
        const char* boxes;
        int result;
    } cases[] = {{"15", "11-1-1-", 15}, {"6", "0110", 6},     {"1", "10-0-0-", 1}, {"0", "0000", 0},
                 {"abc", "0000", 0},    {"5x", "10-1-0-", 5}, {"16", "0000", 0}};
    for (const auto& one : cases) {
        settings.write("SETTINGS", "LINTEL_ERASE", one.stored);
        const int result = erase([&one](Driver& d) {
            EXPECT_EQ(boxes(d), one.boxes) << one.stored;
            d.key("Enter");
        });
        EXPECT_EQ(result, one.result);
        EXPECT_EQ(stored(), std::to_string(one.result));
    }
}

TEST_F(EraseDialog, TheLintelGivesItsPartsBackAsTheyStand) {
    EXPECT_EQ(erase([](Driver& d) {
                  d.check("překlad", false);
                  EXPECT_EQ(boxes(d), "0111");
                  d.check("bublina", false);
                  d.press("OK");
              }),
              10);
    EXPECT_EQ(stored(), "10");
}

TEST_F(EraseDialog, ASecondCallWhileOneIsOpenTouchesNothing) {
    char text[] = "as it was";
    std::int32_t a = 5;
    std::int32_t b = 7;
    EXPECT_EQ(erase([&](Driver& d) {
                  EXPECT_EQ(LintelErase(nullptr), LX_ERASE_CANCELLED);
                  EXPECT_EQ(CallLXdata6(nullptr, 0, 0, 0, 1200, 300, 0, text, &a, &b, {}, 0),
                            LX_DIALOG_CANCEL);
                  EXPECT_EQ(d.title(), title);
                  d.press("OK");
              }),
              15);
    EXPECT_STREQ(text, "as it was");
    EXPECT_EQ(a, 5);
    EXPECT_EQ(b, 7);
    // The first one has given the module free again.
    EXPECT_EQ(erase([](Driver& d) { d.press("OK"); }), 15);
}

}  // namespace
}  // namespace lx
