// The rules file of the automatic composition: which layers a precast lintel gets in a wall of a
// given thickness. Written by hand, so nothing in it is trusted.
#pragma once

#include "settings/profile.h"

namespace lx {

// In the data folder.
inline constexpr std::string_view rulesFileName = "VDLINTEL.TXT";

// The composition of the lintel of that designation (at most 259 characters; empty = no layers) by
// the rules for the wall, mm; none when the file has no rule for it.
std::optional<Text> compositionRule(const Profile& rules, std::int32_t wall,
                                    std::string_view designation);

}  // namespace lx
