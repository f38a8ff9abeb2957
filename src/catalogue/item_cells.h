// What the item list shows of a record: the columns of both catalogues, their headings and cells.
#pragma once

#include <span>

#include "catalogue/CPreklItem.h"

namespace lx {

// 9 columns for precast lintels, 6 for steel sections.
int itemColumnCount(CatalogueKind kind);
// Empty for a column that the kind has not, as is the cell.
std::string_view itemHeading(int column, CatalogueKind kind);
Text cellText(const CPreklItem& record, int column, CatalogueKind kind);

// Headings and these rows as text for the clipboard, in the order of the column numbers.
Text rowsAsText(std::span<const CPreklItem* const> records, CatalogueKind kind);

}  // namespace lx
