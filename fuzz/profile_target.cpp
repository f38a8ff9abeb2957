// Settings files, which people edit by hand and other programs write.
#include <algorithm>

#include "catalogue/column_settings.h"
#include "design/annotation.h"
#include "entry/erase_choice.h"
#include "fuzz/targets.h"
#include "settings/ini_store.h"
#include "settings/setting_keys.h"
#include "tests/support/memory_files.h"

namespace lx::fuzz {

namespace {

bool onlyInserted(const Bytes& before, const Bytes& now) {
    const auto differs = std::mismatch(before.begin(), before.end(), now.begin(), now.end()).first;
    const auto rest = static_cast<std::size_t>(before.end() - differs);
    return now.size() >= before.size() && now.ends_with(before.substr(before.size() - rest));
}

}  // namespace

void readProfile(std::string_view input) {
    MemoryFiles files;
    files.content["set"] = input;
    Profile profile(files, "set");
    ColumnWidths widths;
    const ColumnSettings columns = loadColumnSettings(profile, CatalogueKind::precast, widths);
    promise(columns.order.size() == 9 && columns.widths.size() == 9 && columns.type >= 0);
    AnnotationStyle style = storedStyle(profile);
    storedChoice(profile);

    // What is written is read, and what was there stays, whatever the file held.
    style.edges = "12";
    storeStyle(profile, style);
    promise(storedStyle(profile).edges == style.edges);
    const std::optional<Text> before = profile.find("TAB_PREFA", "ORD0");
    const bool isNew = !profile.find("SETTINGS", "new key");
    const Bytes content = files.content["set"];
    promise(profile.write("SETTINGS", "new key", "12 34"));
    promise(!isNew || onlyInserted(content, files.content["set"]));
    promise(profile.find("SETTINGS", "new key") == "12 34");
    promise(profile.find("TAB_PREFA", "ORD0") == before);
    const ProfileChange gone{"SETTINGS", "new key", std::nullopt};
    promise(profile.apply({&gone, 1}));
    storeChoice(profile, {3, true});
    promise(storedChoice(profile).elements == 3);
}

}  // namespace lx::fuzz
