#include "design/value_commit.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "composition/layout.h"
#include "composition/saturate.h"
#include "platform/numbers.h"
#include "resources/strings.h"

namespace lx {

namespace {

constexpr double highestLevel = 150.0;   // metres, and as much below
constexpr double levelSteps = 200.0001;  // steps per metre; the excess saves 0.005 from 0.00499...
constexpr std::int32_t levelStep = 5;    // mm

constexpr std::int32_t shortestBearing = 50;  // mm

// At least what every element needs that follows the opening.
std::int32_t neededBearing(const CRez& head, std::int32_t typed) {
    std::int64_t bearing = std::max(typed, shortestBearing);
    for (const CRez* layer = head.next; layer != nullptr; layer = layer->next) {
        if (layer->bearing == 0) continue;
        if (layer->maxOpening < head.length + 2 * bearing) {
            bearing = (layer->maxOpening + 2 * std::int64_t{layer->bearing} - head.length) / 2;
        }
        bearing = std::max(bearing, std::int64_t{layer->bearing});
    }
    return saturated(bearing);
}

// The lengths that follow the opening.
void setBearing(CRez& head, std::int32_t typed, double openingWidth) {
    head.headBearing() = neededBearing(head, typed);
    const double opening = std::abs(openingWidth);
    const std::int32_t length = truncateToInt(opening + 2.0 * head.headBearing());
    for (CRez* layer = head.next; layer != nullptr; layer = layer->next) {
        if (traits(layer->kind).followsBearing || layer->bearing != 0) layer->length = length;
    }
    head.length = truncateToInt(opening);
}

CommitAnswer refusal(std::string_view message, Text kept) {
    CommitAnswer answer;
    answer.message = message;
    answer.kept = std::move(kept);
    return answer;
}

CommitAnswer commitLevel(std::int32_t& level, std::string_view typed) {
    const auto value = levelFromText(typed);
    if (!value) return refusal(text::levelRefused, levelText(level));
    level = *value;
    CommitAnswer answer;
    answer.changed = true;
    return answer;
}

}  // namespace

std::optional<std::int32_t> levelFromText(std::string_view metres) {
    Text text(metres);
    std::replace(text.begin(), text.end(), ',', '.');
    const double value = leadingDouble(text);
    if (!(value >= -highestLevel && value <= highestLevel)) return std::nullopt;
    return truncateToInt(value * levelSteps) * levelStep;
}

Text levelText(std::int32_t millimetres) {
    return formatFixed(millimetres / 1000.0, 3);
}

CommitAnswer commitValue(DesignEdit design, const ValueEdit& edit, std::string_view typed,
                         double openingWidth) {
    std::int32_t* value = valueOf(design.chain, edit.target);
    if (edit.kind == edit_kind::none || value == nullptr || typed == edit.shown) return {};
    CRez& head = *design.chain.head();
    // A level below zero keeps its sign, although its place in the plan asks for none.
    if (value == &head.height) return commitLevel(head.height, typed);

    std::int32_t number = leadingInt(typed);
    if (edit.absoluteOnly) number = saturated(std::abs(std::int64_t{number}));
    if (edit.kind == edit_kind::specialWidth &&
        std::int64_t{freeSpace(head)} - number + *value < 0) {
        return refusal(text::widthRefused, formatInt(*value));
    }
    *value = number;
    CommitAnswer answer;
    answer.changed = true;
    if (value == &head.length) answer.precastOffer = answer.steelOffer = true;
    if (value == &head.headBearing()) {
        setBearing(head, number, openingWidth);
        answer.steelOffer = true;
    }
    return answer;
}

}  // namespace lx
