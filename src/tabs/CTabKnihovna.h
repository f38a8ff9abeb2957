// The page "Knihovna": the projects, and the stored designs of the selected one. A stored design
// that is selected becomes the design being edited.
#pragma once

#include <memory>

#include "design/pages.h"
#include "design/services.h"
#include "tabs/CBookBox.h"
#include "tabs/CBookList.h"

namespace lx {

class CTabKnihovna : public LibraryPage {
public:
    explicit CTabKnihovna(DesignServices& services);

    Dialog& window() override { return *m_window; }
    void showAvailability(const Availability&) override {}
    void showProjects() override;
    void showDesigns() override { m_designs.fill(); }
    void refreshDesignLooks() override { m_designs.refreshLooks(); }
    void setBearingCheck(bool on) override { m_bearingCheck.check(on); }
    bool bearingCheck() const override { return m_bearingCheck.checked(); }

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
