// What is suspicious in a catalogue, and between it and the rules of the automatic composition.
#pragma once

#include "catalogue/CPreklItem.h"
#include "lxtool/catalogue_index.h"
#include "lxtool/findings.h"

namespace lx::lxtool {

struct CheckedCatalogue {
    std::string_view name;
    std::string_view bytes;
    CatalogueKind kind;
    const CatalogueIndex& index;
};

void checkCatalogue(const CheckedCatalogue& catalogue, Findings& findings);

// Of a rules file, whose name and bytes these are, with a catalogue of precast lintels.
void checkRules(const CheckedCatalogue& catalogue, std::string_view name, std::string_view bytes,
                Findings& findings);

}  // namespace lx::lxtool
