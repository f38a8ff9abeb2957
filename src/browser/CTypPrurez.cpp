#include "browser/CTypPrurez.h"

#include <iterator>

#include "resources/icons.h"
#include "resources/strings.h"
#include "resources/templates.h"

namespace lx {

namespace {

constexpr int longestName = 50;
constexpr int shownShapes = 6;
constexpr int usableShapes = static_cast<int>(std::size(text::shapes));

}  // namespace

bool CTypPrurez::doModal() {
    const Field fields[] = {{id::sectionName, &name, longestName}};
    return run(sectionTypeTemplate, fields, [this](Dialog& window) { dressShapes(window); });
}

void CTypPrurez::dressShapes(Dialog& window) {
    window.get<Button>(id::sectionIcon).setIcon(icon::module);
    for (int n = 1; n <= shownShapes; ++n) {
        Button& button = window.get<Button>(id::firstShape + n - 1);
        button.setIcon(icon::shapeBase + n);
        if (n > usableShapes) continue;
        button.setTooltip([n] { return Text(text::shapes[n - 1]); });
        button.onClick = [this, n] { shape = n; };
    }
}

}  // namespace lx
