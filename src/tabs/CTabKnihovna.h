// The page "Knihovna": the projects and the stored designs of the current one. They are shown; the
// commands on them are not there yet, so their controls are disabled.
#pragma once

#include <memory>

#include "design/pages.h"
#include "design/services.h"

namespace lx {

class CTabKnihovna : public LibraryPage {
public:
    explicit CTabKnihovna(DesignServices& services);

    Dialog& window() override { return *m_window; }
    void showAvailability(const Availability&) override {}
    void showProjects() override;
    void showDesigns() override;
    void setBearingCheck(bool on) override { m_bearingCheck.check(on); }
    bool bearingCheck() const override { return m_bearingCheck.checked(); }

private:
    DesignServices& m_services;
    std::unique_ptr<Dialog> m_window;
    ComboBox& m_projects;
    ListBox& m_designs;
    CheckBox& m_bearingCheck;
};

}  // namespace lx
