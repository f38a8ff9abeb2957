// What pages and previews ask of the design dialog.
#pragma once

#include "design/design_model.h"
#include "design/dialog_settings.h"
#include "design/library_session.h"
#include "design/module_values.h"
#include "design/value_commit.h"

namespace lx {

// Of the browser's request value this bit alone has a meaning: items may be picked into the offer.
inline constexpr int pickRequest = 256;

class DesignServices {
public:
    DesignServices() = default;
    DesignServices(const DesignServices&) = delete;
    DesignServices& operator=(const DesignServices&) = delete;
    virtual ~DesignServices() = default;

    virtual Context& context() = 0;
    virtual DesignModel& model() = 0;
    virtual LibrarySession& library() = 0;
    virtual DialogSettings& settings() = 0;
    virtual Dialog& window() = 0;

    // Lays the design out, keeps the current record, redraws both previews and refreshes the
    // properties text, the availability of the layer commands and the geometry page. -1 without a
    // design.
    virtual int Relayout() = 0;
    // What Relayout does, but neither lays the design out nor touches the description and the
    // bubble field of the geometry page.
    virtual void refreshShown() = 0;
    // Null means the head. Redraws both previews; refreshes availability and properties.
    virtual void SelectRecord(CRez* record) = 0;
    virtual void RefreshProperties() = 0;
    virtual void refreshAvailability() = 0;
    // For the type selected in the page's "Typ:" box.
    virtual void RebuildPrecastOffer() = 0;
    virtual void RebuildSteelOffer() = 0;
    // The commands that pages and the command menu share. Each ends a pending edit first and lays
    // the design out. shape: number of the bend preset, 0 = straight.
    virtual void bendHead(int shape) = 0;
    virtual void ComposePrecast() = 0;
    virtual void ComposeSteel() = 0;
    // The layer behind the removed one becomes current, else the one before it.
    virtual void removeCurrentLayer() = 0;
    // The catalogue browser over the dialog; request: see pickRequest. Afterwards the offers and
    // their "Typ:" boxes are those of the catalogues as the user left them.
    virtual void OpenCatalogue(int request) = 0;
    // Commits and closes a pending in-place edit; false when its value was refused.
    virtual bool endEdit() = 0;
    // Stands the in-place drop-down over that point of the picture.
    virtual void openEdit(const EditRequest& request, Picture& picture, Point at) = 0;
    // Also while the event is handled that has closed the drop-down by taking its focus, so that a
    // click in a picture can tell.
    virtual bool editVisible() const = 0;
    // What was edited last; its record may be gone.
    virtual EditTarget lastEdited() const = 0;
    // The properties text becomes that bearing length at each end, mm.
    virtual void showBearing(std::int32_t bearing) = 0;
    // Whether the design may be confirmed.
    virtual void enableConfirmation(bool on) = 0;
    // A message box over the dialog with the caption "Upozornění".
    virtual MessageAnswer showMessage(std::string_view text, MessageIcon icon,
                                      MessageButtons buttons = MessageButtons::ok) = 0;
};

}  // namespace lx
