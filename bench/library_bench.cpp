// How long a project of a large library takes to open and a design to be stored into it, beside one
// reading of the file.
#include <benchmark/benchmark.h>

#include <cstdio>

#include "composition/library.h"
#include "tests/support/designs.h"

namespace {

using namespace lx;

constexpr int projects = 50;

// A library of that many designs, spread over the projects, as a file of its own.
class LibraryFile {
public:
    explicit LibraryFile(std::int64_t designs, const Path& folder = {})
        : m_path(folder + "bench-library.bk6") {
        Bytes bytes;
        for (std::int64_t i = 0; i < designs; ++i) {
            const RezChain design = sampleDesign(std::to_string(i / projects % 1000));
            BinaryWriter records;
            writeDesign(design.head(), records);
            BinaryWriter entry;
            entry.int32(8 + static_cast<std::int32_t>(records.bytes().size()));
            entry.int32(static_cast<std::int32_t>(i % projects));
            Bytes label = paddedLabel(design.head()->label());
            label.resize(4, '\0');
            entry.raw(label);
            entry.raw(records.bytes());
            bytes += entry.bytes();
        }
        m_size = bytes.size();
        systemFiles().replace(m_path, bytes);
    }
    ~LibraryFile() { systemFiles().remove(m_path); }
    LibraryFile(const LibraryFile&) = delete;
    LibraryFile& operator=(const LibraryFile&) = delete;

    const Path& path() const { return m_path; }
    std::size_t size() const { return m_size; }

private:
    Path m_path;
    std::size_t m_size = 0;
};

void readTheFileOnce(benchmark::State& state) {
    const LibraryFile file(state.range(0));
    for (auto _ : state) {
        FileRead read = systemFiles().read(file.path());
        benchmark::DoNotOptimize(read.bytes.data());
    }
    state.counters["bytes"] = static_cast<double>(file.size());
}

void openAProject(benchmark::State& state) {
    const LibraryFile file(state.range(0));
    std::size_t designs = 0;
    for (auto _ : state) {
        const LibraryRead read = loadLibrary(file.path(), 7, systemFiles());
        designs = read.entries.size();
    }
    state.counters["designs"] = static_cast<double>(designs);
}

void storeInto(benchmark::State& state, const LibraryFile& file) {
    const RezChain design = sampleDesign("new");
    for (auto _ : state) {
        const bool stored = appendDesign(file.path(), 7, *design.head(), {}, systemFiles());
        if (!stored) state.SkipWithError("the design could not be stored");
    }
}

void storeADesign(benchmark::State& state) {
    storeInto(state, LibraryFile(state.range(0)));
}

// Where flushing takes no time.
void storeInMemory(benchmark::State& state) {
    storeInto(state, LibraryFile(state.range(0), "/dev/shm/"));
}

// What the disk takes of a store: an entry is appended and flushed, its seal set and flushed.
void flushTwice(benchmark::State& state) {
    const LibraryFile file(state.range(0));
    const Bytes entry(208, 'e');
    for (auto _ : state) systemFiles().append(file.path(), entry, {4, "seal"});
}

void manyDesigns(benchmark::internal::Benchmark* measured) {
    measured->Unit(benchmark::kMillisecond)->UseRealTime();
    for (const int size : {1000, 10000, 100000}) measured->Arg(size);
}

BENCHMARK(readTheFileOnce)->Name("open/yardstick")->Apply(manyDesigns);
BENCHMARK(openAProject)->Name("open/module")->Apply(manyDesigns);
BENCHMARK(readTheFileOnce)->Name("store/yardstick")->Apply(manyDesigns);
BENCHMARK(storeADesign)->Name("store/module")->Apply(manyDesigns);
BENCHMARK(readTheFileOnce)->Name("store_ram/yardstick")->Apply(manyDesigns);
BENCHMARK(storeInMemory)->Name("store_ram/module")->Apply(manyDesigns);
BENCHMARK(flushTwice)->Name("flush/module")->Apply(manyDesigns);

}  // namespace
