#include "tabs/CBookList.h"

#include "tabs/CNabidka.h"

namespace lx {

void CBookList::fill() {
    m_list.clear();
    int entry = 0;
    for (const Text& label : m_model.storedLabels()) {
        m_list.append(listRow(label, m_model.storedSuits(entry++)));
    }
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
