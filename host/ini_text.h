// Values of settings files for the scenario player: enough to set one up and to look one up, apart
// from the module's own code that is under test.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lx::host {

// The first value of that key in the first section of that name, without the blanks around it;
// names without regard to the case of ASCII letters.
std::optional<std::string> iniValue(std::string_view file, std::string_view section,
                                    std::string_view key);
// The file with that value, the key put at the end of its section, the section at the end of the
// file.
std::string iniWithValue(std::string_view file, std::string_view section, std::string_view key,
                         std::string_view value);

}  // namespace lx::host
