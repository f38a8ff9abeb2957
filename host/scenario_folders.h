// The folders that a scenario works in, and its way of naming files: "data:VD_preklady.dat".
#pragma once

#include <filesystem>
#include <string>

namespace lx::host {

// All absolute, UTF-8, without a separator at the end.
class ScenarioFolders {
public:
    // out: the scenario's own folder; sample: the sample data; here: where the scenario lies.
    ScenarioFolders(const std::string& out, const std::string& sample, const std::string& here);

    // Empties the scenario's own folder and makes the folders in it. Throws std::runtime_error.
    void makeFresh() const;
    // Full name behind a reference such as "library:preklady.bk6"; what follows the colon is kept
    // as written, so that "profile:/" ends in a separator. Throws std::runtime_error for an unknown
    // prefix.
    std::string resolve(const std::string& reference) const;
    std::filesystem::path path(const std::string& reference) const;

    std::string out;
    std::string profile;
    std::string data;  // in profile
    std::string library;
    std::string catalogue;
    std::string temporary;
    std::string sample;
    std::string here;
};

}  // namespace lx::host
