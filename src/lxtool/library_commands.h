// The commands on the library of a folder: preklady.bk6 and akce.bk6.
#pragma once

#include <optional>
#include <string>

#include "lxtool/session.h"

namespace lx::lxtool {

// project: the name of the only one that counts, of all without.
Result listLibrary(Session& session, const std::string& folder,
                   const std::optional<std::string>& project, bool asJson);
Result checkLibrary(Session& session, const std::string& folder);
Result repairLibrary(Session& session, const std::string& folder);
Result compactLibrary(Session& session, const std::string& folder);
Result exportLibrary(Session& session, const std::string& folder,
                     const std::optional<std::string>& project, const std::string& output);
// relabel: a design whose label another one has gets the next free one.
Result importLibrary(Session& session, const std::string& json, const std::string& folder,
                     bool relabel);

}  // namespace lx::lxtool
