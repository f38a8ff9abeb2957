// List boxes, combo boxes, list views and tab controls alike: their rows, and where a user would
// click.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lx::host {

bool isList(HWND window);
int rowCountOf(HWND list);
// Cells of a list view are joined by " | ". The row must exist.
std::string rowTextOf(HWND list, int row);
// The row of that text, for a list view the row whose first cell or whole text it is; -1 = none.
int rowOf(HWND list, std::string_view text);
std::vector<int> selectedRowsOf(HWND list);
// Scrolls the row into view and answers a point in it, in client coordinates.
POINT pointInRow(HWND list, int row);
// None when the rows that are in view fill the list.
std::optional<POINT> pointBelowRows(HWND listView);

int columnCountOf(HWND listView);
// The heading's text without its arrow.
std::string headingText(HWND listView, int column);
// " ^" and " v" for the ascending and the descending arrow, "" without one.
std::string headingArrow(HWND listView, int column);
POINT pointInHeading(HWND listView, int column);
HWND headerOf(HWND listView);

}  // namespace lx::host
