#include "design/annotation.h"

#include <algorithm>
#include <iterator>

#include "platform/numbers.h"
#include "resources/strings.h"
#include "settings/setting_keys.h"

namespace lx {

namespace {

// Result value A.
constexpr int insertLintel = 1;
constexpr int insertDescription = 2;
constexpr int insertBubble = 4;
constexpr int insertDiagonals = 8;

constexpr std::string_view usualTextStyles[] = {"ROMANC", "ROMANS", "Standard", "TABULKY"};

constexpr int fewestEdges = 3;
// Bytes of the field in which the number of edges is looked for.
constexpr std::size_t edgesRead = 19;

// Most bytes that are stored.
constexpr std::size_t heightLimit = 14;
constexpr std::size_t numberLimit = 29;

int readNumber(const Profile& file, const settings::TextKey& key) {
    return leadingInt(file.read(key));
}

int readColor(const Profile& file, const settings::TextKey& key) {
    const int index = readNumber(file, key);
    return index >= 0 && index < static_cast<int>(std::size(annotationColors)) ? index : -1;
}

ProfileChange change(const settings::TextKey& key, std::string_view value) {
    return {key.section, key.key, value};
}

std::string_view flag(bool on) {
    return on ? "1" : "0";
}

std::string_view height(std::string_view text) {
    return text.substr(0, heightLimit);
}

std::string_view number(std::string_view text) {
    return text.substr(0, numberLimit);
}

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

AnnotationStyle storedStyle(const Profile& settings) {
    AnnotationStyle style;
    style.textStyle = settings.read(settings::textStyle);
    style.bubbleColor = readColor(settings, settings::bubbleColor);
    style.descriptionColor = readColor(settings, settings::descriptionColor);
    style.followsOpening = readNumber(settings, settings::turnedByAngle) == 0;
    style.auxiliaryLine = readNumber(settings, settings::auxiliaryLine) != 0;
    style.hasEdges = readNumber(settings, settings::outlineHasEdges) != 0;
    style.bubbleAngle = settings.read(settings::bubbleAngle);
    style.lineLength = settings.read(settings::auxiliaryLineLength);
    style.bubbleHeight = settings.read(settings::bubbleTextHeight);
    style.descriptionHeight = settings.read(settings::descriptionTextHeight);
    style.bubbleWidthFactor = settings.read(settings::bubbleWidthFactor);
    style.descriptionWidthFactor = settings.read(settings::descriptionWidthFactor);
    style.diameter = settings.read(settings::bubbleDiameter);
    style.edges = settings.read(settings::outlineEdges);
    return style;
}

void storeStyle(Profile& settings, const AnnotationStyle& style) {
    const Text bubbleColor = formatInt(style.bubbleColor);
    const Text descriptionColor = formatInt(style.descriptionColor);
    // In a new file the keys stand in this order.
    const ProfileChange changes[] = {
        change(settings::bubbleColor, bubbleColor),
        change(settings::descriptionColor, descriptionColor),
        change(settings::turnedByAngle, flag(!style.followsOpening)),
        change(settings::auxiliaryLine, flag(style.auxiliaryLine)),
        change(settings::bubbleAngle, number(style.bubbleAngle)),
        change(settings::auxiliaryLineLength, number(style.lineLength)),
        change(settings::bubbleTextHeight, height(style.bubbleHeight)),
        change(settings::descriptionTextHeight, height(style.descriptionHeight)),
        change(settings::outlineHasEdges, flag(style.hasEdges)),
        change(settings::bubbleWidthFactor, number(style.bubbleWidthFactor)),
        change(settings::descriptionWidthFactor, number(style.descriptionWidthFactor)),
        change(settings::bubbleDiameter, number(style.diameter)),
        change(settings::outlineEdges, number(style.edges)),
        change(settings::textStyle, style.textStyle)};
    settings.apply(changes);
}

std::string_view styleRefusal(const AnnotationStyle& style) {
    const bool tooFew = leadingInt(style.edges.substr(0, edgesRead)) < fewestEdges;
    return tooFew ? text::tooFewEdges : std::string_view();
}

std::vector<Text> textStyleChoices(std::vector<Text> ofDrawing) {
    if (!ofDrawing.empty()) return ofDrawing;
    return {std::begin(usualTextStyles), std::end(usualTextStyles)};
}

int entryBeginningWith(std::span<const Text> entries, std::string_view name) {
    const auto found = std::find_if(entries.begin(), entries.end(), [name](const Text& entry) {
        return equalIgnoringCase(std::string_view(entry).substr(0, name.size()), name);
    });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

bool hasAnnotationStyle(const Annotation& inserted) {
    return inserted.bubble || inserted.description;
}

UsableStyle usableStyle(const Annotation& inserted, const AnnotationStyle& style) {
    UsableStyle usable;
    usable.description = inserted.description;
    usable.bubble = inserted.bubble;
    usable.lineLength = inserted.bubble && style.auxiliaryLine;
    usable.angle = inserted.bubble && !style.followsOpening;
    usable.edges = inserted.bubble && style.hasEdges;
    return usable;
}

}  // namespace lx
