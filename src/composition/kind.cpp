#include "composition/kind.h"

#include <algorithm>
#include <iterator>
#include <limits>

#include "resources/strings.h"

namespace lx {

namespace {

constexpr KindTraits element(Family family) {
    KindTraits result;
    result.widthWord = text::width;
    result.family = family;
    result.followsBearing = false;
    return result;
}

// A steel section whose shape nobody knows.
constexpr KindTraits steelBlock() {
    KindTraits result;
    result.widthWord = text::width;
    result.family = Family::steel;
    result.summary = Summary::length;
    result.beside = Beside::mirrorButton;
    return result;
}

constexpr KindTraits profile(Web web, bool topFlange) {
    KindTraits result = steelBlock();
    result.symbol = Symbol::profile;
    result.web = web;
    result.topFlange = topFlange;
    return result;
}

// The same from both sides.
constexpr KindTraits beam() {
    KindTraits result = profile(Web::middle, true);
    result.overInsulation = result.underInsulation = Nesting::half;
    result.beside = Beside::nothing;
    return result;
}

constexpr KindTraits openBehind(bool topFlange) {
    KindTraits result = profile(Web::nearEdge, topFlange);
    result.underInsulation = Nesting::whole;
    result.opensBehind = true;
    return result;
}

constexpr KindTraits openBefore(bool topFlange) {
    KindTraits result = profile(Web::farEdge, topFlange);
    result.overInsulation = Nesting::whole;
    return result;
}

constexpr KindTraits special(std::string_view name, Family family, Summary summary, Beside beside,
                             Symbol symbol) {
    KindTraits result;
    result.name = name;
    result.widthWord = text::width;
    result.family = family;
    result.summary = summary;
    result.heldByFloor = false;
    result.beside = beside;
    result.symbol = symbol;
    return result;
}

constexpr KindTraits insulation() {
    KindTraits result = special(text::insulation, Family::none, Summary::size,
                                Beside::widthAndHeight, Symbol::insulation);
    result.widthWord = text::thickness;
    return result;
}

// Numbers without a meaning belong to the row before them.
struct Row {
    std::int32_t from;
    KindTraits traits;
};
constexpr Row rows[] = {
    {std::numeric_limits<std::int32_t>::min(), element(Family::none)},
    {code(Kind::precast), element(Family::precast)},
    {code(Kind::beam), beam()},
    {code(Kind::angle), openBehind(false)},
    {code(Kind::channel), openBehind(true)},
    {code(Kind::channel) + 1, steelBlock()},
    {code(Kind::angleMirrored), openBefore(false)},
    {code(Kind::channelMirrored), openBefore(true)},
    {code(Kind::channelMirrored) + 1, steelBlock()},
    {100, special({}, Family::none, Summary::designation, Beside::mirrorButton, Symbol::block)},
    {code(Kind::insulation), insulation()},
    {code(Kind::space),
     special(text::space, Family::none, Summary::leftOut, Beside::width, Symbol::space)},
    {code(Kind::monolith), special(text::monolith, Family::monolith, Summary::sizeToLowest,
                                   Beside::widthAndHeight, Symbol::cast)},
    {code(Kind::monolith) + 1,
     special({}, Family::none, Summary::designation, Beside::width, Symbol::block)}};

constexpr bool inOrder() {
    return std::adjacent_find(std::begin(rows), std::end(rows), [](const Row& a, const Row& b) {
               return a.from >= b.from;
           }) == std::end(rows);
}
static_assert(inOrder());
static_assert(mirrored(Kind::angle) == Kind::angleMirrored);
static_assert(mirrored(Kind::channelMirrored) == Kind::channel);

}  // namespace

const KindTraits& traits(Kind kind) {
    const Row* behind =
        std::upper_bound(std::begin(rows), std::end(rows), code(kind),
                         [](std::int32_t number, const Row& row) { return number < row.from; });
    return std::prev(behind)->traits;
}

}  // namespace lx
