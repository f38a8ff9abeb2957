#include "tests/faults/operations.h"

#include <lxdata6dlg.h>

#include <memory>
#include <utility>

#include "catalogue/catalogue_edit.h"
#include "catalogue/catalogue_session.h"
#include "catalogue/column_settings.h"
#include "composition/hand_over.h"
#include "composition/layout.h"
#include "composition/library.h"
#include "composition/projects.h"
#include "composition/section_scale.h"
#include "design/annotation.h"
#include "design/confirmation.h"
#include "entry/erase_choice.h"
#include "entry/merge_call.h"
#include "settings/ini_store.h"
#include "settings/setting_keys.h"
#include "settings/value_history.h"
#include "tests/support/bench.h"
#include "tests/support/catalogues.h"
#include "tests/support/designs.h"

namespace lx::faults {

namespace {

using Prepare = std::function<void(const Path&)>;

Answer answer(bool done) {
    return done ? Answer::done : Answer::failed;
}

void put(const Path& path, std::string_view bytes) {
    systemFiles().replace(path, bytes);
}

// ---- catalogues

constexpr const char* catalogueName = "LXDATA6.DAT";

Bytes madeBytes(unsigned seed) {
    return catalogueBytes(madeCatalogue(2, 4, seed).get());
}

Prepare catalogueThere(std::size_t missingBytes = 0) {
    return [missingBytes](const Path& folder) {
        const Bytes bytes = madeBytes(1);
        put(folder + catalogueName, bytes.substr(0, bytes.size() - missingBytes));
    };
}

// The browser with the catalogue of that folder, which it may write.
struct Browser {
    explicit Browser(const Path& folder) {
        host.catalogue = folder;
        const auto file = openCatalogueFile(CatalogueKind::precast, host, systemFiles());
        if (!file) return;
        LoadedCatalogue loaded = loadCatalogue(CatalogueKind::precast, *file);
        items = std::move(loaded.head);
        state = loaded.state;
        session = std::make_unique<CatalogueSession>(systemFiles(), host, CatalogueKind::precast,
                                                     items, state);
    }
    void addItem() {
        constexpr std::string_view added = "added";
        if (!session || !items) return;
        for (const CPreklItem* item = items.get(); item; item = item->next.get()) {
            if (item->designation == added) return;
        }
        EditorTexts texts;
        texts.designation = added;
        appendItem(items, *items, texts);
        session->saveCatalogue();
    }

    FakeHost host;
    Catalogue items;
    CatalogueState state;
    std::unique_ptr<CatalogueSession> session;
};

Answer addItem(const Path& folder) {
    Browser(folder).addItem();
    return Answer::untold;
}

Operation cancelInBrowser() {
    const auto browser = std::make_shared<std::unique_ptr<Browser>>();
    return {"browser cancelled",
            [browser](const Path& folder) {
                catalogueThere()(folder);
                *browser = std::make_unique<Browser>(folder);
                (*browser)->addItem();
            },
            [browser](const Path&) {
                (*browser)->session->putBack();
                return Answer::untold;
            }};
}

Answer saveCatalogue(const Path& folder) {
    const Path path = folder + catalogueName;
    const auto file = openCatalogueFileAt(path, systemFiles());
    if (!file) return Answer::failed;
    const LoadedCatalogue old = loadCatalogue(CatalogueKind::precast, *file);
    const Catalogue items = madeCatalogue(3, 3, 2);
    return answer(saveCatalogueAs(items.get(), path, systemFiles(), old.state.damaged) == 0);
}

Prepare withSupplied(Prepare prepare, Bytes supplied, const char* name) {
    return [=](const Path& folder) {
        prepare(folder);
        put(folder + "supplied" + name, supplied);
    };
}

std::function<Answer(const Path&)> merge(int mode, const char* name) {
    return [=](const Path& folder) {
        FakeHost host;
        const MergeArguments arguments{folder + "supplied" + name, folder, mode};
        return answer(mergeCall(systemFiles(), host, arguments) == LX_MERGE_DONE);
    };
}

void addCatalogueOperations(std::vector<Operation>& all) {
    all.push_back({"catalogue made", [](const Path&) {},
                   [](const Path& folder) {
                       return answer(
                           openCatalogueFileAt(folder + catalogueName, systemFiles()).has_value());
                   }});
    all.push_back({"catalogue saved", catalogueThere(), saveCatalogue});
    all.push_back({"damaged catalogue saved", catalogueThere(20), saveCatalogue});
    all.push_back({"item added in the browser", catalogueThere(), addItem});
    all.push_back({"item added to damaged", catalogueThere(20), addItem});
    all.push_back(cancelInBrowser());
    all.push_back({"merge", withSupplied(catalogueThere(), madeBytes(3), catalogueName),
                   merge(LX_MERGE_CATALOGUE, catalogueName)});
    const auto damagedOnceMore = [](const Path& folder) {
        catalogueThere(20)(folder);
        put(folder + catalogueName + ".bak", "kept before");
    };
    all.push_back({"merge into damaged", withSupplied(damagedOnceMore, madeBytes(3), catalogueName),
                   merge(LX_MERGE_CATALOGUE, catalogueName)});
}

// ---- library and projects

// As the dialog has it when it stores it.
RezChain settledDesign(std::string_view label, std::int32_t wall) {
    RezChain design = sampleDesign(label, wall);
    layOut(*design.head());
    settleSection(*design.head(), {});
    return design;
}

constexpr std::size_t whole = static_cast<std::size_t>(-1);

// Of the last entry only the first bytes are there.
Prepare library(std::vector<std::pair<std::int32_t, Text>> entries, std::size_t lastBytes = whole) {
    return [=](const Path& folder) {
        const Path path = folder + Path(libraryFileName);
        std::int32_t wall = 300;
        std::size_t last = 0;
        for (const auto& [project, label] : entries) {
            const RezChain design = settledDesign(label, label == "A" ? 500 : ++wall);
            last = systemFiles().read(path).bytes.size();
            appendDesign(path, project, *design.head(), {}, systemFiles());
        }
        if (lastBytes != whole)
            put(path, systemFiles().read(path).bytes.substr(0, last + lastBytes));
    };
}

// As the design dialog does it: a design under a label that is there must be the stored one.
Answer store(const Path& folder) {
    const Path path = folder + Path(libraryFileName);
    const RezChain design = settledDesign("A", 500);
    const LibraryRead listed = loadLibrary(path, libraryProject, systemFiles());
    if (!listed.opened && !listed.missing) return Answer::failed;
    Text replaced;
    for (const LibraryEntry& entry : listed.entries) {
        if (entry.label == "A  ") replaced = entry.label;
    }
    if (!replaced.empty() &&
        !FindStoredSame(path, libraryProject, replaced, *design.head(), {}, systemFiles())) {
        return Answer::failed;
    }
    return answer(appendDesign(path, libraryProject, *design.head(), replaced, systemFiles()));
}

Answer deleteLabel(const Path& folder) {
    const Path path = folder + Path(libraryFileName);
    // None left is what the user wanted, unless they could not be seen.
    const LibraryRead before = loadLibrary(path, libraryProject, systemFiles());
    const bool deleted = deleteEntries(path, libraryProject, "A  ", systemFiles());
    return deleted || !before.opened ? answer(deleted) : Answer::untold;
}

Answer saveProjectList(const Path& folder) {
    const Path path = folder + Path(projectFileName);
    ProjectList list = loadProjects(path, systemFiles());
    list.projects = {{0, "DEFAULT"}, {1, "Dum"}};
    list.selected = 1;
    return answer(saveProjects(path, list, systemFiles()));
}

Prepare projectFile(std::size_t missingBytes) {
    return [missingBytes](const Path& folder) {
        const Bytes bytes = projectBytes(defaultProjects());
        put(folder + Path(projectFileName), bytes.substr(0, bytes.size() - missingBytes));
    };
}

void addLibraryOperations(std::vector<Operation>& all) {
    const std::pair<std::int32_t, Text> a{libraryProject, "A"};
    const std::pair<std::int32_t, Text> b{libraryProject, "B"};
    const std::pair<std::int32_t, Text> other{otherProject, "A"};
    const std::vector<std::pair<std::int32_t, Text>> few{b, a, other, a};
    std::vector<std::pair<std::int32_t, Text>> many(20, a);
    many.push_back(b);
    many.push_back(other);

    all.push_back({"first store", library({}), store, "A  ", true});
    all.push_back({"store", library({b, other}), store, "A  ", true});
    all.push_back({"store replacing", library(few), store, "A  ", true});
    all.push_back({"store replacing many", library(many), store, "A  ", true});
    all.push_back({"store behind torn entry", library({b, a, b}, 100), store, "A  ", true});
    all.push_back({"store behind torn length", library({b, a, b}, 3), store, "A  ", true});
    all.push_back({"delete", library(few), deleteLabel, "A  "});
    all.push_back({"delete many", library(many), deleteLabel, "A  "});
    all.push_back({"delete project's designs", library(few), [](const Path& folder) {
                       deleteEntries(folder + Path(libraryFileName), libraryProject, std::nullopt,
                                     systemFiles());
                       return Answer::untold;
                   }});
    all.push_back({"delete in damaged", library({b, a, b}, 100), deleteLabel, "A  "});
    Bytes supplied;
    for (int i = 0; i < 3; ++i) supplied += designBytes(sampleDesign("S").head());
    all.push_back({"library replaced by merge",
                   withSupplied([](const Path& folder) { put(folder + "PREKLADY.BK6", "old"); },
                                supplied, "PREKLADY.BK6"),
                   merge(LX_MERGE_LIBRARY, "PREKLADY.BK6")});
    all.push_back({"first project list", [](const Path&) {}, saveProjectList});
    all.push_back({"project list", projectFile(0), saveProjectList});
    all.push_back({"damaged project list", projectFile(30), saveProjectList});
}

// ---- a design confirmed: library, project list, hand-over and both settings files

Answer confirm(const Path& folder) {
    setTemporaryFolder(folder);
    FakeHost host;
    host.library = folder;
    ModuleValues values;
    values.openingWidth = 1200;
    values.sectionSize = {370, 300};
    DesignModel model(values);
    model.adoptHandOver(sampleDesign("A", 500));
    LibrarySession library(host, systemFiles());
    DialogSettings settings(systemFiles(), folder);
    library.LoadProjects();
    library.LoadLibrary(model);
    model.Relayout();
    CallResult result;
    confirmDesign({"A", "D", {true, true, false, true}, false, 1, 2, 3}, model, library, settings,
                  systemFiles(), result);
    return Answer::untold;
}

Operation confirmation() {
    static constexpr std::int32_t project = 0;
    const auto prepare = [](const Path& folder) {
        library({{project, "B"}, {otherProject, "A"}})(folder);
        put(folder + Path(projectFileName), projectBytes({{{project, "DEFAULT"}, {1, "Dum"}}}));
        put(folder + Path(settings::userFile), "[SETTINGS]\r\nSTYLE=Old\r\n");
        put(folder + Path(settings::dialogFile), "[DLG_SET]\r\nnum_bub=A\r\n");
    };
    return {"design confirmed", prepare, confirm, "A  ", true, project, true};
}

// ---- hand-over

void addHandOverOperations(std::vector<Operation>& all) {
    const auto write = [](const Path& folder) {
        const RezChain design = sampleDesign("A", 500);
        return answer(WriteHandOver(folder + Path(handOverFileName), design.head(), 1000,
                                    systemFiles()) == 1);
    };
    const auto old = [](const Path& folder) {
        put(folder + Path(handOverFileName), handOverBytes(sampleDesign("B").head()));
    };
    all.push_back({"first hand-over", [](const Path&) {}, write});
    all.push_back({"hand-over", old, write});
    all.push_back({"hand-over taken", old, [](const Path& folder) {
                       const Path path = folder + Path(handOverFileName);
                       ReadHandOver(path, systemFiles());
                       return answer(systemFiles().remove(path));
                   }});
}

// ---- settings

constexpr std::string_view section = "SETTINGS";

Operation setting(std::string name, const std::function<Answer(const Path& file)>& run) {
    const auto there = [](const Path& folder) {
        put(folder + "set",
            "; by hand\r\n[SETTINGS]\r\nSTYLE=Old\r\nKEY=\"x\"\r\n[COMBO]\r\nnr=3\r\n"
            "0=250\r\n1=300\r\n2=350\r\n[LAST]\r\nk=v");
    };
    return {std::move(name), there, [run](const Path& folder) { return run(folder + "set"); }};
}

Answer addValue(const Path& file) {
    Profile profile(systemFiles(), file);
    ValueHistory history(profile, "COMBO");
    for (const Text& shown : history.shown()) {
        if (shown == "400") return Answer::untold;
    }
    return answer(history.add("400"));
}

Answer saveColumns(const Path& file) {
    Profile profile(systemFiles(), file);
    ColumnWidths widths;
    ColumnSettings state = loadColumnSettings(profile, CatalogueKind::steel, widths);
    state.type = 3;
    state.order = {5, 4, 3, 2, 1, 0};
    state.widths.assign(6, 99);
    return answer(saveColumnSettings(profile, CatalogueKind::steel, state, ColumnWidths()));
}

Answer saveStyle(const Path& file) {
    Profile profile(systemFiles(), file);
    AnnotationStyle style;
    style.textStyle = "ROMANS";
    style.edges = "6";
    storeStyle(profile, style);
    return Answer::untold;
}

void addSettingsOperations(std::vector<Operation>& all) {
    all.push_back(
        {"first setting", [](const Path&) {},
         [](const Path& folder) {
             return answer(
                 Profile(systemFiles(), folder + "set").writeInt(settings::description, 7));
         }});
    all.push_back(setting("setting", [](const Path& file) {
        return answer(Profile(systemFiles(), file).write(settings::textStyle, "Standard"));
    }));
    all.push_back(setting("erase choice", [](const Path& file) {
        Profile profile(systemFiles(), file);
        storeChoice(profile, {LX_ERASE_BUBBLE, true});
        return Answer::untold;
    }));
    all.push_back(setting("annotation style", saveStyle));
    all.push_back(setting("columns", saveColumns));
    all.push_back(setting("window placement", [](const Path& file) {
        constexpr std::int32_t placement[] = {10, 20, 640, 480, 96, 1, 2, 40};
        prf_store store(systemFiles());
        store.open(file, section);
        return answer(store.set_int_array("POS", placement));
    }));
    all.push_back(setting("remembered value added", addValue));
    all.push_back(setting("remembered value removed", [](const Path& file) {
        Profile profile(systemFiles(), file);
        return answer(ValueHistory(profile, "COMBO").remove("300"));
    }));
}

}  // namespace

const std::vector<Operation>& operations() {
    static const std::vector<Operation> all = [] {
        std::vector<Operation> made;
        addCatalogueOperations(made);
#if !defined(_WIN32)
        addBrowserSession(made);
#endif
        addLibraryOperations(made);
        made.push_back(confirmation());
        addHandOverOperations(made);
        addSettingsOperations(made);
        return made;
    }();
    return all;
}

}  // namespace lx::faults
