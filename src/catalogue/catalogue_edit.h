// What the user's commands change in a catalogue: types and items as functions on the chain. None
// of them writes a file.
#pragma once

#include <string_view>
#include <vector>

#include "catalogue/CPreklItem.h"

namespace lx {

// An item as the item editor holds it: the texts of its values. An empty mark leaves the record's
// as it is.
struct EditorTexts {
    // As the editor opens for an item without a model.
    EditorTexts();

#define LX_TEXT(type, name, ...) Text name
    LX_ITEM_VALUES(LX_TEXT)
#undef LX_TEXT
};

EditorTexts editorTexts(const CPreklItem& item);

// The type records in chain order, which is that of the type list.
std::vector<CPreklItem*> typeRecords(CPreklItem* chain);
// Null when there is no type at that position of the list.
CPreklItem* typeAt(CPreklItem* chain, int position);

// The text that refuses a new type's name, empty when it is free. Names are the same without regard
// to letter case.
std::string_view newTypeRefusal(const CPreklItem* chain, std::string_view name);
// The same for another name of a type, which may keep the name it has, but not change its case.
std::string_view renameRefusal(const CPreklItem* chain, const CPreklItem& type,
                               std::string_view name);

// The new record, at the end of the chain. shape: number of a steel type's section shape.
CPreklItem& appendType(Catalogue& chain, std::string_view name, CatalogueKind kind, int shape = 0);
// Removes the type at that position of the type list with its items and renumbers the others; the
// first type stays and loses its items alone, and the chain's head is never removed. False, and
// nothing is done, when there is no such type or no other one.
bool deleteType(Catalogue& chain, int position);

// The new record, at the end of the chain. Numbers are the texts' leading ones, 0 without any.
CPreklItem& appendItem(Catalogue& chain, const CPreklItem& type, const EditorTexts& texts);
void changeItem(CPreklItem& item, const EditorTexts& texts);
// Takes the item, which may be the head, out of the chain; null when it is not there.
std::unique_ptr<CPreklItem> unlinkItem(Catalogue& chain, const CPreklItem& item);

}  // namespace lx
