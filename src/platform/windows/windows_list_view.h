// The report list: a list view of the system that asks for its texts as rows are shown.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include "platform/windows/control_core.h"

namespace lx {

class WindowsListView final : public WindowsControl<ListView> {
public:
    using WindowsControl::WindowsControl;
    ~WindowsListView() override;

    void setColumns(const std::vector<ListColumn>& columns) override;
    int columnCount() const override { return static_cast<int>(m_columns.size()); }
    Text heading(int column) const override;
    int columnWidth(int column) const override;
    std::vector<int> columnOrder() const override;
    void setColumnOrder(const std::vector<int>& order) override;
    void setHeadingArrow(int column, HeadingArrow arrow) override;
    HeadingArrow headingArrow(int column) const override;
    void setRowCount(int count) override;
    int rowCount() const override { return m_rowCount; }
    std::vector<int> selectedRows() const override;
    void selectRows(const std::vector<int>& rows) override;
    void select(int row) override;
    int rowAt(Point p) const override;
    std::optional<LRESULT> notified(const NMHDR& header) override;

protected:
    WindowClass windowClass() const override;
    void attached() override;
    void keepState() override;
    void areaChanged() override;
    LRESULT message(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    struct Column {
        Text heading;
        int width = 0;
        HeadingArrow arrow = HeadingArrow::none;
    };

    bool hasColumn(int column) const { return column >= 0 && column < columnCount(); }
    HWND header() const { return reinterpret_cast<HWND>(send(LVM_GETHEADER)); }
    void showArrow(int column);
    void makeArrows();
    void setState(int row, UINT state, UINT mask);
    void paint();
    LRESULT paintEdge(WPARAM invalid);
    void giveText(NMLVDISPINFOW& request);
    void selectionMayHaveChanged();
    void reportSelection();
    void openContext(Point p);
    Point keyboardContextPoint() const;

    std::vector<Column> m_columns;
    std::vector<int> m_order;     // kept when the window is gone
    std::vector<int> m_selected;  // as last told or set
    int m_rowCount = 0;
    bool m_reportDue = false;
    HIMAGELIST m_arrows = nullptr;
};

}  // namespace lx
