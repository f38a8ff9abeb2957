// What of a catalogue differs in another one.
#pragma once

#include <string>

#include "lxtool/catalogue_index.h"

namespace lx::lxtool {

struct ComparedCatalogue {
    std::string_view name;
    std::string_view bytes;
    const CatalogueIndex& index;
};

// A line for each difference, in UTF-8, and one with their numbers; empty when there is none. Types
// are the same by their names, items by their designations within a type; of doubled ones the first
// is compared with the first, and so on. What is removed stands at the end; another order is no
// difference.
std::string differencesOf(const ComparedCatalogue& before, const ComparedCatalogue& after);

}  // namespace lx::lxtool
