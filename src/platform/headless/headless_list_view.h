#pragma once

#include <set>
#include <vector>

#include "platform/headless/headless_control.h"

namespace lx {

class HeadlessListView final : public HeadlessBase<ListView> {
public:
    using HeadlessBase::HeadlessBase;
    void setColumns(const std::vector<ListColumn>& columns) override;
    int columnCount() const override { return static_cast<int>(m_columns.size()); }
    Text heading(int column) const override;
    int columnWidth(int column) const override;
    std::vector<int> columnOrder() const override { return m_order; }
    void setColumnOrder(const std::vector<int>& order) override;
    void setHeadingArrow(int column, HeadingArrow arrow) override;
    HeadingArrow headingArrow(int column) const override;
    void setRowCount(int count) override;
    int rowCount() const override { return m_count; }
    std::vector<int> selectedRows() const override { return {m_rows.begin(), m_rows.end()}; }
    void selectRows(const std::vector<int>& rows) override;
    void select(int row) override;
    int rowAt(Point p) const override;

    Text cellText(int row, int column) const { return cell ? cell(row, column) : Text(); }
    int firstShownRow() const { return m_top; }
    static constexpr int headerHeight = 20;
    static constexpr int rowHeight = 17;
    // ctrl adds or takes the row away, shift selects from the row clicked last.
    void userSelect(int row, bool ctrl = false, bool shift = false);
    // -1 = below the last row.
    void userDoubleClick(int row);
    void userRightClick(int row);
    void userScroll(int row);
    void userHeading(int column);
    void userSetColumnWidth(int column, int pixels);
    void userSetColumnOrder(const std::vector<int>& order);

    void draw(SvgArea& area) const override;

protected:
    bool keyDown(const KeyEvent& event) override;
    bool wantsCharacters() const override { return true; }
    void areaChanged() override { scrollTo(m_caret); }

private:
    int shownRows() const;
    void scrollTo(int row);
    // Of a row that is scrolled out it lies outside.
    Point pointOf(int row) const;
    void checkRow(int row) const;
    bool hasColumn(int column) const { return column >= 0 && column < columnCount(); }
    void checkColumn(int column) const;
    bool isPermutation(const std::vector<int>& order) const;
    // The user's new selection; fires when it is another one.
    void choose(std::set<int> rows, int caret);
    std::set<int> span(int a, int b) const;

    std::vector<ListColumn> m_columns;
    std::vector<int> m_order;
    std::vector<HeadingArrow> m_arrows;
    int m_count = 0;
    std::set<int> m_rows;
    int m_caret = -1;
    int m_anchor = -1;
    int m_top = 0;
};

}  // namespace lx
