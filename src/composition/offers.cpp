#include "composition/offers.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "composition/bearing.h"
#include "composition/saturate.h"
#include "platform/numbers.h"

namespace lx {

namespace {

constexpr double openingTolerance = 0.000001;  // mm
constexpr std::int64_t oversizeLimit = 30;     // mm above the best fit
constexpr double weightScale = 1000.0;

struct Candidate {
    std::unique_ptr<CRez> record;
    bool stays = false;  // however oversized
};

// Leaves out what is oversized against the best fit among all candidates.
RezChain withoutOversized(std::vector<Candidate> candidates) {
    std::int64_t best = 9999;
    const auto smaller = [](const Candidate& a, const Candidate& b) {
        return a.record->maxOpening < b.record->maxOpening;
    };
    const auto smallest = std::min_element(candidates.begin(), candidates.end(), smaller);
    if (smallest != candidates.end()) best = smallest->record->maxOpening;
    RezChain offer;
    for (Candidate& candidate : candidates) {
        if (candidate.stays || candidate.record->maxOpening < best + oversizeLimit) {
            offer.append(std::move(candidate.record));
        }
    }
    return offer;
}

bool spans(const CPreklItem& item, double openingWidth) {
    return item.maxOpening - openingWidth > -openingTolerance;
}

// Items of a type carry its number counted from 1.
bool belongsTo(const CPreklItem& item, std::int32_t type) {
    return type >= 0 && item.group == std::int64_t{type} + 1;
}

// The run of digits at the position without its leading zeros; the position moves on behind it.
std::string_view takeDigits(std::string_view text, std::size_t& position) {
    while (position < text.size() && text[position] == '0') ++position;
    const std::size_t begin = position;
    while (position < text.size() && isDigit(text[position])) ++position;
    return text.substr(begin, position - begin);
}

// Equal for elements that are the same product. One whose length follows the opening is known by
// its length in the catalogue.
Text identity(const CRez& element) {
    Text text(element.nameOrEmpty());
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        return static_cast<char>(lowerCase(static_cast<unsigned char>(c)));
    });
    const std::int64_t length =
        element.bearing != 0 ? -std::int64_t{element.bearing} : element.length;
    for (const std::int64_t value :
         {std::int64_t{element.width}, std::int64_t{element.height}, length,
          std::int64_t{element.weight}, std::int64_t{element.maxOpening}}) {
        text.append(1, '\0').append(formatInt(value));
    }
    return text.append(1, element.letter);
}

unsigned char lowerAt(std::string_view text, std::size_t position) {
    return lowerCase(static_cast<unsigned char>(text[position]));
}

}  // namespace

std::unique_ptr<CRez> offerRecord(const CPreklItem& item, std::int32_t type, std::int32_t itemIndex,
                                  Kind kind) {
    auto record = std::make_unique<CRez>(type, itemIndex);
    record->width = item.width;
    record->height = item.height;
    record->length = item.length;
    record->weight = truncateToInt(item.weight * weightScale);
    record->maxOpening = item.maxOpening;
    record->kind = kind;
    record->name = item.designation;
    record->letter = item.compositionMark;
    return record;
}

RezChain BuildPrecastOffer(const CPreklItem* catalogue, std::int32_t type, double openingWidth,
                           std::int32_t headLength, const std::vector<const CPreklItem*>& chosen) {
    std::vector<const CPreklItem*> picked = chosen;
    std::sort(picked.begin(), picked.end(), std::less<>());
    std::vector<Candidate> candidates;
    std::int32_t itemIndex = 0;
    for (const CPreklItem* item = catalogue; item; item = item->next.get()) {
        if (!belongsTo(*item, type)) continue;
        const std::int32_t index = itemIndex++;
        if (!spans(*item, openingWidth)) continue;
        Candidate candidate{offerRecord(*item, type, index, Kind::precast)};
        if (item->length < 0) {
            candidate.record->bearing = saturated(-std::int64_t{item->length});
            candidate.record->length = lengthOver(headLength, candidate.record->bearing);
        }
        candidate.stays = candidate.record->bearing != 0 ||
                          std::binary_search(picked.begin(), picked.end(), item, std::less<>());
        candidates.push_back(std::move(candidate));
    }
    return withoutOversized(std::move(candidates));
}

void addPicked(RezChain& offer, const std::vector<const CPreklItem*>& picked) {
    if (picked.empty()) return;
    std::unordered_set<Text> known;
    for (const CRez* record = offer.head(); record; record = record->next) {
        known.insert(identity(*record));
    }
    for (const CPreklItem* item : picked) {
        auto record = offerRecord(*item, 0, 0, Kind::precast);
        if (known.insert(identity(*record)).second) offer.append(std::move(record));
    }
}

RezChain BuildSteelOffer(const CPreklItem* catalogue, std::int32_t type, std::int32_t headLength,
                         std::int32_t headBearing) {
    const std::int32_t length =
        lengthOver(headLength, headBearing != 0 ? headBearing : defaultBearing);
    std::vector<Candidate> candidates;
    Kind shape = Kind::precast;
    std::int32_t itemIndex = 0;
    for (const CPreklItem* item = catalogue; item; item = item->next.get()) {
        // A shape below 0 comes from a damaged catalogue; as a kind it could make a layer a head.
        if (item->group == -std::int64_t{type} - 1 && type >= 0) {
            shape = Kind{std::max(item->length, 0)};
        }
        if (!belongsTo(*item, type)) continue;
        Candidate candidate{offerRecord(*item, type, itemIndex++, shape)};
        candidate.record->length = length;
        candidates.push_back(std::move(candidate));
    }
    return withoutOversized(std::move(candidates));
}

bool offerLess(std::string_view a, std::string_view b) {
    std::size_t i = 0;
    std::size_t k = 0;
    while (i < a.size() && k < b.size()) {
        if (isDigit(a[i]) && isDigit(b[k])) {
            const std::string_view left = takeDigits(a, i);
            const std::string_view right = takeDigits(b, k);
            if (left.size() != right.size()) return left.size() < right.size();
            if (left != right) return left < right;
            continue;
        }
        const unsigned char left = lowerAt(a, i++);
        const unsigned char right = lowerAt(b, k++);
        if (left != right) return left < right;
    }
    return i == a.size() && k < b.size();
}

std::vector<int> offerOrder(const RezChain& offer) {
    std::vector<std::string_view> names;
    for (const CRez* record = offer.head(); record; record = record->next) {
        names.push_back(record->nameOrEmpty());
    }
    std::vector<int> order(names.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        return offerLess(names[static_cast<std::size_t>(a)], names[static_cast<std::size_t>(b)]);
    });
    return order;
}

std::vector<Text> typeNames(const CPreklItem* catalogue) {
    std::vector<Text> names;
    for (const CPreklItem* record = catalogue; record; record = record->next.get()) {
        if (record->isType()) names.emplace_back(record->nameOrEmpty());
    }
    return names;
}

}  // namespace lx
