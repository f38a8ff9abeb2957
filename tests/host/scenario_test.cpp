// The language's lines, includes and settings files, and the command line that shares its names.
#include "host/scenario.h"

#include <gtest/gtest.h>

#include <map>

#include "host/options.h"
#include "host/paths.h"

namespace lx::host {
namespace {

using Words = std::vector<std::string>;

TEST(ScenarioWords, QuotesEscapesAndComments) {
    EXPECT_EQ(splitWords("  press \"Nový typ\"\t#17 is a comment"), (Words{"press", "Nový typ"}));
    EXPECT_EQ(splitWords("press \"#17\" a#b"), (Words{"press", "#17", "a#b"}));
    EXPECT_EQ(splitWords(R"(expect text "" is "a\r\nb\t\"\\")"),
              (Words{"expect", "text", "", "is", "a\r\nb\t\"\\"}));
    EXPECT_EQ(splitWords("wait 50\r"), (Words{"wait", "50"}));
    for (const char* wrong : {"\"open", "\"open\\", "a \"b\"c", "ab\"c\"", R"("\q")"}) {
        EXPECT_THROW(splitWords(wrong), std::invalid_argument) << wrong;
    }
    const std::string hard = "a\r\n\t\"\\ #";
    EXPECT_EQ(splitWords(inQuotes(hard)), Words{hard});
}

class ScenarioFiles : public ::testing::Test {
protected:
    std::string read() {
        std::string places;
        const auto lines = readScenario("main", [this](const std::string& name) {
            const auto found = files.find(name);
            return found == files.end() ? std::nullopt : std::optional(found->second);
        });
        for (const ScenarioLine& line : lines) places += line.place() + " " + line.words[0] + ";";
        return places;
    }
    std::string failure() {
        try {
            read();
        } catch (const ScenarioError& error) {
            return error.what();
        }
        return {};
    }
    std::map<std::string, std::string> files;
};

TEST_F(ScenarioFiles, LinesKeepTheirPlacesAndWhatCannotBeReadSaysWhere) {
    files["main"] = "\xEF\xBB\xBFone\n\n# nothing\ninclude other\nfour";
    files["other"] = "\nsecond\n";
    EXPECT_EQ(read(), "main:1 one;other:2 second;main:5 four;");
    for (const auto& [text, failed] :
         {std::pair{"one\ninclude nowhere\n", "main:2: cannot read nowhere"},
          {"one\ntwo \"open\n", "main:2: the closing quote is missing"},
          {"include main\n", "main:1: includes go too deep"}}) {
        files["main"] = text;
        EXPECT_EQ(failure(), failed);
    }
    files.clear();
    EXPECT_EQ(failure(), "cannot read main");
}

Options parse(const Words& arguments) {
    return parseOptions(arguments, "/programs");
}

TEST(CommandLine, SetsHostOpeningAndBlock) {
    const Options options = parse(
        splitWords("--width 1200.5 --block.triple1 1,2.5,-3 --units none --lock 2 --styles A;B "
                   "CallLXdata6 --wall 450 --B 1"));
    ASSERT_EQ(options.error, "");
    const Opening& opening = options.call.value().opening;
    EXPECT_EQ(opening.width, 1200.5);
    EXPECT_EQ(opening.wall, 450);
    EXPECT_EQ(opening.b, 1);
    EXPECT_EQ(opening.block.triple1[2], -3);
    EXPECT_EQ(options.host.units, std::nullopt);
    EXPECT_EQ(options.host.libraryLock + options.host.catalogueLock, 2 + 2);
    EXPECT_EQ(options.host.styles, (Words{"A", "B"}));
    EXPECT_EQ(options.data, asFolder("/programs") + "data");
}

TEST(CommandLine, RefusesWhatCannotBeMeant) {
    for (const Words& wrong :
         {Words{}, Words{"--units"}, Words{"--units", "many", "LintelErase"},
          Words{"--nothing", "1", "LintelErase"}, Words{"LintelErase", "CallLXdata6"},
          Words{"mergeLibraryFiles", "a", "b"}, Words{"mergeLibraryFiles", "a", "b", "c"},
          Words{"--play", "a", "LintelErase"}, Words{"--block.headShape", "40000", "CallLXdata6"},
          Words{"--block.triple1", "1,2", "CallLXdata6"},
          Words{"--exterior", "left", "CallLXdata6"},
          Words{"--title", "\xE4\xB8\xAD", "LintelErase"}}) {
        EXPECT_NE(parse(wrong).error, "") << ::testing::PrintToString(wrong);
    }
}

}  // namespace
}  // namespace lx::host
