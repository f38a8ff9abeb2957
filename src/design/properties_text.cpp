#include "design/properties_text.h"

#include "design/designation.h"
#include "design/opening.h"
#include "platform/numbers.h"
#include "resources/strings.h"

namespace lx {

namespace {

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

Text propertiesOfRecord(const CRez* record, double openingWidth) {
    if (record == nullptr || record->isHead()) return Text(text::wall);
    return filled(shownDesignation(*record), *record, openingWidth, true);
}

Text propertiesOfOffer(const CRez& element, double openingWidth, bool precast) {
    if (!element.name) return Text(text::noName);
    return filled(*element.name, element, openingWidth, precast);
}

}  // namespace lx
