#include "design/properties_text.h"

#include "design/designation.h"
#include "design/opening.h"
#include "platform/numbers.h"
#include "resources/strings.h"

namespace lx {

namespace {

constexpr int wallText = 85;
constexpr int thicknessWord = 76;
constexpr int widthWord = 77;
constexpr int plainFormat = 86;
constexpr int letterFormat = 84;

bool isCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

Text filled(std::string_view designation, const CRez& element, double openingWidth,
            bool mayShowLetter) {
    const Text length = formatInt(element.length);
    const std::string_view sizeWord =
        str(element.kind == kind::insulation ? thicknessWord : widthWord);
    const Text width = formatInt(element.width);
    const Text height = formatInt(element.height);
    const Text bearing = formatInt(shownBearing(element.length, openingWidth));
    if (mayShowLetter && isCapital(element.letter)) {
        const std::string_view letter(&element.letter, 1);
        return fillIn(str(letterFormat),
                      {designation, letter, length, sizeWord, width, height, bearing});
    }
    return fillIn(str(plainFormat), {designation, length, sizeWord, width, height, bearing});
}

}  // namespace

Text propertiesOfRecord(const CRez* record, double openingWidth) {
    if (record == nullptr || record->isHead()) return Text(str(wallText));
    return filled(shownDesignation(*record), *record, openingWidth, true);
}

Text propertiesOfOffer(const CRez& element, double openingWidth, bool precast) {
    if (!element.name) return Text(texts::noName);
    return filled(*element.name, element, openingWidth, precast);
}

}  // namespace lx
