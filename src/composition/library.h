// The library file preklady.bk6: stored designs, each under a project id and a bubble label.
// Entries are only appended; a deleted one keeps its bytes and gets the project id -1.
#pragma once

#include <optional>
#include <set>
#include <vector>

#include "composition/CRez.h"
#include "platform/files.h"
#include "platform/geometry.h"

namespace lx {

inline constexpr std::string_view libraryFileName = "preklady.bk6";
inline constexpr std::int32_t deletedProject = -1;

struct LibraryEntry {
    Text label;  // as stored: padded with blanks to 3 bytes
    RezChain design;
};

struct LibraryRead {
    bool opened = false;   // false: no such file, or it cannot be read
    bool missing = false;  // not opened because there is no such file
    bool damaged = false;  // a torn or impossible entry was met
    std::vector<LibraryEntry> entries;
};

// The designs of one project in file order. An entry whose length runs past the end gives the
// records that can be read and is the last; one of 4 to 7 bytes, too short for a label, is passed
// over, and a length below 4 ends the reading.
// An entry without a head record is left out, and one that ends within it unless it is the torn
// last one. The id of deleted entries has none.
LibraryRead loadLibrary(const Path& path, std::int32_t project, Files& files);
LibraryRead parseLibrary(std::string_view bytes, std::int32_t project);

// True when an entry of that project and label holds the same design (compare gives 0, the given
// design first). The levels of layers on a sloping step depend on the preview of the program that
// stored them; they are taken as a preview of this size, in pixels, shows them.
bool FindStoredSame(const Path& path, std::int32_t project, std::string_view label,
                    const CRez& head, Size preview, Files& files);

// The projects that have entries.
std::set<std::int32_t> storedProjects(const Path& path, Files& files);

// Appends the entry, which readers see whole or not at all, then marks the entries of that project
// and replaceLabel that were there before it deleted (none when replaceLabel is empty). A torn tail
// is first closed off where it stands, after keeping the file as .bak unless it is a deleted
// entry's; it stays an entry of its project when it holds a whole head. False when the entry could
// not be appended; the file then reads as before. An older entry that could not be marked stays
// beside the new one.
bool appendDesign(const Path& path, std::int32_t project, const CRez& head,
                  std::string_view replaceLabel, Files& files);

// Marks entries of the project with that label deleted, which may be empty in a file from
// elsewhere; without a label all of the project's. True when at least one was marked. Their bytes
// stay in the file.
bool deleteEntries(const Path& path, std::int32_t project, std::optional<std::string_view> label,
                   Files& files);

// Padded with blanks to at least 3 bytes.
Text paddedLabel(std::string_view label);

}  // namespace lx
