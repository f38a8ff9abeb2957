#include "design/layer_texts.h"

#include <algorithm>

#include "composition/layout.h"
#include "design/opening.h"
#include "platform/numbers.h"
#include "resources/strings.h"

namespace lx {

namespace {

constexpr std::string_view sizeFormat = " %d/%d - dl.%d";
constexpr std::string_view lengthFormat = " - dl.%d";
constexpr std::string_view countFormat = "%d x ";
constexpr std::string_view lineEnd = "\r\n";

Text sizeSuffix(std::int32_t width, std::int64_t height, std::int32_t length) {
    return fillIn(sizeFormat, {formatInt(width), formatInt(height), formatInt(length)});
}

// Smallest of 0 and the levels after each bend, mm.
std::int64_t lowestLevel(const CZalom* bends) {
    std::int64_t lowest = 0;
    std::int64_t level = 0;
    for (const CZalom* bend = bends; bend != nullptr; bend = bend->next.get()) {
        level += bend->step;
        lowest = std::min(lowest, level);
    }
    return lowest;
}

// One line of the summary, without its count. A cast part reaches down to the lowest point of the
// head, that far below the head over it, mm.
Text layerLabel(const CRez& layer, std::int64_t downToLowest) {
    const Text label = shownDesignation(layer);
    switch (traits(layer.kind).summary) {
        case Summary::size:
            return label + sizeSuffix(layer.width, layer.height, layer.length);
        case Summary::sizeToLowest:
            return label + sizeSuffix(layer.width, layer.height + downToLowest, layer.length);
        case Summary::length:
            return label + fillIn(lengthFormat, {formatInt(layer.length)});
        case Summary::designation:
        case Summary::leftOut:
            break;
    }
    return label;
}

bool isCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

Text filled(std::string_view designation, const CRez& element, double openingWidth,
            bool mayShowLetter) {
    const Text length = formatInt(element.length);
    const std::string_view sizeWord = traits(element.kind).widthWord;
    const Text width = formatInt(element.width);
    const Text height = formatInt(element.height);
    const Text bearing = formatInt(shownBearing(element.length, openingWidth));
    if (mayShowLetter && isCapital(element.letter)) {
        const std::string_view letter(&element.letter, 1);
        return fillIn(text::propertiesWithLetter,
                      {designation, letter, length, sizeWord, width, height, bearing});
    }
    return fillIn(text::propertiesOfLayer, {designation, length, sizeWord, width, height, bearing});
}

}  // namespace

Text shownDesignation(const CRez& layer) {
    Text result(layer.nameOrEmpty());
    if (layer.bearing == 0) return result;
    const std::size_t place = result.find('?');
    if (place != Text::npos) result.replace(place, 1, formatInt(layer.length));
    return result;
}

Text descriptionSummary(const CRez& head) {
    // The lift of a layer on a sloping step depends on the size of the preview, so it does not
    // count: the description must not.
    const std::vector<std::int32_t> levels = levelsAbove(head);
    auto level = levels.begin();
    const std::int64_t lowest = lowestLevel(head.bends.get());
    Text summary;
    Text group;
    int count = 0;
    const auto closeGroup = [&] {
        if (count == 0) return;
        if (!summary.empty()) summary += lineEnd;
        summary += fillIn(countFormat, {formatInt(count)});
        summary += group;
    };
    for (const CRez* layer = head.next; layer != nullptr; layer = layer->next) {
        const std::int64_t downToLowest = *level++ - lowest;
        if (traits(layer->kind).summary == Summary::leftOut) continue;
        Text label = layerLabel(*layer, downToLowest);
        if (count > 0 && label == group) {
            ++count;
            continue;
        }
        closeGroup();
        group = std::move(label);
        count = 1;
    }
    closeGroup();
    return summary;
}

Text propertiesOfRecord(const CRez* record, double openingWidth) {
    if (record == nullptr || record->isHead()) return Text(text::wall);
    return filled(shownDesignation(*record), *record, openingWidth, true);
}

Text propertiesOfOffer(const CRez& element, double openingWidth, bool precast) {
    if (!element.name) return Text(text::noName);
    return filled(*element.name, element, openingWidth, precast);
}

}  // namespace lx
