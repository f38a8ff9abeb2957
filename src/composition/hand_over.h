// The hand-over file LXDATA6I.tmp in the temporary folder, which carries one design between host
// and module.
#pragma once

#include <optional>

#include "composition/records.h"
#include "platform/files.h"

namespace lx {

inline constexpr std::string_view handOverFileName = "LXDATA6I.tmp";

Path handOverPath(Files& files);
// 1 written, 0 the file could not be created. A negative opening width first negates every record's
// length.
int writeHandOver(const Path& path, CRez* head, double openingWidth, Files& files);

struct HandOverRead {
    bool present = false;  // there was a file, whatever it held
    RezChain design;       // empty when it held no head record
};
HandOverRead readHandOver(const Path& path, Files& files);

}  // namespace lx
