#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

#include "lxtool/catalogue_check.h"
#include "lxtool/catalogue_records.h"
#include "platform/numbers.h"
#include "settings/encoded_text.h"
#include "settings/profile.h"
#include "settings/profile_lines.h"

namespace lx::lxtool {

namespace {

constexpr std::size_t longestRule = 259;
constexpr std::size_t mostDigits = 9;
constexpr std::int64_t leastInsulation = 20;  // mm
constexpr std::string_view noRule = ".";
constexpr std::string_view otherWalls = "0";  // section of walls that no listed thickness fits

std::string lowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) {
        return static_cast<char>(lowerCase(static_cast<unsigned char>(c)));
    });
    return result;
}

// The width that items have in common.
struct CommonWidth {
    std::size_t items = 0;
    std::int32_t width = 0;
    bool differ = false;

    void add(std::int32_t one) {
        if (items++ == 0) width = one;
        differ = differ || one != width;
    }
    std::optional<std::int64_t> get() const {
        if (items == 0 || differ) return std::nullopt;
        return width;
    }
};

// The items of a designation: of several types they may differ.
struct Named {
    CommonWidth width;
    bool allX = true;
};

class RulesCheck {
public:
    RulesCheck(const CheckedCatalogue& catalogue, std::string_view name, std::string_view bytes,
               Findings& findings)
        : m_catalogue(catalogue), m_name(name), m_file(bytes), m_findings(findings) {}

    void run() {
        collectItems();
        collectWalls();
        std::set<std::string> seen;
        const char* section = nullptr;
        bool used = false;
        eachLine([&](std::string_view heading, const KeyLine& line, std::size_t number) {
            if (heading.data() != section) {
                section = heading.data();
                // Of doubled sections the first counts.
                used = seen.insert(lowered(heading)).second && isWall(heading);
                m_keys.clear();
            }
            if (used) checkLine(heading, line, number);
        });
        tellUnusedMarks();
    }

private:
    template <class Use>
    void eachLine(const Use& use) {
        const std::string_view text = m_file.text();
        std::size_t number = 1;
        std::size_t counted = 0;
        walkLines(text, [&](std::string_view heading, const KeyLine& line) {
            for (; counted < line.start; ++counted) {
                const bool pair =
                    text[counted] == '\r' && counted + 1 < text.size() && text[counted + 1] == '\n';
                if (text[counted] == '\n' || (text[counted] == '\r' && !pair)) ++number;
            }
            const bool comment = line.name.empty() || line.name.front() == ';';
            if (!comment && line.value) use(heading, line, number);
        });
    }

    void collectItems();
    void collectWalls();
    bool isWall(std::string_view section) const {
        return section == otherWalls || m_walls.contains(Text(section));
    }
    void checkLine(std::string_view section, const KeyLine& line, std::size_t number);
    // What the layers of the rule leave of the wall; none when their widths are not known.
    std::optional<std::int64_t> roomLeft(std::int64_t wall, std::string_view rule,
                                         const Named& chosen) const;
    void tellUnusedMarks();

    CommonWidth& marked(char mark) { return m_marks[static_cast<unsigned char>(mark)]; }
    const CommonWidth& marked(char mark) const { return m_marks[static_cast<unsigned char>(mark)]; }

    const CheckedCatalogue& m_catalogue;
    std::string_view m_name;
    EncodedText m_file;
    Findings& m_findings;
    std::unordered_map<std::string, Named> m_items;
    std::array<CommonWidth, 256> m_marks;
    std::array<std::size_t, 256> m_markLines{};
    std::array<bool, 256> m_used{};
    std::set<Text> m_walls;
    std::set<std::string> m_keys;  // of the section so far
};

bool isLetterOfItems(char c) {
    return c >= 'A' && c <= 'Z' && c != 'I' && c != 'M';
}

void RulesCheck::collectItems() {
    for (const IndexedRecord& item : m_catalogue.index.items) {
        CatalogueRecords records(m_catalogue.bytes.substr(item.position));
        records.next();
        const CPreklItem& record = records.record();
        Named& named = m_items[lowered(trimmedBlanks(item.name))];
        named.width.add(record.width);
        named.allX = named.allX && record.compositionMark == 'X';
        if (record.compositionMark == ' ') continue;
        CommonWidth& mark = marked(record.compositionMark);
        if (mark.items == 0) {
            m_markLines[static_cast<unsigned char>(record.compositionMark)] = item.line;
        }
        mark.add(record.width);
    }
}

void RulesCheck::collectWalls() {
    std::int32_t count = 0;
    std::map<std::int32_t, std::int32_t> listed;
    const char* first = nullptr;
    bool counted = false;
    eachLine([&](std::string_view heading, const KeyLine& line, std::size_t) {
        if (!equalIgnoringCase(heading, "INDEX")) return;
        if (first == nullptr) first = heading.data();
        if (heading.data() != first) return;
        const std::int32_t value = profileInt(*line.value, 0);
        if (equalIgnoringCase(line.name, "COUNT")) {
            if (!std::exchange(counted, true)) count = value;
            return;
        }
        const std::int32_t number = leadingInt(line.name);
        if (line.name == formatInt(number)) listed.emplace(number, value);
    });
    for (const auto& [number, wall] : listed) {
        if (number >= 1 && number <= count) m_walls.insert(formatInt(wall));
    }
}

void RulesCheck::checkLine(std::string_view section, const KeyLine& line, std::size_t number) {
    // Of doubled keys the first counts.
    if (!m_keys.insert(lowered(line.name)).second) return;
    std::string_view rule = *line.value;
    if (rule.size() > 1 && (rule.front() == '"' || rule.front() == '\'') &&
        rule.back() == rule.front()) {
        rule = rule.substr(1, rule.size() - 2);
    }
    rule = rule.substr(0, longestRule);
    if (rule == noRule) return;
    const std::string where =
        "the rule of " + inQuotes(toUtf8(line.name)) + " for the wall " + std::string(section);

    const auto chosen = m_items.find(lowered(line.name));
    if (chosen == m_items.end()) {
        m_findings.tell(
            Finding::ruleItem, m_name, number,
            where + " names no item; wanted is a designation of " + std::string(m_catalogue.name));
    }
    std::string lacking;
    for (const char c : rule) {
        if (!isLetterOfItems(c)) continue;
        m_used[static_cast<unsigned char>(c)] = true;
        if (marked(c).items == 0 && lacking.find(c) == std::string::npos) lacking += c;
    }
    if (!lacking.empty()) {
        m_findings.tell(Finding::ruleMark, m_name, number,
                        where + " has a letter that no item carries: " + lacking +
                            "; wanted is the mark of an item");
    }
    if (section == otherWalls || chosen == m_items.end() || !lacking.empty()) return;

    const std::int64_t wall = leadingInt(section);
    const std::optional<std::int64_t> room = roomLeft(wall, rule, chosen->second);
    if (!room) return;
    if (*room < 0) {
        m_findings.tell(Finding::ruleOver, m_name, number,
                        where + " is " + std::to_string(-*room) +
                            " mm wider than it; wanted are layers that fit");
    } else if (*room >= leastInsulation) {
        m_findings.tell(Finding::ruleGap, m_name, number,
                        where + " leaves " + std::to_string(*room) +
                            " mm of it; wanted are less than " + std::to_string(leastInsulation));
    }
}

std::optional<std::int64_t> RulesCheck::roomLeft(std::int64_t wall, std::string_view rule,
                                                 const Named& chosen) const {
    std::int64_t sum = 0;              // of the layers before the last
    std::optional<std::int64_t> last;  // the last layer's width, where it is known
    bool any = false;
    std::int64_t number = 0;
    std::size_t digits = 0;
    bool known = true;
    for (const char c : rule) {
        if (isDigit(c)) {
            if (digits++ < mostDigits) number = number * 10 + (c - '0');
        } else if (c == ']') {
            // Before the first layer it is the wall's.
            if (any) {
                last = number;
            } else {
                wall = number;
            }
            number = 0;
            digits = 0;
        } else if (c == '}') {
            number = 0;
            digits = 0;
        } else if (c >= 'A' && c <= 'Z') {
            known = known && (!any || last);
            sum += last.value_or(0);
            any = true;
            const bool asChosen = c == 'I' || c == 'M' || (c == 'X' && chosen.allX);
            last = asChosen ? chosen.width.get() : marked(c).get();
        }
    }
    if (!known || (any && !last)) return std::nullopt;
    return wall - sum - last.value_or(0);
}

void RulesCheck::tellUnusedMarks() {
    for (std::size_t byte = 0; byte < m_marks.size(); ++byte) {
        if (m_marks[byte].items == 0 || m_used[byte]) continue;
        const auto mark = static_cast<char>(byte);
        m_findings.tell(Finding::unusedMark, m_catalogue.name, m_markLines[byte],
                        "the mark " + inQuotes(toUtf8(std::string_view(&mark, 1))) + " of " +
                            std::to_string(m_marks[byte].items) +
                            " items from here on is used by no rule; wanted is a letter of " +
                            std::string(m_name));
    }
}

}  // namespace

void checkRules(const CheckedCatalogue& catalogue, std::string_view name, std::string_view bytes,
                Findings& findings) {
    RulesCheck(catalogue, name, bytes, findings).run();
}

}  // namespace lx::lxtool
