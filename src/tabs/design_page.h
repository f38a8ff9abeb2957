// What every page of the design dialog has.
#pragma once

#include "design/layer_commands.h"
#include "platform/dialog.h"

namespace lx {

// Made when the dialog opens; lives as long as its window.
class DesignPage {
public:
    DesignPage() = default;
    DesignPage(const DesignPage&) = delete;
    DesignPage& operator=(const DesignPage&) = delete;
    virtual ~DesignPage() = default;

    // The page's own child window; its title is the text of the tab.
    virtual Dialog& window() = 0;
    // After every change of the design and of a selection.
    virtual void showAvailability(const Availability& available) = 0;
};

}  // namespace lx
