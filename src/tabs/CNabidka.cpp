#include "tabs/CNabidka.h"

#include <utility>

namespace lx {

namespace {

ListRow rowOf(const CRez& element, std::int32_t freeSpace) {
    return listRow(element.nameOrEmpty(), element.width <= freeSpace);
}

}  // namespace

ListRow listRow(std::string_view text, bool suitable) {
    ListRow row;
    row.text = Text(text.substr(0, listTextLimit));
    if (!suitable) row.textColor = unsuitableText;
    row.selectedBackground = listSelection;
    return row;
}

void CNabidka::fill(const Offer& offer, std::int32_t freeSpace) {
    std::vector<ListRow> rows;
    for (const CRez* element : offer.rows()) rows.push_back(rowOf(*element, freeSpace));
    m_list.fill(std::move(rows));
    m_list.select(offer.selected());
}

void CNabidka::refreshLooks(const Offer& offer, std::int32_t freeSpace) {
    for (int i = 0; i < offer.count() && i < m_list.count(); ++i) {
        const bool red = offer.row(i).width > freeSpace;
        if (m_list.row(i).textColor.has_value() != red) {
            m_list.set(i, rowOf(offer.row(i), freeSpace));
        }
    }
}

}  // namespace lx
