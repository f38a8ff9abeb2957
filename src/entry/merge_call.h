// What stands behind mergeLibraryFiles: an installation brings the library or a catalogue up to
// date.
#pragma once

#include "platform/files.h"
#include "platform/host.h"

namespace lx {

struct MergeArguments {
    Path sourcePath;
    Path targetFolder;  // empty: the host's catalogue folder, under its lock
    int mode = 0;       // LX_MERGE_LIBRARY, LX_MERGE_CATALOGUE
};

// An LX_MERGE_ result. Whatever goes wrong, the installed file is as it was.
int mergeCall(Files& files, Host& host, const MergeArguments& arguments);

}  // namespace lx
