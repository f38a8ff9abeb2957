// The two catalogue files: where they are, how they are read and written.
#pragma once

#include <optional>

#include "catalogue/CPreklItem.h"
#include "catalogue/catalogue_state.h"
#include "platform/files.h"
#include "platform/host.h"

namespace lx {

// "LXDATA6S.DAT" for steel, else "LXDATA6.DAT".
std::string_view catalogueFileName(CatalogueKind kind);
// The host's catalogue folder, else the module's data folder, followed by the file name.
Path cataloguePath(CatalogueKind kind, Host& host);

// The bytes of the catalogue's file, which is made empty when it does not exist. None when it can
// be neither read nor made, or not written at all.
std::optional<Bytes> openCatalogueFile(CatalogueKind kind, Host& host, Files& files);
std::optional<Bytes> openCatalogueFileAt(const Path& path, Files& files);

struct LoadedCatalogue {
    Catalogue head;
    // Damaged: cut short, a text too long, types whose numbers are not their positions, or items of
    // no type. What is written over the file may hold less.
    CatalogueState state;
};
// Every whole record of a catalogue file's bytes, in file order, with its shape completed.
LoadedCatalogue loadCatalogue(CatalogueKind kind, std::string_view bytes);
// What loadCatalogue tells of the bytes, keeping no record.
bool isDamagedCatalogue(std::string_view bytes);
// A steel record without a shape number would be offered as a precast lintel: it gets shape 1.
void completeShapes(CatalogueKind kind, CPreklItem* head);

// 0 after writing, -5 when the file could not be put in place (the old one then stays whole).
// keepOld: the file on disk loaded with damage and is kept as .bak first; when that fails nothing
// is written, -5. A .bak is as it was when nothing is written. written, unless null, tells then
// what the file holds.
int saveCatalogueAs(const CPreklItem* head, const Path& path, Files& files, bool keepOld = false,
                    CatalogueState* written = nullptr);

}  // namespace lx
