// Files as the module wrote them once: read today as the text beside each says, and written again
// with the same bytes. LX_WRITE_GOLDEN=1 writes files and texts anew; look at their differences
// before keeping them, users have the old ones.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <limits>

#include "catalogue/catalogue_file.h"
#include "catalogue/column_settings.h"
#include "composition/hand_over.h"
#include "composition/library_entries.h"
#include "composition/rules_file.h"
#include "design/annotation_style.h"
#include "design/dialog_settings.h"
#include "entry/erase_choice.h"
#include "settings/store.h"
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
    // What the module writes today.
    Bytes (*made)();
    std::string (*text)(std::string_view bytes);
    // What was read, written again.
    Bytes (*again)(std::string_view bytes);
};

// ---- catalogues

Bytes madePrecast() {
    Catalogue items = madeCatalogue(2, 3);
    CPreklItem& item = *items->next;
    item.designation = Text("KPŽ 14/č \"x\""_cz);
    item.description = Text(catalogueTextLimit, 'd');
    item.weight = 1.0 / 3;
    item.qu = -0.0;
    item.width = std::numeric_limits<std::int32_t>::max();
    item.height = std::numeric_limits<std::int32_t>::min();
    return catalogueBytes(items.get());
}

Bytes madeSteel() {
    Catalogue items = catalogueOf(
        {{-1, "IPE", 1}, {1, "IPE 100"}, {-2, "L", 2}, {2, "L 80/60", 2}, {-3, "UČ", 3}});
    items->next->length = 3;
    items->next->weight = 8.1;
    return catalogueBytes(items.get());
}

template <CatalogueKind kind>
std::string catalogueText(std::string_view bytes) {
    const CatalogueRead read = parseCatalogue(kind, bytes);
    return (read.damaged ? "damaged\n" : "") + readable(read.head.get());
}

template <CatalogueKind kind>
Bytes catalogueAgain(std::string_view bytes) {
    return catalogueBytes(parseCatalogue(kind, bytes).head.get());
}

// ---- designs

constexpr std::int32_t projects[] = {0, 1, 7, std::numeric_limits<std::int32_t>::max()};

Bytes madeLibrary() {
    MemoryFiles files;
    const auto store = [&files](std::int32_t project, std::string_view label, std::int32_t wall,
                                std::string_view replaced = {}) {
        const RezChain design = sampleDesign(label, wall);
        design.last()->name = Text("Věnec"_cz);
        appendDesign("L", project, *design.head(), replaced, files);
    };
    store(0, "A1", 300);
    store(1, "A1", 301);
    store(1, "Ž"_cz, 302);
    store(1, "ABC", 303);
    store(projects[3], "A1", 304);
    store(1, "A1", 305, "A1 ");
    store(7, "D", 306);
    deleteEntries("L", 7, std::nullopt, files);
    deleteEntries("L", 1, "ABC", files);
    return files.content["L"];
}

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

Bytes madeProjects() {
    ProjectList list;
    list.projects = {{0, "DEFAULT"}, {7, Text("Škola"_cz)}, {1, Text(projectNameLimit, 'n')}};
    list.selected = 1;
    return projectBytes(list);
}

std::string projectsText(std::string_view bytes) {
    return readable(parseProjects(bytes));
}

Bytes projectsAgain(std::string_view bytes) {
    return projectBytes(parseProjects(bytes));
}

Bytes madeHandOver() {
    RezChain design = sampleDesign("A1");
    for (const std::int32_t kind : {kind::beam, kind::channelMirrored, kind::insulation,
                                    kind::monolith, std::numeric_limits<std::int32_t>::max()}) {
        design.append(layer(kind, 40, "n"))->bearing = -150;
    }
    return handOverBytes(design.head());
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

Bytes madeUserSettings() {
    MemoryFiles files;
    Profile profile(files, userSettings);
    AnnotationStyle style = storedStyle(profile);
    style.textStyle = Text("Popis \"č\""_cz);
    style.bubbleColor = 3;
    style.edges = "6";
    storeStyle(profile, style);
    storeChoice(profile, {LX_ERASE_BUBBLE, true});
    DialogSettings dialog(files, {});
    dialog.storeAnnotation({true, false, true, false});
    dialog.storeBearingCheck(false);
    const ColumnWidths widths;
    const std::vector<int> reversed{8, 7, 6, 5, 4, 3, 2, 1, 0};
    saveColumnSettings(profile, CatalogueKind::precast, {reversed, reversed, 2, 11}, widths);
    saveColumnSettings(profile, CatalogueKind::steel,
                       {{1, 0, 2, 3, 4, 5}, {9, 99, 999, 9999, 1, 2}}, widths);
    prf_store store(files);
    store.open(userSettings, settings::windowPositionSection);
    const std::int32_t placement[] = {-10, 20, 640, 480, 96, 8, 0, 40};
    store.set_int_array(settings::windowPositionKey, placement);
    return files.content[userSettings];
}

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

Bytes madeDialogSettings() {
    MemoryFiles files;
    DialogSettings dialog(files, {});
    dialog.storeTab(3);
    dialog.storePrecastType(0);
    dialog.storeSteelType(2);
    dialog.storeBubbleName("A9Č"_cz);
    for (const std::string_view section : histories) {
        ValueHistory history = dialog.history(section);
        for (const char* value : {"100", "-2.500", "0.5"}) history.add(value);
        if (section == settings::lintelLevel) history.remove("100");
    }
    return files.content[dialogSettings];
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
        for (const ProfileEntry& entry : profile.entries(section)) {
            profile.write(section, entry.key, "another");
            profile.write(section, entry.key, entry.value);
        }
    }
    return files.content["set"];
}

// ---- rules, which the module reads alone

Bytes madeRules() {
    return Bytes(
        "; skladby\r\n[INDEX]\r\nCOUNT=2\r\n1=300\r\n2=440\r\n[300]\r\nKPŽ 7/?=XI[80]{140}X\r\n"
        "KPM 9=\r\n[440]\r\nKPŽ 7/?=\"XXI[120]X\"\r\n[0]\r\nKPM 9=AM[20]\r\nKPŽ 7/?=.\r\n"_cz);
}

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
    {"LXDATA6.DAT", madePrecast, catalogueText<CatalogueKind::precast>,
     catalogueAgain<CatalogueKind::precast>},
    {"LXDATA6S.DAT", madeSteel, catalogueText<CatalogueKind::steel>,
     catalogueAgain<CatalogueKind::steel>},
    {"preklady.bk6", madeLibrary, libraryText, libraryAgain},
    {"akce.bk6", madeProjects, projectsText, projectsAgain},
    {"LXDATA6I.tmp", madeHandOver, handOverText, handOverAgain},
    {"VD_preklady.dat", madeUserSettings, userText, settingsAgain},
    {"LXDATA6DLG.dat", madeDialogSettings, dialogText, settingsAgain},
    {"VDLINTEL.TXT", madeRules, rulesText, asItIs},
};

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class GoldenFiles : public testing::TestWithParam<Golden> {};

TEST_P(GoldenFiles, ReadAsEverAndAreWrittenWithTheSameBytes) {
    const std::string path = folder + GetParam().name;
    const Bytes made = GetParam().made();
    if (std::getenv("LX_WRITE_GOLDEN") != nullptr) {
        std::ofstream(path, std::ios::binary) << made;
        std::ofstream(path + ".txt", std::ios::binary) << GetParam().text(made);
        GTEST_SKIP() << path << " written anew";
    }
    const Bytes kept = contentOf(path);
    ASSERT_NE(kept, "");
    EXPECT_EQ(GetParam().text(kept), contentOf(path + ".txt"));
    EXPECT_EQ(GetParam().again(kept), kept);
    EXPECT_EQ(made, kept) << "the module writes other files than it did";
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
