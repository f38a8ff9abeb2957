// Which drawn elements of a lintel are to be erased: the rule behind the erase dialog.
#pragma once

#include <lxdata6dlg.h>

#include "settings/profile.h"

namespace lx {

struct EraseChoice {
    int elements = 0;          // bit set of LX_ERASE_LINTEL to LX_ERASE_DESCRIPTION
    bool partsEnabled = true;  // false while the whole lintel is to be erased

    bool has(int bit) const { return (elements & bit) != 0; }
    bool operator==(const EraseChoice&) const = default;
};

inline constexpr int eraseParts = LX_ERASE_FOLDED_SECTION | LX_ERASE_BUBBLE | LX_ERASE_DESCRIPTION;

// The choice of the last OK; everything at the first time. Stored bits outside the set are dropped.
EraseChoice storedChoice(const Profile& settings);
// The user has checked or cleared the box of the lintel: erasing it erases its parts with it. A
// choice that merely comes from the settings does not add them.
EraseChoice toggleLintel(EraseChoice choice, bool checked);
// A failure to write is not reported: the choice then holds for this call alone.
void storeChoice(Profile& settings, EraseChoice choice);

}  // namespace lx
