// Where the result of a command goes: a file, replaced in one step, or standard output.
#pragma once

#include "catalogue/catalogue_state.h"
#include "lxtool/file_lock.h"
#include "lxtool/session.h"

namespace lx::lxtool {

class Target {
public:
    Target(Session& session, std::string_view name) : m_session(session), m_name(name) {}

    bool isStream() const { return m_name == standardStream; }
    // Holds the file and notes what is in it: none, told, when it cannot be held or read. before is
    // missing where there is no such file yet.
    std::optional<FileRead> open();
    // Puts the pieces in the place of the file. Refused, and told, when the file is no longer as it
    // was at its opening. keepOld: as .bak first. Where next answers none nothing is written,
    // which it has told; pieces for standard output must not end so.
    bool write(const NextPiece& next, bool keepOld = false);

private:
    bool writeStream(const NextPiece& next);
    bool asItWas();
    std::string cannotWrite() const;

    Session& m_session;
    std::string m_name;
    Path m_path;
    FileLock m_lock;
    ReadStatus m_before = ReadStatus::missing;
    CatalogueState m_state;
};

}  // namespace lx::lxtool
