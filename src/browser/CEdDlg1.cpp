#include "browser/CEdDlg1.h"

#include "resources/templates.h"

namespace lx {

bool CEdDlg1::doModal() {
    const DialogTemplate& layout =
        m_kind == CatalogueKind::steel ? steelItemTemplate : precastItemTemplate;
    const Field fields[] = {{id::itemDesignation, &texts.designation, 50},
                            {id::itemLength, &texts.length, 10, 0},
                            {id::itemWidth, &texts.width, 10, 0},
                            {id::itemHeight, &texts.height, 10, 0},
                            {id::itemMaxOpening, &texts.maxOpening, 10, 0},
                            {id::itemWeight, &texts.weight, 12, 1},
                            {id::itemQu, &texts.qu, 12, 3},
                            {id::itemDescription, &texts.description, 50},
                            {id::itemMark, &texts.compositionMark, 1}};
    return run(layout, fields, [this](Dialog& window) { window.setTitle(title); });
}

void CEdDlg1::showMessage(std::string_view text) {
    stop(text, text::warning);
}

}  // namespace lx
