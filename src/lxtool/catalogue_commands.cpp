#include "lxtool/catalogue_commands.h"

#include <utility>

#include "catalogue/catalogue_file.h"
#include "catalogue/merge.h"
#include "lxtool/catalogue_check.h"
#include "lxtool/catalogue_diff.h"
#include "lxtool/target.h"
#include "platform/binary.h"

namespace lx::lxtool {

namespace {

bool sameFile(Session& session, const std::string& one, const std::string& other) {
    if (one == standardStream || other == standardStream) return false;
    const std::optional<Path> first = systemPath(one);
    const std::optional<Path> second = systemPath(other);
    return first && second && session.files.same(*first, *second);
}

Result resultOf(bool done) {
    return done ? Result::done : Result::failed;
}

// Everything goes through Work, which must be one that is begun anew by its arguments.
template <class Work, class... Arguments>
bool writeAll(Target& target, bool keepOld, Arguments&&... arguments) {
    if (target.isStream()) {
        // What has gone out cannot be taken back.
        Work trial(arguments...);
        for (;;) {
            const std::optional<std::string_view> piece = trial.next();
            if (!piece) return false;
            if (piece->empty()) break;
        }
    }
    Work work(arguments...);
    return target.write([&work] { return work.next(); }, keepOld);
}

// The bytes of a chain's file piece by piece.
class ChainBytes {
public:
    explicit ChainBytes(const CPreklItem* head) : m_record(head) {}

    std::string_view next() {
        constexpr std::size_t pieceSize = 262144;
        m_piece.clear();
        for (; m_record && m_piece.bytes().size() < pieceSize; m_record = m_record->next.get()) {
            m_record->writeRecord(m_piece);
        }
        return m_piece.bytes();
    }

private:
    const CPreklItem* m_record;
    BinaryWriter m_piece;
};

Bytes allBytes(const CPreklItem* head) {
    Bytes all;
    ChainBytes chain(head);
    for (std::string_view piece = chain.next(); !piece.empty(); piece = chain.next()) all += piece;
    return all;
}

bool writeOutput(Session& session, std::string_view text) {
    if (text.empty() || session.console.output(text)) return true;
    session.messages.tell(standardStream, "standard output cannot be written");
    return false;
}

}  // namespace

Result checkCatalogues(Session& session, const std::vector<NamedCatalogue>& catalogues,
                       const std::string& rules, const std::set<std::string>& ignored) {
    std::optional<Bytes> rulesBytes;
    if (!rules.empty()) {
        rulesBytes = readInput(session, rules);
        if (!rulesBytes) return Result::failed;
    }
    Findings findings(session, ignored);
    bool whole = true;
    for (const NamedCatalogue& named : catalogues) {
        const std::optional<Bytes> bytes = readInput(session, named.name);
        const auto index =
            bytes ? indexOf(session, named.name, *bytes) : std::optional<CatalogueIndex>();
        whole = whole && index;
        if (!index) continue;
        const CheckedCatalogue checked{named.name, *bytes, named.kind, *index};
        checkCatalogue(checked, findings);
        if (rulesBytes && named.kind != CatalogueKind::steel) {
            checkRules(checked, rules, *rulesBytes, findings);
        }
    }
    return resultOf(whole && findings.count() == 0);
}

Result diffCatalogues(Session& session, const std::string& before, const std::string& after) {
    const std::optional<Bytes> one = readInput(session, before);
    const std::optional<Bytes> other = readInput(session, after);
    if (!one || !other) return Result::failed;
    const std::optional<CatalogueIndex> indexBefore = indexOf(session, before, *one);
    const std::optional<CatalogueIndex> indexAfter = indexOf(session, after, *other);
    if (!indexBefore || !indexAfter) return Result::failed;
    const std::string differences =
        differencesOf({before, *one, *indexBefore}, {after, *other, *indexAfter});
    return resultOf(writeOutput(session, differences) && differences.empty());
}

Result mergeCatalogues(Session& session, CatalogueKind kind, const std::string& supplied,
                       const std::string& installed) {
    Target target(session, installed);
    std::optional<FileRead> old = target.open();
    if (!old) return Result::failed;
    if (old->status == ReadStatus::missing) {
        session.messages.tell(installed, "there is no such file; wanted is a catalogue");
        return Result::failed;
    }
    const std::optional<Bytes> bytes = readInput(session, supplied);
    if (!bytes || !indexOf(session, supplied, *bytes)) return Result::failed;
    LoadedCatalogue from = loadCatalogue(kind, *bytes);
    if (from.state.damaged) {
        session.messages.tell(supplied,
                              "has types or items under wrong numbers; lxtool catalogue "
                              "check tells which, wanted is a catalogue without");
        return Result::failed;
    }
    LoadedCatalogue into = loadCatalogue(kind, old->bytes);
    // As the module reads it, which is what the user saw.
    const Bytes seen = allBytes(into.head.get());
    const bool damaged = into.state.damaged;
    const Catalogue merged = mergedCatalogue(std::move(into.head), std::move(from.head));
    const Bytes result = allBytes(merged.get());
    std::string_view rest = result;
    if (!target.write([&rest] { return std::optional(std::exchange(rest, {})); }, damaged)) {
        return Result::failed;
    }
    const std::optional<CatalogueIndex> before = indexOf(session, installed, seen);
    const std::optional<CatalogueIndex> after = indexOf(session, installed, result);
    if (!before || !after) return Result::failed;
    return resultOf(writeOutput(
        session, differencesOf({installed, seen, *before}, {installed, result, *after})));
}

Result exportCatalogue(Session& session, const std::string& catalogue, const std::string& output,
                       const TableForm& form) {
    if (sameFile(session, catalogue, output)) {
        session.messages.tell(output, "is the catalogue itself; wanted is another file");
        return Result::wrongUse;
    }
    Target target(session, output);
    if (!target.open()) return Result::failed;
    const std::optional<Bytes> bytes = readInput(session, catalogue);
    if (!bytes) return Result::failed;
    return resultOf(writeAll<CatalogueExport>(target, false, session, catalogue, *bytes, form));
}

Result importCatalogue(Session& session, const std::string& table, const std::string& catalogue) {
    if (sameFile(session, table, catalogue)) {
        session.messages.tell(catalogue, "is the table itself; wanted is another file");
        return Result::wrongUse;
    }
    Target target(session, catalogue);
    const std::optional<FileRead> before = target.open();
    if (!before) return Result::failed;
    const bool keepOld = isDamagedCatalogue(before->bytes);
    const std::optional<Bytes> bytes = readInput(session, table);
    if (!bytes) return Result::failed;
    return resultOf(writeAll<CatalogueImport>(target, keepOld, session, table, *bytes));
}

}  // namespace lx::lxtool
