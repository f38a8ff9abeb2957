#include "catalogue/merge.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace lx {

namespace {

void update(CPreklItem& item, CPreklItem& from) {
    item.length = from.length;
    item.width = from.width;
    item.height = from.height;
    item.maxOpening = from.maxOpening;
    item.weight = from.weight;
    item.qu = from.qu;
    item.description = std::move(from.description);
    item.compositionMark = from.compositionMark;
}

class Group {
public:
    explicit Group(Catalogue type)
        : m_type(std::move(type)), m_number(-std::int64_t{m_type->group}) {}

    std::int64_t number() const { return m_number; }
    std::string_view name() const { return m_type->nameOrEmpty(); }
    void append(Catalogue item) { m_items.push_back(std::move(item)); }
    void merge(Group supplied);
    void renumber(std::int64_t number) { m_number = number; }
    // Puts the type and its items behind the end of a chain and answers the new end.
    Catalogue* moveTo(Catalogue* end);

private:
    Catalogue m_type;
    // 1 and up; one more than an item's group can hold when the type's is the lowest of all.
    std::int64_t m_number;
    std::vector<Catalogue> m_items;
    // The first item of each designation; empty until a merge asks for it. The texts of a record do
    // not move while it is in a table, so their views stay good.
    std::unordered_map<std::string_view, CPreklItem*> m_byDesignation;
};

void Group::merge(Group supplied) {
    if (m_byDesignation.empty()) {
        m_byDesignation.reserve(m_items.size() + supplied.m_items.size());
        for (const Catalogue& item : m_items)
            m_byDesignation.try_emplace(item->nameOrEmpty(), item.get());
    }
    for (Catalogue& item : supplied.m_items) {
        const auto [found, isNew] = m_byDesignation.try_emplace(item->nameOrEmpty(), item.get());
        if (isNew) {
            m_items.push_back(std::move(item));
        } else {
            update(*found->second, *item);
        }
    }
}

Catalogue* Group::moveTo(Catalogue* end) {
    const auto put = [&end](Catalogue record) {
        *end = std::move(record);
        end = &(*end)->next;
    };
    auto type = std::make_unique<CPreklItem>();
    type->group = static_cast<std::int32_t>(-m_number);
    type->length = m_type->length;
    type->designation = std::move(m_type->designation);
    put(std::move(type));

    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    for (Catalogue& item : m_items) {
        item->group = static_cast<std::int32_t>(std::min(m_number, highest));
        put(std::move(item));
    }
    return end;
}

class GroupTable {
public:
    explicit GroupTable(Catalogue chain);
    void merge(GroupTable supplied);
    Catalogue takeChain();

private:
    std::vector<Group> m_groups;
};

// Of two types with one number the first has the items: given to both they would double with every
// merge.
GroupTable::GroupTable(Catalogue chain) {
    std::vector<Catalogue> items;
    std::unordered_map<std::int64_t, std::size_t> byNumber;
    while (chain) {
        Catalogue rest = std::move(chain->next);
        if (chain->isType()) {
            m_groups.emplace_back(std::move(chain));
            byNumber.try_emplace(m_groups.back().number(), m_groups.size() - 1);
        } else {
            items.push_back(std::move(chain));
        }
        chain = std::move(rest);
    }
    for (Catalogue& item : items) {
        const auto found = byNumber.find(item->group);
        if (found != byNumber.end()) m_groups[found->second].append(std::move(item));
    }
}

void GroupTable::merge(GroupTable supplied) {
    std::unordered_map<std::string_view, std::size_t> byName;
    for (std::size_t i = 0; i < m_groups.size(); ++i) byName.try_emplace(m_groups[i].name(), i);
    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    for (Group& group : supplied.m_groups) {
        const auto [found, isNew] = byName.try_emplace(group.name(), m_groups.size());
        if (!isNew) {
            m_groups[found->second].merge(std::move(group));
            continue;
        }
        const std::int64_t last = m_groups.empty() ? 0 : m_groups.back().number();
        group.renumber(std::min(last + 1, highest));
        m_groups.push_back(std::move(group));
    }
}

Catalogue GroupTable::takeChain() {
    Catalogue head;
    Catalogue* end = &head;
    for (Group& group : m_groups) end = group.moveTo(end);
    return head;
}

}  // namespace

Catalogue mergedCatalogue(Catalogue installed, Catalogue supplied) {
    GroupTable table(std::move(installed));
    table.merge(GroupTable(std::move(supplied)));
    return table.takeChain();
}

}  // namespace lx
