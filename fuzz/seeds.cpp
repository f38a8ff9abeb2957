#include <iterator>

#include "catalogue/catalogue_file.h"
#include "catalogue/column_settings.h"
#include "composition/hand_over.h"
#include "composition/layout.h"
#include "composition/library.h"
#include "composition/projects.h"
#include "design/annotation.h"
#include "fuzz/targets.h"
#include "settings/ini_store.h"
#include "settings/value_history.h"
#include "tests/support/catalogues.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"

namespace lx::fuzz {

namespace {

Bytes libraryFile() {
    MemoryFiles files;
    const Path path(libraryFileName);
    for (const char* label : {"A", "B", "A", "C1"}) {
        const RezChain design = sampleDesign(label);
        appendDesign(path, label[0] == 'B' ? 2 : 1, *design.head(), {}, files);
    }
    deleteEntries(path, 2, std::nullopt, files);
    return files.content[path];
}

Bytes projectFile() {
    ProjectList list = defaultProjects();
    list.projects.push_back({1, "Skola"});
    list.projects.push_back({7, Text(63, 'x')});
    list.selected = 1;
    return projectBytes(list);
}

RezChain sectionOfKinds() {
    RezChain design = sampleDesign("S");
    for (const Kind kind : {Kind::beam, Kind::insulation, Kind::channel, Kind::monolith,
                            Kind::angleMirrored, Kind::space}) {
        design.append(layer(kind, 40))->height = 120;
    }
    layOut(*design.head());
    return design;
}

Bytes settingsFile() {
    MemoryFiles files;
    Profile profile(files, "set");
    storeStyle(profile, storedStyle(profile));
    ColumnWidths widths;
    const ColumnSettings columns = loadColumnSettings(profile, CatalogueKind::precast, widths);
    saveColumnSettings(profile, CatalogueKind::precast, columns, widths);
    return files.content["set"];
}

Bytes historyFile() {
    MemoryFiles files;
    Profile profile(files, "set");
    ValueHistory history(profile, "COMBO_VYSKA");
    for (const char* value : {"2.000", "2.250", "-1.000", "2.500"}) history.add(value);
    return files.content["set"];
}

// As the store writes it behind its key.
template <class Write>
Bytes storedValue(Write write) {
    MemoryFiles files;
    prf_store settings(files);
    settings.open("set", "S");
    write(settings);
    Text value;
    settings.read_string("K", value);
    return value;
}

}  // namespace

std::vector<Seed> seeds() {
    const std::int32_t placement[] = {10, 20, 640, 480, 96, 1, 2, 40};
    const double reals[] = {2.5, -1e30};
    const Text texts[] = {"one", "", "two"};
    Catalogue mixed = madeCatalogue(2, 3);
    mixed->next->description.reset();
    return {
        {"catalogue", "two-types", catalogueBytes(mixed.get())},
        {"library", "stored-and-deleted", libraryFile()},
        {"projects", "three", projectFile()},
        {"hand_over", "bends", handOverBytes(sampleDesign("A").head())},
        {"hand_over", "all-kinds", handOverBytes(sectionOfKinds().head())},
        {"profile", "settings", settingsFile()},
        {"profile", "utf-8", "\xEF\xBB\xBF[SETTINGS]\r\nSTYLE=\xC4\x8C\r\nEDGES=5\r\n"},
        {"value_history", "levels", historyFile()},
        {"rules", "thicknesses",
         "\x1E[INDEX]\r\nCOUNT=2\r\n1=300\r\n2=450\r\n[300]\r\nKPV 7=XI[80]X\r\n[450]\r\n"
         "KPV 7=AM[20]{238}BX\r\n[0]\r\nKPV 7=.\r\n"},
        {"blocks", "placement",
         storedValue([&](prf_store& store) { store.set_int_array("K", placement); })},
        {"blocks", "numbers", storedValue([&](prf_store& store) {
             store.text_mode = false;
             store.set_double_array("K", reals);
         })},
        {"blocks", "texts",
         storedValue([&](prf_store& store) { store.set_string_list("K", texts); })},
    };
}

}  // namespace lx::fuzz
