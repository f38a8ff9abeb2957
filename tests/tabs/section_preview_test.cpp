#include "tests/tabs/design_dialog_bench.h"

namespace lx {
namespace {

constexpr const char* section = "section";

std::string regionNames(Driver& d) {
    std::string names;
    for (const std::string& region : d.regions(section)) {
        names += region.substr(0, region.find(' ', region.find(' ') + 1)) + "; ";
    }
    return names;
}

bool drawn(Driver& d, const std::string& what) {
    return d.drawing(section).find(what) != std::string::npos;
}

TEST_F(DesignDialog, TheSectionFollowsTheDesign) {
    run([](Driver& d) {
        EXPECT_TRUE(drawn(d, "\"300\""));
        EXPECT_TRUE(drawn(d, "\"Šířka otvoru = 1200 mm\""));
        EXPECT_TRUE(drawn(d, "text (2,35) \"Vnitřní\""));
        EXPECT_EQ(regionNames(d), "");
        d.selectTab("Prefa překlady");
        d.press("Vložit vybraný překlad");
        EXPECT_EQ(regionNames(d), "layer 1; body 1; ");
        EXPECT_TRUE(drawn(d, "pen 255,255,170 width 4 solid"));
        d.press("Vymazat vybraný prvek");
        EXPECT_EQ(regionNames(d), "");
        EXPECT_FALSE(drawn(d, "pen 255,255,170"));
        d.press("Zrušit");
    });
}

}  // namespace
}  // namespace lx
