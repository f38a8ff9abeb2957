#include <functional>

#include "composition/library.h"
#include "composition/stored_form.h"
#include "lxtool/library_commands.h"
#include "lxtool/library_folder.h"
#include "lxtool/progress.h"

namespace lx::lxtool {

namespace {

// Answers what stands in the new file for an entry, nothing for one that goes.
using Rewrite = std::function<std::string_view(const LibraryScan& entry)>;

// A library's bytes entry by entry as they become.
class RewrittenLibrary {
public:
    RewrittenLibrary(const Console& console, std::string_view work, std::string_view bytes,
                     Rewrite rewrite)
        : m_scan(bytes), m_rewrite(std::move(rewrite)), m_progress(console, work, bytes.size()) {}

    std::string_view next() {
        constexpr std::size_t pieceSize = 262144;
        m_piece.clear();
        while (m_piece.size() < pieceSize && m_scan.next()) {
            m_piece += m_rewrite(m_scan);
            m_progress.at(m_scan.position());
        }
        return m_piece;
    }

private:
    LibraryScan m_scan;
    Rewrite m_rewrite;
    Bytes m_piece;
    Progress m_progress;
};

// The entry of a damaged design with a head as far as it can be read; empty without.
Bytes mended(const LibraryScan& entry) {
    if (!entry.hasHeader() || entry.isDeleted()) return {};
    BinaryReader reader(entry.design());
    const DesignRead read = readDesign(reader);
    if (!read.headWhole) return {};
    BinaryWriter design;
    writeDesign(read.design.head(), design);
    BinaryWriter result;
    result.int32(static_cast<std::int32_t>(library_entry::header + design.bytes().size()));
    result.int32(entry.project());
    Bytes label = entry.label();
    label.resize(library_entry::labelField, '\0');
    result.raw(label);
    result.raw(design.bytes());
    return result.take();
}

// What became of a library's entries.
struct Repaired {
    std::size_t whole = 0;
    std::size_t inPart = 0;
    std::size_t leftOut = 0;
    std::string told;
};

bool repairDesigns(Session& session, LibraryFolder& library, Target& target) {
    Repaired result;
    Bytes entryNow;
    RewrittenLibrary rewritten(
        session.console, "repair", library.designs,
        [&](const LibraryScan& entry) -> std::string_view {
            const std::optional<std::string> damage = entry.damage();
            if (!damage) {
                ++result.whole;
                return entry.whole();
            }
            entryNow = mended(entry);
            ++(entryNow.empty() ? result.leftOut : result.inPart);
            result.told += library.designsName + ":" + std::to_string(entry.number()) + ": " +
                           *damage + (entryNow.empty() ? ": left out\n" : ": kept in part\n");
            return entryNow;
        });
    if (!target.write([&] { return std::optional(rewritten.next()); }, true)) return false;
    result.told += library.designsName + ": " + std::to_string(result.whole) + " as they were" +
                   ", " + std::to_string(result.inPart) + " in part, " +
                   std::to_string(result.leftOut) + " left out; the old file is " +
                   library.designsName + ".bak\n";
    return session.console.output(result.told);
}

bool repairProjects(Session& session, const LibraryFolder& library, Target& target) {
    const Bytes bytes = projectBytes(library.projects);
    std::string_view rest = bytes;
    if (!target.write([&rest] { return std::optional(std::exchange(rest, {})); }, true)) {
        return false;
    }
    return session.console.output(library.projectsName + ": " +
                                  counted(library.projects.projects.size(), "project") +
                                  "; the old file is " + library.projectsName + ".bak\n");
}

// Whether tell has nothing to tell of the bytes.
bool isWhole(Session& session, void (*tell)(Session&, std::string_view, std::string_view),
             std::string_view bytes) {
    const Console silent{session.console.input, session.console.output, [](std::string_view) {}};
    Session quiet{session.files, silent};
    tell(quiet, {}, bytes);
    return quiet.messages.count() == 0;
}

}  // namespace

Result checkLibrary(Session& session, const std::string& folder) {
    const std::optional<LibraryFolder> library = openLibrary(session, folder);
    return library && isWhole(session, *library) ? Result::done : Result::failed;
}

Result repairLibrary(Session& session, const std::string& folder) {
    HeldLibrary held(session, folder);
    std::optional<LibraryFolder> library = held.open(session, folder);
    if (!library) return Result::failed;
    const bool designsWhole = isWhole(session, &tellDesignDamage, library->designs);
    const bool projectsWhole = isWhole(session, &tellProjectDamage, library->projectFile);
    const bool done = (projectsWhole || repairProjects(session, *library, held.projects)) &&
                      (designsWhole || repairDesigns(session, *library, held.designs));
    return done ? Result::done : Result::failed;
}

Result compactLibrary(Session& session, const std::string& folder) {
    HeldLibrary held(session, folder);
    const std::optional<LibraryFolder> library = held.open(session, folder);
    if (!library) return Result::failed;
    std::size_t deleted = 0;
    std::size_t bytes = 0;
    for (LibraryScan scan(library->designs); scan.next();) {
        // A deleted one that is cut short is what a killed program leaves.
        if (scan.isDeleted()) {
            ++deleted;
            bytes += scan.whole().size();
        } else if (scan.torn() || !scan.hasHeader()) {
            session.messages.tell(library->designsName, scan.number(),
                                  *scan.damage() + "; lxtool library repair mends it");
            return Result::failed;
        }
    }
    RewrittenLibrary rewritten(session.console, "compact", library->designs,
                               [](const LibraryScan& entry) {
                                   return entry.isDeleted() ? std::string_view() : entry.whole();
                               });
    if (deleted > 0 && !held.designs.write([&] { return std::optional(rewritten.next()); })) {
        return Result::failed;
    }
    return session.console.output(library->designsName + ": " + counted(deleted, "deleted design") +
                                  " removed, " + counted(bytes, "byte") + "\n")
               ? Result::done
               : Result::failed;
}

}  // namespace lx::lxtool
