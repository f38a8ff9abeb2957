// List boxes and list views.
#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/headless/headless_platform.h"
#include "platform/numbers.h"

namespace lx {

namespace {

// The edges of a list's window.
constexpr int edge = 2;

// Where a key of a list moves the caret to; current may be -1.
int rowAfterKey(int key, int current, int count, int page) {
    switch (key) {
        case key::up:
            return std::max(0, current - 1);
        case key::down:
            return std::min(count - 1, current + 1);
        case key::pageUp:
            return std::max(0, current - page);
        case key::pageDown:
            return std::min(count - 1, current + page);
        case key::home:
            return 0;
        case key::end:
            return count - 1;
        default:
            return -1;
    }
}

bool isContextKey(const KeyEvent& event) {
    return event.key == key::apps || (event.key == key::f10 && event.shift);
}

// The first row to show so that the row is seen.
int scrolled(int top, int row, int shown) {
    if (row < 0) return top;
    if (row < top) return row;
    return row >= top + shown ? row - shown + 1 : top;
}

}  // namespace

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
    if (p.x < 0 || p.y < 0 || p.x >= m_area.width() - 2 * edge ||
        p.y >= m_area.height() - 2 * edge) {
        return -1;
    }
    const int row = m_top + p.y / m_rowHeight;
    return row < count() ? row : -1;
}

int HeadlessListBox::shownRows() const {
    return std::max(1, (m_area.height() - 2 * edge) / m_rowHeight);
}

void HeadlessListBox::scrollTo(int row) {
    m_top = scrolled(m_top, row, shownRows());
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

// ---- list views

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
    if (p.x < 0 || p.y < headerHeight || p.x >= m_area.width() - 2 * edge ||
        p.y >= m_area.height() - 2 * edge) {
        return -1;
    }
    const int row = m_top + (p.y - headerHeight) / rowHeight;
    return row < m_count ? row : -1;
}

int HeadlessListView::shownRows() const {
    return std::max(1, (m_area.height() - 2 * edge - headerHeight) / rowHeight);
}

void HeadlessListView::scrollTo(int row) {
    m_top = scrolled(m_top, row, shownRows());
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

}  // namespace lx
