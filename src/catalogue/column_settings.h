// What the settings file remembers of the browser's item list: the order and the widths of the
// columns, and the selected type and row. A section for each catalogue.
#pragma once

#include <array>
#include <iterator>
#include <span>
#include <vector>

#include "catalogue/CPreklItem.h"
#include "settings/profile.h"
#include "settings/setting_keys.h"

namespace lx {

// Column widths in pixels, by column number. They start from the defaults, follow the settings file
// and are to be kept as long as the module is loaded.
struct ColumnWidths {
    std::span<int> of(CatalogueKind kind);
    std::span<const int> of(CatalogueKind kind) const;

    std::array<int, std::size(settings::precastColumnWidths)> precast =
        std::to_array(settings::precastColumnWidths);
    std::array<int, std::size(settings::steelColumnWidths)> steel =
        std::to_array(settings::steelColumnWidths);
};

struct ColumnSettings {
    std::vector<int> order;   // the column shown at each display position: a permutation
    std::vector<int> widths;  // by column number
    int type = 0;             // positions from 0, not held against the lists; written: below 0 is 0
    int row = 0;
};

// Widths below 10 become 10, and the kind's widths become those read. An order that is no
// permutation reads as the natural one; positions below 0 read as 0.
ColumnSettings loadColumnSettings(const Profile& profile, CatalogueKind kind, ColumnWidths& widths);
// In one go; false when the file could not be written. In both catalogues a width above 1000 gives
// way to that of the precast column of the same number (below 10: 10; above 1000: 100).
bool saveColumnSettings(Profile& profile, CatalogueKind kind, const ColumnSettings& state,
                        const ColumnWidths& widths);

}  // namespace lx
