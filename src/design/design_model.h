// The design being edited, its current record, the two offers and the list of stored designs: the
// state of the design dialog without its windows.
#pragma once

#include "composition/library.h"
#include "design/layer_commands.h"
#include "design/module_values.h"
#include "design/offer.h"
#include "settings/profile.h"

namespace lx {

// Which element the properties text describes: the current record or the selected offer entry.
enum class PropertiesSource { preview, offer };

class DesignModel {
public:
    explicit DesignModel(ModuleValues& values) : m_values(values) {}

    const ModuleValues& values() const { return m_values; }

    // ---- opening
    // A straight head made from the call's values, current.
    void startDesign();
    // A design that the host handed over replaces the one from the call, unless it is empty. The
    // largest openings of its elements that follow the opening are taken from the catalogue.
    void adoptHandOver(RezChain design);
    // Bends and opening width from the host's block, when the call gives a level and the host tells
    // its units.
    void takeOpeningBlock(int unitsPerMetre);
    // Without a level of the call the head has none either, wherever it came from.
    void settleLevel();

    // ---- the design
    RezChain& chain();
    CRez* head() const;
    CRez* current() const { return m_current; }
    // Null means the head.
    void select(CRez* record) { m_current = record == nullptr ? head() : record; }
    // False without a design.
    bool Relayout();
    std::int32_t FreeSpace() const;
    DesignEdit edit() { return {chain(), m_current}; }
    // Replace every layer by what the selected element of the offer makes, laid out; false when
    // there is none, then nothing has changed. Steel may turn that element in the offer.
    bool ComposePrecast(const Profile& rules);
    bool ComposeSteel();

    // ---- catalogues and offers
    // picked: catalogue items that the user has just chosen. They stay however oversized, and
    // those of other types join the offer. The first entry of the type's own is selected, where it
    // has none the first one picked.
    void rebuildPrecastOffer(int type, const std::vector<const CPreklItem*>& picked = {});
    void rebuildSteelOffer(int type);
    Offer& precastOffer() { return m_precastOffer; }
    Offer& steelOffer() { return m_steelOffer; }
    bool precastSelected() const { return m_precastOffer.selectedRecord() != nullptr; }
    // Catalogue type of the last precast or steel layer; none without such a layer.
    std::optional<int> precastTypeUsed() const;
    std::optional<int> steelTypeUsed() const;
    Availability available() const;
    // What the properties box shows for that source while the page of that index is shown; none
    // when it keeps its text.
    std::optional<Text> properties(PropertiesSource source, int page) const;

    // ---- stored designs
    // Replaces the list behind entry 0, sorted by label; the dialog's own design becomes the one
    // being edited.
    void setStoredDesigns(std::vector<LibraryEntry> designs);
    // The design of that entry becomes the one being edited, its head the current record. The level
    // of the opening stays the one shown before. Nothing happens outside the list.
    void showStored(int entry);
    int shownStored() const { return static_cast<int>(m_shown); }
    // Takes the entry that is shown out of the list and shows the one that takes its place; entry 0
    // stays. Others of its label go with it, as they do in the library, which knows designs by
    // their labels alone. The label as it was loaded; none when nothing was removed.
    std::optional<Text> removeShownStored();
    // Whether the design of that entry suits the opening.
    bool storedSuits(int entry) const;
    // The same for the entry that is shown, unless it is entry 0 or designs are not checked.
    bool shownFits() const;
    // Labels in list order; entry 0 names the dialog's own design.
    std::vector<Text> storedLabels() const;
    bool listsLabel(std::string_view paddedLabel) const;

    // Whether stored designs are checked against the opening.
    bool bearingCheck = true;
    // Which catalogue the browser opens on.
    CatalogueKind browserKind = CatalogueKind::precast;

    // Everything, the module-wide catalogues included.
    void clear();

private:
    std::int32_t headLength() const;
    bool composed(CRez* current);

    ModuleValues& m_values;
    RezChain m_own;                      // what entry 0 names
    std::vector<LibraryEntry> m_stored;  // entries 1 and up
    std::size_t m_shown = 0;             // entry whose design is being edited
    CRez* m_current = nullptr;           // in the design being edited
    Offer m_precastOffer;
    Offer m_steelOffer;
};

}  // namespace lx
