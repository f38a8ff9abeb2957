#include "entry/CLintelErase.h"

#include "resources/icons.h"
#include "resources/templates.h"
#include "settings/setting_keys.h"

namespace lx {

namespace {

constexpr int helpTopic = 149;

}  // namespace

CLintelErase::CLintelErase(const Context& context, Owner owner)
    : m_host(context.host),
      m_settings(context.files, context.host.dataFolder() + Path(settings::userFile)),
      m_window(context.platform.createDialog(lintelEraseTemplate, owner)),
      m_lintel(m_window->get<CheckBox>(id::eraseLintel)),
      m_section(m_window->get<CheckBox>(id::eraseSection)),
      m_bubble(m_window->get<CheckBox>(id::eraseBubble)),
      m_description(m_window->get<CheckBox>(id::eraseDescription)) {
    m_window->onInit = [this] { onInit(); };
    m_window->get<Button>(id::ok).onClick = [this] { onOk(); };
    m_window->get<Button>(id::help).onClick = [this] { m_host.showHelp(helpTopic); };
    m_lintel.onClick = [this] { show(toggleLintel(choice(), m_lintel.checked())); };
}

int CLintelErase::doModal() {
    return m_window->runModal();
}

void CLintelErase::onInit() {
    m_window->setIcon(icon::module);
    show(storedChoice(m_settings));
}

void CLintelErase::onOk() {
    m_elements = choice().elements;
    storeChoice(m_settings, choice());
    m_window->end(id::ok);
}

void CLintelErase::show(EraseChoice choice) {
    m_lintel.check(choice.has(LX_ERASE_LINTEL));
    m_section.check(choice.has(LX_ERASE_FOLDED_SECTION));
    m_bubble.check(choice.has(LX_ERASE_BUBBLE));
    m_description.check(choice.has(LX_ERASE_DESCRIPTION));
    for (CheckBox* const part : {&m_section, &m_bubble, &m_description}) {
        part->enable(choice.partsEnabled);
    }
}

EraseChoice CLintelErase::choice() const {
    const int elements = (m_lintel.checked() ? LX_ERASE_LINTEL : 0) |
                         (m_section.checked() ? LX_ERASE_FOLDED_SECTION : 0) |
                         (m_bubble.checked() ? LX_ERASE_BUBBLE : 0) |
                         (m_description.checked() ? LX_ERASE_DESCRIPTION : 0);
    return {elements, !m_lintel.checked()};
}

}  // namespace lx
