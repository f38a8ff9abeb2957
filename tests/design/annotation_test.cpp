// The rules behind the annotation settings.
#include <gtest/gtest.h>

#include "design/annotation.h"
#include "resources/strings.h"
#include "tests/support/memory_files.h"

namespace lx {
namespace {

struct StyleOnFile : testing::Test {
    MemoryFiles files;
    Profile settings{files, "VD_preklady.dat"};

    AnnotationStyle stored(std::string_view key, std::string_view value) {
        settings.write("SETTINGS", key, value);
        return storedStyle(settings);
    }
};

TEST_F(StyleOnFile, IsCutToItsFields) {
    AnnotationStyle other;
    other.bubbleHeight = other.descriptionHeight = other.edges = Text(40, '7');
    storeStyle(settings, other);
    EXPECT_EQ(storedStyle(settings).bubbleHeight, Text(14, '7'));
    EXPECT_EQ(storedStyle(settings).descriptionHeight, Text(14, '7'));
    EXPECT_EQ(storedStyle(settings).edges, Text(29, '7'));
}

TEST_F(StyleOnFile, TakesWhateverIsStored) {
    const std::pair<const char*, int> colors[] = {
        {"8", -1}, {"-1", -1}, {"99999999999", -1}, {" 7 and more", 7}, {"red", 0}};
    for (const auto& [text, color] : colors) {
        EXPECT_EQ(stored("COLOR1", text).bubbleColor, color) << text;
        EXPECT_EQ(stored("COLOR2", text).descriptionColor, color) << text;
    }
    EXPECT_TRUE(stored("IF_ANGLE1", "").followsOpening);
    EXPECT_FALSE(stored("IF_ANGLE1", "-2").followsOpening);
    EXPECT_TRUE(stored("IF_EDGES", "2").hasEdges);
    EXPECT_FALSE(stored("IF_POMLINE1", "yes").auxiliaryLine);
    // The buffers of the keys, one byte of each for the end.
    EXPECT_EQ(stored("HEIGHT1", Text(60, '1')).bubbleHeight.size(), 29U);
    EXPECT_EQ(stored("COLOR1", Text(48, '0') + "5").bubbleColor, 5);
    EXPECT_EQ(stored("COLOR2", Text(49, '0') + "5").descriptionColor, 0);
    EXPECT_EQ(stored("STYLE", Text(2000, 'S')).textStyle.size(), 1023U);
    EXPECT_EQ(stored("STYLE", "").textStyle, "");
}

TEST(StyleRules, APolygonNeedsThreeEdgesWhetherItIsUsedOrNot) {
    const auto refusal = [](const char* typed, bool used) {
        AnnotationStyle style;
        style.edges = typed;
        style.hasEdges = used;
        return styleRefusal(style);
    };
    for (const bool used : {false, true}) {
        for (const char* typed : {"3", "3.7", " 12x", "99999999999", "0000000000000000003"}) {
            EXPECT_EQ(refusal(typed, used), "") << typed;
        }
        for (const char* typed :
             {"2", "2.9", "-5", "", "three", "0000000000000000002", "00000000000000000003"}) {
            EXPECT_EQ(refusal(typed, used), text::tooFewEdges) << typed;
        }
    }
}

TEST(StyleRules, ATextStyleIsFoundByItsBeginning) {
    EXPECT_EQ(textStyleChoices({"Popisy"}), std::vector<Text>{"Popisy"});
    std::vector<Text> entries = textStyleChoices({});
    entries.emplace_back("ČÁRY"_cz);
    const std::pair<std::string_view, int> cases[] = {
        {"rom", 0}, {"ROMANS", 1}, {"standard", 2}, {"čá"_cz, 4}, {"Standard 2", -1}, {"OMAN", -1}};
    for (const auto& [text, entry] : cases)
        EXPECT_EQ(entryBeginningWith(entries, text), entry) << text;
    EXPECT_EQ(entryBeginningWith({}, "ROM"), -1);
}

}  // namespace
}  // namespace lx
