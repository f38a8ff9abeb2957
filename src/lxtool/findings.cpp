#include "lxtool/findings.h"

namespace lx::lxtool {

namespace {

// In the order of their enumeration.
constexpr FindingName names[] = {
    {"doubled", "a designation stands twice in a type"},
    {"zero-size", "a size is 0"},
    {"wide-opening", "max_otvor is over the length"},
    {"untypable", "a value that the item editor could not have typed"},
    {"type-number", "the number of a type is not its position"},
    {"no-type", "an item of no type"},
    {"before-type", "an item stands before its type"},
    {"unused-mark", "a letter that no rule uses"},
    {"rule-item", "a rule names no item"},
    {"rule-mark", "a rule has a letter that no item carries"},
    {"rule-gap", "a rule leaves 20 mm or more of its wall"},
    {"rule-over", "a rule is wider than its wall"},
};

}  // namespace

std::span<const FindingName> findingNames() {
    return names;
}

void Findings::tell(Finding finding, std::string_view file, std::size_t line,
                    const std::string& what) {
    const std::string_view name = names[static_cast<std::size_t>(finding)].name;
    if (m_ignored.contains(std::string(name))) return;
    ++m_count;
    m_session.messages.tell(file, line, what + " [" + std::string(name) + "]");
}

}  // namespace lx::lxtool
