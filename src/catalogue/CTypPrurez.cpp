#include "catalogue/CTypPrurez.h"

#include <iterator>

#include "resources/icons.h"
#include "resources/strings.h"
#include "resources/templates.h"

namespace lx {

namespace {

constexpr int longestName = 50;  // bytes that typing may produce
constexpr int freeText = -1;
constexpr int shownShapes = 6;
constexpr int usableShapes = static_cast<int>(std::size(texts::shapes));
constexpr int helpTopic = 100;

}  // namespace

CTypPrurez::CTypPrurez(Platform& platform, Host& host, Owner parent)
    : m_platform(platform), m_host(host), m_parent(parent) {}

bool CTypPrurez::DoModal() {
    const std::unique_ptr<Dialog> window = m_platform.createDialog(sectionTypeTemplate, m_parent);
    Edit& field = window->get<Edit>(id::sectionName);
    const CMyEdit limited(m_platform, *window, field, longestName, freeText);
    window->onInit = [this, &window] { onInit(*window); };
    if (window->runModal() != id::ok) return false;
    name = field.text();
    return true;
}

void CTypPrurez::onInit(Dialog& window) {
    window.setIcon(icon::module);
    window.get<Button>(id::sectionIcon).setIcon(icon::module);
    for (int n = 1; n <= shownShapes; ++n) {
        Button& button = window.get<Button>(id::firstShape + n - 1);
        button.setIcon(icon::shapeBase + n);
        if (n > usableShapes) continue;
        button.setTooltip([n] { return Text(texts::shapes[n - 1]); });
        button.onClick = [this, n] { shape = n; };
    }
    Edit& field = window.get<Edit>(id::sectionName);
    field.setText(name);
    field.focus();
    field.selectAll();
    window.get<Button>(id::help).onClick = [this] { m_host.showHelp(helpTopic); };
}

void CTypPrurez::showMessage(std::string_view text) {
    m_platform.messageBox(m_parent, text, {}, MessageIcon::stop, MessageButtons::ok);
}

}  // namespace lx
