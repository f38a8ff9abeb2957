#include "composition/CRez.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace lx {

namespace {

constexpr std::size_t labelLength = 3;

int bendCount(const CZalom* bend) {
    int count = 0;
    for (; bend; bend = bend->next.get()) ++count;
    return count;
}

std::string_view textOrEmpty(const std::optional<Text>& text) {
    if (!text) return {};
    return *text;
}

std::unique_ptr<CZalom> copied(const CZalom* bends) {
    std::unique_ptr<CZalom> copy;
    std::unique_ptr<CZalom>* end = &copy;
    for (const CZalom* bend = bends; bend; bend = bend->next.get()) {
        *end = std::make_unique<CZalom>(*bend);
        end = &(*end)->next;
    }
    return copy;
}

// Copies what goes with the record: a head has no name, and a layer no bends.
struct Copy {
    bool head;

    template <class Value>
    void operator()(const RezField& field, Value& to, const Value& from) const {
        if (field.use != FieldUse::placed) to = from;
    }
    void operator()(const RezField&, std::optional<Text>& to,
                    const std::optional<Text>& from) const {
        if (!head) to = from;
    }
    void operator()(const RezField&, std::unique_ptr<CZalom>& to,
                    const std::unique_ptr<CZalom>& from) const {
        if (head) to = copied(from.get());
    }
};

struct Comparison {
    bool head;
    int difference = 0;  // the first one

    template <class Value>
    void operator()(const RezField& field, const Value& a, const Value& b) {
        if (field.use != FieldUse::carried && a != b) add(1);
    }
    void operator()(const RezField&, const std::optional<Text>& a, const std::optional<Text>& b) {
        if (!head && textOrEmpty(a) != textOrEmpty(b)) add(20);
    }
    void operator()(const RezField&, const std::unique_ptr<CZalom>& a,
                    const std::unique_ptr<CZalom>& b) {
        const int first = head ? bendCount(a.get()) : 0;
        const int second = head ? bendCount(b.get()) : 0;
        if (first != second) add(second < first ? 11 : 12);
    }
    void add(int found) {
        if (difference == 0) difference = found;
    }
};

int compareRecords(const CRez& a, const CRez& b) {
    Comparison comparison{a.isHead()};
    CRez::eachField(comparison, a, b);
    return comparison.difference;
}

}  // namespace

CZalom::CZalom(const CZalom& other) {
    eachField([](const char*, auto& to, const auto& from) { to = from; }, *this, other);
}

CZalom::~CZalom() {
    for (std::unique_ptr<CZalom> rest = std::move(next); rest;) rest = std::move(rest->next);
}

CRez::CRez(const CRez& other) {
    eachField(Copy{other.isHead()}, *this, other);
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
