// What pages and previews ask of the design dialog.
#pragma once

#include "design/design_model.h"
#include "design/dialog_settings.h"
#include "design/library_session.h"
#include "design/module_values.h"

namespace lx {

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
    // Null means the head. Redraws both previews; refreshes availability and properties.
    virtual void SelectRecord(CRez* record) = 0;
    virtual void ShowTab(int index) = 0;
    virtual void RefreshProperties() = 0;
    virtual void RefreshAvailability() = 0;
    // For the type selected in the page's "Typ:" box.
    virtual void RebuildPrecastOffer() = 0;
    virtual void RebuildSteelOffer() = 0;
    // The "Typ:" boxes show the types of the design's last precast and last steel layer.
    virtual void ShowDesignTypes() = 0;
    // Commits and closes a pending in-place edit; false when its value was refused.
    virtual bool EndEdit() = 0;
    virtual void RedrawPreviews() = 0;
    // A message box over the dialog with the caption "Upozornění".
    virtual MessageAnswer showMessage(std::string_view text, MessageIcon icon,
                                      MessageButtons buttons = MessageButtons::ok) = 0;
};

}  // namespace lx
