#include "browser/CAddVyrobce.h"

#include "resources/templates.h"

namespace lx {

namespace {
constexpr int longestName = 50;
}

bool CAddVyrobce::doModal() {
    const Field fields[] = {{id::name, &name, longestName}};
    return run(nameTemplate, fields, [this](Dialog& window) {
        window.setTitle(title);
        window.item(id::nameLabel).setText(label);
    });
}

}  // namespace lx
