#include "composition/records.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace lx {

namespace {

constexpr std::size_t labelLength = 3;

int bendCount(const CRez& record) {
    int count = 0;
    for (const CZalom* bend = record.bends.get(); bend; bend = bend->next.get()) ++count;
    return count;
}

int compareRecords(const CRez& a, const CRez& b) {
    if (a.itemIndex != b.itemIndex || a.width != b.width || a.length != b.length ||
        a.offset != b.offset || a.level != b.level || a.kind != b.kind) {
        return 1;
    }
    if (a.isHead()) {
        const int first = bendCount(a);
        const int second = bendCount(b);
        return second < first ? 11 : second > first ? 12 : 0;
    }
    return a.nameOrEmpty() == b.nameOrEmpty() ? 0 : 20;
}

}  // namespace

CZalom::~CZalom() {
    for (std::unique_ptr<CZalom> rest = std::move(next); rest;) rest = std::move(rest->next);
}

CRez::CRez(const CRez& other)
    : bearing(other.bearing),
      typeIndex(other.typeIndex),
      itemIndex(other.itemIndex),
      width(other.width),
      height(other.height),
      length(other.length),
      weight(other.weight),
      maxOpening(other.maxOpening),
      kind(other.kind),
      letter(other.letter) {
    if (!other.isHead()) {
        name = other.name;
        return;
    }
    std::unique_ptr<CZalom>* end = &bends;
    for (const CZalom* bend = other.bends.get(); bend; bend = bend->next.get()) {
        *end = std::make_unique<CZalom>(*bend);
        end = &(*end)->next;
    }
}

void CRez::addBend(std::int32_t run, std::int32_t step, bool flag) {
    std::unique_ptr<CZalom>* end = &bends;
    while (*end) end = &(*end)->next;
    *end = std::make_unique<CZalom>(run, step, flag);
}

Text CRez::label() const {
    BubbleLabel bytes{};
    std::memcpy(bytes.data(), &itemIndex, bytes.size());
    bytes[labelLength] = '\0';  // files may hold anything there
    return bytes.data();
}

void CRez::setLabel(std::string_view text) {
    BubbleLabel bytes{};
    std::copy_n(text.begin(), std::min(text.size(), labelLength), bytes.begin());
    std::memcpy(&itemIndex, bytes.data(), bytes.size());
}

int compare(const CRez* first, const CRez* second) {
    while (first && second) {
        if (const int difference = compareRecords(*first, *second)) return difference;
        first = first->next;
        second = second->next;
    }
    return first ? 1 : second ? 2 : 0;
}

}  // namespace lx
