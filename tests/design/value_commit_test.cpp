// What typed values do to a design.
#include <gtest/gtest.h>

#include "composition/layout.h"
#include "design/value_commit.h"
#include "resources/strings.h"
#include "tests/support/designs.h"

namespace lx {
namespace {

struct ValueCommit : testing::Test {
    RezChain design;
    CRez* current = nullptr;
    double opening = 1200.6;

    void SetUp() override {
        current = design.append(headOf(300));
        current->length = 1201;
    }
    CRez* head() { return design.head(); }
    CRez* append(std::unique_ptr<CRez> record) {
        CRez* added = design.append(std::move(record));
        layOut(*head());
        return added;
    }
    CommitAnswer type(EditTarget target, std::string_view typed, int kind = edit_kind::number,
                      bool absolute = false) {
        const ValueEdit edit{kind, absolute, target, "as it was"};
        return commitValue({design, current}, edit, typed, opening);
    }
    CommitAnswer typeBearing(std::string_view typed) {
        return type({head(), EditField::headBearing}, typed, edit_kind::number, true);
    }
    CommitAnswer typeLevel(std::string_view typed) {
        return type({head(), EditField::height}, typed, 103, true);
    }
};

TEST_F(ValueCommit, LevelsAreMetresInStepsOfFiveMillimetres) {
    const std::pair<const char*, int> accepted[] = {
        {"1.234", 1230}, {"-1.234", -1230}, {"-0.001", 0},     {"150.0", 150000},
        {"1,25", 1250},  {"2.345", 2345},   {"-150", -150000}, {"", 0}};
    for (const auto& [typed, level] : accepted) {
        EXPECT_TRUE(typeLevel(typed).changed) << typed;
        EXPECT_EQ(head()->height, level) << typed;
    }
    head()->height = -1250;
    for (const char* typed : {"150.001", "-150.001", "1e999", "-1e999"}) {
        const CommitAnswer answer = typeLevel(typed);
        EXPECT_FALSE(answer.changed) << typed;
        EXPECT_EQ(answer.message, text::levelRefused) << typed;
        EXPECT_EQ(answer.kept, "-1.250") << typed;
        EXPECT_EQ(head()->height, -1250) << typed;
    }
    // The shown text itself, though it stands for another level by its steps.
    head()->height = 1234;
    const ValueEdit unchanged{103, true, {head(), EditField::height}, "1.234"};
    EXPECT_FALSE(commitValue({design, current}, unchanged, "1.234", opening).changed);
    EXPECT_EQ(head()->height, 1234);
}

TEST_F(ValueCommit, OnlyTheWidthOfASpecialLayerIsTestedAgainstTheWall) {
    append(layer(Kind::precast, 160));
    CRez* space = append(layer(Kind::space, 100));
    ASSERT_EQ(freeSpace(*head()), 40);
    const EditTarget width{space, EditField::width};

    const CommitAnswer refused = type(width, "141", edit_kind::specialWidth, true);
    EXPECT_EQ(refused.message, text::widthRefused);
    EXPECT_EQ(refused.kept, "100");
    EXPECT_EQ(space->width, 100);
    EXPECT_TRUE(type(width, "-140", edit_kind::specialWidth, true).changed);
    EXPECT_EQ(space->width, 140);
    layOut(*head());
    EXPECT_EQ(type(width, "2147483647", edit_kind::specialWidth, true).message, text::widthRefused);
    EXPECT_TRUE(type(width, "500", edit_kind::number).changed);
    EXPECT_EQ(space->width, 500);
}

TEST_F(ValueCommit, NumbersAreLeadingDigitsWithinTheRange) {
    head()->addBend(100, 50, false);
    head()->addBend(120, -30, true);
    const EditTarget step{head(), EditField::bendStep, 1};
    const EditTarget run{head(), EditField::bendRun, 1};
    const CZalom& bend = *head()->bends->next;
    EXPECT_TRUE(type(step, "-45mm").changed);
    EXPECT_EQ(bend.step, -45);
    type(run, "-99999999999", edit_kind::number, true);
    EXPECT_EQ(bend.run, 2147483647);
    type(run, "x");
    EXPECT_EQ(bend.run, 0);

    // What is gone is left alone: another bend, another record, no edit at all.
    const Bytes before = designBytes(head());
    EXPECT_FALSE(type({head(), EditField::bendRun, 2}, "7").changed);
    const CRez stranger;
    EXPECT_FALSE(type({&stranger, EditField::width}, "7").changed);
    EXPECT_FALSE(type(step, "7", edit_kind::none).changed);
    EXPECT_EQ(designBytes(head()), before);
}

TEST_F(ValueCommit, TheBearingSetsEveryLengthThatFollowsTheOpening) {
    CRez* fixed = append(layer(Kind::precast, 70));
    fixed->length = 1750;
    CRez* section = append(layer(Kind::channelMirrored, 60));
    CRez* cast = append(layer(Kind::monolith, 60));
    const CommitAnswer answer = typeBearing("200");
    EXPECT_TRUE(answer.changed && answer.steelOffer && !answer.precastOffer);
    EXPECT_EQ(head()->headBearing(), 200);
    EXPECT_EQ(head()->length, 1200);
    EXPECT_EQ(section->length, 1600);
    EXPECT_EQ(cast->length, 1600);
    EXPECT_EQ(fixed->length, 1750);
    for (const char* typed : {"20", "-50", "0"}) {
        typeBearing(typed);
        EXPECT_EQ(head()->headBearing(), 50) << typed;
    }

    // An element made for openings up to 1500 with a bearing of 125: beyond 150 it no longer fits.
    CRez* following = append(layer(Kind::precast, 70));
    following->bearing = 125;
    following->maxOpening = 1500;
    typeBearing("60");
    EXPECT_EQ(head()->headBearing(), 125);
    EXPECT_EQ(following->length, 1450);
    typeBearing("150");
    EXPECT_EQ(head()->headBearing(), 150);
    typeBearing("151");
    EXPECT_EQ(head()->headBearing(), 275);
    // Made for less than the opening: its own bearing holds.
    following->maxOpening = 600;
    typeBearing("300");
    EXPECT_EQ(head()->headBearing(), 125);
    EXPECT_TRUE(typeBearing("2147483647").changed);
}

TEST_F(ValueCommit, TheOpeningWidthRebuildsBothOffers) {
    const CommitAnswer answer = type({head(), EditField::length}, "900");
    EXPECT_TRUE(answer.changed && answer.precastOffer && answer.steelOffer);
    EXPECT_EQ(head()->length, 900);
}

}  // namespace
}  // namespace lx
