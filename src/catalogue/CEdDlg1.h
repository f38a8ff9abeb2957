// The item editor: the fields of one catalogue item as texts. It checks no text on OK; whoever
// opens it does, and may run it again: it then shows the texts as they were left.
#pragma once

#include "catalogue/catalogue_edit.h"
#include "catalogue/my_edit.h"
#include "platform/host.h"
#include "resources/strings.h"

namespace lx {

class CEdDlg1 {
public:
    // All must outlive the dialog.
    CEdDlg1(Platform& platform, Host& host, Owner parent, CatalogueKind kind);

    Text title{str(74)};
    EditorTexts texts;  // proposed; after OK what the user left

    // True after OK; otherwise the texts stay.
    bool DoModal();
    // "Upozornění" as caption, the stop icon.
    void showMessage(std::string_view text);

private:
    void onInit(Dialog& window);

    Platform& m_platform;
    Host& m_host;
    Owner m_parent;
    CatalogueKind m_kind;
};

}  // namespace lx
