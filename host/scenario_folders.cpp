#include "host/scenario_folders.h"

#include <stdexcept>
#include <utility>

#include "host/paths.h"

namespace lx::host {

namespace fs = std::filesystem;

namespace {

std::string absolute(const std::string& folder) {
    fs::path path = fs::absolute(pathFromUtf8(folder)).lexically_normal();
    if (!path.has_filename()) path = path.parent_path();
    return utf8FromPath(path);
}

std::string inside(const std::string& folder, const char* name) {
    return utf8FromPath(pathFromUtf8(folder) / name);
}

}  // namespace

ScenarioFolders::ScenarioFolders(const std::string& outFolder, const std::string& sampleFolder,
                                 const std::string& hereFolder)
    : out(absolute(outFolder)),
      profile(inside(out, "profile")),
      data(inside(profile, "DAT")),
      library(inside(out, "library")),
      catalogue(inside(out, "catalogue")),
      temporary(inside(out, "temp")),
      sample(absolute(sampleFolder)),
      here(absolute(hereFolder.empty() ? "." : hereFolder)) {}

void ScenarioFolders::makeFresh() const {
    try {
        fs::remove_all(pathFromUtf8(out));
        for (const std::string& folder : {data, library, catalogue, temporary}) {
            fs::create_directories(pathFromUtf8(folder));
        }
    } catch (const fs::filesystem_error& error) {
        throw std::runtime_error(std::string("cannot make the scenario's folders: ") +
                                 error.what());
    }
}

std::string ScenarioFolders::resolve(const std::string& reference) const {
    const std::pair<const char*, const std::string&> prefixes[] = {{"out", out},
                                                                   {"profile", profile},
                                                                   {"data", data},
                                                                   {"library", library},
                                                                   {"catalogue", catalogue},
                                                                   {"temp", temporary},
                                                                   {"sample", sample},
                                                                   {"here", here}};
    const std::size_t colon = reference.find(':');
    for (const auto& [prefix, folder] : prefixes) {
        if (colon == std::string::npos || reference.compare(0, colon, prefix) != 0) continue;
        const std::string rest = reference.substr(colon + 1);
        if (rest.empty() || rest.front() == '/') return folder + rest;
        return folder + static_cast<char>(fs::path::preferred_separator) + rest;
    }
    throw std::runtime_error("\"" + reference + "\" names no file; write it as \"data:NAME\"");
}

fs::path ScenarioFolders::path(const std::string& reference) const {
    return pathFromUtf8(resolve(reference));
}

}  // namespace lx::host
