// The row of tabs above pages.
#pragma once

#include "platform/windows/control_core.h"

namespace lx {

class WindowsTabControl final : public WindowsControl<TabControl> {
public:
    using WindowsControl::WindowsControl;
    void addTab(std::string_view title) override;
    int count() const override { return static_cast<int>(m_titles.size()); }
    Text tabTitle(int index) const override;
    void select(int index) override;
    int selected() const override;
    Rect displayArea() const override;
    std::optional<LRESULT> notified(const NMHDR& header) override;

protected:
    WindowClass windowClass() const override;
    void attached() override;
    void keepState() override;

private:
    std::vector<Text> m_titles;
    int m_selected = -1;
    Rect m_displayArea;  // kept when the window is gone
};

}  // namespace lx
