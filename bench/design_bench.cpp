// The work behind each of the user's acts in the section: drawing it, laying it out, asking which
// buttons may be used.
#include <benchmark/benchmark.h>

#include "composition/layout.h"
#include "composition/section_scale.h"
#include "design/availability.h"
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
    for (std::int64_t i = 0; i < layers; ++i) {
        if (i % 2 == 1) head.addBend(2 * width, i % 4 == 1 ? 50 : -50, false);
        const std::int32_t kind = i % 5 == 4 ? kind::insulation : i % 5 == 2 ? kind::beam : 0;
        CRez& added = *design.append(layer(kind, width, "KPV 7/145"));
        added.height = 238;
        added.length = 1450;
    }
    head.addBend(0, 60, true);
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

void manyLayers(benchmark::internal::Benchmark* measured) {
    measured->Unit(benchmark::kMicrosecond);
    for (const int size : {5, 10, 20, 40, 80, 160}) measured->Arg(size);
}

BENCHMARK(draw)->Name("draw/module")->Apply(manyLayers);
BENCHMARK(layout)->Name("layout/module")->Apply(manyLayers);

}  // namespace
