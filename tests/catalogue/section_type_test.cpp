// The dialog for a new steel type as a user meets it.
#include <gtest/gtest.h>

#include "catalogue/CTypPrurez.h"
#include "tests/support/bench.h"

namespace lx {
namespace {

constexpr const char* title = "Přidání typu průřezu";
constexpr const char* name = "Název:";

struct SectionType : testing::Test {
    bool run(std::function<void(Driver&)> steps) {
        bench.user().inDialog(title, std::move(steps));
        const bool confirmed = dialog.DoModal();
        EXPECT_EQ(bench.user().failure(), "");
        return confirmed;
    }
    static std::string shape(int number) { return "#" + std::to_string(1751 + number); }

    Bench bench;
    CTypPrurez dialog{bench.platform(), bench.host(), {}};
};

TEST_F(SectionType, OffersThreeOfSixShapesAndNeedsNone) {
    EXPECT_TRUE(run([](Driver& d) {
        EXPECT_EQ(d.layoutFaults(), std::vector<std::string>{});
        for (int n = 1; n <= 14; ++n) {
            EXPECT_EQ(d.visible(shape(n)), n <= 6) << n;
            EXPECT_EQ(d.visible(shape(n)) && d.enabled(shape(n)), n <= 3) << n;
        }
        EXPECT_EQ(d.tooltip(shape(3)), "U");
        EXPECT_NE(d.focusedControl().find("1751"), std::string::npos);
        d.type(std::string(51, 'x'));
        d.press("Nápověda");
        d.press("OK");
    }));
    EXPECT_EQ(dialog.name, std::string(50, 'x'));
    EXPECT_EQ(dialog.shape, 0);
    EXPECT_EQ(bench.host().helpTopics, std::vector<int>{100});
}

TEST_F(SectionType, TheLastClickCountsAndStaysWhenTheDialogOpensAgain) {
    EXPECT_TRUE(run([](Driver& d) {
        d.press(shape(2));
        d.press("I");
        d.press("OK");
    }));
    EXPECT_EQ(dialog.shape, 1);
    bench.user().then([](Driver& d) {
        EXPECT_EQ(d.messageBox().text, "chybí");
        EXPECT_EQ(d.messageBox().caption, "");
        EXPECT_EQ(d.messageBox().icon, "stop");
        d.answer("OK");
    });
    dialog.showMessage("chybí"_cz);
    EXPECT_TRUE(run([](Driver& d) {
        d.focus(name);
        d.type("U úhelníky");
        d.key("Enter");  // to the shapes
        EXPECT_NE(d.focusedControl().find("1752"), std::string::npos);
        d.press("OK");
    }));
    EXPECT_EQ(dialog.name, "U úhelníky"_cz);
    EXPECT_EQ(dialog.shape, 1);
    EXPECT_FALSE(run([](Driver& d) {
        EXPECT_EQ(d.text(name), "U úhelníky");
        EXPECT_EQ(d.editSelection(name), "0-10");
        d.type("jiné");
        d.press("Zrušit");
    }));
    EXPECT_EQ(dialog.name, "U úhelníky"_cz);
}

}  // namespace
}  // namespace lx
