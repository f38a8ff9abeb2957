#include "dialog/CObr1.h"

#include <algorithm>

#include "design/confirmation.h"
#include "design/describe.h"
#include "design/layer_texts.h"
#include "platform/numbers.h"
#include "resources/ids.h"
#include "resources/strings.h"
#include "resources/templates.h"

namespace lx {

namespace {

constexpr int helpTopic = 99;
constexpr int helpTopicFoldedSection = 146;

// The controls that stand beside the pages.
constexpr int ownControls[] = {id::tabs,       id::sectionPreview, id::inPlaceBox,
                               id::properties, id::fromPreview,    id::fromOffer,
                               id::ok,         id::cancel,         id::help};
constexpr int propertyControls[] = {id::propertiesLabel, id::properties, id::fromPreview,
                                    id::fromOffer};

}  // namespace

CObr1::CObr1(const Context& context, Owner owner)
    : m_context(context),
      m_owner(owner),
      m_model(context.values),
      m_settings(context.files, context.host.dataFolder()),
      m_library(context.host, context.files) {}

// The window frees the design when it is destroyed; one that could not be made never is.
CObr1::~CObr1() {
    m_model.clear();
}

int CObr1::doModal() {
    m_helpTopic = resultB != 0 ? helpTopicFoldedSection : helpTopic;
    m_window = m_context.platform.createDialog(designTemplate, m_owner);
    m_window->onInit = [this] { open(); };
    return m_window->runModal();
}

std::array<DesignPage*, page::count> CObr1::pages() const {
    return {m_geometry.get(), m_precast.get(), m_steel.get(), m_monolith.get(),
            m_libraryPage.get()};
}

int CObr1::Relayout() {
    if (!m_model.Relayout()) return -1;
    refreshShown();
    m_geometry->refreshDescription();
    return 0;
}

void CObr1::refreshShown() {
    redrawPreviews();
    RefreshProperties();
    refreshAvailability();
    m_precast->refreshOfferLooks();
    m_steel->refreshOfferLooks();
    m_libraryPage->refreshDesignLooks();
}

void CObr1::SelectRecord(CRez* record) {
    m_model.select(record);
    redrawPreviews();
    RefreshProperties();
    refreshAvailability();
}

void CObr1::redrawPreviews() {
    m_section->redraw();
    m_geometry->redrawPlan();
}

void CObr1::showBearing(std::int32_t bearing) {
    const Text text = fillIn(text::bearing, {formatInt(bearing)});
    m_window->get<Edit>(id::properties).setText(text);
}

void CObr1::enableConfirmation(bool on) {
    m_window->item(id::ok).enable(on);
}

void CObr1::ShowTab(int index) {
    const auto all = pages();
    for (int i = 0; i < page::count; ++i) {
        if (i != index) all[static_cast<std::size_t>(i)]->window().show(false);
    }
    all[static_cast<std::size_t>(index)]->window().show(true);
    if (index == page::geometry) m_geometry->redrawPlan();
    m_tab = index;
    for (const int control : propertyControls) {
        m_window->item(control).show(index != page::geometry);
    }
    if (index == page::precast) m_model.browserKind = CatalogueKind::precast;
    if (index == page::steel) m_model.browserKind = CatalogueKind::steel;
    RefreshProperties();
}

void CObr1::RefreshProperties() {
    if (const auto text = m_model.properties(m_source, m_tab)) {
        m_window->get<Edit>(id::properties).setText(*text);
    }
}

void CObr1::refreshAvailability() {
    const Availability available = m_model.available();
    for (DesignPage* one : pages()) one->showAvailability(available);
}

void CObr1::RebuildPrecastOffer() {
    m_model.rebuildPrecastOffer(m_precast->selectedType());
    m_precast->showOffer();
    endEdit();
    refreshAvailability();
    RefreshProperties();
}

void CObr1::RebuildSteelOffer() {
    m_model.rebuildSteelOffer(m_steel->selectedType());
    m_steel->showOffer();
    refreshAvailability();
    RefreshProperties();
}

void CObr1::ShowDesignTypes() {
    if (const auto type = m_model.precastTypeUsed()) m_precast->selectType(*type);
    if (const auto type = m_model.steelTypeUsed()) m_steel->selectType(*type);
    RebuildPrecastOffer();
    RebuildSteelOffer();
}

MessageAnswer CObr1::showMessage(std::string_view text, MessageIcon icon, MessageButtons buttons) {
    return m_context.platform.messageBox(Owner{m_window.get(), m_owner.hostWindow}, text,
                                         text::warning, icon, buttons);
}

KeyAnswer CObr1::key(const KeyEvent& event) {
    if (!event.ctrl || event.alt) return KeyAnswer::pass;
    int step = 0;
    if (event.key == key::tab) step = event.shift ? -1 : 1;
    if (event.key == key::pageUp) step = -1;
    if (event.key == key::pageDown) step = 1;
    if (step == 0) return KeyAnswer::pass;
    changeTab((m_tab + step + page::count) % page::count);
    return KeyAnswer::swallow;
}

// A page that goes takes its focused control along, so the new page has to take the focus over.
void CObr1::changeTab(int index) {
    endEdit();
    const bool keepFocus = focusOutsidePages();
    m_window->get<TabControl>(id::tabs).select(index);
    ShowTab(index);
    if (!keepFocus) pages()[static_cast<std::size_t>(index)]->window().focusFirst();
}

bool CObr1::focusOutsidePages() {
    return std::any_of(std::begin(ownControls), std::end(ownControls),
                       [this](int control) { return m_window->item(control).focused(); });
}

void CObr1::chooseSource(PropertiesSource source) {
    m_source = source;
    RefreshProperties();
}

// Commands that do not lay out, such as turning a section, leave old offsets and levels; what is
// stored is what is shown. A description that the user has not touched follows it.
void CObr1::layOutToConfirm() {
    const CRez* head = m_model.head();
    if (head == nullptr) return;
    const bool untouched = m_geometry->description() == descriptionSummary(*head);
    m_model.Relayout();
    if (untouched) m_geometry->setDescription(descriptionSummary(*head));
    refreshShown();
}

void CObr1::confirm() {
    if (!endEdit()) return;
    layOutToConfirm();
    const ConfirmationInput input{m_geometry->bubbleName(),
                                  m_geometry->description(),
                                  m_geometry->annotation(),
                                  m_libraryPage->bearingCheck(),
                                  m_tab,
                                  m_precast->selectedType(),
                                  m_steel->selectedType()};
    CallResult result{resultA, resultB, {}};
    const ConfirmationAnswer answer =
        confirmDesign(input, m_model, m_library, m_settings, m_context.files, result);
    resultA = result.insert;
    resultB = result.foldedSection;
    resultText = std::move(result.text);
    switch (answer) {
        case ConfirmationAnswer::done:
            m_window->end(id::ok);
            return;
        case ConfirmationAnswer::bubbleMissing:
            showBubbleField();
            showMessage(text::bubbleMissing, MessageIcon::stop, MessageButtons::ok);
            return;
        case ConfirmationAnswer::labelTaken:
            m_libraryPage->showDesigns();
            showBubbleField();
            showMessage(text::labelTaken, MessageIcon::none, MessageButtons::ok);
            return;
        case ConfirmationAnswer::storeFailed:
            m_libraryPage->showDesigns();
            showMessage(text::storeFailed, MessageIcon::stop, MessageButtons::ok);
            return;
    }
}

void CObr1::showBubbleField() {
    m_window->get<TabControl>(id::tabs).select(page::geometry);
    ShowTab(page::geometry);
    m_geometry->focusBubble();
}

Text CObr1::describe(std::string_view topic) const {
    if (topic != "design") return {};
    return describeDesign(m_model.head(), m_model.current());
}

}  // namespace lx
