// The list box: an owner-drawn list of the system whose rows are kept here as data.
#pragma once

#include "platform/windows/control_core.h"

namespace lx {

class WindowsListBox final : public WindowsControl<ListBox> {
public:
    using WindowsControl::WindowsControl;
    ~WindowsListBox() override;
    void fill(std::vector<ListRow> rows) override;
    void insert(int index, const ListRow& row) override;
    void set(int index, const ListRow& row) override;
    void remove(int index) override;
    int count() const override { return static_cast<int>(m_rows.size()); }
    const ListRow& row(int index) const override;
    void select(int index) override;
    int selected() const override;
    void setRowHeight(int pixels) override;
    int rowAt(Point p) const override;
    void drawItem(const DRAWITEMSTRUCT& item) override;

protected:
    WindowClass windowClass() const override;
    void attached() override;
    void keepState() override { m_selected = selected(); }
    void command(WORD code) override;
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override;
    Text describe(DescribeQuestion question, const DescribeRequest& request) override;
    Text windowText() const override { return m_text; }

private:
    void addRows();
    void eraseBelowRows(HDC dc) const;
    void drawRow(HDC dc, const RECT& area, const ListRow& row, bool marked);
    Point contextPoint(LPARAM lParam) const;

    std::vector<ListRow> m_rows;
    int m_selected = -1;          // as last told or set
    int m_rowHeight = 0;          // 0 = what the font needs
    HFONT m_smallFont = nullptr;  // of rows that are too low for the dialog's font
};

}  // namespace lx
