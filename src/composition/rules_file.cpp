#include "composition/rules_file.h"

#include <map>

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

// Thicknesses by their numbers in the index; of doubled numbers the first counts.
std::map<std::int32_t, std::int32_t> listedWalls(const Profile& rules) {
    std::map<std::int32_t, std::int32_t> walls;
    for (const ProfileEntry& entry : rules.entries(indexSection)) {
        const std::int32_t number = leadingInt(entry.key);
        if (entry.key != formatInt(number)) continue;
        walls.emplace(number, profileInt(entry.value.value_or(Text()), 0));
    }
    return walls;
}

// Walks the numbers that the file has, not all up to a count that may be anything.
std::int32_t sectionFor(const Profile& rules, std::int32_t wall) {
    const std::int32_t count = rules.readInt(indexSection, countKey, 0);
    std::int64_t expected = 1;
    for (const auto& [number, listed] : listedWalls(rules)) {
        if (number < 1) continue;
        if (number > count) break;
        // A number left out stands for a thickness of 0.
        if (number > expected && fits(0, wall)) break;
        if (fits(listed, wall)) return listed;
        expected = std::int64_t{number} + 1;
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
