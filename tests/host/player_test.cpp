// Scenarios played on a small module of their own: what is acted and read in dialogs, and that
// whatever fails says where.
#include "host/player.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "host/options.h"
#include "host/paths.h"
#include "tests/support/bench.h"

namespace lx::host {
namespace {

constexpr int boxId = 100;
constexpr int fieldId = 102;
constexpr int listId = 104;
constexpr int moreId = 105;

constexpr ControlTemplate sampleControls[] = {
    {ControlKind::checkBox, boxId, "zaškrtnout"_cz, {5, 5, 80, 10}, 0},
    {ControlKind::label, 101, "Název:"_cz, {5, 20, 40, 8}, 0},
    {ControlKind::edit, fieldId, "", {50, 18, 80, 12}, 0},
    {ControlKind::label, 103, "Seznam:"_cz, {5, 35, 40, 8}, 0},
    {ControlKind::listBox, listId, "", {50, 35, 80, 40}, 0},
    {ControlKind::button, moreId, "Další..."_cz, {5, 80, 50, 14}, 0},
    {ControlKind::button, id::ok, "OK", {60, 80, 50, 14}, style::defaultButton},
    {ControlKind::button, id::cancel, "Zrušit"_cz, {115, 80, 50, 14}, 0},
};
constexpr DialogTemplate sampleTemplate{"sample", "Ukázka"_cz, 180, 100, sampleControls};

Platform* g_platform = nullptr;
int g_loads = 0;

// LintelErase of the small module: a dialog whose "Další..." asks whether another one is to open.
int runSample(Dialog* owner) {
    const auto dialog = g_platform->createDialog(sampleTemplate, {owner, nullptr});
    auto& list = dialog->get<ListBox>(listId);
    list.append({"jedna", {}, {}});
    list.append({Text("dvě"_cz), {}, {}});
    dialog->get<Button>(moreId).onClick = [&] {
        const MessageAnswer answer =
            g_platform->messageBox({dialog.get(), nullptr}, "Opravdu?", "Otázka"_cz,
                                   MessageIcon::question, MessageButtons::yesNo);
        if (answer == MessageAnswer::yes)
            list.append({std::to_string(runSample(dialog.get())), {}, {}});
    };
    const int result = dialog->runModal();
    return dialog->get<CheckBox>(boxId).checked() ? 10 + result : result;
}

int LX_STDCALL sampleErase(void*) {
    return runSample(nullptr);
}

int g_designed = 0;

int LX_STDCALL sampleDesign(void*, int32_t, int32_t, int32_t, double, double, double, char*,
                            int32_t*, int32_t*, OpeningBlock, int32_t) {
    return g_designed;
}

class PlayerTest : public ::testing::Test {
protected:
    PlayerTest() { g_platform = &bench.platform(); }

    // Plays these lines and answers the failure without the folder before the file's name.
    std::string play(const std::string& lines) {
        const std::string file = utf8FromSystemPath(bench.folder()) + "test.scenario";
        writeFile(pathFromUtf8(file), lines);
        ModuleSource module;
        module.load = [](const HostSettings&) {
            ++g_loads;
            ModuleCalls calls;
            calls.LintelErase = sampleErase;
            return calls;
        };
        module.unload = [] {};
        output.str("");
        Player player(services, module, bench.driver(),
                      {utf8FromSystemPath(bench.folder()) + "out", "."}, output);
        const bool held = player.play(file);
        EXPECT_EQ(held, player.failure().empty());
        const std::string& failure = player.failure();
        return failure.rfind(file, 0) == 0 ? failure.substr(file.size() - 13) : failure;
    }

    Bench bench;
    HostServices services;
    std::ostringstream output;
};

TEST_F(PlayerTest, LinesGoOnInTheDialogThatANestedOneWasOpenedFrom) {
    EXPECT_EQ(play("call LintelErase\ncheck \"zaškrtnout\"\npress \"Další...\"\nanswer Yes\n"
                   "dialog \"Ukázka\"\nclose\nprint rows \"Seznam\"\npress OK\nreturns 11\n"),
              "");
    EXPECT_EQ(output.str(), "rows Seznam:\n  jedna\n  dvě\n  2\nLintelErase\nresult 11\n");
}

TEST_F(PlayerTest, AFailureSaysWhereAndWhatWasThereAndEndsTheCall) {
    const std::pair<const char*, const char*> failures[] = {
        {"\nexpect rows \"Seznam\" is jedna\n",
         "3: expected \"rows\" \"Seznam\" is \"jedna\", there is \"jedna\" \"dvě\""},
        {"press \"Další...\"\nanswer Yes\ndialog \"Ukázka\"\nexpect enabled \"OK\" is no\n",
         "5: expected \"enabled\" \"OK\" is \"no\", there is \"yes\""},
        {"press OK\npress \"Zrušit\"\n", "3: the call was over before this line, with result 1"},
        {"press OK\nreturns 2\ncall LintelErase\n", "3: expected result 2, there is 1"}};
    for (const auto& [lines, failure] : failures) {
        EXPECT_EQ(play("call LintelErase\n" + std::string(lines) + "press OK\nreturns 1\n"),
                  "test.scenario:" + std::string(failure));
        EXPECT_FALSE(bench.driver().anyDialogOpen());
    }
    const std::string unknown = play("call LintelErase\npress \"Nic takového\"\nreturns 1\n");
    EXPECT_EQ(unknown.rfind("test.scenario:2: ", 0), 0U) << unknown;
    EXPECT_NE(unknown.find("Nic takového"), std::string::npos) << unknown;
    const std::string noRow = play("call LintelErase\nselect-at \"Seznam\" 2\nreturns 1\n");
    EXPECT_EQ(noRow.rfind("test.scenario:2: ", 0), 0U) << noRow;
    EXPECT_EQ(play("expect file data:x is present\n"),
              "test.scenario:1: expected \"file\" \"data:x\" is \"present\", there is \"absent\"");
}

TEST_F(PlayerTest, MistakesAreFoundBeforeAnythingIsPlayed) {
    const int loads = g_loads;
    const std::pair<const char*, const char*> mistakes[] = {
        {"dance", "nothing is called \"dance\""},
        {"press OK", "\"press\" needs a dialog"},
        {"call Nothing", "\"Nothing\" is none of the module's functions"},
        {"call CallLXdata6 width", "a value is missing"},
        {"returns 1", "there is no call that could return"},
        {"expect colour is 1", "nothing is called \"colour\""},
        {"expect files out: is-like 1", "\"is-like\" is no comparison"},
        {"expect files out: has a b", "has takes one text"},
        {"copy data:a", "\"copy\" takes 2 words, not 1"},
        {"call LintelErase\nexpect result is 1\nreturns 1", "\"expect\" stands behind"},
        {"call LintelErase\npress OK", "\"returns\" is missing"},
    };
    for (const auto& [line, wanted] : mistakes) {
        const std::string failure =
            play(std::string("call LintelErase\npress OK\nreturns 1\n") + line);
        EXPECT_NE(failure.find(wanted), std::string::npos) << line << ": " << failure;
        EXPECT_EQ(failure.rfind("test.scenario:", 0), 0U) << failure;
    }
    EXPECT_EQ(g_loads, loads);
}

TEST_F(PlayerTest, FilesAreCompared) {
    EXPECT_EQ(play("file data:a.txt \"[S]\\r\\n\" \"k=ž\\r\\n\"\n"
                   "expect file-bytes data:a.txt is \"5B 53 5D 0D 0A 6B 3D 9E 0D 0A\"\n"
                   "setting data:a.txt S other 5\n"
                   "expect file-text data:a.txt is [S] \"k=ž\" other=5\n"
                   "copy data:a.txt library:b.txt\ncut library:b.txt 4\n"
                   "expect same data:a.txt library:b.txt contains \"first difference at 4\"\n"
                   "expect files out: is catalogue library profile temp\n"),
              "");
    EXPECT_EQ(play("expect files library: is\n"), "") << "each scenario begins with empty folders";
    EXPECT_EQ(play("cut data:a 3\n").rfind("test.scenario:1: cannot read", 0), 0U);
    EXPECT_EQ(play("file nowhere:a b\n").rfind("test.scenario:1: ", 0), 0U);
}

TEST_F(PlayerTest, ADirectCallTakesTheDesignAwayBehindOkAlone) {
    const auto handOver =
        pathFromUtf8(utf8FromSystemPath(bench.temporaryFolder()) + "LXDATA6I.tmp");
    writeFile(handOver, "design");
    ModuleSource module;
    module.load = [](const HostSettings&) {
        ModuleCalls calls;
        calls.CallLXdata6 = sampleDesign;
        return calls;
    };
    module.unload = [] {};
    const std::string out = utf8FromSystemPath(bench.folder()) + "out";
    for (const int result : {2, 1}) {
        g_designed = result;
        EXPECT_EQ(runStandIn(parseOptions({"--out", out, "CallLXdata6"}, "."), services, module,
                             bench.driver(), output, output),
                  0);
        EXPECT_EQ(std::filesystem::exists(handOver), result == 2);
    }
}

TEST_F(PlayerTest, HostSettingsOfOneScenarioDoNotReachTheNext) {
    EXPECT_EQ(play("host units 25\nhost library none\nhost profile profile:/\n"), "");
    EXPECT_EQ(services.settings.units, 25);
    EXPECT_EQ(services.settings.library, std::nullopt);
    EXPECT_EQ(services.settings.profile.back(), '/');
    EXPECT_EQ(play("expect locks is\n"), "");
    EXPECT_EQ(services.settings.units, 1000);
    EXPECT_TRUE(services.settings.library);
    EXPECT_EQ(play("host units many\n"),
              "test.scenario:1: \"units\" is a whole number or \"none\"");
}

}  // namespace
}  // namespace lx::host
