// Layers that come from no catalogue.
#pragma once

#include "composition/records.h"

namespace lx {

// The name of insulation, a space or a cast part.
std::string_view specialName(std::int32_t kind);
// Makes the record insulation, a space or a cast part: its kind and the name that goes with it.
// Everything else stays as it is.
void makeSpecial(CRez& layer, std::int32_t kind);

}  // namespace lx
