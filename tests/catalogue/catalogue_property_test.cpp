// Random catalogues through their file and through the merge, and many items through it. A failure
// names its seed.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>

#include "catalogue/catalogue_file.h"
#include "catalogue/merge.h"
#include "platform/numbers.h"
#include "tests/support/random_records.h"
#include "tests/support/readable.h"

namespace lx {
namespace {

constexpr unsigned rounds = 400;

TEST(CatalogueProperties, WhatIsWrittenIsRead) {
    for (unsigned seed = 1; seed <= rounds; ++seed) {
        const Catalogue made = RandomRecords(seed).catalogue();
        const Bytes bytes = catalogueBytes(made.get());
        const CatalogueRead read = parseCatalogue(CatalogueKind::precast, bytes);
        ASSERT_FALSE(read.damaged) << "seed " << seed;
        ASSERT_EQ(readable(read.head.get()), readable(made.get())) << "seed " << seed;
        ASSERT_EQ(catalogueBytes(read.head.get()), bytes) << "seed " << seed;

        const CatalogueRead steel = parseCatalogue(CatalogueKind::steel, bytes);
        for (CPreklItem* one = made.get(); one; one = one->next.get()) {
            if (one->length == 0) one->length = 1;
        }
        ASSERT_EQ(readable(steel.head.get()), readable(made.get())) << "seed " << seed;
    }
}

// ---- the merge, the slow and simple way

struct ModelType {
    std::int64_t number;
    const CPreklItem* type;
    std::vector<Catalogue> items;
};
using Model = std::vector<ModelType>;

Model modelOf(const CPreklItem* chain) {
    Model model;
    for (const CPreklItem* one = chain; one; one = one->next.get()) {
        if (one->isType()) model.push_back({-std::int64_t{one->group}, one, {}});
    }
    for (const CPreklItem* one = chain; one; one = one->next.get()) {
        const auto of = std::find_if(model.begin(), model.end(), [one](const ModelType& type) {
            return !one->isType() && type.number == one->group;
        });
        if (of != model.end()) of->items.push_back(one->copyAlone());
    }
    return model;
}

Text nameOf(const CPreklItem& record) {
    return record.designation.value_or("");
}

void bringIn(ModelType& type, ModelType& supplied) {
    for (Catalogue& item : supplied.items) {
        const auto same =
            std::find_if(type.items.begin(), type.items.end(),
                         [&item](const Catalogue& one) { return nameOf(*one) == nameOf(*item); });
        if (same == type.items.end()) {
            type.items.push_back(std::move(item));
        } else {
            item->designation = (*same)->designation;
            *same = std::move(item);
        }
    }
}

// As the merged file reads.
std::string mergedModel(const CPreklItem* installed, const CPreklItem* supplied) {
    constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
    Model model = modelOf(installed);
    for (ModelType& type : modelOf(supplied)) {
        const auto same = std::find_if(model.begin(), model.end(), [&type](const ModelType& one) {
            return nameOf(*one.type) == nameOf(*type.type);
        });
        if (same != model.end()) {
            bringIn(*same, type);
            continue;
        }
        type.number = model.empty() ? 1 : std::min(model.back().number + 1, highest);
        model.push_back(std::move(type));
    }
    std::string text;
    for (const ModelType& one : model) {
        CPreklItem type;
        type.group = static_cast<std::int32_t>(-one.number);
        type.length = one.type->length;
        type.designation = one.type->designation;
        text += readable(&type);
        for (const Catalogue& item : one.items) {
            item->group = static_cast<std::int32_t>(std::min(one.number, highest));
            text += readable(item.get());
        }
    }
    return text;
}

Catalogue merged(const Catalogue& installed, const Catalogue& supplied) {
    return mergedCatalogue(copyCatalogue(installed.get()), copyCatalogue(supplied.get()));
}

TEST(CatalogueProperties, TheMergeDoesWhatTheSlowOneDoes) {
    for (unsigned seed = 1; seed <= rounds; ++seed) {
        RandomRecords random(seed);
        const bool anyNumbers = seed % 2 == 0;
        const Catalogue installed = random.colliding(anyNumbers);
        Catalogue supplied;  // at times nothing, or what is there
        if (seed % 5 == 0) supplied = copyCatalogue(installed.get());
        if (seed % 5 > 1) supplied = random.colliding(anyNumbers);
        const Catalogue result = merged(installed, supplied);
        const std::string text = readable(result.get());
        ASSERT_EQ(text, mergedModel(installed.get(), supplied.get())) << "seed " << seed;
        const Bytes bytes = catalogueBytes(result.get());
        ASSERT_EQ(readable(parseCatalogue(CatalogueKind::precast, bytes).head.get()), text);
        // Nothing changes nothing more, unless types came to share a number.
        if (anyNumbers) continue;
        ASSERT_EQ(readable(merged(result, nullptr).get()), text) << "seed " << seed;
    }
}

// Comparing every item with every other one would take minutes.
TEST(MergeFigure, AHundredThousandItemsMeetAsMany) {
    std::vector<CatalogueLine> lines{{-1, "T"}};
    for (int i = 0; i < 100'000; ++i) lines.push_back({1, "KPM " + formatInt(i), 1});
    const Catalogue once = catalogueOf(lines);
    const auto start = std::chrono::steady_clock::now();
    const Catalogue result = merged(once, once);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
    EXPECT_EQ(catalogueBytes(result.get()), catalogueBytes(once.get()));
}

}  // namespace
}  // namespace lx
