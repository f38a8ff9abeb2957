// The item editor: the fields of one catalogue item as texts.
#pragma once

#include "catalogue/catalogue_edit.h"
#include "resources/strings.h"
#include "widgets/field_dialog.h"

namespace lx {

class CEdDlg1 : private FieldDialog {
public:
    // All must outlive the dialog.
    CEdDlg1(Platform& platform, Host& host, Owner parent, CatalogueKind kind)
        : FieldDialog(platform, host, parent), m_kind(kind) {}

    Text title{text::newItem};
    EditorTexts texts;  // proposed; after OK what the user left

    // True after OK; otherwise the texts stay.
    bool doModal();
    // "Upozornění" as caption, the stop icon.
    void showMessage(std::string_view text);

private:
    CatalogueKind m_kind;
};

}  // namespace lx
