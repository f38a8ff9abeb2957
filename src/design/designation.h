// How a layer is called where it is shown.
#pragma once

#include "composition/CRez.h"

namespace lx {

// The name; in an element whose length follows the opening the first "?" becomes its length in mm.
Text shownDesignation(const CRez& layer);

}  // namespace lx
