// Bringing a catalogue up to date from a supplied one, type by type and item by item, so that the
// user's own types and items survive.
#pragma once

#include "catalogue/CPreklItem.h"

namespace lx {

// The types of installed in their order, each followed by its items: those whose group is the
// type's position, from 1. Supplied items go to the first type of exactly the same name: they
// overwrite the first item of exactly the same designation there, in its place, or follow as new
// ones. Types of other names follow at the end. A type keeps its name and shape number, nothing
// else; items without a type are left out, which loadCatalogue counts as damage. Takes both
// catalogues apart; about as long as loading them.
Catalogue mergedCatalogue(Catalogue installed, Catalogue supplied);

}  // namespace lx
