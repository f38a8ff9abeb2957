// The values remembered for one kind of in-place drop-down, a section of the dialog settings file:
// "nr" holds their number, the keys "0", "1", ... the values as they were shown, oldest first.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "settings/profile.h"

namespace lx {

class ValueHistory {
public:
    ValueHistory(Profile& profile, std::string_view section)
        : m_profile(profile), m_section(section) {}

    // What the drop-down shows: values that begin with "-" are left out, missing ones read "0".
    std::vector<Text> shown() const;
    // Adds a value behind the remembered ones, the hidden ones included. False when the file could
    // not be written.
    bool add(std::string_view value);
    // Removes the first value equal to that text; later ones move down by one key. Changes nothing
    // when there is none. False when the file could not be written.
    bool remove(std::string_view value);

private:
    // By key number; none where the key is missing.
    using Values = std::vector<std::optional<Text>>;
    // None when the file is there but cannot be read: it is then not to be written either.
    std::optional<Values> load() const;

    Profile& m_profile;
    Text m_section;
};

}  // namespace lx
