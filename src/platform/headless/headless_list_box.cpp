#include "platform/headless/headless_list_box.h"

#include <algorithm>
#include <utility>

#include "platform/headless/headless_dialog.h"
#include "platform/headless/list_rows.h"
#include "platform/headless/svg_area.h"
#include "platform/numbers.h"

namespace lx {

void HeadlessListBox::fill(std::vector<ListRow> rows) {
    m_rows = std::move(rows);
    m_selected = -1;
    m_top = 0;
}

void HeadlessListBox::insert(int index, const ListRow& row) {
    if (index < 0 || index > count()) return;
    m_rows.insert(m_rows.begin() + index, row);
    if (m_selected >= index) ++m_selected;
}

void HeadlessListBox::set(int index, const ListRow& row) {
    if (index >= 0 && index < count()) m_rows[static_cast<std::size_t>(index)] = row;
}

void HeadlessListBox::remove(int index) {
    if (index < 0 || index >= count()) return;
    m_rows.erase(m_rows.begin() + index);
    if (m_selected == index) {
        m_selected = -1;
    } else if (m_selected > index) {
        --m_selected;
    }
    m_top = std::clamp(m_top, 0, std::max(0, count() - 1));
}

const ListRow& HeadlessListBox::row(int index) const {
    static const ListRow none;
    return index >= 0 && index < count() ? m_rows[static_cast<std::size_t>(index)] : none;
}

void HeadlessListBox::select(int index) {
    m_selected = index >= 0 && index < count() ? index : -1;
    scrollTo(m_selected);
}

void HeadlessListBox::setRowHeight(int pixels) {
    m_rowHeight = std::max(1, pixels);
    scrollTo(m_selected);
}

int HeadlessListBox::rowAt(Point p) const {
    if (p.x < 0 || p.y < 0 || p.x >= m_area.width() - 2 * listEdge ||
        p.y >= m_area.height() - 2 * listEdge) {
        return -1;
    }
    const int row = m_top + p.y / m_rowHeight;
    return row < count() ? row : -1;
}

int HeadlessListBox::shownRows() const {
    return std::max(1, (m_area.height() - 2 * listEdge) / m_rowHeight);
}

void HeadlessListBox::scrollTo(int row) {
    m_top = topToShow(row, m_top, shownRows());
}

Point HeadlessListBox::pointOf(int row) const {
    return {m_area.width() / 2, (row - m_top) * m_rowHeight + m_rowHeight / 2};
}

void HeadlessListBox::userScroll(int row) {
    checkReachable("be scrolled");
    checkRow(row);
    scrollTo(row);
}

void HeadlessListBox::checkRow(int row) const {
    if (row < 0 || row >= count()) {
        refuse("there is no row " + formatInt(row) + " of " + formatInt(count()));
    }
}

void HeadlessListBox::choose(int row) {
    if (row == m_selected) return;
    select(row);
    callCopy(onSelect);
}

void HeadlessListBox::userSelect(int row) {
    checkReachable("be clicked");
    checkRow(row);
    clickFocus();
    if (m_dialog->root().running() && row < count()) choose(row);
    settle();
}

void HeadlessListBox::userDoubleClick(int row) {
    userSelect(row);
    if (m_dialog->root().running() && shown() && usable()) callCopy(onDoubleClick);
    settle();
}

void HeadlessListBox::userRightClick(int row) {
    checkReachable("be clicked");
    if (row >= 0) userScroll(row);
    callCopy(onContext, pointOf(row >= 0 ? row : count()));
    settle();
}

bool HeadlessListBox::keyDown(const KeyEvent& event) {
    if (isContextKey(event)) {
        callCopy(onContext, pointOf(std::max(m_selected, 0)));
        return true;
    }
    if (event.ctrl || event.alt) return false;
    const int row = rowAfterKey(event.key, m_selected, count(), shownRows());
    if (row < 0 || row >= count()) return false;
    choose(row);
    return true;
}

bool HeadlessListBox::character(char32_t character) {
    const int byte = cp1250FromUnicode(character);
    if (byte <= ' ') return false;
    const unsigned char wanted = lowerCase(static_cast<unsigned char>(byte));
    for (int step = 1; step <= count(); ++step) {
        const int index = (m_selected + step) % count();
        const Text& text = row(index).text;
        if (!text.empty() && lowerCase(static_cast<unsigned char>(text.front())) == wanted) {
            choose(index);
            break;
        }
    }
    return true;
}

void HeadlessListBox::draw(SvgArea& area) const {
    area.fill(SvgArea::paper);
    for (int index = m_top; index < count(); ++index) {
        const int top = listEdge + (index - m_top) * m_rowHeight;
        if (top >= area.height()) break;
        const ListRow& look = row(index);
        const bool selected = index == m_selected;
        if (selected) {
            area.fill({listEdge, top, area.width() - listEdge, top + m_rowHeight},
                      look.selectedBackground.value_or(SvgArea::highlight));
        }
        if (look.icon) area.icon(look.icon, {4, top + 2}, {12, 12});
        const Color plain = selected && !look.selectedBackground ? SvgArea::paper : ink();
        area.text({listEdge + look.indent, top + (m_rowHeight - SvgArea::lineHeight) / 2},
                  look.text, look.textColor.value_or(plain));
    }
    area.frameOfField(focused());
}

}  // namespace lx
