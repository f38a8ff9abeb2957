#pragma once

#include <vector>

#include "platform/headless/headless_control.h"

namespace lx {

class HeadlessTabControl final : public HeadlessBase<TabControl> {
public:
    using HeadlessBase::HeadlessBase;
    void addTab(std::string_view title) override;
    int count() const override { return static_cast<int>(m_titles.size()); }
    Text tabTitle(int index) const override;
    void select(int index) override;
    int selected() const override { return m_selected; }
    Rect displayArea() const override;

    static constexpr int headerHeight = 21;
    // A click on a tab: the focus stays where it is, unless the tab is the selected one.
    void userSelect(int index);

    void draw(SvgArea& area) const override;

protected:
    bool keyDown(const KeyEvent& event) override;

private:
    void choose(int index);

    std::vector<Text> m_titles;
    int m_selected = -1;
};

}  // namespace lx
