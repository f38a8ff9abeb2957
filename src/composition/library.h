// The library file preklady.bk6: stored designs, each under a project id and a bubble label.
// Entries are only appended; a deleted one keeps its bytes and gets the project id -1.
#pragma once

#include <functional>
#include <vector>

#include "composition/records.h"
#include "platform/files.h"

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
// records that can be read and is the last; a length below 8 ends the reading.
LibraryRead loadLibrary(const Path& path, std::int32_t project, Files& files);

// True when an entry of that project and label holds the same design (compare gives 0, the given
// design first).
bool findStoredSame(const Path& path, std::int32_t project, std::string_view label,
                    const CRez& head, Files& files);

// Appends the finished entry in one write, then marks the older ones at the given places deleted.
// Before the append a torn tail is closed off where it stands, after keeping the file as .bak.
// False when the entry could not be appended; the file then reads as before. replaceLabel: entries
// of that project and label that were there before the append are marked deleted; empty marks none.
bool appendDesign(const Path& path, std::int32_t project, const CRez& head,
                  std::string_view replaceLabel, Files& files);

// Marks entries of the project with that label deleted, all of the project's when the label is
// empty. True when at least one was marked.
bool deleteEntries(const Path& path, std::int32_t project, std::string_view label, Files& files);

// Padded with blanks to at least 3 bytes.
Text paddedLabel(std::string_view label);

}  // namespace lx
