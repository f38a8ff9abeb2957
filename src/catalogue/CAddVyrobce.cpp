#include "catalogue/CAddVyrobce.h"

#include "resources/icons.h"
#include "resources/templates.h"

namespace lx {

namespace {

constexpr int longestName = 50;  // bytes that typing may produce
constexpr int freeText = -1;
constexpr int helpTopic = 100;

}  // namespace

CAddVyrobce::CAddVyrobce(Platform& platform, Host& host, Owner parent)
    : m_platform(platform), m_host(host), m_parent(parent) {}

bool CAddVyrobce::DoModal() {
    const std::unique_ptr<Dialog> window = m_platform.createDialog(nameTemplate, m_parent);
    Edit& field = window->get<Edit>(id::name);
    const CMyEdit limited(m_platform, *window, field, longestName, freeText);
    window->onInit = [this, &window] { onInit(*window); };
    if (window->runModal() != id::ok) return false;
    name = field.text();
    return true;
}

void CAddVyrobce::onInit(Dialog& window) {
    window.setTitle(title);
    window.setIcon(icon::module);
    window.item(id::nameLabel).setText(label);
    Edit& field = window.get<Edit>(id::name);
    field.setText(name);
    field.focus();
    field.selectAll();
    window.get<Button>(id::help).onClick = [this] { m_host.showHelp(helpTopic); };
}

void CAddVyrobce::showMessage(std::string_view text) {
    m_platform.messageBox(m_parent, text, title, MessageIcon::stop, MessageButtons::ok);
}

}  // namespace lx
