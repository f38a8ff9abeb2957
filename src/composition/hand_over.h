// The hand-over file LXDATA6I.tmp in the temporary folder, which carries one design between host
// and module.
#pragma once

#include "catalogue/CPreklItem.h"
#include "composition/CRez.h"
#include "platform/files.h"

namespace lx {

inline constexpr std::string_view handOverFileName = "LXDATA6I.tmp";

// Empty when the system names no temporary folder.
Path handOverPath(Files& files);
// 1 written, 0 the file could not be created. A negative opening width first negates every record's
// length.
int WriteHandOver(const Path& path, CRez* head, double openingWidth, Files& files);

// The whole file: its header and the design.
Bytes handOverBytes(const CRez* head);

struct HandOverRead {
    bool present = false;  // a file could be read, whatever it held
    RezChain design;       // empty when it held no head record
};
HandOverRead ReadHandOver(const Path& path, Files& files);
RezChain parseHandOver(std::string_view bytes);

// The stored form does not keep up with the catalogue: every record whose length follows the
// opening takes its maxOpening from the first precast item of exactly its name, if there is one.
void refreshMaxOpenings(CRez* head, const CPreklItem* precast);

}  // namespace lx
