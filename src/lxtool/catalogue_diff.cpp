#include "lxtool/catalogue_diff.h"

#include <bit>
#include <functional>
#include <unordered_map>

#include "lxtool/catalogue_columns.h"
#include "lxtool/catalogue_records.h"

namespace lx::lxtool {

namespace {

// A name within a type, or among the types, and how many of that name stood before it.
struct Key {
    std::size_t within;
    std::string_view name;
    std::size_t earlier;

    bool operator==(const Key&) const = default;
};
struct HashOfKey {
    std::size_t operator()(const Key& key) const {
        constexpr std::size_t factor = 1000003;
        return (std::hash<std::string_view>()(key.name) * factor + key.within) * factor +
               key.earlier;
    }
};
template <class Value>
using ByKey = std::unordered_map<Key, Value, HashOfKey>;

// Gives every record a key of its own.
class Keys {
public:
    explicit Keys(std::size_t records) { m_count.reserve(records); }
    Key take(std::size_t within, std::string_view name) {
        return {within, name, m_count[{within, name, 0}]++};
    }

private:
    ByKey<std::size_t> m_count;
};

constexpr std::size_t amongTypes = 0;

class Differences {
public:
    Differences(const ComparedCatalogue& before, const ComparedCatalogue& after)
        : m_before(before), m_after(after) {}

    std::string all() {
        // Types of both have numbers that are the same where they are; 0 is that of no type.
        std::vector<std::size_t> numbersBefore;
        std::vector<std::size_t> numbersAfter;
        compare(m_before.index.types, m_after.index.types, "type ", amongTypesAll(),
                amongTypesAll(), &numbersBefore, &numbersAfter);
        const auto within = [](const std::vector<std::size_t>& numbers) {
            return [&numbers](const IndexedRecord& item) {
                return item.type == CatalogueIndex::noType ? 0 : numbers[item.type];
            };
        };
        compare(m_before.index.items, m_after.index.items, "item ", within(numbersBefore),
                within(numbersAfter), nullptr, nullptr);
        if (m_lines.empty() && m_removed.empty()) return {};
        return m_lines + m_removed + std::to_string(m_addedCount) + " added, " +
               std::to_string(m_changedCount) + " changed, " + std::to_string(m_removedCount) +
               " removed\n";
    }

private:
    using Within = std::function<std::size_t(const IndexedRecord&)>;
    using Records = std::vector<IndexedRecord>;
    using Numbers = std::vector<std::size_t>*;

    static Within amongTypesAll() {
        return [](const IndexedRecord&) { return amongTypes; };
    }

    void compare(const Records& before, const Records& after, std::string_view what,
                 const Within& withinBefore, const Within& withinAfter, Numbers numbersBefore,
                 Numbers numbersAfter);
    void compareFields(const IndexedRecord& before, const IndexedRecord& after,
                       std::string_view what);
    std::string nameOf(const ComparedCatalogue& in, const IndexedRecord& record,
                       std::string_view what) const;
    static std::string lineOf(const ComparedCatalogue& in, const IndexedRecord& record) {
        return std::string(in.name) + ":" + std::to_string(record.line) + ": ";
    }

    const ComparedCatalogue& m_before;
    const ComparedCatalogue& m_after;
    std::string m_lines;
    std::string m_removed;
    std::size_t m_addedCount = 0;
    std::size_t m_changedCount = 0;
    std::size_t m_removedCount = 0;
};

void Differences::compare(const Records& before, const Records& after, std::string_view what,
                          const Within& withinBefore, const Within& withinAfter,
                          Numbers numbersBefore, Numbers numbersAfter) {
    ByKey<std::size_t> places;
    places.reserve(before.size());
    Keys keysBefore(before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        places.emplace(keysBefore.take(withinBefore(before[i]), before[i].name), i);
        if (numbersBefore) numbersBefore->push_back(i + 1);
    }
    std::vector<bool> found(before.size());
    Keys keysAfter(after.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        const auto place = places.find(keysAfter.take(withinAfter(after[i]), after[i].name));
        const bool isNew = place == places.end();
        if (numbersAfter) {
            numbersAfter->push_back(isNew ? before.size() + i + 1 : place->second + 1);
        }
        if (isNew) {
            ++m_addedCount;
            m_lines +=
                lineOf(m_after, after[i]) + "added " + nameOf(m_after, after[i], what) + "\n";
        } else {
            found[place->second] = true;
            compareFields(before[place->second], after[i], what);
        }
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (found[i]) continue;
        ++m_removedCount;
        m_removed +=
            lineOf(m_before, before[i]) + "removed " + nameOf(m_before, before[i], what) + "\n";
    }
}

std::string Differences::nameOf(const ComparedCatalogue& in, const IndexedRecord& record,
                                std::string_view what) const {
    std::string name(what);
    name += inQuotes(toUtf8(record.name));
    if (record.group < 0) return name;
    if (record.type == CatalogueIndex::noType) return name + " of no type";
    return name + " of type " + inQuotes(toUtf8(in.index.types[record.type].name));
}

bool sameValue(std::int32_t a, std::int32_t b) {
    return a == b;
}
bool sameValue(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}
bool sameValue(const std::optional<Text>& a, const std::optional<Text>& b) {
    return a == b;
}
bool sameValue(char a, char b) {
    return a == b;
}

void Differences::compareFields(const IndexedRecord& before, const IndexedRecord& after,
                                std::string_view what) {
    CatalogueRecords one(m_before.bytes.substr(before.position));
    CatalogueRecords other(m_after.bytes.substr(after.position));
    one.next();
    other.next();
    std::string fields;
    for (const FieldColumn& column : fieldColumns) {
        const bool same = std::visit(
            [&](auto field) { return sameValue(one.record().*field, other.record().*field); },
            column.field);
        if (same) continue;
        const auto shown = [&column](const CPreklItem& record) {
            const std::string cell = shownField(record, column.field, '.');
            return isNumber(column.field) ? cell : inQuotes(cell);
        };
        fields.append(fields.empty() ? ": " : ", ").append(column.name).append(" ");
        fields.append(shown(one.record())).append(" -> ").append(shown(other.record()));
    }
    if (fields.empty()) return;
    ++m_changedCount;
    m_lines += lineOf(m_after, after) + "changed " + nameOf(m_after, after, what) + fields + "\n";
}

}  // namespace

std::string differencesOf(const ComparedCatalogue& before, const ComparedCatalogue& after) {
    return Differences(before, after).all();
}

}  // namespace lx::lxtool
