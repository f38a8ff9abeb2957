#include "browser/CBaseDlg.h"

#include "resources/icons.h"
#include "resources/templates.h"

namespace lx {

int CBaseDlg::doModal() {
    const std::unique_ptr<Dialog> window = m_platform.createDialog(chooserTemplate, m_parent);
    window->setIcon(icon::module);
    for (const int choice : {id::choosePrecast, id::chooseSteel}) {
        window->get<Button>(choice).onClick = [&window, choice] { window->end(choice); };
    }
    return window->runModal();
}

}  // namespace lx
