#include "platform/headless/headless_tab_control.h"

#include <algorithm>

#include "platform/headless/svg_area.h"
#include "platform/numbers.h"

namespace lx {

void HeadlessTabControl::addTab(std::string_view title) {
    m_titles.emplace_back(title);
    if (m_selected < 0) m_selected = 0;
}

Text HeadlessTabControl::tabTitle(int index) const {
    return index >= 0 && index < count() ? m_titles[static_cast<std::size_t>(index)] : Text();
}

void HeadlessTabControl::select(int index) {
    if (index >= 0 && index < count()) m_selected = index;
}

Rect HeadlessTabControl::displayArea() const {
    constexpr int edge = 4;
    return {m_area.left + edge, m_area.top + headerHeight + edge, m_area.right - edge,
            m_area.bottom - edge};
}

void HeadlessTabControl::choose(int index) {
    if (index == m_selected) return;
    m_selected = index;
    callCopy(onSelect);
}

void HeadlessTabControl::userSelect(int index) {
    checkReachable("change its tab");
    if (index < 0 || index >= count()) refuse("there is no tab " + formatInt(index));
    if (index == m_selected) clickFocus();
    choose(index);
    settle();
}

bool HeadlessTabControl::keyDown(const KeyEvent& event) {
    const int step = event.key == key::right ? 1 : event.key == key::left ? -1 : 0;
    if (step == 0 || event.ctrl || event.alt) return false;
    const int next = m_selected + step;
    if (next >= 0 && next < count()) choose(next);
    return true;
}

void HeadlessTabControl::draw(SvgArea& area) const {
    area.frame({0, headerHeight, area.width() - 1, area.height() - 1}, SvgArea::grey);
    const auto widthOf = [&](int i) { return SvgArea::textWidth(tabTitle(i)) + 12; };
    // Tabs that do not fit are scrolled so that the selected one is seen.
    int end = 2;
    for (int i = 0; i <= m_selected; ++i) end += widthOf(i);
    int left = 2 - std::max(0, end - area.width());
    for (int i = 0; i < count(); ++i) {
        const bool selected = i == m_selected;
        const Rect tab{left, selected ? 0 : 2, left + widthOf(i), headerHeight};
        area.fill(tab, selected ? SvgArea::paper : SvgArea::face);
        area.frame(tab, selected && focused() ? SvgArea::highlight : SvgArea::grey);
        area.text({left + 6, 4}, tabTitle(i), SvgArea::ink);
        left = tab.right;
    }
}

}  // namespace lx
