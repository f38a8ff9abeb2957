// The design dialog "Návrh překladu": one design from the host's call to its result. It fills its
// controls from the model, forwards the user's acts and shows what the model answers.
#pragma once

#include <array>

#include "design/catalogue_choice.h"
#include "design/design_services.h"
#include "design/dialog_settings.h"
#include "design/library_session.h"
#include "design/page_index.h"
#include "dialog/CRoletka.h"
#include "preview/CObr.h"
#include "tabs/CTabGeometrie.h"
#include "tabs/CTabKnihovna.h"
#include "tabs/CTabMonolit.h"
#include "tabs/CTabOcel.h"
#include "tabs/CTabPrefa.h"

namespace lx {

class CObr1 : private DesignServices {
public:
    // Everything given must outlive the dialog.
    CObr1(const Context& context, Owner owner);
    ~CObr1() override;

    // The call's values, in and out. A and B change only when the user confirms, also when that
    // confirmation is refused later in its checks.
    int resultA = 0;
    int resultB = 0;
    // Bubble name, CR LF, description; empty until the user confirms.
    Text resultText;
    // True: the exterior face of the wall is at the left of the section.
    bool exteriorSide = false;

    // Runs the dialog on the module-wide values: 1 after OK, 2 after Cancel or when a catalogue
    // cannot be opened, -1 when the window could not be made. Once per object.
    int doModal();

private:
    // ---- services to the pages and previews
    Context& context() override { return m_context; }
    DesignModel& model() override { return m_model; }
    LibrarySession& library() override { return m_library; }
    DialogSettings& settings() override { return m_settings; }
    Dialog& window() override { return *m_window; }
    int Relayout() override;
    void refreshShown() override;
    void SelectRecord(CRez* record) override;
    void RefreshProperties() override;
    void refreshAvailability() override;
    void RebuildPrecastOffer() override;
    void RebuildSteelOffer() override;
    void bendHead(int shape) override;
    void ComposePrecast() override;
    void ComposeSteel() override;
    void removeCurrentLayer() override;
    void OpenCatalogue(int request) override;
    bool endEdit() override { return m_roletka->commit(); }
    void openEdit(const EditRequest& request, Picture& picture, Point at) override {
        m_roletka->open(request, picture, at);
    }
    bool editVisible() const override { return m_roletka->visible(); }
    EditTarget lastEdited() const override { return m_roletka->lastTarget(); }
    void showBearing(std::int32_t bearing) override;
    void enableConfirmation(bool on) override;
    MessageAnswer showMessage(std::string_view text, MessageIcon icon,
                              MessageButtons buttons) override;

    // ---- what the services are made of
    void ShowTab(int index);
    // The "Typ:" boxes show the types of the design's last precast and last steel layer; both
    // offers are those of the types shown.
    void ShowDesignTypes();
    void redrawPreviews();

    // ---- opening (CObr1_open.cpp), in the order of its steps
    void connect();
    void open();
    bool loadCatalogues();
    bool loadCatalogueOf(CatalogueKind kind, Catalogue& catalogue, CatalogueState& state);
    void makePages();
    void place(DesignPage& page);
    void fillTypeBoxes();
    void readHandOver();
    void restoreCheckBoxes();
    void showStoredTab();

    // ---- the user's acts
    KeyAnswer key(const KeyEvent& event);
    void changeTab(int index);
    bool focusOutsidePages();
    void chooseSource(PropertiesSource source);
    void confirm();
    void layOutToConfirm();
    void openCommandMenu();
    bool commandEnabled(int command);
    void run(int command);
    void refillTypes(OfferPage& page, CPreklItem* catalogue, const CPreklItem* selected);
    void showBubbleField();
    Text describe(std::string_view topic) const;

    std::array<DesignPage*, page::count> pages() const;

    Context m_context;
    Owner m_owner;
    DesignModel m_model;
    DialogSettings m_settings;
    LibrarySession m_library;
    std::unique_ptr<Dialog> m_window;
    std::unique_ptr<CRoletka> m_roletka;
    // Children of the window, none until it opens; none at all when a catalogue is missing.
    std::unique_ptr<CObr> m_section;
    std::unique_ptr<CTabGeometrie> m_geometry;
    std::unique_ptr<CTabPrefa> m_precast;
    std::unique_ptr<CTabOcel> m_steel;
    std::unique_ptr<CTabMonolit> m_monolith;
    std::unique_ptr<CTabKnihovna> m_libraryPage;
    std::optional<CatalogueElement> m_browserElement;  // that the last browser showed first
    int m_tab = page::geometry;
    PropertiesSource m_source = PropertiesSource::offer;
    int m_helpTopic = 0;
};

}  // namespace lx
