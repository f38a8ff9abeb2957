// The two catalogue files: where they are, how they are read and written.
#pragma once

#include "catalogue/catalogue_state.h"
#include "catalogue/records.h"
#include "platform/binary.h"
#include "platform/files.h"
#include "platform/host.h"

namespace lx {

// "LXDATA6S.DAT" for steel, else "LXDATA6.DAT".
std::string_view catalogueFileName(CatalogueKind kind);
// The host's catalogue folder, else the module's data folder, followed by the file name.
Path cataloguePath(CatalogueKind kind, Host& host);

// Longest text of a record, in bytes, without its terminating zero.
inline constexpr std::size_t catalogueTextLimit = 99;

// One record at the reader's position. False when fewer than 4 bytes are left, or when the record
// is cut short (reader.cutShort() tells); the record is then not to be kept. A text longer than
// catalogueTextLimit is cut to it, the reader moves on behind its zero, and damaged is set.
bool readRecord(CPreklItem& record, BinaryReader& reader, bool& damaged);
// Texts are cut to catalogueTextLimit.
void writeRecord(const CPreklItem& record, BinaryWriter& writer);

struct CatalogueRead {
    Catalogue head;
    bool damaged = false;  // cut short, or a text too long
};
// Every whole record, in file order, with its shape completed.
CatalogueRead parseCatalogue(CatalogueKind kind, std::string_view bytes);
// A steel record without a shape number would be offered as a precast lintel: it gets shape 1.
void completeShapes(CatalogueKind kind, CPreklItem* head);
Bytes catalogueBytes(const CPreklItem* head);

// Opens the file of that path, creating it empty when it does not exist, and loads it. False (and
// head stays) when it can be neither read nor created, or not written at all.
struct LoadedCatalogue {
    bool opened = false;
    Catalogue head;
    CatalogueState state;
};
LoadedCatalogue loadCatalogue(CatalogueKind kind, const Path& path, Files& files);

// 0 after writing, -5 when the file could not be put in place (the old one then stays whole).
// keepOld: the file on disk loaded with damage and is kept as .bak first; when that fails nothing
// is written, -5. written, unless null, tells then what the file holds.
int saveCatalogueAs(const CPreklItem* head, const Path& path, Files& files, bool keepOld = false,
                    CatalogueState* written = nullptr);

Catalogue copyCatalogue(const CPreklItem* head);

}  // namespace lx
