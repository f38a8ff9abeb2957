// A file of each format, kept as it is: read today as the text beside each says, and written again
// with the same bytes. LX_WRITE_GOLDEN=1 writes the texts anew; look at their differences before
// keeping them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <limits>

#include "catalogue/catalogue_file.h"
#include "catalogue/column_settings.h"
#include "composition/hand_over.h"
#include "composition/library_entries.h"
#include "composition/rules_file.h"
#include "design/annotation.h"
#include "design/dialog_settings.h"
#include "entry/erase_choice.h"
#include "settings/ini_store.h"
#include "tests/support/catalogues.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"
#include "tests/support/readable.h"

namespace lx {
namespace {

const std::string folder = LX_SOURCE_DIR "/tests/golden/";

// In memory the data folder is the one without a name.
const Path userSettings(settings::userFile);
const Path dialogSettings(settings::dialogFile);

struct Golden {
    const char* name;
    std::string (*text)(std::string_view bytes);
    // What was read, written again.
    Bytes (*again)(std::string_view bytes);
};

void PrintTo(const Golden& golden, std::ostream* output) {
    *output << golden.name;
}

// ---- catalogues

template <CatalogueKind kind>
std::string catalogueText(std::string_view bytes) {
    const LoadedCatalogue read = loadCatalogue(kind, bytes);
    return (read.state.damaged ? "damaged\n" : "") + readable(read.head.get());
}

template <CatalogueKind kind>
Bytes catalogueAgain(std::string_view bytes) {
    return catalogueBytes(loadCatalogue(kind, bytes).head.get());
}

// ---- designs

constexpr std::int32_t projects[] = {0, 1, 7, std::numeric_limits<std::int32_t>::max()};

std::string libraryText(std::string_view bytes) {
    std::string text;
    for (const std::int32_t project : projects) {
        text +=
            "project " + std::to_string(project) + "\n" + readable(parseLibrary(bytes, project));
    }
    LibraryEntries entries(bytes);
    while (entries.next()) {
        text += "entry of " + std::to_string(entries.project()) + " " + readable(entries.label()) +
                "\n";
    }
    return text;
}

// Each design stored once more in its place, those of the deleted entries too.
Bytes libraryAgain(std::string_view bytes) {
    Bytes again(bytes);
    LibraryEntries entries(bytes);
    while (entries.next()) {
        BinaryReader reader(entries.design());
        const Bytes design = designBytes(readDesign(reader).design.head());
        again.replace(entries.projectPosition() + 8, entries.design().size(), design);
    }
    return again;
}

std::string projectsText(std::string_view bytes) {
    return readable(parseProjects(bytes));
}

Bytes projectsAgain(std::string_view bytes) {
    return projectBytes(parseProjects(bytes));
}

std::string handOverText(std::string_view bytes) {
    return readable(parseHandOver(bytes).head());
}

Bytes handOverAgain(std::string_view bytes) {
    return handOverBytes(parseHandOver(bytes).head());
}

// ---- settings

constexpr std::string_view histories[] = {settings::insulationThickness, settings::insulationHeight,
                                          settings::monolithWidth,       settings::monolithHeight,
                                          settings::lintelLevel,         settings::lintelOverhang,
                                          settings::singleBendStep,      settings::singleBendRun};

std::string columnsText(const Profile& profile, CatalogueKind kind) {
    ColumnWidths widths;
    const ColumnSettings columns = loadColumnSettings(profile, kind, widths);
    std::string text = "columns";
    for (const int column : columns.order) text += " " + std::to_string(column);
    text += " widths";
    for (const int width : columns.widths) text += " " + std::to_string(width);
    return text + " type " + std::to_string(columns.type) + " row " + std::to_string(columns.row) +
           "\n";
}

std::string styleText(const AnnotationStyle& style) {
    std::string text = "style " + readable(style.textStyle);
    for (const Text& one :
         {style.bubbleAngle, style.lineLength, style.bubbleHeight, style.descriptionHeight,
          style.bubbleWidthFactor, style.descriptionWidthFactor, style.diameter, style.edges}) {
        text += " " + readable(one);
    }
    return text + " " +
           readableFields({{"bubble", style.bubbleColor},
                           {"description", style.descriptionColor},
                           {"follows", style.followsOpening},
                           {"line", style.auxiliaryLine},
                           {"edges", style.hasEdges}}) +
           "\n";
}

std::string userText(std::string_view bytes) {
    MemoryFiles files;
    files.content[userSettings] = bytes;
    const Profile profile(files, userSettings);
    const DialogSettings dialog(files, {});
    std::string text = styleText(storedStyle(profile));
    text += readableFields({{"erase", storedChoice(profile).elements},
                            {"insert", settingFrom(dialog.annotation())},
                            {"check", dialog.bearingCheck()}}) +
            "\n";
    text += columnsText(profile, CatalogueKind::precast);
    text += columnsText(profile, CatalogueKind::steel);
    prf_store store(files);
    store.open(userSettings, settings::windowPositionSection);
    std::vector<std::int32_t> placement;
    store.get_int_array(settings::windowPositionKey, placement);
    text += "window";
    for (const std::int32_t number : placement) text += " " + std::to_string(number);
    return text + "\n";
}

std::string dialogText(std::string_view bytes) {
    MemoryFiles files;
    files.content[dialogSettings] = bytes;
    DialogSettings dialog(files, {});
    std::string text = readableFields({{"tab", dialog.tab()},
                                       {"precast", dialog.precastType()},
                                       {"steel", dialog.steelType()}}) +
                       " bubble " + readable(dialog.bubbleName()) + "\n";
    for (const std::string_view section : histories) {
        text += std::string(section);
        for (const Text& value : dialog.history(section).shown()) text += " " + value;
        text += "\n";
    }
    return text;
}

// Every value taken out and put back.
Bytes settingsAgain(std::string_view bytes) {
    MemoryFiles files;
    files.content["set"] = bytes;
    Profile profile(files, "set");
    for (const std::string_view section :
         {std::string_view("SETTINGS"), settings::precastColumns, settings::steelColumns,
          std::string_view("DLG_SET"), settings::lintelOverhang}) {
        std::vector<std::pair<Text, Text>> entries;
        profile.eachEntry(section, [&](std::string_view key, auto value) {
            entries.emplace_back(key, value.value());
        });
        for (const auto& [key, value] : entries) {
            profile.write(section, key, "another");
            profile.write(section, key, value);
        }
    }
    return files.content["set"];
}

// ---- rules, which the module reads alone

std::string rulesText(std::string_view bytes) {
    MemoryFiles files;
    files.content["rules"] = bytes;
    const Profile rules(files, "rules");
    std::string text;
    for (const std::int32_t wall : {288, 289, 300, 311, 440, 600}) {
        for (const std::string_view name :
             {std::string_view("KPŽ 7/?"_cz), std::string_view("KPM 9"), std::string_view("no")}) {
            text += std::to_string(wall) + " " + readable(name) + " " +
                    readableOrNone(compositionRule(rules, wall, name)) + "\n";
        }
    }
    return text;
}

Bytes asItIs(std::string_view bytes) {
    return Bytes(bytes);
}

constexpr Golden goldens[] = {
    {"LXDATA6.DAT", catalogueText<CatalogueKind::precast>, catalogueAgain<CatalogueKind::precast>},
    {"LXDATA6S.DAT", catalogueText<CatalogueKind::steel>, catalogueAgain<CatalogueKind::steel>},
    {"preklady.bk6", libraryText, libraryAgain},
    {"akce.bk6", projectsText, projectsAgain},
    {"LXDATA6I.tmp", handOverText, handOverAgain},
    {"VD_preklady.dat", userText, settingsAgain},
    {"LXDATA6DLG.dat", dialogText, settingsAgain},
    {"VDLINTEL.TXT", rulesText, asItIs},
};

class GoldenFiles : public testing::TestWithParam<Golden> {};

TEST_P(GoldenFiles, ReadAsEverAndAreWrittenWithTheSameBytes) {
    const std::string path = folder + GetParam().name;
    const Bytes kept = systemFiles().read(path).bytes;
    ASSERT_NE(kept, "");
    if (std::getenv("LX_WRITE_GOLDEN") != nullptr) {
        std::ofstream(path + ".txt", std::ios::binary) << GetParam().text(kept);
        GTEST_SKIP() << path << ".txt written anew";
    }
    EXPECT_EQ(GetParam().text(kept), systemFiles().read(path + ".txt").bytes);
    EXPECT_EQ(GetParam().again(kept), kept);
}

std::string testName(const testing::TestParamInfo<Golden>& info) {
    std::string name = info.param.name;
    name.erase(
        std::remove_if(name.begin(), name.end(), [](char c) { return c == '.' || c == '_'; }),
        name.end());
    return name;
}

INSTANTIATE_TEST_SUITE_P(Formats, GoldenFiles, testing::ValuesIn(goldens), testName);

}  // namespace
}  // namespace lx
