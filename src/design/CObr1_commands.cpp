// The commands of the design dialog: those that the pages share, and the menu over the section
// preview.
#include "composition/rules_file.h"
#include "design/CObr1.h"
#include "design/bend_presets.h"
#include "resources/ids.h"
#include "resources/menus.h"

namespace lx {

void CObr1::SetBends(int shape) {
    EndEdit();
    CRez* head = m_model.head();
    if (head == nullptr) return;
    setBends(*head, shape);
    Relayout();
}

void CObr1::ComposePrecast() {
    EndEdit();
    const Profile rules(m_context.files, m_context.host.dataFolder() + Path(rulesFileName));
    if (m_model.ComposePrecast(rules)) Relayout();
}

void CObr1::ComposeSteel() {
    EndEdit();
    if (m_model.ComposeSteel()) Relayout();
}

void CObr1::RemoveCurrent() {
    EndEdit();
    if (removeCurrent(m_model.edit()) == CommandAnswer::done) Relayout();
}

void CObr1::openCommandMenu() {
    EndEdit();
    Picture& picture = m_window->get<Picture>(id::sectionPreview);
    const Size size = picture.size();
    const int command =
        m_window->popupMenu(designMenu(), picture, {size.width / 2, size.height / 2},
                            [this](int one) { return commandEnabled(one); });
    if (command != 0) run(command);
}

bool CObr1::commandEnabled(int command) {
    switch (command) {
        case id::commandCompose:
            return m_model.precastSelected();
        case id::commandBrowse:
        case id::commandBrowseToAdd:
            return false;  // there is no catalogue browser yet
        case id::commandRemove:
            return m_model.available().remove;
        case id::commandInsulation:
            return m_model.current() != nullptr;
        default:
            return true;
    }
}

void CObr1::run(int command) {
    switch (command) {
        case id::commandCompose:
            return ComposePrecast();
        case id::commandRemove:
            if (removeCurrentGoingBack(m_model.edit()) == CommandAnswer::done) Relayout();
            return;
        case id::commandInsulation:
            if (insertInsulation(m_model.edit()) == CommandAnswer::done) Relayout();
            return;
        default:
            return SetBends(command - id::commandBends);
    }
}

}  // namespace lx
