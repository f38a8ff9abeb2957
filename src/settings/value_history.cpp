#include "settings/value_history.h"

#include <algorithm>
#include <utility>

#include "platform/numbers.h"

namespace lx {

namespace {

constexpr std::string_view countKey = "nr";
constexpr std::size_t bufferSize = 1024;
// A number of values that no user has clicked together; a damaged "nr" is not believed beyond it.
constexpr std::int32_t mostValues = 10000;

}  // namespace

std::optional<ValueHistory::Values> ValueHistory::load() const {
    auto entries = m_profile.readableEntries(m_section);
    if (!entries) return std::nullopt;
    const auto nr = std::find_if(entries->begin(), entries->end(), [](const ProfileEntry& entry) {
        return equalIgnoringCase(entry.key, countKey);
    });
    const bool counted = nr != entries->end() && nr->value;
    const std::int32_t count = counted ? leadingInt(*nr->value) : 0;
    Values values(static_cast<std::size_t>(std::clamp(count, 0, mostValues)));
    // Backwards: of doubled keys the first one counts.
    for (auto entry = entries->rbegin(); entry != entries->rend(); ++entry) {
        const std::int32_t number = leadingInt(entry->key);
        if (number < 0 || static_cast<std::size_t>(number) >= values.size()) continue;
        if (entry->key != formatInt(number)) continue;
        std::optional<Text>& value = values[static_cast<std::size_t>(number)];
        value = std::move(entry->value);
        if (value) value->resize(std::min(value->size(), bufferSize - 1));
    }
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
    std::vector<ProfileChange> changes{{m_section, countKey, newCount}};
    for (std::size_t i = from; i < values.size(); ++i) {
        std::optional<std::string_view> next;
        if (i + 1 < values.size() && values[i + 1]) next = *values[i + 1];
        keys.push_back(formatInt(static_cast<std::int64_t>(i)));
        changes.push_back({m_section, keys.back(), next});
    }
    return m_profile.apply(changes);
}

}  // namespace lx
