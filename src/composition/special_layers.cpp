#include "composition/special_layers.h"

#include "resources/strings.h"

namespace lx {

namespace {

constexpr int insulationName = 83;
constexpr int spaceName = 94;
constexpr int monolithName = 95;

}  // namespace

std::string_view specialName(std::int32_t kind) {
    if (kind == kind::insulation) return str(insulationName);
    return str(kind == kind::space ? spaceName : monolithName);
}

void makeSpecial(CRez& layer, std::int32_t kind) {
    layer.kind = kind;
    layer.name = Text(specialName(kind));
}

}  // namespace lx
