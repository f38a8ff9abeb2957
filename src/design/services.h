// What pages and previews ask of the design dialog.
#pragma once

#include "composition/layout.h"
#include "composition/records.h"
#include "design/design_model.h"

namespace lx {

class DesignServices {
public:
    DesignServices() = default;
    DesignServices(const DesignServices&) = delete;
    DesignServices& operator=(const DesignServices&) = delete;
    virtual ~DesignServices() = default;

    virtual Context& context() = 0;
    virtual DesignModel& model() = 0;
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
    virtual void RebuildPrecastOffer() = 0;
    virtual void RebuildSteelOffer() = 0;
    virtual void ShowDesignTypes() = 0;
    // Only the bit of value 256 of the request has an effect: picking into the precast offer.
    virtual void OpenCatalogue(int request) = 0;
    // Commits and closes a pending in-place edit.
    virtual void EndEdit() = 0;
    virtual void RedrawPreviews() = 0;
    virtual MessageAnswer showMessage(int number, MessageIcon icon,
                                      MessageButtons buttons = MessageButtons::ok) = 0;
};

}  // namespace lx
