// The catalogue browser: the types of a catalogue, the items of the selected type, and all that
// changes them.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "browser/CList1.h"
#include "browser/CList2Ctrl.h"
#include "catalogue/catalogue_edit.h"
#include "catalogue/catalogue_session.h"
#include "catalogue/column_settings.h"
#include "widgets/resizeWnd.h"

namespace lx {

// Positions from 0, held against the catalogue: a type that is not there gives way to the one that
// the request names, a row that is not there to the first.
struct ElementPlace {
    std::int32_t typeIndex = 0;
    std::int32_t itemIndex = 0;
};

struct BrowserRequest {
    CatalogueKind kind = CatalogueKind::precast;
    bool pickMode = false;                // the user may choose items for the caller
    std::optional<ElementPlace> element;  // shown first
    int type = 0;                         // shown first without an element, position from 0
    // The same by their names: positions mean nothing when somebody else has changed the catalogue.
    Text typeName;
    Text elementName;
};

class CData6_1 {
public:
    // All must outlive the browser.
    CData6_1(Platform& platform, Files& files, Host& host, ColumnWidths& widths, Owner owner);
    CData6_1(const CData6_1&) = delete;
    CData6_1& operator=(const CData6_1&) = delete;

    // Each once per object, and only one of them. 1 after OK, 2 after Cancel, -1 when the window
    // could not be made. The host's lock on the catalogues is given back with the object.

    // On a catalogue of its own that the user chooses: 1 when nothing was chosen, 2 also when the
    // file cannot be opened.
    int runStandAlone();
    // On the caller's items, which keep what the user changed also after Cancel; both must outlive
    // the browser. state tells what the items' file held when they were loaded or written, and is
    // kept so.
    int runOn(Catalogue& items, CatalogueState& state, const BrowserRequest& request);

    // What the user chose for the caller, in list order; records of the items. Empty for nothing.
    const std::vector<const CPreklItem*>& picked() const { return m_picked; }
    // The type of the request; null when it was deleted, or the items were loaded anew, somebody
    // else having changed their file.
    const CPreklItem* requestedType() const { return m_requestedType; }

private:
    bool steel() const { return m_request.kind == CatalogueKind::steel; }
    bool readOnly() const { return m_session->readOnly(); }
    Owner here() const { return {m_window.get(), m_owner.hostWindow}; }
    MessageAnswer message(std::string_view text, std::string_view caption, MessageIcon icon,
                          MessageButtons buttons) const;

    // ---- opening
    bool loadOwnItems();
    int run(Catalogue& items, CatalogueState& state);
    void connect();
    void open();
    void makeResizable();
    void setUp();
    void selectStart(const ColumnSettings& stored);
    void selectByName();

    // ---- what is shown
    CPreklItem* selectedType() const;  // null without one
    void refreshItems();
    void showType();

    // ---- commands (CData6_1_commands.cpp)
    void execute(int command);
    // Asks; question: number of a text with a place for the record's name.
    bool mayDelete(const CPreklItem& record, std::string_view question) const;
    void newType();
    std::optional<Text> askTypeName(int& shape);
    void renameType();
    void deleteType();
    std::optional<EditorTexts> askItem(bool asNew);
    void newItem();
    void addItem(const EditorTexts& texts);
    void editItem();
    void deleteItem();
    void pick();
    // Tells the user when the catalogue could not be written.
    bool save();
    // False when the browser stays open.
    bool confirm();
    void cancel();
    void saveColumns();
    void close(int result);

    static constexpr int setUpTimer = 99;

    Platform& m_platform;
    Files& m_files;
    Host& m_host;
    ColumnWidths& m_widths;
    Owner m_owner;
    Profile m_settings;
    bool m_standAlone = false;
    BrowserRequest m_request;
    // Stand-alone.
    Catalogue m_ownItems;
    CatalogueState m_ownState;
    // None until the items are known.
    Catalogue* m_items = nullptr;
    std::unique_ptr<CatalogueSession> m_session;
    const CPreklItem* m_requestedType = nullptr;
    // These serve the window to its end.
    std::unique_ptr<CList1> m_types;
    std::unique_ptr<CList2Ctrl> m_list;
    std::unique_ptr<resizeWnd> m_resizing;
    std::unique_ptr<Dialog> m_window;
    bool m_setUp = false;  // columns and rows are there
    std::vector<const CPreklItem*> m_picked;
};

}  // namespace lx
