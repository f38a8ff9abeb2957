// What the host is to draw with a lintel: the check boxes of the geometry page as the settings keep
// them and as the call's result values carry them, and the style of bubble and description with the
// rules of its dialog.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "settings/profile.h"

namespace lx {

struct Annotation {
    bool foldedSection = false;
    bool description = false;
    bool bubble = false;
    bool diagonals = false;
    bool operator==(const Annotation&) const = default;
};

// The bit set of the settings key DESCRIPTION; bits beyond the four are ignored.
Annotation annotationFromSetting(int bits);
int settingFrom(const Annotation& annotation);

// Result value A: what to insert. Bit 0 is always set.
int insertSet(const Annotation& annotation);
// Result value B: 1 with the folded section.
int foldedSectionResult(const Annotation& annotation);

inline constexpr std::string_view annotationColors[] = {"BYLAYER"_cz, "Červená"_cz,     "Žlutá"_cz,
                                                        "Zelená"_cz,  "Světlemodrá"_cz, "Modrá"_cz,
                                                        "Fialová"_cz, "Bílá"_cz};
inline constexpr std::string_view annotationHeights[] = {"1.8", "2.0", "2.5", "3.5",
                                                         "5.0", "7.0", "10.0"};

// Numbers are texts as the user typed them; only the edges are ever looked into.
struct AnnotationStyle {
    Text textStyle;
    int bubbleColor = 0;  // index of annotationColors, -1 = none
    int descriptionColor = 0;
    bool followsOpening = false;  // the bubble name is turned as the opening, else by bubbleAngle
    bool auxiliaryLine = false;   // the bubble has a line of lineLength
    bool hasEdges = false;        // the bubble is a polygon of that many edges, else a circle
    Text bubbleAngle;
    Text lineLength;
    Text bubbleHeight;
    Text descriptionHeight;
    Text bubbleWidthFactor;
    Text descriptionWidthFactor;
    Text diameter;
    Text edges;
    bool operator==(const AnnotationStyle&) const = default;
};

AnnotationStyle storedStyle(const Profile& settings);
// All values or, when the file cannot be written, none; that is not reported. Texts longer than
// their keys take are cut.
void storeStyle(Profile& settings, const AnnotationStyle& style);
// The text that refuses the style, empty when it may be stored. A polygon needs 3 edges, and the
// number is looked at also while it is not in use.
std::string_view styleRefusal(const AnnotationStyle& style);

// The text styles to choose from: those of the drawing, or a usual few when the host tells none.
std::vector<Text> textStyleChoices(std::vector<Text> ofDrawing);
// First entry that begins with the stored name, letter case ignored; -1 when none does.
int entryBeginningWith(std::span<const Text> entries, std::string_view name);

// Whether anything is to be inserted that is drawn in the style.
bool hasAnnotationStyle(const Annotation& inserted);

// What can be edited, by what is to be inserted and by the style's own check boxes. The text style
// always can.
struct UsableStyle {
    bool description = false;  // all of the description's values
    bool bubble = false;       // the bubble's, but for the next three
    bool lineLength = false;
    bool angle = false;
    bool edges = false;
    bool operator==(const UsableStyle&) const = default;
};
UsableStyle usableStyle(const Annotation& inserted, const AnnotationStyle& style);

}  // namespace lx
