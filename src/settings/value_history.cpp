#include "settings/value_history.h"

#include <algorithm>
#include <utility>

#include "platform/numbers.h"

namespace lx {

namespace {

constexpr std::string_view countKey = "nr";
constexpr std::size_t bufferSize = 1024;
// A number of values that no user has clicked together; a damaged "nr" is not believed beyond it.
constexpr std::int32_t mostValues = 200000;

}  // namespace

std::optional<ValueHistory::Values> ValueHistory::load() const {
    std::optional<std::int32_t> count;
    Values values;
    std::vector<bool> known;  // of doubled keys the first one counts
    const bool readable = m_profile.eachEntry(
        m_section, [&](std::string_view key, std::optional<std::string_view> value) {
            if (!count && equalIgnoringCase(key, countKey)) count = value ? leadingInt(*value) : 0;
            const std::int32_t number = leadingInt(key);
            if (number < 0 || number >= mostValues || key != formatInt(number)) return;
            const auto place = static_cast<std::size_t>(number);
            if (place >= values.size()) {
                values.resize(place + 1);
                known.resize(place + 1);
            }
            if (!known[place] && value) values[place] = Text(value->substr(0, bufferSize - 1));
            known[place] = true;
        });
    if (!readable) return std::nullopt;
    values.resize(static_cast<std::size_t>(std::clamp(count.value_or(0), 0, mostValues)));
    return values;
}

std::vector<Text> ValueHistory::shown() const {
    std::vector<Text> result;
    const std::optional<Values> values = load();
    if (!values) return result;
    for (const std::optional<Text>& value : *values) {
        if (!value || !value->starts_with('-')) result.push_back(value.value_or("0"));
    }
    return result;
}

bool ValueHistory::add(std::string_view value) {
    const std::optional<Values> values = load();
    if (!values) return false;
    const auto count = static_cast<std::int64_t>(values->size());
    const Text key = formatInt(count);
    const Text newCount = formatInt(count + 1);
    const ProfileChange changes[] = {{m_section, key, value}, {m_section, countKey, newCount}};
    return m_profile.apply(changes);
}

bool ValueHistory::remove(std::string_view value) {
    const std::optional<Values> loaded = load();
    if (!loaded) return false;
    const Values& values = *loaded;
    const auto found = std::find(values.begin(), values.end(), value);
    if (found == values.end()) return true;
    const std::size_t from = static_cast<std::size_t>(found - values.begin());
    const Text newCount = formatInt(static_cast<std::int64_t>(values.size()) - 1);
    std::vector<Text> keys;
    keys.reserve(values.size());
    std::vector<ProfileChange> changes;
    changes.reserve(values.size() - from + 1);
    changes.push_back({m_section, countKey, newCount});
    for (std::size_t i = from; i < values.size(); ++i) {
        std::optional<std::string_view> next;
        if (i + 1 < values.size() && values[i + 1]) next = *values[i + 1];
        keys.push_back(formatInt(static_cast<std::int64_t>(i)));
        changes.push_back({m_section, keys.back(), next});
    }
    return m_profile.apply(changes);
}

}  // namespace lx
