#include "composition/rules_file.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "platform/numbers.h"

namespace lx {

namespace {

constexpr std::string_view indexSection = "INDEX";
constexpr std::string_view countKey = "COUNT";
constexpr std::string_view noRule = ".";
constexpr std::size_t ruleBuffer = 260;
constexpr std::int64_t wallTolerance = 11;  // mm
constexpr std::int32_t otherWalls = 0;      // section for walls that fit no listed thickness

bool fits(std::int64_t listed, std::int64_t wall) {
    return listed - wall <= wallTolerance && wall - listed <= wallTolerance;
}

// The numbers of an index, and whether their thicknesses fit; of doubled numbers the first counts.
// A file of any size needs little memory: doubled numbers are dropped again and again.
class ListedNumbers {
public:
    void add(std::int32_t number, bool fitting) {
        m_numbers.push_back(fitting ? number : -number);
        if (m_numbers.size() > m_most) m_most = std::max(m_most, 2 * inOrder().size());
    }
    // Those that do not fit are negative.
    const std::vector<std::int32_t>& inOrder() {
        const auto less = [](std::int32_t a, std::int32_t b) { return std::abs(a) < std::abs(b); };
        const auto same = [](std::int32_t a, std::int32_t b) { return std::abs(a) == std::abs(b); };
        std::stable_sort(m_numbers.begin(), m_numbers.end(), less);
        m_numbers.erase(std::unique(m_numbers.begin(), m_numbers.end(), same), m_numbers.end());
        return m_numbers;
    }

private:
    std::vector<std::int32_t> m_numbers;
    std::size_t m_most = 1000;
};

// Walks the numbers that the file has, not all up to a count that may be anything.
std::int32_t sectionFor(const Profile& rules, std::int32_t wall) {
    const std::int32_t count = rules.readInt(indexSection, countKey, 0);
    ListedNumbers numbers;
    rules.eachEntry(indexSection, [&](std::string_view key, std::optional<std::string_view> value) {
        const std::int32_t number = leadingInt(key);
        if (number < 1 || number > count || key != formatInt(number)) return;
        numbers.add(number, fits(profileInt(value.value_or(std::string_view()), 0), wall));
    });
    std::int64_t expected = 1;
    for (const std::int32_t number : numbers.inOrder()) {
        // A number left out stands for a thickness of 0.
        if (std::abs(number) > expected && fits(0, wall)) break;
        if (number > 0) return rules.readInt(indexSection, formatInt(number), 0);
        expected = std::abs(std::int64_t{number}) + 1;
    }
    return otherWalls;
}

}  // namespace

std::optional<Text> compositionRule(const Profile& rules, std::int32_t wall,
                                    std::string_view designation) {
    const Text section = formatInt(sectionFor(rules, wall));
    Text rule = rules.read(section, designation, noRule, ruleBuffer);
    if (rule == noRule) return std::nullopt;
    return rule;
}

}  // namespace lx
