#include "catalogue/column_settings.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include "platform/numbers.h"

namespace lx {

namespace {

constexpr int narrowest = 10;
constexpr int widest = 1000;
constexpr int insteadOfTooWide = 100;

std::string_view sectionOf(CatalogueKind kind) {
    return kind == CatalogueKind::steel ? settings::steelColumns : settings::precastColumns;
}

Text numbered(std::string_view key, std::size_t number) {
    return Text(key) + formatInt(static_cast<std::int64_t>(number));
}

std::vector<int> naturalOrder(std::size_t columns) {
    std::vector<int> order(columns);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

int widthToStore(int width, int precastWidth) {
    if (width <= widest) return width;
    return precastWidth > widest ? insteadOfTooWide : std::max(precastWidth, narrowest);
}

}  // namespace

std::span<int> ColumnWidths::of(CatalogueKind kind) {
    if (kind == CatalogueKind::steel) return steel;
    return precast;
}

std::span<const int> ColumnWidths::of(CatalogueKind kind) const {
    if (kind == CatalogueKind::steel) return steel;
    return precast;
}

ColumnSettings loadColumnSettings(const Profile& profile, CatalogueKind kind,
                                  ColumnWidths& widths) {
    const std::string_view section = sectionOf(kind);
    const std::span<int> table = widths.of(kind);
    ColumnSettings result;
    for (std::size_t c = 0; c < table.size(); ++c) {
        const Text orderKey = numbered(settings::columnOrderKey, c);
        const Text widthKey = numbered(settings::columnWidthKey, c);
        result.order.push_back(profile.readInt(section, orderKey, 0));
        table[c] = std::max(profile.readInt(section, widthKey, table[c]), narrowest);
    }
    result.widths.assign(table.begin(), table.end());
    const std::vector<int> natural = naturalOrder(table.size());
    if (!std::is_permutation(natural.begin(), natural.end(), result.order.begin())) {
        result.order = natural;
    }
    result.type = std::max(profile.readInt(section, settings::typeSelectionKey, 0), 0);
    result.row = std::max(profile.readInt(section, settings::itemSelectionKey, 0), 0);
    return result;
}

bool saveColumnSettings(Profile& profile, CatalogueKind kind, const ColumnSettings& state,
                        const ColumnWidths& widths) {
    struct Value {
        Text key;
        Text text;
    };
    std::vector<Value> values;
    const auto add = [&values](Text key, int value) {
        values.push_back({std::move(key), formatInt(value)});
    };
    const std::size_t columns =
        std::min({widths.of(kind).size(), state.order.size(), state.widths.size()});
    for (std::size_t c = 0; c < columns; ++c) {
        add(numbered(settings::columnOrderKey, c), state.order[c]);
        add(numbered(settings::columnWidthKey, c),
            widthToStore(state.widths[c], widths.precast[c]));
    }
    add(Text(settings::typeSelectionKey), std::max(state.type, 0));
    add(Text(settings::itemSelectionKey), std::max(state.row, 0));

    std::vector<ProfileChange> changes;
    for (const Value& value : values) changes.push_back({sectionOf(kind), value.key, value.text});
    return profile.apply(changes);
}

}  // namespace lx
