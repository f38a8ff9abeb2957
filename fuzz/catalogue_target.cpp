#include <utility>

#include "catalogue/catalogue_file.h"
#include "catalogue/item_rows.h"
#include "catalogue/merge.h"
#include "composition/offers.h"
#include "fuzz/targets.h"
#include "tests/support/catalogues.h"

namespace lx::fuzz {

namespace {

void sortEveryColumn(CPreklItem* head, CatalogueKind kind) {
    ItemRows rows(kind);
    rows.refresh(head, 1);
    const int count = rows.count();
    for (int column = 0; column < 9; ++column) rows.onHeadingClick(column);
    promise(rows.count() == count);
}

}  // namespace

void readCatalogue(std::string_view input) {
    for (const CatalogueKind kind : {CatalogueKind::precast, CatalogueKind::steel}) {
        LoadedCatalogue read = loadCatalogue(kind, input);
        const Bytes written = catalogueBytes(read.head.get());
        // Each record is as long as its texts; what was cut off or short alone is missing.
        promise(read.state.damaged ? written.size() <= input.size()
                                   : written.size() == input.size());
        if (kind == CatalogueKind::precast && !read.state.damaged) promise(written == input);
        LoadedCatalogue again = loadCatalogue(kind, written);
        promise(catalogueBytes(again.head.get()) == written);

        sortEveryColumn(read.head.get(), kind);
        BuildPrecastOffer(read.head.get(), 0, 1000, 1000);
        BuildSteelOffer(read.head.get(), 0, 1000, 0);
        const Catalogue merged = mergedCatalogue(std::move(read.head), std::move(again.head));
        const Bytes mergedBytes = catalogueBytes(merged.get());
        again = loadCatalogue(CatalogueKind::precast, mergedBytes);
        promise(!again.state.damaged && catalogueBytes(again.head.get()) == mergedBytes);
    }
}

}  // namespace lx::fuzz
