#include "composition/automatic.h"

#include <algorithm>
#include <utility>

#include "composition/bearing.h"
#include "composition/layout.h"
#include "composition/rules_file.h"
#include "composition/saturate.h"
#include "composition/special_layers.h"

namespace lx {

namespace {

constexpr int mostRepeated = 20;   // layers of the chosen element
constexpr int mostDigits = 9;      // of a number in a rule
constexpr int mostByRule = 20000;  // layers; more would keep the user waiting

CRez* appendCopy(RezChain& design, const CRez& element) {
    return design.append(std::make_unique<CRez>(element));
}

void removeLayers(RezChain& design) {
    while (design.head()->next != nullptr) design.unlink(design.head()->next);
}

// Placed after each copy: it has no place of its own before, and the free space would be wrong.
void repeat(RezChain& design, const CRez& element) {
    CRez& head = *design.head();
    for (int i = 0; i < mostRepeated && freeSpace(head) >= element.width; ++i) {
        appendCopy(design, element);
        placeLayers(head);
    }
}

// Null when there is nothing to insulate or not enough room.
CRez* insulateFirstFace(RezChain& design, const CRez& chosen, std::int64_t room) {
    if (design.head()->next == nullptr || room < leastInsulation) return nullptr;
    auto insulation = std::make_unique<CRez>(chosen);
    makeSpecial(*insulation, Kind::insulation);
    insulation->width = saturated(room);
    return design.insertAfter(design.head(), std::move(insulation));
}

// The digits of a rule since the last closing bracket; 0 without any.
class CollectedNumber {
public:
    void add(char digit) {
        if (m_digits == mostDigits) return;
        m_value = m_value * 10 + (digit - '0');
        ++m_digits;
    }
    std::int32_t take() {
        m_digits = 0;
        return std::exchange(m_value, 0);
    }

private:
    std::int32_t m_value = 0;
    int m_digits = 0;
};

const CRez& elementX(const CRez& chosen) {
    const CRez* element = &chosen;
    while (element->letter != 'X' && element->next != nullptr) element = element->next;
    return *element;
}

// Adds layers to a design until there are as many as a rule may make.
class RuleLayers {
public:
    explicit RuleLayers(RezChain& design) : m_design(design) {}

    // Null when there are enough.
    CRez* add(const CRez& element) {
        if (m_count == mostByRule) return nullptr;
        ++m_count;
        return appendCopy(m_design, element);
    }

private:
    RezChain& m_design;
    int m_count = 0;
};

// The layers that a character of a rule stands for; false when there are enough.
bool addByRule(RuleLayers& layers, char c, const CRez& x, const CRez& chosen,
               std::span<const CRez* const> listed) {
    if (c == 'X') return layers.add(x) != nullptr;
    if (c == 'I' || c == 'M') {
        CRez* added = layers.add(chosen);
        if (added) makeSpecial(*added, c == 'I' ? Kind::insulation : Kind::space);
        return added != nullptr;
    }
    return std::all_of(listed.begin(), listed.end(), [&](const CRez* element) {
        return element->letter != c || layers.add(*element) != nullptr;
    });
}

// Ends where it would add one layer too many.
void followRule(RezChain& design, std::string_view rule, const CRez& chosen,
                std::span<const CRez* const> listed) {
    const CRez& x = elementX(chosen);
    RuleLayers layers(design);
    CollectedNumber number;
    for (const char c : rule) {
        if (isDigit(c)) {
            number.add(c);
        } else if (c == ']') {
            design.last()->width = number.take();
        } else if (c == '}') {
            design.last()->height = number.take();
        } else if (c >= 'A' && c <= 'Z' && !addByRule(layers, c, x, chosen, listed)) {
            return;
        }
    }
}

// How deep the first section nests into insulation in front of it, mm; an open one is turned.
std::int32_t turnTowardsInsulation(CRez& section) {
    const KindTraits& before = traits(section.kind);
    if (before.opensBehind) section.kind = mirrored(section.kind);
    return nested(before.underInsulation, section.width);
}

}  // namespace

CRez* composePrecast(RezChain& design, const CRez* chosen, std::span<const CRez* const> listed,
                     const Profile& rules) {
    if (design.empty() || chosen == nullptr) return nullptr;
    removeLayers(design);
    CRez& head = *design.head();
    if (const auto rule = compositionRule(rules, head.width, chosen->nameOrEmpty())) {
        followRule(design, *rule, *chosen, listed);
    } else {
        repeat(design, *chosen);
        insulateFirstFace(design, *chosen, freeSpace(head));
    }
    layOut(head);
    return &head;
}

CRez* composeSteel(RezChain& design, CRez* chosen) {
    if (design.empty() || chosen == nullptr) return nullptr;
    const std::int64_t nesting = turnTowardsInsulation(*chosen);
    removeLayers(design);
    CRez& head = *design.head();
    CRez section(*chosen);
    section.length = lengthOver(head.length, settledBearing(head));
    repeat(design, section);
    CRez* insulation = insulateFirstFace(design, *chosen, freeSpace(head) + nesting);
    layOut(head);
    return insulation != nullptr ? insulation : design.last();
}

}  // namespace lx
