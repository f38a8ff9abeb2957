// A catalogue loaded, saved, ordered and merged. Yardsticks: reading the file and filling a plain
// vector, writing ready bytes, "sort -V", sorting ready keys, an upsert of SQLite.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>

#include "bench/growth.h"
#include "catalogue/catalogue_file.h"
#include "catalogue/item_rows.h"
#include "catalogue/merge.h"
#include "catalogue/natural_order.h"
#include "tests/support/catalogues.h"

namespace {

using namespace lx;

const Path filePath = "bench-catalogue.dat";

// Types of a hundred records each.
Catalogue recordsOf(std::int64_t count, unsigned seed = 1) {
    constexpr int ofEachType = 100;
    return madeCatalogue(static_cast<int>(count / ofEachType), ofEachType - 1, seed);
}

class CatalogueFile {
public:
    explicit CatalogueFile(std::int64_t records) {
        systemFiles().replace(filePath, catalogueBytes(recordsOf(records).get()));
    }
    ~CatalogueFile() { systemFiles().remove(filePath); }
    CatalogueFile(const CatalogueFile&) = delete;
    CatalogueFile& operator=(const CatalogueFile&) = delete;
};

// ---- load

struct PlainRecord {
    std::int32_t group, length, width, height, maxOpening;
    double weight, qu;
    std::string designation, description;
    char compositionMark;
};

template <class T>
void take(const char*& at, T& value) {
    std::memcpy(&value, at, sizeof value);
    at += sizeof value;
}

void take(const char*& at, std::string& value) {
    value = at;
    at += value.size() + 1;
}

std::vector<PlainRecord> plainLoad() {
    const Bytes bytes = systemFiles().read(filePath).bytes;
    std::vector<PlainRecord> records;
    const char* const end = bytes.data() + bytes.size();
    for (const char* at = bytes.data(); at != end;) {
        PlainRecord& record = records.emplace_back();
        take(at, record.group);
        take(at, record.length);
        take(at, record.width);
        take(at, record.height);
        take(at, record.maxOpening);
        take(at, record.weight);
        take(at, record.qu);
        take(at, record.designation);
        take(at, record.description);
        take(at, record.compositionMark);
    }
    return records;
}

LoadedCatalogue load() {
    const std::optional<Bytes> file = openCatalogueFileAt(filePath, systemFiles());
    return loadCatalogue(CatalogueKind::precast, *file);
}

template <class Load>
void measureLoad(benchmark::State& state, Load loaded) {
    const CatalogueFile file(state.range(0));
    state.counters["peak MB"] = bench::peakOf([&] { loaded(); });
    for (auto _ : state) {
        auto result = loaded();
        benchmark::DoNotOptimize(result);
        state.PauseTiming();
        result = {};
        state.ResumeTiming();
    }
}

void loadModule(benchmark::State& state) {
    measureLoad(state, load);
}
void loadYardstick(benchmark::State& state) {
    measureLoad(state, plainLoad);
}

// ---- save

// Made once: memory that was used and freed before scatters the records of a second catalogue, and
// walking them would be what is measured.
const Catalogue& heldRecords(std::int64_t count) {
    static Catalogue records;
    static std::int64_t held = 0;
    if (held != count) records = recordsOf(count);
    held = count;
    return records;
}

void saveModule(benchmark::State& state) {
    const Catalogue& records = heldRecords(state.range(0));
    for (auto _ : state) saveCatalogueAs(records.get(), filePath, systemFiles());
    systemFiles().remove(filePath);
}

void saveYardstick(benchmark::State& state) {
    const Bytes bytes = catalogueBytes(heldRecords(state.range(0)).get());
    for (auto _ : state) {
        const int file = ::open(filePath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written != static_cast<ssize_t>(bytes.size()) || ::fdatasync(file) != 0) {
            state.SkipWithError("the file could not be written");
        }
        ::close(file);
    }
    systemFiles().remove(filePath);
}

// ---- order

// One type with all the items.
Catalogue oneType(std::int64_t items) {
    return madeCatalogue(1, static_cast<int>(items));
}

void orderModule(benchmark::State& state) {
    const Catalogue records = oneType(state.range(0));
    ItemRows rows(CatalogueKind::precast);
    for (auto _ : state) {
        state.PauseTiming();
        rows.refresh(records.get(), 1);
        state.ResumeTiming();
        rows.sortRows(0, false);
    }
}

void orderYardstick(benchmark::State& state) {
    const Catalogue records = oneType(state.range(0));
    {
        std::ofstream texts(filePath);
        for (const CPreklItem* item = records->next.get(); item; item = item->next.get()) {
            texts << *item->designation << "\n";
        }
    }
    const std::string command = "LC_ALL=C sort -V " + filePath + " > /dev/null";
    for (auto _ : state) {
        if (std::system(command.c_str()) != 0) state.SkipWithError("no sort");
    }
    systemFiles().remove(filePath);
}

void sortYardstick(benchmark::State& state) {
    const Catalogue records = oneType(state.range(0));
    std::vector<NaturalText> ready;
    for (const CPreklItem* item = records->next.get(); item; item = item->next.get()) {
        ready.emplace_back(*item->designation);
    }
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<NaturalText> keys = ready;
        state.ResumeTiming();
        std::stable_sort(keys.begin(), keys.end(), [](const NaturalText& a, const NaturalText& b) {
            return compareNatural(b, a) == 1;
        });
        state.PauseTiming();
        keys = {};
        state.ResumeTiming();
    }
}

// ---- merge

// Half of the supplied items are in the installed catalogue.
struct ToMerge {
    Catalogue installed;
    Catalogue supplied;
};

ToMerge toMerge(std::int64_t items) {
    ToMerge both{recordsOf(items, 1), recordsOf(items, 2)};
    bool known = false;
    CPreklItem* supplied = both.supplied.get();
    for (const CPreklItem* item = both.installed.get(); item && supplied;
         item = item->next.get(), supplied = supplied->next.get()) {
        known = !known;
        if (known) supplied->designation = item->designation;
    }
    return both;
}

void mergeModule(benchmark::State& state) {
    const ToMerge both = toMerge(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        Catalogue installed = copyOf(both.installed);
        Catalogue supplied = copyOf(both.supplied);
        state.ResumeTiming();
        Catalogue merged = mergedCatalogue(std::move(installed), std::move(supplied));
        state.PauseTiming();
        merged.reset();
        state.ResumeTiming();
    }
}

class Database {
public:
    Database() {
        sqlite3_open(":memory:", &m_database);
        run("create table item (type text, designation text, length, width, height, opening, "
            "weight,"
            " qu, description, mark, primary key (type, designation)) without rowid");
        sqlite3_prepare_v2(m_database,
                           "insert into item values (?,?,?,?,?,?,?,?,?,?) on conflict do update set"
                           " length=excluded.length, width=excluded.width, height=excluded.height,"
                           " opening=excluded.opening, weight=excluded.weight, qu=excluded.qu,"
                           " description=excluded.description, mark=excluded.mark",
                           -1, &m_upsert, nullptr);
    }
    ~Database() {
        sqlite3_finalize(m_upsert);
        sqlite3_close(m_database);
    }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void upsert(const CPreklItem* head) {
        run("begin");
        const std::string* type = nullptr;
        for (const CPreklItem* item = head; item; item = item->next.get()) {
            if (item->isType())
                type = &*item->designation;
            else
                put(*type, *item);
        }
        run("commit");
    }

private:
    void run(const char* statement) {
        sqlite3_exec(m_database, statement, nullptr, nullptr, nullptr);
    }
    void text(int place, const std::string& value) {
        sqlite3_bind_text(m_upsert, place, value.data(), static_cast<int>(value.size()),
                          SQLITE_STATIC);
    }
    void put(const std::string& type, const CPreklItem& item) {
        text(1, type);
        text(2, *item.designation);
        const std::int32_t numbers[] = {item.length, item.width, item.height, item.maxOpening};
        for (int i = 0; i < 4; ++i) sqlite3_bind_int(m_upsert, 3 + i, numbers[i]);
        sqlite3_bind_double(m_upsert, 7, item.weight);
        sqlite3_bind_double(m_upsert, 8, item.qu);
        if (item.description) text(9, *item.description);
        sqlite3_bind_int(m_upsert, 10, item.compositionMark);
        sqlite3_step(m_upsert);
        sqlite3_reset(m_upsert);
        sqlite3_clear_bindings(m_upsert);
    }

    sqlite3* m_database = nullptr;
    sqlite3_stmt* m_upsert = nullptr;
};

void mergeYardstick(benchmark::State& state) {
    const ToMerge both = toMerge(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        auto database = std::make_unique<Database>();
        database->upsert(both.installed.get());
        state.ResumeTiming();
        database->upsert(both.supplied.get());
        state.PauseTiming();
        database.reset();
        state.ResumeTiming();
    }
}

void manyRecords(benchmark::internal::Benchmark* measured) {
    measured->Unit(benchmark::kMillisecond)->UseRealTime();
    for (const int size : {10000, 100000, 1000000}) measured->Arg(size);
}

void manyItems(benchmark::internal::Benchmark* measured) {
    measured->Unit(benchmark::kMillisecond)->UseRealTime();
    for (const int size : {1000, 10000, 100000}) measured->Arg(size);
}

BENCHMARK(loadYardstick)->Name("load/yardstick")->Apply(manyRecords);
BENCHMARK(loadModule)->Name("load/module")->Apply(manyRecords);
BENCHMARK(saveYardstick)->Name("save/yardstick")->Apply(manyRecords);
BENCHMARK(saveModule)->Name("save/module")->Apply(manyRecords);
BENCHMARK(orderYardstick)->Name("order/yardstick")->Apply(manyRecords);
BENCHMARK(orderModule)->Name("order/module")->Apply(manyRecords);
BENCHMARK(sortYardstick)->Name("sort/yardstick")->Apply(manyRecords);
BENCHMARK(orderModule)->Name("sort/module")->Apply(manyRecords);
BENCHMARK(mergeYardstick)->Name("merge/yardstick")->Apply(manyItems);
BENCHMARK(mergeModule)->Name("merge/module")->Apply(manyItems);

}  // namespace
