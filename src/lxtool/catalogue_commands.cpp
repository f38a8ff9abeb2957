#include "lxtool/catalogue_commands.h"

#include "catalogue/catalogue_file.h"
#include "lxtool/target.h"

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

}  // namespace

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
