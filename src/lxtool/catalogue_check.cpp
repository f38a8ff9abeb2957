#include "lxtool/catalogue_check.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <unordered_map>

#include "lxtool/catalogue_columns.h"
#include "lxtool/catalogue_records.h"
#include "platform/numbers.h"

namespace lx::lxtool {

namespace {

// What the fields of the item editor and of the name dialogs take.
constexpr std::size_t longestText = 50;  // letters
constexpr std::size_t longestWhole = 10;
constexpr std::size_t longestDecimal = 12;

class CatalogueCheck {
public:
    CatalogueCheck(const CheckedCatalogue& catalogue, Findings& findings)
        : m_catalogue(catalogue), m_findings(findings) {}

    void run() {
        for (std::size_t i = 0; i < types().size(); ++i) checkType(i);
        std::unordered_map<Name, std::size_t, HashOfName> lines;
        lines.reserve(m_catalogue.index.items.size());
        for (const IndexedRecord& item : m_catalogue.index.items) {
            checkPlace(item);
            const auto [first, isNew] = lines.try_emplace(Name{item.group, item.name}, item.line);
            if (!isNew) {
                tell(Finding::doubled, item,
                     "stands in line " + std::to_string(first->second) +
                         " already; wanted is each designation once in a type");
            }
            checkValues(item);
        }
    }

private:
    struct Name {
        std::int32_t group;
        std::string_view name;
        bool operator==(const Name&) const = default;
    };
    struct HashOfName {
        std::size_t operator()(const Name& one) const {
            constexpr std::size_t factor = 1000003;
            return std::hash<std::string_view>()(one.name) * factor +
                   static_cast<std::size_t>(one.group);
        }
    };

    const std::vector<IndexedRecord>& types() const { return m_catalogue.index.types; }
    void tell(Finding finding, const IndexedRecord& record, const std::string& what) {
        m_findings.tell(finding, m_catalogue.name, record.line,
                        inQuotes(toUtf8(record.name)) + " " + what);
    }

    void checkType(std::size_t place);
    void checkPlace(const IndexedRecord& item);
    void checkValues(const IndexedRecord& item);
    void checkSizes(const IndexedRecord& item, const CPreklItem& record);
    void checkTyped(const IndexedRecord& item, const CPreklItem& record);
    void checkText(const IndexedRecord& record, std::string_view column, std::string_view text);
    void checkDecimal(const IndexedRecord& item, std::string_view column, double value,
                      int decimals);

    const CheckedCatalogue& m_catalogue;
    Findings& m_findings;
};

void CatalogueCheck::checkType(std::size_t place) {
    const IndexedRecord& type = types()[place];
    const std::int64_t number = -std::int64_t{type.group};
    if (number != static_cast<std::int64_t>(place) + 1) {
        tell(Finding::typeNumber, type,
             "has the number " + std::to_string(number) +
                 "; wanted is its place among the types, " + std::to_string(place + 1));
    }
    checkText(type, "označení", type.name);
}

void CatalogueCheck::checkPlace(const IndexedRecord& item) {
    if (item.type == CatalogueIndex::noType) {
        tell(Finding::noType, item,
             "is of type " + std::to_string(item.group) + ", which is not there; wanted is 1 to " +
                 std::to_string(types().size()));
    } else if (types()[item.type].line > item.line) {
        tell(Finding::beforeType, item,
             "stands before its type; wanted is a line behind " +
                 std::to_string(types()[item.type].line));
    }
}

void CatalogueCheck::checkValues(const IndexedRecord& item) {
    CatalogueRecords records(m_catalogue.bytes.substr(item.position));
    records.next();
    checkSizes(item, records.record());
    checkTyped(item, records.record());
}

void CatalogueCheck::checkSizes(const IndexedRecord& item, const CPreklItem& record) {
    const bool precast = m_catalogue.kind != CatalogueKind::steel;
    std::string zero;
    const auto look = [&zero](std::string_view column, std::int32_t size) {
        if (size == 0) zero.append(zero.empty() ? "" : ", ").append(column);
    };
    if (precast) look("délka", record.length);
    look("šířka", record.width);
    look("výška", record.height);
    if (!zero.empty()) {
        tell(Finding::zeroSize, item, "has a size of 0: " + zero + "; wanted is one in mm");
    }
    // A lintel made to suit the opening has a negative length, and spans any.
    if (precast && record.length > 0 && record.maxOpening > record.length) {
        tell(Finding::wideOpening, item,
             "has a max_otvor of " + formatInt(record.maxOpening) +
                 ", which is over its length; wanted is at most " + formatInt(record.length));
    }
}

// What somebody at the item editor cannot have typed.
void CatalogueCheck::checkTyped(const IndexedRecord& item, const CPreklItem& record) {
    checkText(item, "označení", record.nameOrEmpty());
    if (record.description) checkText(item, "popis", *record.description);
    if (item.name.empty()) {
        tell(Finding::untypable, item, "has no designation, which the item editor asks for");
    }
    for (const FieldColumn& column : fieldColumns) {
        const auto whole = std::get_if<std::int32_t CPreklItem::*>(&column.field);
        if (!whole || formatInt(record.**whole).size() <= longestWhole) continue;
        tell(Finding::untypable, item,
             std::string(column.name) + " " + formatInt(record.**whole) +
                 " is longer than the item editor takes; wanted are " +
                 std::to_string(longestWhole) + " characters");
    }
    checkDecimal(item, "hmotnost", record.weight, weightDecimals);
    checkDecimal(item, "qu", record.qu, quDecimals);
    const auto mark = static_cast<unsigned char>(record.compositionMark);
    if (mark < 32 || mark == 255) {
        tell(Finding::untypable, item,
             "has the byte " + std::to_string(mark) +
                 " for a mark, which no key gives; wanted is a letter or nothing");
    }
}

void CatalogueCheck::checkText(const IndexedRecord& record, std::string_view column,
                               std::string_view text) {
    if (text.size() > longestText) {
        tell(Finding::untypable, record,
             "has a text of " + std::to_string(text.size()) + " letters in " + std::string(column) +
                 ", more than the editor takes; wanted are " + std::to_string(longestText));
    }
    const auto strange = [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 32 || byte == 255;
    };
    if (std::any_of(text.begin(), text.end(), strange)) {
        tell(
            Finding::untypable, record,
            "has a character in " + std::string(column) + " that no key gives; wanted are letters");
    }
}

void CatalogueCheck::checkDecimal(const IndexedRecord& item, std::string_view column, double value,
                                  int decimals) {
    const Text typed = formatFixed(value, decimals);
    const bool exact = std::isfinite(value) && leadingDouble(typed) == value;
    if (exact && typed.size() <= longestDecimal) return;
    tell(Finding::untypable, item,
         std::string(column) + " " + shownNumber(value, '.') +
             " is none that the item editor takes; wanted are " + std::to_string(decimals) +
             (decimals == 1 ? " decimal" : " decimals") + " and " + std::to_string(longestDecimal) +
             " characters");
}

}  // namespace

void checkCatalogue(const CheckedCatalogue& catalogue, Findings& findings) {
    CatalogueCheck(catalogue, findings).run();
}

}  // namespace lx::lxtool
