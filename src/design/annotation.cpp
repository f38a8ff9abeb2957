#include "design/annotation.h"

#include "settings/setting_keys.h"

namespace lx {

namespace {
// Result value A.
constexpr int insertLintel = 1;
constexpr int insertDescription = 2;
constexpr int insertBubble = 4;
constexpr int insertDiagonals = 8;
}  // namespace

Annotation annotationFromSetting(int bits) {
    return {(bits & settings::descriptionFoldedSection) != 0,
            (bits & settings::descriptionText) != 0, (bits & settings::descriptionBubble) != 0,
            (bits & settings::descriptionDiagonals) != 0};
}

int settingFrom(const Annotation& annotation) {
    return (annotation.foldedSection ? settings::descriptionFoldedSection : 0) |
           (annotation.description ? settings::descriptionText : 0) |
           (annotation.bubble ? settings::descriptionBubble : 0) |
           (annotation.diagonals ? settings::descriptionDiagonals : 0);
}

int insertSet(const Annotation& annotation) {
    return insertLintel | (annotation.description ? insertDescription : 0) |
           (annotation.bubble ? insertBubble : 0) | (annotation.diagonals ? insertDiagonals : 0);
}

int foldedSectionResult(const Annotation& annotation) {
    return annotation.foldedSection ? 1 : 0;
}

}  // namespace lx
