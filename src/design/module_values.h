// Values that outlive a dialog: the last accepted design call, the loaded catalogues, the column
// widths of their browser. One struct, owned by the application object and handed to whoever needs
// it.
#pragma once

#include "catalogue/catalogue_state.h"
#include "catalogue/column_settings.h"
#include "design/opening.h"
#include "platform/files.h"
#include "platform/host.h"
#include "platform/platform.h"

namespace lx {

struct ModuleValues {
    double openingWidth = 0;   // mm
    double wallThickness = 0;  // mm
    double level = 0;          // m; 0 = the host gives no opening object
    OpeningBlock block = emptyBlock();
    Catalogue precast;  // loaded and freed by the design dialog
    Catalogue steel;
    CatalogueState precastState;  // of their files
    CatalogueState steelState;
    ColumnWidths columnWidths;  // the catalogue browser's
    Size sectionSize;           // px, client size of the section preview
    Text proposedBubble;
    Path helpFile;
};

// What every dialog of the module works with.
struct Context {
    Platform& platform;
    Files& files;
    Host& host;
    ModuleValues& values;
};

}  // namespace lx
