#include "composition/special_layers.h"

#include "resources/strings.h"

namespace lx {

namespace {

constexpr int insulationName = 83;
constexpr int spaceName = 94;
constexpr int monolithName = 95;

int nameOf(std::int32_t kind) {
    if (kind == kind::insulation) return insulationName;
    return kind == kind::space ? spaceName : monolithName;
}

}  // namespace

void makeSpecial(CRez& layer, std::int32_t kind) {
    layer.kind = kind;
    layer.name = Text(str(nameOf(kind)));
}

}  // namespace lx
