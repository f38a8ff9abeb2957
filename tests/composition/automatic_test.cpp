// Compositions made from the element chosen in an offer, by rules and without.
#include "composition/automatic.h"

#include <gtest/gtest.h>

#include <limits>

#include "composition/layout.h"
#include "composition/rules_file.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

constexpr std::int32_t high = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t low = std::numeric_limits<std::int32_t>::min();

struct RulesFile : testing::Test {
    MemoryFiles files;
    Profile rules{files, "VDLINTEL.TXT"};

    void write(const std::string& text) { files.content["VDLINTEL.TXT"] = text; }
    // "-" = no rule.
    std::string rule(std::int32_t wall, std::string_view designation = "KP 1") {
        return compositionRule(rules, wall, designation).value_or("-");
    }
};

TEST_F(RulesFile, TheFirstListedThicknessWithinElevenMillimetresNamesTheSection) {
    write(
        "[INDEX]\nCOUNT=3\n1=300\n2=376\n3=370\n4=500\n"
        "[300]\nKP 1=A\n[376]\nKP 1=B\n[370]\nKP 1=C\n[500]\nKP 1=D\n[0]\nKP 1=O\n");
    EXPECT_EQ(rule(288) + rule(289) + rule(311) + rule(312), "OAAO");
    EXPECT_EQ(rule(358) + rule(359) + rule(364) + rule(365), "OCCB");
    EXPECT_EQ(rule(370) + rule(387) + rule(388) + rule(500), "BBOO");
    EXPECT_EQ(rule(low) + rule(high), "OO");
    EXPECT_EQ(rule(300, "KP 2"), "-");
}

TEST_F(RulesFile, ADamagedIndexIsReadAsFarAsItGoes) {
    const std::string sections = "[300]\nKP 1=A\n[5]\nKP 1=B\n[0]\nKP 1=O\n";
    for (const auto& [index, found] :
         {std::pair{"COUNT=2000000000\n02=300\nx=300\n0=300\n-1=300\n1900000000=300\n", "A"},
          {"COUNT=6\n9=300\n07=300\n", "O"},
          {"COUNT=1\n1=400\n1=300\n", "O"},
          {"1=300\n", "O"}}) {
        write("[INDEX]\n" + std::string(index) + sections);
        EXPECT_EQ(rule(300), found) << index;
    }
    // The first of doubled numbers counts, however many there are.
    std::string doubled = "COUNT=20\n7=400\n";
    for (int i = 0; i < 3000; ++i) doubled += "9=299\n7=301\n";
    write("[INDEX]\n" + doubled + "[299]\nKP 1=N\n[301]\nKP 1=D\n");
    EXPECT_EQ(rule(300), "N");
    // A number left out is a thickness of 0, and only a thin wall is near it.
    write("[INDEX]\nCOUNT=3\n3=300\n2=5\n" + sections);
    EXPECT_EQ(rule(5) + rule(11) + rule(12) + rule(300), "OOBA");
    write("[INDEX]\nCOUNT=3\n3=300\n2=5\n1=300\n" + sections);
    EXPECT_EQ(rule(5) + rule(0), "BB");
    write("[INDEX]\nCOUNT=2\n1=-2147483648\n2=2147483647\n[2147483647]\nKP 1=Z\n" + sections);
    EXPECT_EQ(rule(high) + rule(300), "ZO");
}

TEST_F(RulesFile, APointOrNothingIsNoRule) {
    EXPECT_EQ(rule(300), "-");
    write("[index]\ncount=1\n1=300 mm\n[300]\nkp 1=\"X I[80] X\"\nKP 1=Q\nKP 2=.\nKP 3=\nKP 4=" +
          std::string(300, 'X'));
    EXPECT_EQ(rule(300), "X I[80] X");
    EXPECT_EQ(rule(300, "KP 2"), "-");
    EXPECT_EQ(rule(300, "KP 3"), "");
    EXPECT_EQ(rule(300, "KP 4"), std::string(259, 'X'));
}

struct Automatic : RulesFile {
    RezChain design;
    RezChain offer;
    std::vector<const CRez*> listed;

    void SetUp() override { wall(300); }
    void wall(std::int32_t width) {
        design = sampleDesign("A1", width);
        design.head()->headBearing() = 0;
    }
    // At the end of the chain, but at the front of the list.
    CRez* offered(const char* name, std::int32_t width, char letter = ' ') {
        CRez* element = offer.append(layer(Kind::precast, width, name));
        element->letter = letter;
        listed.insert(listed.begin(), element);
        return element;
    }
    void ruleFor(const std::string& designation, const std::string& rule) {
        write("[0]\n" + designation + "=" + rule + "\n");
    }
    CRez* compose(const CRez* chosen) { return composePrecast(design, chosen, listed, rules); }
    // "name:width@offset " of each layer.
    std::string shown() const {
        std::string text;
        for (const CRez* one = design.head()->next; one; one = one->next) {
            text += std::string(one->nameOrEmpty()) + ":" + std::to_string(one->width) + "@" +
                    std::to_string(one->offset) + " ";
        }
        return text;
    }
    // What the rule makes of the chosen lintel C and of K with the letter A, 50 wide both.
    std::string byRule(const std::string& rule) {
        wall(300);
        offer = RezChain();
        listed.clear();
        const CRez* chosen = offered("C", 50);
        offered("K", 50, 'A');
        ruleFor("C", rule);
        compose(chosen);
        return shown();
    }
};

TEST_F(Automatic, WithoutARuleTheLintelIsRepeatedAndTheRestInsulated) {
    const auto filled = [this](std::int32_t wallWidth, std::int32_t width) {
        wall(wallWidth);
        EXPECT_EQ(compose(layer(Kind::precast, width, "P").get()), design.head());
        return shown();
    };
    EXPECT_EQ(filled(300, 120), "IZOLACE:60@0 P:120@60 P:120@180 ");
    EXPECT_EQ(filled(250, 120), "P:120@0 P:120@120 ");
    EXPECT_EQ(filled(259, 120), "P:120@0 P:120@120 ");
    EXPECT_EQ(filled(260, 120), "IZOLACE:20@0 P:120@20 P:120@140 ");
    EXPECT_EQ(filled(120, 120), "P:120@0 ");
    EXPECT_EQ(filled(119, 120), "");
    EXPECT_EQ(design.head()->bends->next->run, 120);
    EXPECT_EQ(design.head()->headBearing(), 0);
    // The repetition ends, whatever the catalogue says.
    for (const auto& [width, rest] : {std::pair{10, 100}, {0, 300}, {-5, 305}, {low, high}}) {
        filled(300, width);
        EXPECT_EQ(LayerCount(*design.head()), 21) << width;
        EXPECT_EQ(design.head()->next->width, rest);
    }
    EXPECT_EQ(filled(high, high), "P:2147483647@0 ");
}

TEST_F(Automatic, InsulationKeepsTheOtherValuesOfTheChosenElement) {
    auto chosen = std::make_unique<CRez>(*design.head()->next);
    chosen->width = 100;
    const std::string name(chosen->nameOrEmpty());
    wall(180);
    for (const auto& [rule, made] :
         {std::pair{".", Kind::insulation}, {"I80]", Kind::insulation}, {"M80]", Kind::space}}) {
        ruleFor(name, rule);
        compose(chosen.get());
        CRez expected(*chosen);
        expected.kind = made;
        expected.name = made == Kind::space ? "MEZERA" : "IZOLACE";
        expected.width = 80;
        EXPECT_EQ(recordBytes(CRez(*design.head()->next), false), recordBytes(expected, false))
            << rule;
    }
}

TEST_F(Automatic, XFollowsTheCatalogueAndTheOtherLettersTheList) {
    offered("a1", 1, 'A');
    offered("x0", 2, 'X');
    const CRez* chosen = offered("C", 3, 'B');
    offered("x1", 4, 'x');
    const CRez* x = offered("x2", 5, 'X');
    const CRez* x3 = offered("x3", 6, 'X');
    const CRez* a2 = offered("a2", 7, 'A');
    const CRez* last = offered("z", 8, 'Z');
    ruleFor("C", "XBA[A]Y");
    compose(chosen);
    EXPECT_EQ(shown(), "x2:5@0 C:3@5 a2:7@8 a1:1@15 a2:7@16 a1:0@23 ");
    // Without an X from the chosen element on, the last one of the catalogue.
    for (const CRez* one : {x, x3, a2, last}) {
        ruleFor(std::string(one->nameOrEmpty()), "X");
        compose(one);
        EXPECT_EQ(design.last()->name, one == a2 ? last->name : one->name);
    }
}

TEST_F(Automatic, NumbersOfARuleGoToTheLastRecord) {
    EXPECT_EQ(byRule(""), "");
    byRule(std::string(25, 'A'));
    EXPECT_EQ(LayerCount(*design.head()), 25);
    EXPECT_EQ(design.last()->level, 20);
    EXPECT_EQ(byRule("I [ 8 x 0 ] C"), "IZOLACE:80@0 ");
    EXPECT_EQ(byRule("I80AI5]"), "IZOLACE:50@0 K:50@50 IZOLACE:805@100 ");
    EXPECT_EQ(byRule("I80]M]"), "IZOLACE:80@0 MEZERA:0@80 ");
    EXPECT_EQ(byRule("I00000000099] M1234567890]"), "IZOLACE:0@0 MEZERA:123456789@0 ");
    EXPECT_EQ(byRule("M12]40}"), "MEZERA:12@0 ");
    EXPECT_EQ(design.last()->height, 40);
    EXPECT_EQ(byRule("xim{.\xC1"), "");
    EXPECT_EQ(byRule("250] 40} A"), "K:50@0 ");
    EXPECT_EQ(design.head()->width, 250);
    EXPECT_EQ(design.head()->height, 40);
    EXPECT_EQ(design.last()->height, 0);
}

TEST_F(Automatic, ARuleEndsAtTwentyThousandLayers) {
    for (int i = 0; i < 100; ++i) offered("K", 50, 'A');
    for (const char* more : {"5]M7]", "5]I", "5]X7]", "5]AM7]"}) {
        ruleFor("K", std::string(200, 'A') + more);
        compose(listed.front());
        EXPECT_EQ(LayerCount(*design.head()), 20000) << more;
        EXPECT_TRUE(namesOf(design).ends_with("K 50;K 5;")) << more;
    }
    ruleFor("K", std::string(199, 'A') + "M7]");
    compose(listed.front());
    EXPECT_EQ(LayerCount(*design.head()), 19901);
}

TEST_F(Automatic, WithoutAnElementOrADesignNothingHappens) {
    const Bytes before = designBytes(design.head());
    EXPECT_FALSE(compose(nullptr) || composeSteel(design, nullptr));
    EXPECT_EQ(designBytes(design.head()), before);
    design.clear();
    const auto section = layer(Kind::angle, 60);
    EXPECT_FALSE(compose(section.get()) || composeSteel(design, section.get()));
    EXPECT_EQ(section->kind, Kind::angle);
}

TEST_F(Automatic, ASteelSectionIsTurnedOnceAndNestsIntoTheInsulation) {
    for (const Kind open : {Kind::angle, Kind::channel}) {
        wall(300);
        auto section = layer(open, 60, "S");
        section->length = 777;
        const CRez* current = composeSteel(design, section.get());
        EXPECT_EQ(current, design.head()->next);
        EXPECT_EQ(shown(), "IZOLACE:60@0 S:60@0 S:60@60 S:60@120 S:60@180 S:60@240 ");
        EXPECT_EQ(code(section->kind), code(open) + 50);
        EXPECT_EQ(design.last()->kind, section->kind);
        EXPECT_EQ(design.last()->length, 1500);
        EXPECT_EQ(design.head()->next->length, 777);

        design.head()->headBearing() = 200;
        current = composeSteel(design, section.get());
        EXPECT_EQ(current, design.last());
        EXPECT_EQ(shown(), "S:60@0 S:60@60 S:60@120 S:60@180 S:60@240 ");
        EXPECT_EQ(design.last()->length, 1600);
    }
}

TEST_F(Automatic, SteelInsulationTakesTheFreeSpaceAndTheNesting) {
    const auto filled = [this](std::int32_t wallWidth, Kind kind, std::int32_t width) {
        wall(wallWidth);
        const CRez* current = composeSteel(design, layer(kind, width, "S").get());
        return shown() + std::string(current->nameOrEmpty());
    };
    EXPECT_EQ(filled(210, Kind::beam, 101), "IZOLACE:58@0 S:101@8 S:101@109 IZOLACE");
    EXPECT_EQ(filled(40, Kind::beam, 39), "IZOLACE:20@0 S:39@1 IZOLACE");
    EXPECT_EQ(filled(39, Kind::beam, 38), "IZOLACE:20@0 S:38@1 IZOLACE");
    EXPECT_EQ(filled(38, Kind::beam, 38), "S:38@0 S");
    EXPECT_EQ(filled(119, Kind{4}, 50), "S:50@0 S:50@50 S");
    EXPECT_EQ(filled(120, Kind{4}, 50), "IZOLACE:20@0 S:50@20 S:50@70 IZOLACE");
    EXPECT_EQ(filled(19, Kind::channelMirrored, 20), "");
    EXPECT_EQ(filled(high, Kind::angle, high), "IZOLACE:2147483647@0 S:2147483647@0 IZOLACE");

    wall(50);
    design.head()->length = high;
    auto wide = layer(Kind::angle, 60);
    EXPECT_EQ(composeSteel(design, wide.get()), design.head());
    EXPECT_EQ(wide->kind, Kind::angleMirrored);
    EXPECT_EQ(design.head()->headBearing(), 150);
    wide->width = 50;
    composeSteel(design, wide.get());
    EXPECT_EQ(design.last()->length, high);
}

}  // namespace
}  // namespace lx
