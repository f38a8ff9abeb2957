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
        const LoadedCatalogue read = loadCatalogue(CatalogueKind::precast, bytes);
        ASSERT_EQ(readable(read.head.get()), readable(made.get())) << "seed " << seed;
        ASSERT_EQ(catalogueBytes(read.head.get()), bytes) << "seed " << seed;

        const LoadedCatalogue steel = loadCatalogue(CatalogueKind::steel, bytes);
        for (CPreklItem* one = made.get(); one; one = one->next.get()) {
            if (one->length == 0) one->length = 1;
        }
        ASSERT_EQ(readable(steel.head.get()), readable(made.get())) << "seed " << seed;
    }
}

// ---- the merge, the slow and simple way

struct ModelType {
    const CPreklItem* type;
    std::vector<Catalogue> items;
};
using Model = std::vector<ModelType>;

Model modelOf(const CPreklItem* chain) {
    Model model;
    for (const CPreklItem* one = chain; one; one = one->next.get()) {
        if (one->isType()) model.push_back({one, {}});
    }
    for (const CPreklItem* one = chain; one; one = one->next.get()) {
        for (std::size_t i = 0; i < model.size(); ++i) {
            const bool shownThere = one->group == static_cast<std::int32_t>(i) + 1;
            if (shownThere) model[i].items.push_back(copyOf(*one));
        }
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

// Whether a number is not the place at which the user sees its type.
bool losesIn(const CPreklItem* chain) {
    std::size_t items = 0;
    std::int32_t types = 0;
    bool inOrder = true;
    for (const CPreklItem* one = chain; one; one = one->next.get()) {
        if (!one->isType()) ++items;
        if (one->isType()) inOrder = inOrder && one->group == -++types;
    }
    for (const ModelType& type : modelOf(chain)) items -= type.items.size();
    return !inOrder || items > 0;
}

// As the merged file reads.
std::string mergedModel(const CPreklItem* installed, const CPreklItem* supplied) {
    Model model = modelOf(installed);
    for (ModelType& type : modelOf(supplied)) {
        const auto same = std::find_if(model.begin(), model.end(), [&type](const ModelType& one) {
            return nameOf(*one.type) == nameOf(*type.type);
        });
        if (same != model.end()) {
            bringIn(*same, type);
            continue;
        }
        model.push_back(std::move(type));
    }
    std::string text;
    std::int32_t number = 0;
    for (const ModelType& one : model) {
        CPreklItem type;
        type.group = -++number;
        type.length = one.type->length;
        type.designation = one.type->designation;
        text += readable(&type);
        for (const Catalogue& item : one.items) {
            item->group = number;
            text += readable(item.get());
        }
    }
    return text;
}

Catalogue merged(const Catalogue& installed, const Catalogue& supplied) {
    return mergedCatalogue(copyOf(installed), copyOf(supplied));
}

TEST(CatalogueProperties, TheMergeDoesWhatTheSlowOneDoes) {
    for (unsigned seed = 1; seed <= rounds; ++seed) {
        RandomRecords random(seed);
        const bool anyNumbers = seed % 2 == 0;
        const Catalogue installed = random.colliding(anyNumbers);
        const Bytes file = catalogueBytes(installed.get());
        ASSERT_EQ(loadCatalogue(CatalogueKind::precast, file).state.damaged,
                  losesIn(installed.get()))
            << "seed " << seed;
        Catalogue supplied;  // at times nothing, or what is there
        if (seed % 5 == 0) supplied = copyOf(installed);
        if (seed % 5 > 1) supplied = random.colliding(anyNumbers);
        const Catalogue result = merged(installed, supplied);
        const std::string text = readable(result.get());
        ASSERT_EQ(text, mergedModel(installed.get(), supplied.get())) << "seed " << seed;
        const Bytes bytes = catalogueBytes(result.get());
        const LoadedCatalogue read = loadCatalogue(CatalogueKind::precast, bytes);
        ASSERT_EQ(readable(read.head.get()), text);
        ASSERT_FALSE(read.state.damaged);
        // Nothing changes nothing more.
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
