#include "browser/CData6_1.h"

#include <utility>

#include "browser/CBaseDlg.h"
#include "resources/icons.h"
#include "resources/menus.h"
#include "resources/strings.h"
#include "resources/templates.h"

namespace lx {

namespace {

constexpr int helpTopic = 100;

constexpr int setUpDelay = 50;       // ms
constexpr int narrowestItems = 150;  // px
constexpr int newMenu = 0;

constexpr int failed = -1;
constexpr int nothingChosen = 1;
constexpr int notOpened = 2;

}  // namespace

CData6_1::CData6_1(Platform& platform, Files& files, Host& host, ColumnWidths& widths, Owner owner)
    : m_platform(platform),
      m_files(files),
      m_host(host),
      m_widths(widths),
      m_owner(owner),
      m_settings(files, host.dataFolder() + Path(settings::userFile)) {}

MessageAnswer CData6_1::message(std::string_view text, std::string_view caption, MessageIcon icon,
                                MessageButtons buttons) const {
    return m_platform.messageBox(m_window ? here() : m_owner, text, caption, icon, buttons);
}

// ---- opening

int CData6_1::runStandAlone() {
    m_standAlone = true;
    const int choice = CBaseDlg(m_platform, m_owner).doModal();
    if (choice == failed) return failed;
    if (choice == id::cancel) return nothingChosen;
    m_request.kind = choice == id::choosePrecast ? CatalogueKind::precast : CatalogueKind::steel;
    if (!loadOwnItems()) {
        message(text::catalogueNotAccessible, m_host.hostTitle(), MessageIcon::stop,
                MessageButtons::ok);
        return notOpened;
    }
    return run(m_ownItems, m_ownState);
}

bool CData6_1::loadOwnItems() {
    const std::optional<Bytes> file = openCatalogueFile(m_request.kind, m_host, m_files);
    if (!file) return false;
    LoadedCatalogue loaded = loadCatalogue(m_request.kind, *file);
    m_ownItems = std::move(loaded.head);
    m_ownState = loaded.state;
    return true;
}

int CData6_1::runOn(Catalogue& items, CatalogueState& state, const BrowserRequest& request) {
    m_request = request;
    return run(items, state);
}

int CData6_1::run(Catalogue& items, CatalogueState& state) {
    m_items = &items;
    m_session = std::make_unique<CatalogueSession>(m_files, m_host, m_request.kind, items, state);
    if (!m_session->reloaded()) m_requestedType = typeAt(items.get(), m_request.type);
    m_window = m_platform.createDialog(browserTemplate, m_owner);
    m_types =
        std::make_unique<CList1>(*m_window, m_window->get<ListBox>(id::types), m_request.kind);
    m_list = std::make_unique<CList2Ctrl>(m_platform, *m_window, m_window->get<ListView>(id::items),
                                          m_request.kind);
    m_resizing = std::make_unique<resizeWnd>(m_platform, *m_window);
    connect();
    const int result = m_window->runModal();
    // A type may have been made without a shape.
    completeShapes(m_request.kind, items.get());
    return result;
}

void CData6_1::connect() {
    Dialog& window = *m_window;
    window.onInit = [this] { open(); };
    window.answerMessage(identifyMessage, identifyAnswer);
    window.onTimer = [this](int timer) {
        if (timer == setUpTimer) setUp();
    };
    window.onCommand = [this](int command) { execute(command); };
    window.onDestroy = [this] {
        prf_store store(m_files);
        store.open(m_settings.path(), settings::windowPositionSection);
        m_resizing->savePlacement(store, settings::windowPositionKey);
    };
    window.get<Button>(id::ok).onClick = [this] { confirm(); };
    window.get<Button>(id::cancel).onClick = [this] { cancel(); };
    window.get<Button>(id::pickItems).onClick = [this] { pick(); };
    window.get<Button>(id::help).onClick = [this] { m_host.showHelp(helpTopic); };
    m_types->onSelect = [this] { showType(); };
    m_types->onCommand = [this](int command) { execute(command); };
    m_list->onCommand = [this](int command) { execute(command); };
    m_list->onCopyFailed = [this] {
        message(text::copyFailed, m_host.hostTitle(), MessageIcon::stop, MessageButtons::ok);
    };
}

void CData6_1::open() {
    Dialog& window = *m_window;
    window.setIcon(icon::module);
    window.get<Button>(id::browserIcon).setIcon(icon::module);
    window.item(id::pickItems).show(m_request.pickMode);
    window.setMenuBar(steel() ? steelCatalogueMenu() : precastCatalogueMenu());
    window.enableMenu(newMenu, !readOnly());
    m_types->setReadOnly(readOnly());
    m_list->setReadOnly(readOnly());
    makeResizable();
    window.startTimer(setUpTimer, setUpDelay);
}

void CData6_1::makeResizable() {
    Control& types = m_window->item(id::types);
    Control& items = m_window->item(id::items);
    m_resizing->addDivider(&items, Side::left, &types);
    m_resizing->initialise();
    m_resizing->setSize(items, narrowestItems, 0);
    m_resizing->addControl(types, edge::stretchesDown);
    m_resizing->addControl(items, edge::stretches);
    for (const int control : {id::pickItems, id::ok, id::cancel, id::help, id::browserIcon}) {
        m_resizing->addControl(m_window->item(control), edge::staysInCorner);
    }
    prf_store store(m_files);
    store.open(m_settings.path(), settings::windowPositionSection);
    m_resizing->restorePlacement(store, settings::windowPositionKey);
}

void CData6_1::setUp() {
    m_window->stopTimer(setUpTimer);
    if (m_setUp) return;
    const ColumnSettings stored = loadColumnSettings(m_settings, m_request.kind, m_widths);
    m_list->createColumns(stored.widths);
    m_types->fill(typeRecords(m_items->get()));
    selectStart(stored);
    m_list->setColumnOrder(stored.order);
    m_setUp = true;
}

void CData6_1::selectByName() {
    const std::vector<CPreklItem*> types = typeRecords(m_items->get());
    const auto type = std::find_if(types.begin(), types.end(), [this](const CPreklItem* one) {
        return one->designation == m_request.typeName;
    });
    if (type == types.end()) {
        refreshItems();
        return;
    }
    m_types->select(static_cast<int>(type - types.begin()));
    refreshItems();
    const ItemRows& rows = m_list->rows();
    for (int row = 0; row < rows.count(); ++row) {
        if (rows.record(row)->designation == m_request.elementName) return m_list->selectRow(row);
    }
}

void CData6_1::selectStart(const ColumnSettings& stored) {
    if (!m_standAlone && m_session->reloaded()) return selectByName();
    const auto has = [this](int type) { return type >= 0 && type < m_types->count(); };
    int type = m_standAlone ? stored.type : m_request.type;
    int row = m_standAlone ? stored.row : 0;
    if (m_request.element) {
        if (has(m_request.element->typeIndex)) type = m_request.element->typeIndex;
        row = m_request.element->itemIndex;
    }
    if (has(type)) m_types->select(type);
    refreshItems();
    m_list->selectRow(row);
}

// ---- what is shown

CPreklItem* CData6_1::selectedType() const {
    return typeAt(m_items->get(), m_types->selected());
}

void CData6_1::refreshItems() {
    const CPreklItem* type = selectedType();
    if (!type) return;
    const std::string_view title = steel() ? text::steelBrowser : text::precastBrowser;
    m_window->setTitle(fillIn(title, {type->nameOrEmpty()}));
    m_list->refresh(m_items->get(), m_types->selected() + 1);
}

void CData6_1::showType() {
    refreshItems();
    m_list->order();
}

}  // namespace lx
