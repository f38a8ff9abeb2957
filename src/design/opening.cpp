#include "design/opening.h"

#include <cstdlib>
#include <limits>

#include "platform/numbers.h"

namespace lx {

namespace {

constexpr int kindWithTwoWidths = 8;

constexpr int shapeLowered = 3;  // one bend, always downward
constexpr int shapeSloping = 4;
constexpr int shapeTwoStepsSloping = 5;

void addBend(CRez& head, double run, double step, bool flag) {
    head.addBend(truncateToInt(run), truncateToInt(step), flag);
}

constexpr double tolerance = 0.000001;  // mm

}  // namespace

std::int32_t wholeMillimetres(double length) {
    return truncateToInt(length + 0.9);
}

std::int32_t shownOpening(double width) {
    const std::int32_t whole = truncateToInt(width);
    const bool above = width - whole > 0.5;
    return above && whole < std::numeric_limits<std::int32_t>::max() ? whole + 1 : whole;
}

std::int64_t shownOpeningSize(double width) {
    return std::abs(std::int64_t{shownOpening(width)});
}

std::int32_t shownBearing(std::int32_t length, double openingWidth) {
    const std::int64_t both = std::int64_t{length} - shownOpening(openingWidth);
    return static_cast<std::int32_t>(both / 2);
}

std::unique_ptr<CRez> headFromCall(double openingWidth, double wallThickness, double level) {
    auto head = std::make_unique<CRez>();
    head->kind = Kind::head;
    head->width = wholeMillimetres(wallThickness);
    head->height = truncateToInt(level * 1000.0);
    head->length = wholeMillimetres(openingWidth);
    return head;
}

OpeningBlock emptyBlock() {
    OpeningBlock block{};
    block.headShape = -1;
    block.unread188 = -1;
    return block;
}

std::optional<OpeningBlock> blockInMillimetres(const OpeningBlock& block, int unitsPerMetre) {
    if (unitsPerMetre == 0) return std::nullopt;
    const int factor = 1000 / unitsPerMetre;
    OpeningBlock result = block;
    for (double* value : {&result.bend1Step, &result.bend1Run, &result.bend2Step, &result.bend2Run,
                          &result.bend3Step}) {
        *value *= factor;
    }
    return result;
}

void bendsFromBlock(CRez& head, const OpeningBlock& block) {
    head.bends.reset();
    switch (block.headShape) {
        case shapeSloping:
            addBend(head, block.bend1Run, block.bend1Step, false);
            addBend(head, block.bend2Run, block.bend2Step, true);
            return;
        case shapeTwoStepsSloping:
            addBend(head, block.bend1Run, block.bend1Step, false);
            addBend(head, block.bend2Run, block.bend2Step, false);
            addBend(head, block.bend2Step, block.bend3Step, true);
            return;
        default:
            break;
    }
    if (block.bend1Step == 0) return;
    const bool turn = block.headShape == shapeLowered && block.bend1Step > 0;
    addBend(head, block.bend1Run, turn ? -block.bend1Step : block.bend1Step, false);
    if (block.bend2Step != 0) addBend(head, block.bend2Run, block.bend2Step, false);
}

std::optional<double> widerOpening(const OpeningBlock& block) {
    if (block.openingKind != kindWithTwoWidths) return std::nullopt;
    if (!(block.width1 < block.width2)) return std::nullopt;
    return block.width2;
}

void settleOverhang(CRez& head, double openingWidth) {
    head.headBearing() = 0;
    if (head.next == nullptr) return;
    const std::int64_t bothEnds = head.next->length - shownOpeningSize(openingWidth);
    head.headBearing() = static_cast<std::int32_t>(bothEnds / 2);
}

bool overhangEditable(const CRez& head) {
    for (const CRez* record = &head; record != nullptr; record = record->next) {
        if (record->kind == Kind::precast && record->bearing == 0) return false;
    }
    return true;
}

bool suitsOpening(const CRez& head, double openingWidth) {
    const CRez* bearing = nullptr;
    for (const CRez* layer = head.next; layer != nullptr; layer = layer->next) {
        const std::string_view name = layer->nameOrEmpty();
        if (name == traits(Kind::monolith).name) return true;
        if (bearing == nullptr && name != traits(Kind::insulation).name) bearing = layer;
    }
    if (bearing == nullptr || bearing->maxOpening == 0) return true;
    return openingWidth - tolerance <= bearing->maxOpening;
}

}  // namespace lx
