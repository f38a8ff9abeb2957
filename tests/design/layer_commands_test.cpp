// Adding and removing layers, and which of the commands the buttons offer.
#include <gtest/gtest.h>

#include "composition/layout.h"
#include "design/availability.h"
#include "design/layer_commands.h"
#include "tests/support/designs.h"

namespace lx {
namespace {

struct LayerCommands : testing::Test {
    RezChain design;
    CRez* current = nullptr;
    std::unique_ptr<CRez> element = layer(kind::precast, 70, "E");

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
    std::string names() const {
        std::string text;
        for (const CRez* one = design.head()->next; one; one = one->next) {
            text += std::string(one->nameOrEmpty()) + (one == current ? "* " : " ");
        }
        return text;
    }
};

TEST_F(LayerCommands, ALintelGoesBehindTheCurrentRecord) {
    append(layer(kind::insulation, 50, "I"));
    append(layer(kind::precast, 70, "P"));
    EXPECT_EQ(addPrecast(edit(), element.get()), CommandAnswer::done);
    EXPECT_EQ(names(), "E* I P ");
    current = design.last();
    EXPECT_EQ(addPrecast(edit(), element.get()), CommandAnswer::done);
    EXPECT_EQ(names(), "E I P E* ");
    CRez stranger;
    current = &stranger;
    EXPECT_EQ(addPrecast(edit(), element.get()), CommandAnswer::done);
    EXPECT_EQ(names(), "E I P E E* ");
    EXPECT_EQ(addPrecast(edit(), nullptr), CommandAnswer::nothing);
}

TEST_F(LayerCommands, TheFirstTypedLayerDecidesWhetherALintelMayBeAdded) {
    append(layer(kind::insulation, 50));
    append(layer(kind::precast, 70));
    append(layer(kind::channel, 60));
    EXPECT_EQ(addPrecast(edit(), element.get()), CommandAnswer::done);
    for (const std::int32_t typed : {kind::channelMirrored, kind::monolith}) {
        RezChain other;
        CRez* place = other.append(headOf(300));
        other.append(layer(kind::space, 10));
        other.append(layer(typed, 60));
        other.append(layer(kind::precast, 70));
        EXPECT_EQ(addPrecast({other, place}, nullptr), CommandAnswer::wrongType);
        EXPECT_EQ(layerCount(*other.head()), 3);
    }
}

TEST_F(LayerCommands, InsulationFillsTheFreeSpaceLikeTheLayerBeforeIt) {
    EXPECT_EQ(addInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(design.head()->maxOpening, 150);
    EXPECT_EQ(current->kind, kind::insulation);
    EXPECT_EQ(current->name, "IZOLACE");
    EXPECT_EQ(current->width, 300);
    EXPECT_EQ(current->height, 200);
    EXPECT_EQ(current->length, 1300);

    current->width = 220;
    layOut(*design.head());
    CRez* lintel = append(layer(kind::precast, 70, "P"));
    lintel->height = 238;
    lintel->length = 1234;
    lintel->bearing = 117;
    lintel->letter = 'X';
    current = lintel;
    EXPECT_EQ(addInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(current->width, 10);
    EXPECT_EQ(current->height, 238);
    EXPECT_EQ(current->length, 1234);
    EXPECT_EQ(current->bearing, 117);
    EXPECT_EQ(current->letter, 'X');
    EXPECT_EQ(names(), "IZOLACE P IZOLACE* ");
    current->width = 1;
    layOut(*design.head());
    EXPECT_EQ(addInsulation(edit()), CommandAnswer::nothing);
}

TEST_F(LayerCommands, ASpaceNeedsALayerBeforeItAndFiveMillimetres) {
    EXPECT_EQ(addSpace(edit()), CommandAnswer::nothing);
    current = append(layer(kind::precast, 295, "P"));
    current->typeIndex = 3;
    EXPECT_EQ(addSpace(edit()), CommandAnswer::done);
    EXPECT_EQ(names(), "P MEZERA* ");
    EXPECT_EQ(current->kind, kind::space);
    EXPECT_EQ(current->width, 5);
    EXPECT_EQ(current->height, 100);
    EXPECT_EQ(current->typeIndex, 3);
    current->width = 1;
    layOut(*design.head());
    EXPECT_EQ(addSpace(edit()), CommandAnswer::nothing);
}

TEST_F(LayerCommands, RemovingMakesTheNextLayerCurrentElseTheOneBefore) {
    EXPECT_EQ(removeCurrent(edit()), CommandAnswer::nothing);
    append(layer(kind::precast, 70, "A"));
    append(layer(kind::precast, 70, "B"));
    append(layer(kind::precast, 70, "C"));
    current = design.head()->next;
    EXPECT_EQ(removeCurrent(edit()), CommandAnswer::done);
    EXPECT_EQ(names(), "B* C ");
    current = current->next;
    EXPECT_EQ(removeCurrent(edit()), CommandAnswer::done);
    EXPECT_EQ(names(), "B* ");
    EXPECT_EQ(removeCurrent(edit()), CommandAnswer::done);
    EXPECT_EQ(current, design.head());
    current = nullptr;
    EXPECT_EQ(removeCurrent(edit()), CommandAnswer::nothing);
}

TEST_F(LayerCommands, TheMenuMakesTheRecordBeforeTheRemovedLayerCurrent) {
    EXPECT_EQ(removeCurrentGoingBack(edit()), CommandAnswer::nothing);
    append(layer(kind::precast, 70, "A"));
    append(layer(kind::precast, 70, "B"));
    append(layer(kind::precast, 70, "C"));
    current = design.head()->next->next;
    EXPECT_EQ(removeCurrentGoingBack(edit()), CommandAnswer::done);
    EXPECT_EQ(names(), "A* C ");
    EXPECT_EQ(removeCurrentGoingBack(edit()), CommandAnswer::done);
    EXPECT_EQ(current, design.head());
    EXPECT_EQ(names(), "C ");
}

TEST_F(LayerCommands, OnlyASectionAtTheEndTakesTheLengthOfTheDay) {
    auto section = layer(kind::channel, 60, "S");
    section->length = 777;
    EXPECT_EQ(addSteel(edit(), nullptr), CommandAnswer::nothing);
    EXPECT_EQ(design.head()->maxOpening, 0);
    EXPECT_EQ(addSteel(edit(), section.get()), CommandAnswer::done);
    EXPECT_EQ(current->length, 1300);
    EXPECT_EQ(design.head()->maxOpening, 150);
    design.head()->maxOpening = 200;
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

TEST_F(LayerCommands, ASectionGoesIntoAnEmptyOrSteelDesignAlone) {
    append(layer(kind::insulation, 50));
    append(layer(kind::angleMirrored, 60));
    append(layer(kind::precast, 70));
    EXPECT_EQ(addSteel(edit(), element.get()), CommandAnswer::done);
    for (const std::int32_t typed : {kind::precast, kind::monolith}) {
        RezChain other;
        CRez* place = other.append(headOf(300));
        other.append(layer(kind::space, 10));
        other.append(layer(typed, 60));
        other.append(layer(kind::beam, 70));
        EXPECT_EQ(addSteel({other, place}, nullptr), CommandAnswer::wrongType);
        EXPECT_EQ(addSteel({other, place}, element.get()), CommandAnswer::wrongType);
        EXPECT_EQ(layerCount(*other.head()), 3);
        EXPECT_EQ(other.head()->maxOpening, 0);
    }
}

TEST_F(LayerCommands, InsulationBesideSteelNestsAndDoesNotFillAnEmptyWall) {
    EXPECT_EQ(addSteelInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(design.head()->maxOpening, 150);
    EXPECT_EQ(current->kind, kind::insulation);
    EXPECT_EQ(current->name, "IZOLACE");
    EXPECT_EQ(current->width, 80);
    EXPECT_EQ(current->height, 200);
    EXPECT_EQ(current->length, 1300);

    layOut(*design.head());
    CRez* section = current = append(layer(kind::channel, 220, "S"));
    section->height = 140;
    section->length = 777;
    section->letter = 'Q';
    EXPECT_EQ(addSteelInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(names(), "IZOLACE S IZOLACE* ");
    EXPECT_EQ(current->width, 220);
    EXPECT_EQ(current->height, 140);
    EXPECT_EQ(current->length, 1300);
    EXPECT_EQ(current->letter, 'Q');
}

TEST_F(LayerCommands, InsulationBesideSteelNeedsTenMillimetresOfRoom) {
    const auto widthFor = [](std::int32_t kind, std::int32_t width, std::int32_t wall) {
        RezChain other;
        CRez* place = other.append(headOf(wall));
        place = other.append(layer(kind, width));
        layOut(*other.head());
        const CommandAnswer answer = addSteelInsulation({other, place});
        return answer == CommandAnswer::done ? place->width : -1;
    };
    EXPECT_EQ(widthFor(kind::beam, 100, 105), 55);
    EXPECT_EQ(widthFor(kind::beam, 19, 20), 10);
    EXPECT_EQ(widthFor(kind::beam, 19, 19), -1);
    EXPECT_EQ(widthFor(kind::angle, 60, 10), 10);
    EXPECT_EQ(widthFor(kind::angleMirrored, 60, 70), 10);
    EXPECT_EQ(widthFor(kind::angleMirrored, 60, 69), -1);
    EXPECT_EQ(widthFor(4, 60, 160), 100);
    const auto inEmptyWall = [](std::int32_t wall) {
        RezChain other;
        CRez* place = other.append(headOf(wall));
        addSteelInsulation({other, place});
        return place->width;
    };
    EXPECT_EQ(inEmptyWall(79), 79);
    EXPECT_EQ(inEmptyWall(81), 80);
    current = nullptr;
    EXPECT_EQ(addSteelInsulation(edit()), CommandAnswer::nothing);
    EXPECT_EQ(addMonolith(edit()), CommandAnswer::nothing);
    EXPECT_EQ(insertInsulation(edit()), CommandAnswer::nothing);
    EXPECT_EQ(design.head()->next, nullptr);
}

TEST_F(LayerCommands, ACastPartFillsTheFreeSpaceInAnyDesign) {
    EXPECT_EQ(addMonolith(edit()), CommandAnswer::done);
    EXPECT_EQ(design.head()->maxOpening, 150);
    EXPECT_EQ(current->kind, kind::monolith);
    EXPECT_EQ(current->name, "MONOLIT");
    EXPECT_EQ(current->width, 300);
    EXPECT_EQ(current->height, 300);
    EXPECT_EQ(current->length, 1300);

    // A short bearing would not carry it.
    for (const auto& [bearing, settled] : {std::pair{40, 150}, {49, 150}, {50, 50}, {-3, 150}}) {
        RezChain other;
        CRez* place = other.append(headOf(75));
        place->length = 900;
        place->maxOpening = bearing;
        place = other.append(layer(kind::precast, 70, "P"));
        place->letter = 'Q';
        layOut(*other.head());
        EXPECT_EQ(addMonolith({other, place}), CommandAnswer::done);
        EXPECT_EQ(other.head()->maxOpening, settled);
        EXPECT_EQ(place->width, 5);
        EXPECT_EQ(place->length, 900 + 2 * settled);
        EXPECT_EQ(place->letter, 'Q');
        EXPECT_EQ(designFamily(*other.head()), Family::precast);
        place->width = 1;
        layOut(*other.head());
        EXPECT_EQ(addMonolith({other, place}), CommandAnswer::nothing);
    }
}

TEST_F(LayerCommands, TheMenuInsertsThinInsulationWithoutAskingForRoom) {
    design.head()->height = 2300;
    EXPECT_EQ(insertInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(current->kind, kind::insulation);
    EXPECT_EQ(current->width, 30);
    EXPECT_EQ(current->length, 1000);
    EXPECT_EQ(current->height, 2300);
    CRez* lintel = current = append(layer(kind::precast, 400, "P"));
    append(layer(kind::precast, 70, "Q"));
    lintel->height = 238;
    lintel->length = 1190;
    lintel->bearing = 125;
    EXPECT_EQ(insertInsulation(edit()), CommandAnswer::done);
    EXPECT_EQ(names(), "IZOLACE P IZOLACE* Q ");
    EXPECT_EQ(current->width, 30);
    EXPECT_EQ(current->offset, 430);
    EXPECT_EQ(current->length, 1190);
    EXPECT_EQ(current->height, 238);
    EXPECT_EQ(current->bearing, 0);
}

TEST_F(LayerCommands, ButtonsAreOfferedByTheFreeSpace) {
    CRez* head = design.head();
    CRez* filler = append(layer(kind::precast, 0));
    const auto at = [&](std::int32_t free, const CRez* record) {
        filler->width = 300 - free;
        return availability(head, record, element.get(), nullptr);
    };
    EXPECT_EQ(at(70, filler), (Availability{true, true, false, true, true, true}));
    EXPECT_EQ(at(69, head), (Availability{false, false, false, true, true, true}));
    EXPECT_EQ(at(29, nullptr), (Availability{false, false, false, false, true, true}));
    EXPECT_EQ(at(19, filler), (Availability{true, false, false, false, false, true}));
    EXPECT_EQ(at(9, filler), (Availability{true, false, false, false, false, false}));
    EXPECT_TRUE(availability(head, filler, nullptr, layer(kind::beam, 9).get()).addSteel);
    EXPECT_EQ(availability(nullptr, nullptr, element.get(), nullptr), Availability{});

    // Insulation nests into an open steel section before it: wholly, or by half into a beam.
    filler->kind = kind::beam;
    EXPECT_EQ(insulationRoom(*head, filler), 9 + 291 / 2);
    for (const std::int32_t open : {kind::angle, kind::channel}) {
        filler->kind = open;
        EXPECT_EQ(insulationRoom(*head, filler), 300);
    }
    filler->kind = kind::angleMirrored;
    EXPECT_EQ(insulationRoom(*head, filler), 9);
}

}  // namespace
}  // namespace lx
