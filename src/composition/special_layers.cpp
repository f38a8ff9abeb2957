#include "composition/special_layers.h"

#include "resources/strings.h"

namespace lx {

std::string_view specialName(std::int32_t kind) {
    if (kind == kind::insulation) return text::insulation;
    return kind == kind::space ? text::space : text::monolith;
}

void makeSpecial(CRez& layer, std::int32_t kind) {
    layer.kind = kind;
    layer.name = Text(specialName(kind));
}

}  // namespace lx
