#include "composition/CRez.h"

#include <gtest/gtest.h>

#include "tests/support/designs.h"

namespace lx {
namespace {

TEST(Records, ACopyStandsAlone) {
    const RezChain design = sampleDesign("ABCDE");
    const CRez head(*design.head());
    EXPECT_EQ(head.level, 0);
    EXPECT_EQ(head.next, nullptr);
    EXPECT_EQ(head.label(), "ABC");
    ASSERT_TRUE(head.bends && head.bends->next);
    EXPECT_EQ(head.bends->next->step, -30);
    EXPECT_TRUE(head.bends->next->flag);

    design.head()->itemIndex = -1;
    EXPECT_EQ(design.head()->label().size(), 3U);

    CRez lintel(*design.head()->next);
    EXPECT_EQ(lintel.level, 0);
    EXPECT_EQ(lintel.next, nullptr);
    lintel.level = 50;
    EXPECT_EQ(recordBytes(lintel, false), recordBytes(*design.head()->next, false));
    EXPECT_FALSE(CRez(*design.last()).name);
}

TEST(Records, CompareTellsTheFirstDifference) {
    const RezChain a = sampleDesign("AB");
    const auto compared = [&](auto change) {
        RezChain b = sampleDesign("AB");
        change(b);
        return compare(a.head(), b.head());
    };
    EXPECT_EQ(compared([](RezChain& b) { b.append(layer(Kind::space, 10)); }), 2);
    EXPECT_EQ(compared([](RezChain& b) { b.unlink(b.last()); }), 1);
    EXPECT_EQ(compared([](RezChain& b) { b.head()->bends->next.reset(); }), 11);
    EXPECT_EQ(compared([](RezChain& b) { b.head()->addBend(1, 1, false); }), 12);
    EXPECT_EQ(compared([](RezChain& b) { b.head()->next->name = "kpv 7/145"; }), 20);
    EXPECT_EQ(compared([](RezChain& b) { b.last()->name = ""; }), 0);
    EXPECT_EQ(compared([](RezChain& b) { b.head()->bends->step = 9; }), 0);
    EXPECT_EQ(compared([](RezChain& b) { b.head()->next->letter = 'a'; }), 0);
    // Nothing of a longer label stays behind a shorter one.
    EXPECT_EQ(compared([](RezChain& b) { b.head()->setLabel("A"); }), 1);
    EXPECT_EQ(compared([](RezChain& b) {
                  b.head()->setLabel("XYZ");
                  b.head()->setLabel("AB");
              }),
              0);
    for (const auto field :
         {&CRez::itemIndex, &CRez::width, &CRez::length, &CRez::offset, &CRez::level}) {
        EXPECT_EQ(compared([&](RezChain& b) { ++(b.head()->next->*field); }), 1);
    }
    EXPECT_EQ(compared([](RezChain& b) { b.head()->next->kind = Kind::beam; }), 1);
    for (const auto field :
         {&CRez::bearing, &CRez::typeIndex, &CRez::height, &CRez::weight, &CRez::maxOpening}) {
        EXPECT_EQ(compared([&](RezChain& b) { ++(b.head()->next->*field); }), 0);
    }
}

TEST(Records, AChainKeepsItsEndsThroughEveryChange) {
    RezChain chain;
    CRez* a = chain.append(layer(Kind{0}, 1));
    CRez* c = chain.append(layer(Kind{0}, 3));
    CRez* b = chain.insertAfter(a, layer(Kind{0}, 2));
    CRez* d = chain.insertAfter(c, layer(Kind{0}, 4));
    EXPECT_EQ(chain.last(), d);
    EXPECT_EQ(chain.before(c), b);
    EXPECT_EQ(chain.unlink(d)->next, nullptr);
    EXPECT_EQ(chain.last(), c);
    EXPECT_EQ(chain.unlink(a)->width, 1);
    CRez stranger;
    EXPECT_EQ(chain.unlink(&stranger), nullptr);
    RezChain moved = std::move(chain);
    EXPECT_EQ(moved.head(), b);
    const CRez* added = moved.append(layer(Kind{0}, 5));
    EXPECT_EQ(c->next, added);
    const CRez* alone = chain.append(layer(Kind{0}, 6));
    EXPECT_EQ(chain.head(), alone);
}

}  // namespace
}  // namespace lx
