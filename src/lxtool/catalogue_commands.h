// The commands on catalogues, as the program's arguments name their files.
#pragma once

#include <string>

#include "catalogue/CPreklItem.h"
#include "lxtool/catalogue_table.h"

namespace lx::lxtool {

Result exportCatalogue(Session& session, const std::string& catalogue, const std::string& output,
                       const TableForm& form);
Result importCatalogue(Session& session, const std::string& table, const std::string& catalogue);

}  // namespace lx::lxtool
