// How the design dialog opens: the order of the steps matters, since later ones replace what
// earlier ones made.
#include "catalogue/catalogue_file.h"
#include "composition/hand_over.h"
#include "composition/offers.h"
#include "design/bubble_name.h"
#include "dialog/CObr1.h"
#include "resources/icons.h"
#include "resources/ids.h"
#include "resources/strings.h"
#include "resources/templates.h"

namespace lx {

void CObr1::connect() {
    Dialog& window = *m_window;
    DesignServices& services = *this;
    m_roletka = std::make_unique<CRoletka>(window.get<ComboBox>(id::inPlaceBox), services);
    window.get<Picture>(id::sectionPreview).onContext = [this] { openCommandMenu(); };
    window.setIcon(icon::module);
    window.get<Button>(id::moduleIcon).setIcon(icon::module);
    window.answerMessage(identifyMessage, identifyAnswer);
    window.onKey = [this](const KeyEvent& event) { return key(event); };
    window.onTimer = [this](int) { m_window->bringToFront(); };
    window.onDestroy = [this] {
        m_roletka->leave();
        m_model.clear();
    };
    window.onDescribe = [this](std::string_view topic) { return describe(topic); };
    window.get<Button>(id::ok).onClick = [this] { confirm(); };
    window.get<Button>(id::help).onClick = [this] { m_context.host.showHelp(m_helpTopic); };
    window.get<RadioButton>(id::fromPreview).onClick = [this] {
        chooseSource(PropertiesSource::preview);
    };
    window.get<RadioButton>(id::fromOffer).onClick = [this] {
        chooseSource(PropertiesSource::offer);
    };
    TabControl& tabs = window.get<TabControl>(id::tabs);
    tabs.onSelect = [this, &tabs] { changeTab(tabs.selected()); };
}

void CObr1::open() {
    connect();
    if (!loadCatalogues()) return m_window->end(id::cancel);
    m_model.startDesign();
    makePages();
    fillTypeBoxes();
    m_window->get<RadioButton>(id::fromOffer).check(true);
    m_library.LoadProjects();
    m_libraryPage->showProjects();
    readHandOver();
    restoreCheckBoxes();
    m_geometry->initialise();
    m_model.takeOpeningBlock(m_context.host.unitsPerMetre());
    Relayout();
    // The offers are made here and not again: when the geometry page is the one to be shown, its
    // plan replaces the bearing that was handed over by the overhang that it measures.
    ShowDesignTypes();
    m_library.LoadLibrary(m_model);
    m_libraryPage->showDesigns();
    m_model.settleLevel();
    showStoredTab();
}

bool CObr1::loadCatalogues() {
    ModuleValues& values = m_context.values;
    return loadCatalogueOf(CatalogueKind::precast, values.precast, values.precastState) &&
           loadCatalogueOf(CatalogueKind::steel, values.steel, values.steelState);
}

// Going on without a catalogue would let the browser empty its file.
bool CObr1::loadCatalogueOf(CatalogueKind kind, Catalogue& catalogue, CatalogueState& state) {
    const std::optional<Bytes> file = openCatalogueFile(kind, m_context.host, m_context.files);
    if (!file) {
        m_context.platform.messageBox(Owner{m_window.get(), m_owner.hostWindow},
                                      text::catalogueNotAccessible, m_context.host.hostTitle(),
                                      MessageIcon::stop, MessageButtons::ok);
        return false;
    }
    LoadedCatalogue loaded = loadCatalogue(kind, *file);
    catalogue = std::move(loaded.head);
    state = loaded.state;
    return true;
}

void CObr1::makePages() {
    DesignServices& services = *this;
    Picture& picture = m_window->get<Picture>(id::sectionPreview);
    m_section = std::make_unique<CObr>(services, picture);
    m_section->setExteriorSide(exteriorSide);
    m_context.values.sectionSize = m_section->size();

    m_geometry = std::make_unique<CTabGeometrie>(services);
    m_context.values.proposedBubble = proposeBubbleName(m_settings.bubbleName());
    m_precast = std::make_unique<CTabPrefa>(services);
    m_steel = std::make_unique<CTabOcel>(services);
    m_monolith = std::make_unique<CTabMonolit>(services);
    // The lock comes before the first look into the library: nobody else may then change what this
    // dialog has read.
    m_library.readOnly();
    m_libraryPage = std::make_unique<CTabKnihovna>(services);
    // The area for a page is known when all tabs are there: they may take several rows.
    TabControl& tabs = m_window->get<TabControl>(id::tabs);
    for (DesignPage* one : pages()) tabs.addTab(one->window().title());
    for (DesignPage* one : pages()) place(*one);
}

void CObr1::place(DesignPage& page) {
    page.window().show(false);
    page.window().setArea(m_window->get<TabControl>(id::tabs).displayArea());
}

void CObr1::fillTypeBoxes() {
    m_precast->fillTypes(typeNames(m_context.values.precast.get()));
    m_precast->selectType(m_settings.precastType());
    m_steel->fillTypes(typeNames(m_context.values.steel.get()));
    m_steel->selectType(m_settings.steelType());
}

void CObr1::readHandOver() {
    const Path path = handOverPath(m_context.files);
    HandOverRead read = lx::ReadHandOver(path, m_context.files);
    m_context.files.remove(path);
    m_model.adoptHandOver(std::move(read.design));
}

void CObr1::restoreCheckBoxes() {
    m_geometry->setAnnotation(m_settings.annotation());
    m_model.bearingCheck = m_settings.bearingCheck();
    m_libraryPage->setBearingCheck(m_model.bearingCheck);
}

void CObr1::showStoredTab() {
    const int stored = m_settings.tab();
    const int index = stored >= 0 && stored < page::count ? stored : page::geometry;
    m_window->get<TabControl>(id::tabs).select(index);
    ShowTab(index);
    pages()[static_cast<std::size_t>(index)]->window().focusFirst();
}

}  // namespace lx
