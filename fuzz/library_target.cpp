#include <algorithm>
#include <iterator>
#include <utility>

#include "composition/library.h"
#include "composition/library_entries.h"
#include "composition/stored_form.h"
#include "fuzz/targets.h"
#include "tests/support/designs.h"
#include "tests/support/memory_files.h"

namespace lx::fuzz {

namespace {

const Path path(libraryFileName);
constexpr std::int32_t stored = 1;
constexpr std::int32_t projects[] = {0, stored, 2};

// Label and bytes of each design.
using Designs = std::vector<Bytes>;

Designs designsOf(const MemoryFiles& files, std::int32_t project) {
    Designs designs;
    for (const LibraryEntry& entry : parseLibrary(files.content.at(path), project).entries) {
        designs.push_back(entry.label + designBytes(entry.design.head()));
    }
    return designs;
}

bool isTorn(std::string_view input) {
    LibraryEntries entries(input);
    while (entries.next()) {
    }
    return entries.torn();
}

// Closing a torn tail may reveal a design behind an impossible length, and drop one of which there
// is a piece of its head alone.
bool sameButForTail(Designs before, Designs now) {
    const std::size_t common = std::min(before.size(), now.size());
    if (std::max(before.size(), now.size()) > common + 1) return false;
    if (before.size() == now.size()) return before == now;
    before.resize(common);
    now.resize(common);
    return before == now;
}

}  // namespace

void readLibrary(std::string_view input) {
    MemoryFiles files;
    files.content[path] = input;
    const bool torn = isTorn(input);
    Designs before[std::size(projects)];
    for (const std::int32_t project : projects) before[project] = designsOf(files, project);

    const RezChain design = sampleDesign("Z", 333);
    FindStoredSame(path, stored, "A  ", *design.head(), {400, 300}, files);
    promise(appendDesign(path, stored, *design.head(), {}, files));
    for (const std::int32_t project : projects) {
        Designs now = designsOf(files, project);
        if (project == stored) {
            promise(!now.empty() && now.back() == "Z  " + designBytes(design.head()));
            now.pop_back();
        }
        promise(torn ? sameButForTail(before[project], now) : before[project] == now);
        before[project] = std::move(now);
    }
    promise(appendDesign(path, stored, *design.head(), "A  ", files));
    std::erase_if(before[stored], [](const Bytes& one) { return one.starts_with("A  "); });
    for (int times = 0; times < 2; ++times) {
        before[stored].push_back("Z  " + designBytes(design.head()));
    }
    for (const std::int32_t project : projects) {
        promise(designsOf(files, project) == before[project]);
    }
    promise(deleteEntries(path, stored, std::nullopt, files));
    promise(designsOf(files, stored).empty());
    promise(designsOf(files, 0) == before[0] && designsOf(files, 2) == before[2]);
}

}  // namespace lx::fuzz
