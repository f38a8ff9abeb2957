#include "composition/library.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "composition/layout.h"
#include "composition/library_entries.h"
#include "composition/section_scale.h"
#include "composition/stored_form.h"

namespace lx {

using namespace library_entry;

namespace {

constexpr std::size_t smallestEntry = lengthField + header;  // bytes
constexpr std::size_t fewEnoughToOverwrite = 16;  // places; more are cheaper as one new file

using Positions = std::vector<std::size_t>;  // of project ids in the file

Bytes int32Bytes(std::int32_t value) {
    BinaryWriter writer;
    writer.int32(value);
    return writer.take();
}

struct Found {
    Positions positions;
    std::size_t tornStart = 0;  // the end of the file when nothing is torn
    bool torn = false;
    bool tornIsDeleted = false;  // as an ended program leaves it, who could not seal it
};

// Walks all entries: where the project ids of those of that project and label stand, of all of the
// project's without a label, and how the file ends.
Found findEntries(std::string_view bytes, std::int32_t project,
                  std::optional<std::string_view> label) {
    Found found;
    LibraryEntries entries(bytes);
    while (entries.next()) {
        const std::int32_t id = entries.project();
        found.tornIsDeleted = entries.torn() && id == deletedProject;
        if (id == project && id != deletedProject && (!label || entries.label() == *label)) {
            found.positions.push_back(entries.projectPosition());
        }
    }
    found.torn = entries.torn();
    found.tornStart = entries.tornStart();
    return found;
}

// True when at least one was marked.
bool markDeleted(const Path& path, const Positions& positions, Files& files) {
    const Bytes deleted = int32Bytes(deletedProject);
    if (positions.size() <= fewEnoughToOverwrite) {
        bool any = false;
        for (const std::size_t position : positions) {
            if (files.overwrite(path, position, deleted)) any = true;
        }
        return any;
    }
    FileRead file = files.read(path);
    for (const std::size_t position : positions) {
        if (position + deleted.size() > file.bytes.size()) return false;
        file.bytes.replace(position, deleted.size(), deleted);
    }
    return files.replace(path, file.bytes);
}

// A deleted entry, which its project id makes a valid one; empty when it is too long for its length
// field.
Bytes unsealedEntry(const CRez& head) {
    BinaryWriter design;
    writeDesign(&head, design);
    constexpr std::size_t longest = std::numeric_limits<std::int32_t>::max() - header;
    if (design.bytes().size() > longest) return {};
    Bytes label = paddedLabel(head.label());
    label.resize(labelField, '\0');
    BinaryWriter entry;
    entry.int32(static_cast<std::int32_t>(header + design.bytes().size()));
    entry.int32(deletedProject);
    entry.raw(label);
    entry.raw(design.bytes());
    return entry.take();
}

// How a torn tail becomes an entry of its own: what stands over its first bytes, and what must be
// appended behind it where it is too short even for that.
struct Closing {
    Bytes over;
    Bytes behind;
};

// A tail with a whole head stays that design, as far as it can be read; any other becomes a deleted
// entry.
bool holdsDesign(std::string_view tail) {
    if (tail.size() <= smallestEntry) return false;
    BinaryReader reader(tail.substr(smallestEntry));
    return readDesign(reader).headWhole;
}

Closing closing(std::string_view tail) {
    const std::size_t size = std::max(tail.size(), smallestEntry);
    BinaryWriter writer;
    writer.int32(static_cast<std::int32_t>(size - lengthField));
    if (!holdsDesign(tail)) writer.int32(deletedProject);
    Bytes start = writer.take();
    if (tail.size() >= smallestEntry) return {std::move(start), {}};
    start.resize(smallestEntry, '\0');
    return {start.substr(0, tail.size()), start.substr(tail.size())};
}

// Readers see the entry once it is whole.
bool appendEntry(const Path& path, std::int32_t project, const Bytes& before, const Bytes& entry,
                 Files& files) {
    const Bytes id = int32Bytes(project);
    return files.append(path, before + entry, {before.size() + lengthField, id});
}

bool appendBehindTornTail(const Path& path, std::string_view bytes, std::size_t tornStart,
                          std::int32_t project, const Bytes& entry, Files& files) {
    const std::size_t tailSize = bytes.size() - tornStart;
    if (tailSize > std::numeric_limits<std::int32_t>::max()) return false;
    const Closing closed = closing(bytes.substr(tornStart));
    if (!files.overwrite(path, tornStart, closed.over)) return false;
    if (appendEntry(path, project, closed.behind, entry, files)) return true;
    // What could not be taken away again behind the tail would be read as a part of it.
    if (files.read(path).bytes.size() == bytes.size()) {
        files.overwrite(path, tornStart, bytes.substr(tornStart, closed.over.size()));
    }
    return false;
}

std::size_t countOf(std::string_view bytes, std::int32_t project) {
    std::size_t count = 0;
    for (LibraryEntries entries(bytes); entries.next();) {
        if (entries.project() == project) ++count;
    }
    return count;
}

}  // namespace

Text paddedLabel(std::string_view label) {
    Text padded(label);
    if (padded.size() < labelLength) padded.resize(labelLength, ' ');
    return padded;
}

LibraryRead parseLibrary(std::string_view bytes, std::int32_t project) {
    LibraryRead result;
    result.opened = true;
    LibraryEntries entries(bytes);
    // Counted first: a list that grows by doubling would take three times its memory for a moment.
    result.entries.reserve(project == deletedProject ? 0 : countOf(bytes, project));
    while (entries.next()) {
        if (entries.project() != project || project == deletedProject) continue;
        BinaryReader reader(entries.design());
        DesignRead read = readDesign(reader);
        if (read.damaged || read.design.empty()) result.damaged = true;
        // Heads of a few bytes each would fill the memory with records that show nothing.
        if (read.design.empty() || (!read.headWhole && !entries.torn())) continue;
        result.entries.push_back({entries.label(), std::move(read.design)});
    }
    if (entries.torn()) result.damaged = true;
    return result;
}

LibraryRead loadLibrary(const Path& path, std::int32_t project, Files& files) {
    const FileRead file = files.read(path);
    if (file.status == ReadStatus::ok) return parseLibrary(file.bytes, project);
    LibraryRead result;
    result.missing = file.status == ReadStatus::missing;
    return result;
}

std::set<std::int32_t> storedProjects(const Path& path, Files& files) {
    const FileRead file = files.read(path);
    std::set<std::int32_t> projects;
    for (LibraryEntries entries(file.bytes); entries.next();) projects.insert(entries.project());
    projects.erase(deletedProject);
    return projects;
}

bool FindStoredSame(const Path& path, std::int32_t project, std::string_view label,
                    const CRez& head, Size preview, Files& files) {
    const FileRead file = files.read(path);
    if (project == deletedProject) return false;
    LibraryEntries entries(file.bytes);
    while (entries.next()) {
        if (entries.project() != project || entries.label() != label) continue;
        BinaryReader reader(entries.design());
        const RezChain stored = readDesign(reader).design;
        if (stored.head() != nullptr && hasFlaggedBend(*stored.head())) {
            layOut(*stored.head());
            settleSection(*stored.head(), preview);
        }
        if (compare(&head, stored.head()) == 0) return true;
    }
    return false;
}

bool appendDesign(const Path& path, std::int32_t project, const CRez& head,
                  std::string_view replaceLabel, Files& files) {
    if (project == deletedProject) return false;
    const FileRead file = files.read(path);
    const Bytes entry = unsealedEntry(head);
    if (file.status == ReadStatus::failed || entry.empty()) return false;

    const Found found = findEntries(file.bytes, project, replaceLabel);
    // A deleted tail is nobody's, and no reason to give up an earlier .bak.
    if (found.torn && !found.tornIsDeleted && !files.keepAsBackup(path)) return false;
    const bool appended =
        found.torn ? appendBehindTornTail(path, file.bytes, found.tornStart, project, entry, files)
                   : appendEntry(path, project, {}, entry, files);
    if (appended && !replaceLabel.empty()) markDeleted(path, found.positions, files);
    return appended;
}

bool deleteEntries(const Path& path, std::int32_t project, std::optional<std::string_view> label,
                   Files& files) {
    const FileRead file = files.read(path);
    const Positions positions = findEntries(file.bytes, project, label).positions;
    return !positions.empty() && markDeleted(path, positions, files);
}

}  // namespace lx
