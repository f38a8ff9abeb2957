#include "catalogue/merge.h"

#include <algorithm>
#include <bit>
#include <functional>
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

// The first item of each designation. One table serves one group after the other: what it needs is
// kept, and an entry costs no memory of its own.
class NameTable {
public:
    // Empty, with room for that many names.
    void reset(std::size_t names) { m_slots.assign(std::bit_ceil(2 * names + 1), nullptr); }
    // Where the item of that name is, or null to be filled.
    CPreklItem*& at(std::string_view name) {
        const std::size_t last = m_slots.size() - 1;
        std::size_t i = std::hash<std::string_view>()(name) & last;
        while (m_slots[i] && m_slots[i]->nameOrEmpty() != name) i = (i + 1) & last;
        return m_slots[i];
    }

private:
    std::vector<CPreklItem*> m_slots;  // a power of two, at most half of them filled
};

class Group {
public:
    explicit Group(Catalogue type)
        : m_type(std::move(type)), m_number(-std::int64_t{m_type->group}) {}

    std::int64_t number() const { return m_number; }
    std::string_view name() const { return m_type->nameOrEmpty(); }
    void append(Catalogue item) { m_items.push_back(std::move(item)); }
    // One at a time, in their order: what one adds the next one finds.
    void merge(std::vector<Group> supplied, NameTable& firstOfName);
    void renumber(std::int64_t number) { m_number = number; }
    // Puts the type and its items behind the end of a chain and answers the new end.
    Catalogue* moveTo(Catalogue* end);

private:
    Catalogue m_type;
    // 1 and up; one more than an item's group can hold when the type's is the lowest of all.
    std::int64_t m_number;
    std::vector<Catalogue> m_items;
};

void Group::merge(std::vector<Group> supplied, NameTable& firstOfName) {
    std::size_t most = m_items.size();
    for (const Group& group : supplied) most += group.m_items.size();
    firstOfName.reset(most);
    for (const Catalogue& item : m_items) {
        CPreklItem*& first = firstOfName.at(item->nameOrEmpty());
        if (!first) first = item.get();
    }
    for (Group& group : supplied) {
        for (Catalogue& item : group.m_items) {
            CPreklItem*& known = firstOfName.at(item->nameOrEmpty());
            if (known) {
                update(*known, *item);
            } else {
                known = item.get();
                m_items.push_back(std::move(item));
            }
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
    std::unordered_map<std::int64_t, std::size_t> byNumber;
    std::unordered_map<std::int64_t, std::vector<Catalogue>> early;  // standing before their type
    while (chain) {
        Catalogue rest = std::move(chain->next);
        if (chain->isType()) {
            Group group(std::move(chain));
            if (byNumber.try_emplace(group.number(), m_groups.size()).second) {
                for (Catalogue& item : early[group.number()]) group.append(std::move(item));
            }
            m_groups.push_back(std::move(group));
        } else if (const auto type = byNumber.find(chain->group); type != byNumber.end()) {
            m_groups[type->second].append(std::move(chain));
        } else {
            early[chain->group].push_back(std::move(chain));
        }
        chain = std::move(rest);
    }
}

void GroupTable::merge(GroupTable supplied) {
    std::unordered_map<std::string_view, std::size_t> byName;
    for (std::size_t i = 0; i < m_groups.size(); ++i) byName.try_emplace(m_groups[i].name(), i);
    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    std::vector<std::vector<Group>> updates(m_groups.size());
    for (Group& group : supplied.m_groups) {
        const auto [found, isNew] = byName.try_emplace(group.name(), m_groups.size());
        if (!isNew) {
            updates[found->second].push_back(std::move(group));
            continue;
        }
        const std::int64_t last = m_groups.empty() ? 0 : m_groups.back().number();
        group.renumber(std::min(last + 1, highest));
        m_groups.push_back(std::move(group));
        updates.emplace_back();
    }
    NameTable firstOfName;
    for (std::size_t i = 0; i < m_groups.size(); ++i) {
        if (!updates[i].empty()) m_groups[i].merge(std::move(updates[i]), firstOfName);
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
