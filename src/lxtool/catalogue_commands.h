// The commands on catalogues, as the program's arguments name their files.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "catalogue/CPreklItem.h"
#include "lxtool/catalogue_table.h"

namespace lx::lxtool {

Result exportCatalogue(Session& session, const std::string& catalogue, const std::string& output,
                       const TableForm& form);
struct NamedCatalogue {
    std::string name;
    CatalogueKind kind = CatalogueKind::precast;
};
// rules: name of a file, empty for none; ignored: names of findings.
Result checkCatalogues(Session& session, const std::vector<NamedCatalogue>& catalogues,
                       const std::string& rules, const std::set<std::string>& ignored);
Result diffCatalogues(Session& session, const std::string& before, const std::string& after);
// Of that kind, both.
Result mergeCatalogues(Session& session, CatalogueKind kind, const std::string& supplied,
                       const std::string& installed);
Result importCatalogue(Session& session, const std::string& table, const std::string& catalogue);

}  // namespace lx::lxtool
