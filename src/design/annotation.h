// What the host is to draw with a lintel: the four check boxes of the geometry page as the settings
// keep them and as the call's result values carry them.
#pragma once

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

}  // namespace lx
