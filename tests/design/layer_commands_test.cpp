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
