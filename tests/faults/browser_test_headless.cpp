// A whole session of the catalogue browser. On headless windows alone: what differs on the real
// ones is tried by the other acts, and the real ones take a hundred times as long.
#include "browser/CData6_1.h"
#include "tests/faults/operations.h"
#include "tests/support/bench.h"
#include "tests/support/catalogues.h"

namespace lx::faults {

namespace {

constexpr const char* browser = "Databáze prefabrikátů (Typ 1)";

bool holdsAdded(const CPreklItem* items) {
    for (const CPreklItem* item = items; item; item = item->next.get()) {
        if (item->designation == "added") return true;
    }
    return false;
}

void addInBrowser(Session& user) {
    user.inDialog(browser, [](Driver& d) { d.chooseMenu("Nový/Překlad"); });
    user.inDialog("Nový překlad", [](Driver& d) {
        retype(d, "Označení", "added");
        d.press("OK");
    });
}

// When the file cannot be read the menu is grey, and the user gives up.
Answer addAndConfirm(const Path& folder) {
    FakeHost host;
    host.catalogue = folder;
    host.data = folder;
    const auto file = openCatalogueFile(CatalogueKind::precast, host, systemFiles());
    if (!file) return Answer::untold;
    LoadedCatalogue loaded = loadCatalogue(CatalogueKind::precast, *file);
    const std::unique_ptr<Platform> platform = makeTestPlatform();
    const std::unique_ptr<Driver> driver = makeTestDriver(*platform);
    Session user(*driver);
    if (!holdsAdded(loaded.head.get())) addInBrowser(user);
    user.inDialog(browser, [](Driver& d) {
        d.selectRowAt("items", 0);
        d.press("OK");
    });
    ColumnWidths widths;
    CData6_1(*platform, systemFiles(), host, widths, {}).runOn(loaded.head, loaded.state, {});
    return Answer::untold;
}

}  // namespace

void addBrowserSession(std::vector<Operation>& all) {
    const auto prepare = [](const Path& folder) {
        systemFiles().replace(folder + "LXDATA6.DAT", catalogueBytes(madeCatalogue(2, 4).get()));
        systemFiles().replace(folder + Path(settings::userFile), "[SETTINGS]\r\nSTYLE=Old\r\n");
    };
    Operation session{"browser session", prepare, addAndConfirm};
    session.stepwise = true;
    all.push_back(std::move(session));
}

}  // namespace lx::faults
