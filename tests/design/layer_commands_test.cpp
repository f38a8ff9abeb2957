// Adding and removing layers, and which of the commands the buttons offer.
#include <gtest/gtest.h>

#include "composition/layout.h"
#include "design/layer_commands.h"
#include "tests/support/designs.h"

namespace lx {
namespace {

struct LayerCommands : testing::Test {
    RezChain design;
    CRez* current = nullptr;
    std::unique_ptr<CRez> element = layer(Kind::precast, 70, "E");

    void SetUp() override {
        current = design.append(headOf(300));
        current->length = 1000;
    }
    DesignEdit edit() { return {design, current}; }
    CRez* append(std::unique_ptr<CRez> record) {
        CRez* added = design.append(std::move(record));
        layOut(*design.head());
        return added;
    }
    // "kind width x height, length, bearing, letter" of the current record.
    std::string made() const {
        return std::to_string(code(current->kind)) + " " + std::to_string(current->width) + "x" +
               std::to_string(current->height) + ", " + std::to_string(current->length) + ", " +
               std::to_string(current->bearing) + ", " + current->letter;
    }
    std::string names() const {
        std::string text;
        for (const CRez* one = design.head()->next; one; one = one->next) {
            text += std::string(one->nameOrEmpty()) + (one == current ? "* " : " ");
        }
        return text;
    }
};

TEST_F(LayerCommands, ALintelGoesBehindTheCurrentRecordElseToTheEnd) {
    append(layer(Kind::insulation, 50, "I"));
    append(layer(Kind::precast, 70, "P"));
    CRez stranger;
    const std::pair<CRez*, const char*> places[] = {
        {design.head(), "E* I P "}, {design.last(), "E I P E* "}, {&stranger, "E I P E E* "}};
    for (const auto& [place, made] : places) {
        current = place;
        EXPECT_EQ(addPrecast(edit(), element.get()), CommandAnswer::done);
        EXPECT_EQ(names(), made);
    }
    EXPECT_EQ(addPrecast(edit(), nullptr), CommandAnswer::nothing);
}

// The first typed layer decides.
TEST_F(LayerCommands, LintelsAndSectionsAreNotMixed) {
    const struct {
        CommandAnswer (*command)(DesignEdit, const CRez*);
        Kind first, then;
        CommandAnswer answer;
    } cases[] = {{addPrecast, Kind::precast, Kind::channel, CommandAnswer::done},
                 {addSteel, Kind::angleMirrored, Kind::precast, CommandAnswer::done},
                 {addPrecast, Kind::channelMirrored, Kind::precast, CommandAnswer::wrongType},
                 {addPrecast, Kind::monolith, Kind::precast, CommandAnswer::wrongType},
                 {addSteel, Kind::precast, Kind::beam, CommandAnswer::wrongType},
                 {addSteel, Kind::monolith, Kind::beam, CommandAnswer::wrongType}};
    for (const auto& one : cases) {
        RezChain other;
        CRez* place = other.append(headOf(300));
        for (const Kind kind : {Kind::insulation, one.first, one.then}) {
            other.append(layer(kind, 60));
        }
        EXPECT_EQ(one.command({other, place}, element.get()), one.answer);
        const bool done = one.answer == CommandAnswer::done;
        EXPECT_EQ(LayerCount(*other.head()), done ? 4 : 3);
        if (!done) {
            EXPECT_EQ(one.command({other, place}, nullptr), CommandAnswer::wrongType);
            EXPECT_EQ(other.head()->headBearing(), 0);
        }
    }
}

TEST_F(LayerCommands, InsulationFillsTheFreeSpaceLikeTheLayerBeforeIt) {
    EXPECT_EQ(addInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(design.head()->headBearing(), 150);
    EXPECT_EQ(current->name, "IZOLACE");
    EXPECT_EQ(made(), "101 300x200, 1300, 0,  ");

    current->width = 220;
    layOut(*design.head());
    CRez* lintel = append(layer(Kind::precast, 70, "P"));
    lintel->height = 238;
    lintel->length = 1234;
    lintel->bearing = 117;
    lintel->letter = 'X';
    current = lintel;
    EXPECT_EQ(addInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(made(), "101 10x238, 1234, 117, X");
    EXPECT_EQ(names(), "IZOLACE P IZOLACE* ");
    current->width = 1;
    layOut(*design.head());
    EXPECT_EQ(addInsulation(edit()), CommandAnswer::nothing);
}

TEST_F(LayerCommands, ASpaceNeedsALayerBeforeItAndFiveMillimetres) {
    EXPECT_EQ(addSpace(edit()), CommandAnswer::nothing);
    current = append(layer(Kind::precast, 295, "P"));
    current->typeIndex = 3;
    EXPECT_EQ(addSpace(edit()), CommandAnswer::done);
    EXPECT_EQ(names(), "P MEZERA* ");
    EXPECT_EQ(made(), "102 5x100, 0, 0,  ");
    EXPECT_EQ(current->typeIndex, 3);
    current->width = 1;
    layOut(*design.head());
    EXPECT_EQ(addSpace(edit()), CommandAnswer::nothing);
}

TEST_F(LayerCommands, OnlyASectionAtTheEndTakesTheLengthOfTheDay) {
    auto section = layer(Kind::channel, 60, "S");
    section->length = 777;
    EXPECT_EQ(addSteel(edit(), nullptr), CommandAnswer::nothing);
    EXPECT_EQ(design.head()->headBearing(), 0);
    EXPECT_EQ(addSteel(edit(), section.get()), CommandAnswer::done);
    EXPECT_EQ(current->length, 1300);
    EXPECT_EQ(design.head()->headBearing(), 150);
    design.head()->headBearing() = 200;
    current = design.head();
    EXPECT_EQ(addSteel(edit(), section.get()), CommandAnswer::done);
    EXPECT_EQ(current->length, 777);
    EXPECT_EQ(names(), "S* S ");
    CRez stranger;
    current = &stranger;
    EXPECT_EQ(addSteel(edit(), section.get()), CommandAnswer::done);
    EXPECT_EQ(current, design.last());
    EXPECT_EQ(current->length, 1400);
    EXPECT_EQ(section->length, 777);
}

TEST_F(LayerCommands, InsulationBesideSteelIsMadeLikeTheSection) {
    CRez* section = current = append(layer(Kind::channel, 220, "S"));
    section->height = 140;
    section->length = 777;
    section->letter = 'Q';
    EXPECT_EQ(addSteelInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(made(), "101 300x140, 1300, 0, Q");
}

TEST_F(LayerCommands, InsulationBesideSteelNeedsTenMillimetresOfRoom) {
    const struct {
        Kind kind;
        std::int32_t width, wall, insulation;
    } cases[] = {{Kind::beam, 100, 105, 55},        {Kind::beam, 19, 20, 10},
                 {Kind::beam, 19, 19, -1},          {Kind::angle, 60, 10, 10},
                 {Kind::channel, 291, 300, 300},    {Kind::angleMirrored, 60, 70, 10},
                 {Kind::angleMirrored, 60, 69, -1}, {Kind{4}, 60, 160, 100},
                 {Kind::head, 0, 79, 79},           {Kind::head, 0, 81, 80}};
    for (const auto& one : cases) {
        RezChain other;
        CRez* place = other.append(headOf(one.wall));
        if (one.kind != Kind::head) place = other.append(layer(one.kind, one.width));
        layOut(*other.head());
        const CommandAnswer answer = addSteelInsulation({other, place});
        EXPECT_EQ(answer == CommandAnswer::done ? place->width : -1, one.insulation) << one.wall;
    }
}

TEST_F(LayerCommands, NothingIsDoneWithoutACurrentRecordOrADesign) {
    append(layer(Kind::precast, 70, "P"));
    current = nullptr;
    RezChain none;
    for (const DesignEdit where : {edit(), DesignEdit{none, current}}) {
        for (const auto command : {addInsulation, addSpace, addSteelInsulation, addMonolith,
                                   insertInsulation, removeCurrent, removeCurrentGoingBack}) {
            EXPECT_EQ(command(where), CommandAnswer::nothing);
        }
        EXPECT_EQ(moveCurrent(where, design.last()), CommandAnswer::nothing);
    }
    EXPECT_EQ(addPrecast({none, current}, element.get()), CommandAnswer::nothing);
    EXPECT_EQ(addSteel({none, current}, element.get()), CommandAnswer::nothing);
}

TEST_F(LayerCommands, ALayerIsMovedWithinItsDesign) {
    append(layer(Kind::precast, 70, "P"));
    append(layer(Kind::space, 30, "M"));
    CRez stranger;
    current = design.last();
    for (CRez* const target : {&stranger, static_cast<CRez*>(nullptr), current}) {
        EXPECT_EQ(moveCurrent(edit(), target), CommandAnswer::nothing);
    }
    EXPECT_EQ(moveCurrent(edit(), design.head()->next), CommandAnswer::done);
    EXPECT_EQ(names(), "M* P ");
}

TEST_F(LayerCommands, ACastPartFillsTheFreeSpaceInAnyDesign) {
    // A short bearing would not carry it.
    for (const auto& [bearing, settled] : {std::pair{40, 150}, {49, 150}, {50, 50}, {-3, 150}}) {
        RezChain other;
        CRez* place = other.append(headOf(75));
        place->length = 900;
        place->headBearing() = bearing;
        place = other.append(layer(Kind::precast, 70, "P"));
        place->letter = 'Q';
        layOut(*other.head());
        EXPECT_EQ(addMonolith({other, place}), CommandAnswer::done);
        EXPECT_EQ(other.head()->headBearing(), settled);
        EXPECT_EQ(place->width, 5);
        EXPECT_EQ(place->length, 900 + 2 * settled);
        EXPECT_EQ(place->letter, 'Q');
        place->width = 1;
        layOut(*other.head());
        EXPECT_EQ(addMonolith({other, place}), CommandAnswer::nothing);
    }
}

TEST_F(LayerCommands, TheMenuInsertsThinInsulationWithoutAskingForRoom) {
    design.head()->height = 2300;
    EXPECT_EQ(insertInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(made(), "101 30x2300, 1000, 0,  ");
    CRez* lintel = current = append(layer(Kind::precast, 400, "P"));
    append(layer(Kind::precast, 70, "Q"));
    lintel->height = 238;
    lintel->length = 1190;
    lintel->bearing = 125;
    EXPECT_EQ(insertInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(names(), "IZOLACE P IZOLACE* Q ");
    EXPECT_EQ(current->offset, 430);
    EXPECT_EQ(made(), "101 30x238, 1190, 0,  ");
}

TEST_F(LayerCommands, ButtonsAreOfferedByTheFreeSpace) {
    CRez* head = design.head();
    CRez* filler = append(layer(Kind::precast, 0));
    const auto at = [&](std::int32_t free, const CRez* record) {
        filler->width = 300 - free;
        return availability(head, record, element.get(), nullptr);
    };
    EXPECT_EQ(at(70, filler), (Availability{true, true, false, true, true, true}));
    EXPECT_EQ(at(69, head), (Availability{false, false, false, true, true, true}));
    EXPECT_EQ(at(29, nullptr), (Availability{false, false, false, false, true, true}));
    EXPECT_EQ(at(20, filler), (Availability{true, false, false, false, true, true}));
    EXPECT_EQ(at(19, filler), (Availability{true, false, false, false, false, true}));
    EXPECT_EQ(at(9, filler), (Availability{true, false, false, false, false, false}));
    EXPECT_TRUE(availability(head, filler, nullptr, layer(Kind::beam, 9).get()).addSteel);
    EXPECT_EQ(availability(nullptr, nullptr, element.get(), nullptr), Availability{});
}

}  // namespace
}  // namespace lx
