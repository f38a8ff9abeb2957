// The work behind each of the user's acts in the section: drawing it, laying it out, asking which
// buttons may be used.
#include <benchmark/benchmark.h>

#include "composition/layout.h"
#include "composition/section_scale.h"
#include "design/layer_commands.h"
#include "design/layer_texts.h"
#include "platform/recording_canvas.h"
#include "preview/section_drawing.h"
#include "tests/support/designs.h"

namespace {

using namespace lx;

constexpr Size preview{480, 400};

// A bend over every second layer, each fifth layer insulation, the end of the head sloping.
RezChain designOf(std::int64_t layers) {
    constexpr std::int32_t width = 70;
    RezChain design;
    CRez& head = *design.append(headOf(static_cast<std::int32_t>(layers) * width, "001"));
    head.length = 1200;
    std::unique_ptr<CZalom>* end = &head.bends;
    const auto addBend = [&end](std::int32_t run, std::int32_t step, bool flag) {
        *end = std::make_unique<CZalom>(run, step, flag);
        end = &(*end)->next;
    };
    for (std::int64_t i = 0; i < layers; ++i) {
        if (i % 2 == 1) addBend(2 * width, i % 4 == 1 ? 50 : -50, false);
        const Kind kind = i % 5 == 4 ? Kind::insulation : i % 5 == 2 ? Kind::beam : Kind::precast;
        CRez& added = *design.append(layer(kind, width, "KPV 7/145"));
        added.height = 238;
        added.length = 1450;
    }
    addBend(0, 60, true);
    layOut(head);
    settleSection(head, preview);
    return design;
}

void draw(benchmark::State& state) {
    const RezChain design = designOf(state.range(0));
    SectionInput input;
    input.head = design.head();
    input.current = design.last();
    input.client = preview;
    input.openingWidth = 1200;
    for (auto _ : state) {
        RecordingCanvas canvas;
        benchmark::DoNotOptimize(drawSection(canvas, input));
    }
}

void layout(benchmark::State& state) {
    const RezChain design = designOf(state.range(0));
    CRez& head = *design.head();
    for (auto _ : state) {
        layOut(head);
        settleSection(head, preview);
        benchmark::DoNotOptimize(availability(&head, design.last(), design.last(), design.last()));
        benchmark::ClobberMemory();
    }
}

// A layer under each bend, the runs in no order, as no user has them but a file may.
void hugeLayout(benchmark::State& state) {
    RezChain design = designOf(2 * state.range(0));
    CRez& head = *design.head();
    std::uint32_t random = 1;
    for (CZalom* bend = head.bends.get(); bend; bend = bend->next.get()) {
        random = random * 1664525 + 1013904223;
        bend->run = static_cast<std::int32_t>(random >> 22) - 512 + 140;
    }
    for (CRez* one = head.next; one; one = one->next) {
        if (one->kind == Kind::precast) one->kind = Kind::monolith;
    }
    for (auto _ : state) {
        layOut(head);
        settleSection(head, preview);
        benchmark::DoNotOptimize(descriptionSummary(head));
        benchmark::ClobberMemory();
    }
}

void manyBends(benchmark::internal::Benchmark* measured) {
    measured->Unit(benchmark::kMillisecond);
    for (const int size : {1000, 10000, 100000}) measured->Arg(size);
}

void manyLayers(benchmark::internal::Benchmark* measured) {
    measured->Unit(benchmark::kMicrosecond);
    for (const int size : {5, 10, 20, 40, 80, 160}) measured->Arg(size);
}

BENCHMARK(draw)->Name("draw/module")->Apply(manyLayers);
BENCHMARK(draw)->Name("draw_huge/module")->Apply(manyBends);
BENCHMARK(layout)->Name("layout/module")->Apply(manyLayers);
BENCHMARK(hugeLayout)->Name("huge/module")->Apply(manyBends);

}  // namespace
