#include "design/design_model.h"

#include <algorithm>

#include "catalogue/natural_order.h"
#include "composition/automatic.h"
#include "composition/hand_over.h"
#include "composition/layout.h"
#include "composition/offers.h"
#include "composition/section_scale.h"
#include "design/layer_texts.h"
#include "design/opening.h"
#include "design/page_index.h"
#include "resources/strings.h"

namespace lx {

namespace {

std::optional<int> lastType(const CRez* head, Family family) {
    std::optional<int> type;
    const CRez* layer = head != nullptr ? head->next : nullptr;
    for (; layer != nullptr; layer = layer->next) {
        if (traits(layer->kind).family == family) type = layer->typeIndex;
    }
    return type;
}

}  // namespace

void DesignModel::startDesign() {
    m_own.clear();
    m_own.append(headFromCall(m_values.openingWidth, m_values.wallThickness, m_values.level));
    m_shown = 0;
    m_current = m_own.head();
}

void DesignModel::adoptHandOver(RezChain design) {
    if (design.empty()) return;
    m_own = std::move(design);
    m_shown = 0;
    m_current = m_own.head();
    refreshMaxOpenings(head(), m_values.precast.get());
}

void DesignModel::takeOpeningBlock(int unitsPerMetre) {
    if (m_values.level == 0 || head() == nullptr) return;
    const auto block = blockInMillimetres(m_values.block, unitsPerMetre);
    if (!block) return;
    bendsFromBlock(*head(), *block);
    if (const auto width = widerOpening(*block)) m_values.openingWidth = *width;
}

void DesignModel::settleLevel() {
    if (m_values.level == 0 && head() != nullptr) head()->height = 0;
}

RezChain& DesignModel::chain() {
    return m_shown == 0 ? m_own : m_stored[m_shown - 1].design;
}

CRez* DesignModel::head() const {
    return m_shown == 0 ? m_own.head() : m_stored[m_shown - 1].design.head();
}

bool DesignModel::Relayout() {
    if (head() == nullptr) return false;
    layOut(*head());
    settleSection(*head(), m_values.sectionSize);
    return true;
}

std::int32_t DesignModel::FreeSpace() const {
    return head() ? freeSpace(*head()) : 0;
}

bool DesignModel::ComposePrecast(const Profile& rules) {
    return composed(
        composePrecast(chain(), m_precastOffer.selectedRecord(), m_precastOffer.rows(), rules));
}

bool DesignModel::ComposeSteel() {
    return composed(composeSteel(chain(), m_steelOffer.selectedRecord()));
}

bool DesignModel::composed(CRez* current) {
    if (current == nullptr) return false;
    m_current = current;
    return true;
}

std::int32_t DesignModel::headLength() const {
    return head() ? head()->length : 0;
}

void DesignModel::rebuildPrecastOffer(int type, const std::vector<const CPreklItem*>& picked) {
    RezChain records;
    if (type >= 0) {
        records = BuildPrecastOffer(m_values.precast.get(), type, m_values.openingWidth,
                                    headLength(), picked);
    }
    const std::vector<int> own = offerOrder(records);
    // In the chain, where the picked ones come behind.
    const int selected = own.empty() ? 0 : own.front();
    addPicked(records, picked);
    const std::vector<int> order = offerOrder(records);
    m_precastOffer = Offer(std::move(records), order);
    const auto row = std::find(order.begin(), order.end(), selected);
    m_precastOffer.select(static_cast<int>(row - order.begin()));
}

void DesignModel::rebuildSteelOffer(int type) {
    const std::int32_t bearing = head() ? head()->headBearing() : 0;
    m_steelOffer = type < 0
                       ? Offer()
                       : Offer(BuildSteelOffer(m_values.steel.get(), type, headLength(), bearing));
}

std::optional<int> DesignModel::precastTypeUsed() const {
    return lastType(head(), Family::precast);
}

std::optional<int> DesignModel::steelTypeUsed() const {
    return lastType(head(), Family::steel);
}

Availability DesignModel::available() const {
    return availability(head(), m_current, m_precastOffer.selectedRecord(),
                        m_steelOffer.selectedRecord());
}

std::optional<Text> DesignModel::properties(PropertiesSource source, int page) const {
    const double opening = m_values.openingWidth;
    if (source == PropertiesSource::preview) return propertiesOfRecord(m_current, opening);
    if (page != page::precast && page != page::steel) return std::nullopt;
    const Offer& offer = page == page::precast ? m_precastOffer : m_steelOffer;
    const CRez* element = offer.selectedRecord();
    if (element == nullptr) return std::nullopt;
    return propertiesOfOffer(*element, opening, page == page::precast);
}

void DesignModel::setStoredDesigns(std::vector<LibraryEntry> designs) {
    if (m_shown != 0) showStored(0);
    m_stored = std::move(designs);
    std::stable_sort(
        m_stored.begin(), m_stored.end(),
        [](const LibraryEntry& a, const LibraryEntry& b) { return plainLess(a.label, b.label); });
}

void DesignModel::showStored(int entry) {
    if (entry < 0 || static_cast<std::size_t>(entry) > m_stored.size()) return;
    const CRez* before = head();
    m_shown = static_cast<std::size_t>(entry);
    m_current = head();
    if (before != nullptr && m_current != nullptr) m_current->height = before->height;
}

std::optional<Text> DesignModel::removeShownStored() {
    if (m_shown == 0) return std::nullopt;
    const std::size_t removed = m_shown;
    const Text label = m_stored[removed - 1].label;
    const auto labelled = [&label](const LibraryEntry& one) { return one.label == label; };
    const auto before = std::count_if(
        m_stored.begin(), m_stored.begin() + static_cast<std::ptrdiff_t>(removed - 1), labelled);
    // The design is left before it is destroyed; it hands its level on.
    showStored(0);
    std::erase_if(m_stored, labelled);
    showStored(
        static_cast<int>(std::min(removed - static_cast<std::size_t>(before), m_stored.size())));
    return label;
}

bool DesignModel::storedSuits(int entry) const {
    const RezChain& design =
        entry == 0 ? m_own : m_stored[static_cast<std::size_t>(entry) - 1].design;
    return design.empty() || suitsOpening(*design.head(), m_values.openingWidth);
}

bool DesignModel::shownFits() const {
    return m_shown == 0 || !bearingCheck || storedSuits(shownStored());
}

std::vector<Text> DesignModel::storedLabels() const {
    std::vector<Text> labels{Text(text::ownDesign)};
    for (const LibraryEntry& entry : m_stored) labels.push_back(entry.label);
    return labels;
}

bool DesignModel::listsLabel(std::string_view paddedLabel) const {
    return std::any_of(m_stored.begin(), m_stored.end(),
                       [&](const LibraryEntry& entry) { return entry.label == paddedLabel; });
}

void DesignModel::clear() {
    m_current = nullptr;
    m_shown = 0;
    m_stored.clear();
    m_precastOffer = Offer();
    m_steelOffer = Offer();
    m_own.clear();
    m_values.precast.reset();
    m_values.steel.reset();
}

}  // namespace lx
