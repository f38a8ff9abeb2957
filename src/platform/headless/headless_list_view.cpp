#include "platform/headless/headless_list_view.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/headless/headless_dialog.h"
#include "platform/headless/list_rows.h"
#include "platform/headless/svg_area.h"
#include "platform/numbers.h"

namespace lx {

void HeadlessListView::setColumns(const std::vector<ListColumn>& columns) {
    m_columns = columns;
    m_arrows.assign(columns.size(), HeadingArrow::none);
    m_order.resize(columns.size());
    std::iota(m_order.begin(), m_order.end(), 0);
}

void HeadlessListView::checkColumn(int column) const {
    if (!hasColumn(column)) refuse("there is no column " + formatInt(column));
}

Text HeadlessListView::heading(int column) const {
    return hasColumn(column) ? m_columns[static_cast<std::size_t>(column)].heading : Text();
}

int HeadlessListView::columnWidth(int column) const {
    return hasColumn(column) ? m_columns[static_cast<std::size_t>(column)].width : 0;
}

bool HeadlessListView::isPermutation(const std::vector<int>& order) const {
    std::vector<int> natural(m_columns.size());
    std::iota(natural.begin(), natural.end(), 0);
    return order.size() == natural.size() &&
           std::is_permutation(order.begin(), order.end(), natural.begin());
}

void HeadlessListView::setColumnOrder(const std::vector<int>& order) {
    if (isPermutation(order)) {
        m_order = order;
    } else {
        std::iota(m_order.begin(), m_order.end(), 0);
    }
}

void HeadlessListView::setHeadingArrow(int column, HeadingArrow arrow) {
    if (hasColumn(column)) m_arrows[static_cast<std::size_t>(column)] = arrow;
}

HeadingArrow HeadlessListView::headingArrow(int column) const {
    return hasColumn(column) ? m_arrows[static_cast<std::size_t>(column)] : HeadingArrow::none;
}

void HeadlessListView::setRowCount(int count) {
    if (count == m_count) return;
    m_count = std::max(0, count);
    m_rows.clear();
    m_caret = m_anchor = -1;
    m_top = std::clamp(m_top, 0, std::max(0, m_count - 1));
}

void HeadlessListView::selectRows(const std::vector<int>& rows) {
    m_rows.clear();
    for (const int row : rows) {
        if (row >= 0 && row < m_count) m_rows.insert(row);
    }
    if (!(style() & style::multipleSelection) && m_rows.size() > 1) {
        m_rows.erase(std::next(m_rows.begin()), m_rows.end());
    }
}

void HeadlessListView::select(int row) {
    selectRows({row});
    m_caret = m_anchor = m_rows.empty() ? -1 : row;
    scrollTo(m_caret);
}

int HeadlessListView::rowAt(Point p) const {
    if (p.x < 0 || p.y < headerHeight || p.x >= m_area.width() - 2 * listEdge ||
        p.y >= m_area.height() - 2 * listEdge) {
        return -1;
    }
    const int row = m_top + (p.y - headerHeight) / rowHeight;
    return row < m_count ? row : -1;
}

int HeadlessListView::shownRows() const {
    return std::max(1, (m_area.height() - 2 * listEdge - headerHeight) / rowHeight);
}

void HeadlessListView::scrollTo(int row) {
    m_top = topToShow(row, m_top, shownRows());
}

void HeadlessListView::userScroll(int row) {
    checkReachable("be scrolled");
    checkRow(row);
    scrollTo(row);
}

Point HeadlessListView::pointOf(int row) const {
    const int x = m_columns.empty() ? 4 : std::max(0, m_columns[0].width / 2);
    return {x, headerHeight + (row - m_top) * rowHeight + rowHeight / 2};
}

void HeadlessListView::checkRow(int row) const {
    if (row < 0 || row >= m_count) {
        refuse("there is no row " + formatInt(row) + " of " + formatInt(m_count));
    }
}

void HeadlessListView::choose(std::set<int> rows, int caret) {
    m_caret = caret;
    scrollTo(caret);
    if (rows == m_rows) return;
    m_rows = std::move(rows);
    callCopy(onSelect);
}

std::set<int> HeadlessListView::span(int a, int b) const {
    std::set<int> rows;
    for (int row = std::min(a, b); row <= std::max(a, b); ++row) rows.insert(row);
    return rows;
}

void HeadlessListView::userSelect(int row, bool ctrl, bool shift) {
    checkReachable("be clicked");
    checkRow(row);
    clickFocus();
    if (m_dialog->root().running() && row < m_count) {
        const bool several = (style() & style::multipleSelection) != 0;
        if (several && shift && m_anchor >= 0) {
            choose(span(m_anchor, row), row);
        } else if (several && ctrl) {
            std::set<int> rows = m_rows;
            if (rows.erase(row) == 0) rows.insert(row);
            m_anchor = row;
            choose(std::move(rows), row);
        } else {
            m_anchor = row;
            choose({row}, row);
        }
    }
    settle();
}

void HeadlessListView::userDoubleClick(int row) {
    if (row >= 0) {
        userSelect(row);
    } else {
        checkReachable("be clicked");
        if (m_count - m_top >= shownRows()) refuse("its rows leave no ground");
        clickFocus();
        choose({}, m_caret);
    }
    if (m_dialog->root().running() && shown() && usable()) callCopy(onDoubleClick);
    settle();
}

void HeadlessListView::userRightClick(int row) {
    checkReachable("be clicked");
    if (row >= 0) userScroll(row);
    clickFocus();
    if (m_dialog->root().running()) {
        if (row >= 0 && !m_rows.contains(row)) {
            m_anchor = row;
            choose({row}, row);
        } else if (row < 0) {
            choose({}, m_caret);
        }
        if (m_dialog->root().running()) callCopy(onContext, pointOf(row >= 0 ? row : m_count));
    }
    settle();
}

void HeadlessListView::userHeading(int column) {
    checkReachable("be clicked");
    checkColumn(column);
    callCopy(onHeading, column);
    settle();
}

void HeadlessListView::userSetColumnWidth(int column, int pixels) {
    checkReachable("be dragged");
    checkColumn(column);
    m_columns[static_cast<std::size_t>(column)].width = std::max(0, pixels);
    settle();
}

void HeadlessListView::userSetColumnOrder(const std::vector<int>& order) {
    checkReachable("be dragged");
    if (!isPermutation(order)) refuse("that is no order of its columns");
    m_order = order;
    settle();
}

bool HeadlessListView::keyDown(const KeyEvent& event) {
    if (isContextKey(event)) {
        callCopy(onContext, pointOf(m_rows.empty() ? 0 : *m_rows.begin()));
        return true;
    }
    if (event.alt) return false;
    if (event.key == key::space && m_caret >= 0) {
        std::set<int> rows = event.ctrl ? m_rows : std::set<int>{};
        if (!event.ctrl || rows.erase(m_caret) == 0) rows.insert(m_caret);
        choose(std::move(rows), m_caret);
        return true;
    }
    const int row = rowAfterKey(event.key, m_caret, m_count, shownRows());
    if (row < 0 || row >= m_count) return false;
    const bool several = (style() & style::multipleSelection) != 0;
    if (several && event.ctrl) {
        m_caret = row;
        scrollTo(row);
    } else if (several && event.shift && m_anchor >= 0) {
        choose(span(m_anchor, row), row);
    } else {
        m_anchor = row;
        choose({row}, row);
    }
    return true;
}

void HeadlessListView::draw(SvgArea& area) const {
    const auto eachShownRow = [&](const auto& drawRow) {
        for (int row = m_top; row < m_count; ++row) {
            const int top = headerHeight + (row - m_top) * rowHeight;
            if (top >= area.height()) break;
            drawRow(row, top, m_rows.contains(row));
        }
    };
    area.fill(SvgArea::paper);
    eachShownRow([&](int, int top, bool selected) {
        const Rect ground{listEdge, top, area.width() - listEdge, top + rowHeight};
        if (selected) area.fill(ground, SvgArea::highlight);
    });
    area.fill({0, 0, area.width(), headerHeight}, SvgArea::face);
    int left = listEdge;
    for (const int column : m_order) {
        const HeadingArrow arrow = headingArrow(column);
        const char* sign = arrow == HeadingArrow::ascending    ? " ^"
                           : arrow == HeadingArrow::descending ? " v"
                                                               : "";
        area.text({left + 4, 3}, heading(column) + sign, SvgArea::ink);
        eachShownRow([&](int row, int top, bool selected) {
            area.text({left + 4, top + 2}, cellText(row, column),
                      selected ? SvgArea::paper : SvgArea::ink);
        });
        const int right = left + columnWidth(column);
        area.line({right, 0}, {right, area.height()}, {215, 215, 215});
        left = right;
    }
    area.frameOfField(focused());
}

}  // namespace lx
