// What is suspicious, under a name by which it can be silenced.
#pragma once

#include <set>
#include <span>
#include <string>

#include "lxtool/session.h"

namespace lx::lxtool {

enum class Finding {
    doubled,
    zeroSize,
    wideOpening,
    untypable,
    typeNumber,
    noType,
    beforeType,
    unusedMark,
    ruleItem,
    ruleMark,
    ruleGap,
    ruleOver
};

struct FindingName {
    std::string_view name;  // of the command line
    std::string_view meaning;
};
std::span<const FindingName> findingNames();

class Findings {
public:
    // ignored: names of findings that are not told.
    Findings(Session& session, const std::set<std::string>& ignored)
        : m_session(session), m_ignored(ignored) {}

    void tell(Finding finding, std::string_view file, std::size_t line, const std::string& what);
    std::size_t count() const { return m_count; }

private:
    Session& m_session;
    const std::set<std::string>& m_ignored;
    std::size_t m_count = 0;
};

}  // namespace lx::lxtool
