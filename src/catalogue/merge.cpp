#include "catalogue/merge.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace lx {

namespace {

// Of the same designation. The group is told anew behind.
void update(CPreklItem& item, CPreklItem& from) {
    CPreklItem::eachField([](const char*, auto& to, auto& value) { to = std::move(value); }, item,
                          from);
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

// A type and its items.
struct Group {
    Catalogue type;
    std::vector<Catalogue> items;

    std::string_view name() const { return type->nameOrEmpty(); }
    // One at a time, in their order: what one adds the next one finds.
    void merge(std::vector<Group> supplied, NameTable& firstOfName);
};
using Groups = std::vector<Group>;

void Group::merge(std::vector<Group> supplied, NameTable& firstOfName) {
    std::size_t most = items.size();
    for (const Group& group : supplied) most += group.items.size();
    firstOfName.reset(most);
    for (const Catalogue& item : items) {
        CPreklItem*& first = firstOfName.at(item->nameOrEmpty());
        if (!first) first = item.get();
    }
    for (Group& group : supplied) {
        for (Catalogue& item : group.items) {
            CPreklItem*& known = firstOfName.at(item->nameOrEmpty());
            if (known) {
                update(*known, *item);
            } else {
                known = item.get();
                items.push_back(std::move(item));
            }
        }
    }
}

// A type's number is its position, whatever its record says, as where the user sees its items.
Groups groupsOf(Catalogue chain) {
    std::size_t types = 0;
    for (const CPreklItem* record = chain.get(); record; record = record->next.get()) {
        if (record->isType()) ++types;
    }
    Groups groups(types);
    auto next = groups.begin();
    while (chain) {
        Catalogue rest = std::move(chain->next);
        const auto number = static_cast<std::size_t>(std::max(chain->group, 0));
        if (chain->isType()) {
            (next++)->type = std::move(chain);
        } else if (number >= 1 && number <= types) {
            groups[number - 1].items.push_back(std::move(chain));
        }
        chain = std::move(rest);
    }
    return groups;
}

void merge(Groups& groups, Groups supplied) {
    std::unordered_map<std::string_view, std::size_t> byName;
    for (std::size_t i = 0; i < groups.size(); ++i) byName.try_emplace(groups[i].name(), i);
    std::vector<Groups> updates(groups.size());
    for (Group& group : supplied) {
        const auto [found, isNew] = byName.try_emplace(group.name(), groups.size());
        if (isNew) {
            groups.push_back(std::move(group));
            updates.emplace_back();
        } else {
            updates[found->second].push_back(std::move(group));
        }
    }
    NameTable firstOfName;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (!updates[i].empty()) groups[i].merge(std::move(updates[i]), firstOfName);
    }
}

// Each type followed by its items, all under their numbers.
Catalogue chainOf(Groups groups) {
    Catalogue head;
    Catalogue* end = &head;
    const auto put = [&end](Catalogue record) {
        *end = std::move(record);
        end = &(*end)->next;
    };
    std::int32_t number = 0;
    for (Group& group : groups) {
        auto type = std::make_unique<CPreklItem>();
        type->group = -++number;
        type->length = group.type->length;
        type->designation = std::move(group.type->designation);
        put(std::move(type));
        for (Catalogue& item : group.items) {
            item->group = number;
            put(std::move(item));
        }
    }
    return head;
}

}  // namespace

Catalogue mergedCatalogue(Catalogue installed, Catalogue supplied) {
    Groups groups = groupsOf(std::move(installed));
    merge(groups, groupsOf(std::move(supplied)));
    return chainOf(std::move(groups));
}

}  // namespace lx
