#include "composition/special_layers.h"

namespace lx {

void makeSpecial(CRez& layer, Kind kind) {
    layer.kind = kind;
    layer.name = Text(traits(kind).name);
}

}  // namespace lx
