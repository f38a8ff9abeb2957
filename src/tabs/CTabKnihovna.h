// The page "Knihovna": the projects, and the stored designs of the selected one. A stored design
// that is selected becomes the design being edited.
#pragma once

#include <memory>

#include "design/design_services.h"
#include "tabs/CBookBox.h"
#include "tabs/CBookList.h"
#include "tabs/design_page.h"

namespace lx {

class CTabKnihovna : public DesignPage {
public:
    explicit CTabKnihovna(DesignServices& services);

    Dialog& window() override { return *m_window; }
    void showAvailability(const Availability&) override {}
    // From the library session: the projects and which one is selected.
    void showProjects();
    // From the model: "<výchozí>" and the stored designs of the project; selects the one shown.
    void showDesigns() { m_designs.fill(); }
    // After a change of the design being edited: it may suit the opening no longer.
    void refreshDesignLooks() { m_designs.refreshLooks(); }
    void setBearingCheck(bool on) { m_bearingCheck.check(on); }
    bool bearingCheck() const { return m_bearingCheck.checked(); }

private:
    void useStored(int entry);
    void changeProject();
    void newProject();
    // Whether the key has been used.
    bool deleteProject();
    bool deleteStored();
    enum class Deletion { agreed, declined, refused };
    // Tells that the library is read-only, which refuses it, or asks.
    Deletion askDeletion();

    DesignServices& m_services;
    std::unique_ptr<Dialog> m_window;
    CBookBox m_projects;
    CBookList m_designs;
    CheckBox& m_bearingCheck;
};

}  // namespace lx
