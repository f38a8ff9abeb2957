// The files that the module keeps, as whole operations that either happen or leave the old file as
// it was.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/text.h"

namespace lx {

// Between the folders of a name that the module makes; names from outside may use "/" everywhere.
#if defined(_WIN32)
inline constexpr char folderSeparator = '\\';
#else
inline constexpr char folderSeparator = '/';
#endif

enum class ReadStatus { ok, missing, failed };

struct FileRead {
    ReadStatus status = ReadStatus::missing;
    Bytes bytes;  // empty unless status is ok
};

// Bytes that append puts over those at that offset of what it appends, as its last act.
struct Seal {
    std::size_t offset = 0;
    std::string_view bytes;
};

// Answers the next bytes of a file to be written, good until the next call; an empty one at its
// end, none where the file is not to be put in its place after all.
using NextPiece = std::function<std::optional<std::string_view>()>;

class Files {
public:
    Files() = default;
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    virtual ~Files() = default;

    // missing: no such file or folder; failed: it is there but cannot be read.
    virtual FileRead read(const Path& path) = 0;
    // True when both names lead to one existing file, however they are written.
    virtual bool same(const Path& a, const Path& b) = 0;
    // True when the file can be opened for reading and writing now.
    virtual bool writable(const Path& path) = 0;
    // Makes an empty file; false when it cannot be made or is already there.
    virtual bool createEmpty(const Path& path) = 0;
    // Puts a file with these bytes in the place of path: written beside it, flushed, renamed over
    // it in one step. On failure, also when next has none or throws, the old file is untouched and
    // nothing is left beside it.
    virtual bool replaceByPieces(const Path& path, const NextPiece& next) = 0;
    bool replace(const Path& path, std::string_view bytes);
    // Writes at the end, flushes, then sets the seal and flushes again; creates a missing file. On
    // failure the file has its old length again. When the process dies a part of the bytes may
    // stand there, but never under the seal.
    virtual bool append(const Path& path, std::string_view bytes, const Seal& seal = {}) = 0;
    // Overwrites bytes inside the existing file, flushed. False when the file is missing or
    // shorter.
    virtual bool overwrite(const Path& path, std::uint64_t offset, std::string_view bytes) = 0;
    // True when the file is gone afterwards.
    virtual bool remove(const Path& path) = 0;
    // Keeps the file of that name as path + ".bak", replacing an older one in one step. True also
    // when there is no such file to keep.
    bool keepAsBackup(const Path& path);
    // The system's folder for temporary files, ending in a separator.
    virtual Path temporaryFolder() = 0;
};

// The real thing of this platform.
Files& systemFiles();

}  // namespace lx
