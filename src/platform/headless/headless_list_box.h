#pragma once

#include <vector>

#include "platform/headless/headless_control.h"

namespace lx {

class HeadlessListBox final : public HeadlessBase<ListBox> {
public:
    using HeadlessBase::HeadlessBase;
    void fill(std::vector<ListRow> rows) override;
    void insert(int index, const ListRow& row) override;
    void set(int index, const ListRow& row) override;
    void remove(int index) override;
    int count() const override { return static_cast<int>(m_rows.size()); }
    const ListRow& row(int index) const override;
    void select(int index) override;
    int selected() const override { return m_selected; }
    void setRowHeight(int pixels) override;
    int rowAt(Point p) const override;

    int rowHeight() const { return m_rowHeight; }
    int firstShownRow() const { return m_top; }
    void userSelect(int row);
    void userDoubleClick(int row);
    // -1 = below the last row.
    void userRightClick(int row);
    void userScroll(int row);

    void draw(SvgArea& area) const override;

protected:
    bool keyDown(const KeyEvent& event) override;
    bool character(char32_t character) override;
    bool wantsCharacters() const override { return true; }
    void areaChanged() override { scrollTo(m_selected); }

private:
    int shownRows() const;
    void scrollTo(int row);
    // Of a row that is scrolled out it lies outside.
    Point pointOf(int row) const;
    void choose(int row);
    void checkRow(int row) const;

    std::vector<ListRow> m_rows;
    int m_selected = -1;
    int m_top = 0;
    int m_rowHeight = 16;
};

}  // namespace lx
