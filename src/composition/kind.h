// The kinds of a record, and what is true of each of them.
#pragma once

#include <cstdint>
#include <string_view>

namespace lx {

// The number that files hold, which may be any. 1 to 99 are steel shapes by their number; from 101
// on come layers that no catalogue holds.
enum class Kind : std::int32_t {
    head = -1,
    precast = 0,
    beam = 1,
    angle = 2,
    channel = 3,
    angleMirrored = 52,
    channelMirrored = 53,
    insulation = 101,
    space = 102,
    monolith = 103
};

constexpr std::int32_t code(Kind kind) {
    return static_cast<std::int32_t>(kind);
}

// The same steel section seen from the other wall face, and back.
constexpr Kind mirrored(Kind kind) {
    constexpr std::int32_t apart = 50;
    return Kind{code(kind) + (code(kind) >= apart ? -apart : apart)};
}

// What a design with such a layer is made of.
enum class Family { none = 0, precast = 1, steel = 2, monolith = 3 };

// How much of a layer's width may lie over insulation that touches it.
enum class Nesting { none, half, whole };

// What a line of the description tells behind the designation.
enum class Summary {
    designation,   // nothing
    length,        // the length
    size,          // all three sizes
    sizeToLowest,  // the same, the height down to the lowest point of the head
    leftOut        // there is no line
};

// What stands beside the section when the layer is the current one.
enum class Beside { nothing, mirrorButton, width, widthAndHeight };

// The lines that a layer is drawn with.
enum class Symbol { block, profile, insulation, space, cast };

constexpr bool hasFinePen(Symbol symbol) {
    return symbol != Symbol::block && symbol != Symbol::profile;
}

// The side of a profile's web: near the first wall face or far from it.
enum class Web { middle, nearEdge, farEdge };

struct KindTraits {
    std::string_view name = {};  // given at creation; empty: the catalogue's designation
    std::string_view widthWord;  // before the width
    Family family = Family::none;
    Summary summary = Summary::designation;
    Nesting overInsulation = Nesting::none;   // over insulation before it
    Nesting underInsulation = Nesting::none;  // insulation behind lies over it
    bool opensBehind = false;    // a composition turns it towards the insulation before it
    bool heldByFloor = true;     // never begins before the layer in front of insulation ends
    bool followsBearing = true;  // a bearing that is typed changes its length
    Beside beside = Beside::nothing;
    Symbol symbol = Symbol::block;
    Web web = Web::middle;
    bool topFlange = false;
};

const KindTraits& traits(Kind kind);

// mm of that width.
constexpr std::int32_t nested(Nesting nesting, std::int32_t width) {
    return nesting == Nesting::whole ? width : nesting == Nesting::half ? width / 2 : 0;
}

}  // namespace lx
