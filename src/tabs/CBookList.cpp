#include "tabs/CBookList.h"

#include <utility>

#include "tabs/CNabidka.h"

namespace lx {

void CBookList::fill() {
    std::vector<ListRow> rows;
    int entry = 0;
    for (const Text& label : m_model.storedLabels()) {
        rows.push_back(listRow(label, m_model.storedSuits(entry++)));
    }
    m_list.fill(std::move(rows));
    m_list.select(m_model.shownStored());
}

void CBookList::refreshLooks() {
    refreshRow(0);
    refreshRow(m_model.shownStored());
}

void CBookList::refreshRow(int entry) {
    if (entry >= m_list.count()) return;
    const ListRow row = listRow(m_list.row(entry).text, m_model.storedSuits(entry));
    if (!(row == m_list.row(entry))) m_list.set(entry, row);
}

}  // namespace lx
