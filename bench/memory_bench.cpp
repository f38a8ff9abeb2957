// How much memory a file takes that was made to take much: as many records as its bytes can hold,
// each as small as it can be. The size of a work is the file's in MB; its memory includes the bytes
// of the file.
#include <benchmark/benchmark.h>

#include "bench/growth.h"
#include "catalogue/catalogue_file.h"
#include "composition/hand_over.h"
#include "composition/library.h"
#include "composition/projects.h"
#include "composition/rules_file.h"
#include "settings/value_history.h"
#include "tests/support/designs.h"

namespace {

using namespace lx;

const Path filePath = "bench-memory.dat";

// A file of that size, made of what is answered for the numbers 0, 1, ... behind a beginning.
class HostileFile {
public:
    template <class Piece>
    HostileFile(const benchmark::State& state, Bytes bytes, Piece piece) {
        const auto size = static_cast<std::size_t>(state.range(0)) * 1000000;
        bytes.reserve(size + 1000);
        for (int i = 0; bytes.size() < size; ++i) bytes += piece(i);
        systemFiles().replace(filePath, bytes);
    }
    ~HostileFile() { systemFiles().remove(filePath); }
    HostileFile(const HostileFile&) = delete;
    HostileFile& operator=(const HostileFile&) = delete;
};

template <class Load>
void measure(benchmark::State& state, Load load) {
    for (auto _ : state) state.counters["peak MB"] = bench::peakOf(load);
}

void catalogue(benchmark::State& state) {
    CPreklItem item;
    item.group = 1;
    BinaryWriter record;
    item.writeRecord(record);
    const HostileFile file(state, {}, [&](int) { return record.bytes(); });
    measure(state, [] {
        auto loaded = loadCatalogue(CatalogueKind::precast, systemFiles().read(filePath).bytes);
        benchmark::DoNotOptimize(loaded);
    });
}

// Entries of one project that hold so many bytes of a design.
void library(benchmark::State& state, const Bytes& design) {
    BinaryWriter entry;
    entry.int32(static_cast<std::int32_t>(8 + design.size()));
    entry.int32(7);
    entry.raw("A  ");
    entry.byte(0);
    entry.raw(design);
    const HostileFile file(state, {}, [&](int) { return entry.bytes(); });
    measure(state, [] {
        auto loaded = loadLibrary(filePath, 7, systemFiles());
        benchmark::DoNotOptimize(loaded);
    });
}

void libraryOfHeads(benchmark::State& state) {
    library(state, recordBytes(*headOf(300), true));
}

void libraryOfTags(benchmark::State& state) {
    library(state, recordBytes(*headOf(300), true).substr(0, 8));
}

void projects(benchmark::State& state) {
    ProjectList one;
    one.projects.push_back({7, Text(projectNameLimit, 'P')});
    const Bytes entry = projectBytes(one).substr(8);
    const auto count = static_cast<std::int32_t>(state.range(0) * 1000000 / 68 + 1);
    BinaryWriter header;
    header.int32(0);
    header.int32(count);
    const HostileFile file(state, header.take(), [&](int) { return entry; });
    measure(state, [] {
        auto loaded = loadProjects(filePath, systemFiles());
        benchmark::DoNotOptimize(loaded);
    });
}

void handOver(benchmark::State& state, const CRez* head, const Bytes& piece) {
    const HostileFile file(state, handOverBytes(head), [&](int) { return piece; });
    measure(state, [] {
        auto loaded = ReadHandOver(filePath, systemFiles());
        benchmark::DoNotOptimize(loaded);
    });
}

void handOverOfLayers(benchmark::State& state) {
    const RezChain design = sampleDesign();
    handOver(state, design.head(), recordBytes(*layer(Kind::precast, 1, ""), false));
}

void handOverOfBends(benchmark::State& state) {
    auto head = headOf(300);
    head->addBend(1, 1, false);
    // A bend and the number that says that another one follows.
    const Bytes bend = recordBytes(*head, true).substr(48 + 4, 13) + Bytes("\1\0\0\0", 4);
    const Bytes whole = handOverBytes(head.get());
    const HostileFile file(state, whole.substr(0, whole.size() - 5) + Bytes("\1\0\0\0", 4),
                           [&](int) { return bend; });
    measure(state, [] {
        auto loaded = ReadHandOver(filePath, systemFiles());
        benchmark::DoNotOptimize(loaded);
    });
}

void history(benchmark::State& state) {
    const HostileFile file(state, "[H]\nnr=200000\n",
                           [](int i) { return std::to_string(i) + "\n"; });
    measure(state, [] {
        Profile profile(systemFiles(), filePath);
        ValueHistory values(profile, "H");
        values.add("5");
        values.remove("5");
    });
}

void rules(benchmark::State& state) {
    const HostileFile file(state, "[INDEX]\nCOUNT=2000000000\n",
                           [](int i) { return std::to_string(i) + "\n"; });
    measure(state, [] {
        const Profile profile(systemFiles(), filePath);
        benchmark::DoNotOptimize(compositionRule(profile, 300, "KP"));
    });
}

void megabytes(benchmark::internal::Benchmark* measured) {
    measured->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Arg(60);
}

BENCHMARK(catalogue)->Name("m_catalogue/module")->Apply(megabytes);
BENCHMARK(libraryOfHeads)->Name("m_heads/module")->Apply(megabytes);
BENCHMARK(libraryOfTags)->Name("m_tags/module")->Apply(megabytes);
BENCHMARK(projects)->Name("m_projects/module")->Apply(megabytes);
BENCHMARK(handOverOfLayers)->Name("m_layers/module")->Apply(megabytes);
BENCHMARK(handOverOfBends)->Name("m_bends/module")->Apply(megabytes);
BENCHMARK(history)->Name("m_history/module")->Apply(megabytes);
BENCHMARK(rules)->Name("m_rules/module")->Apply(megabytes);

}  // namespace
