#include "catalogue/CEdDlg1.h"

#include <list>

#include "resources/icons.h"
#include "resources/templates.h"

namespace lx {

namespace {

constexpr int warningCaption = 22;
constexpr int helpTopic = 100;
constexpr int freeText = -1;

struct Field {
    int control;
    Text EditorTexts::*text;
    int longest;   // bytes that typing may produce
    int decimals;  // or freeText
};
constexpr Field fields[] = {{id::itemDesignation, &EditorTexts::designation, 50, freeText},
                            {id::itemLength, &EditorTexts::length, 10, 0},
                            {id::itemWidth, &EditorTexts::width, 10, 0},
                            {id::itemHeight, &EditorTexts::height, 10, 0},
                            {id::itemMaxOpening, &EditorTexts::maxOpening, 10, 0},
                            {id::itemWeight, &EditorTexts::weight, 12, 1},
                            {id::itemQu, &EditorTexts::qu, 12, 3},
                            {id::itemDescription, &EditorTexts::description, 50, freeText},
                            {id::itemMark, &EditorTexts::mark, 1, freeText}};

}  // namespace

CEdDlg1::CEdDlg1(Platform& platform, Host& host, Owner parent, CatalogueKind kind)
    : m_platform(platform), m_host(host), m_parent(parent), m_kind(kind) {}

bool CEdDlg1::DoModal() {
    const DialogTemplate& layout =
        m_kind == CatalogueKind::steel ? steelItemTemplate : precastItemTemplate;
    const std::unique_ptr<Dialog> window = m_platform.createDialog(layout, m_parent);
    std::list<CMyEdit> edits;
    for (const Field& field : fields) {
        edits.emplace_back(m_platform, *window, window->get<Edit>(field.control), field.longest,
                           field.decimals);
    }
    window->onInit = [this, &window] { onInit(*window); };
    if (window->runModal() != id::ok) return false;
    for (const Field& field : fields) texts.*field.text = window->item(field.control).text();
    return true;
}

void CEdDlg1::onInit(Dialog& window) {
    window.setTitle(title);
    window.setIcon(icon::module);  // as its parent, the browser
    for (const Field& field : fields) window.item(field.control).setText(texts.*field.text);
    Edit& first = window.get<Edit>(id::itemDesignation);
    first.focus();
    first.selectAll();
    window.get<Button>(id::help).onClick = [this] { m_host.showHelp(helpTopic); };
}

void CEdDlg1::showMessage(std::string_view text) {
    m_platform.messageBox(m_parent, text, str(warningCaption), MessageIcon::stop,
                          MessageButtons::ok);
}

}  // namespace lx
