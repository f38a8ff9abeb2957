// Runs the benchmarks, prints what they measure and then each work beside its yardstick and its
// goal. A work is a benchmark "WORK/module/SIZE", its yardstick "WORK/yardstick/SIZE".
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <utility>

namespace {

struct Goal {
    const char* work;
    const char* what;
    long size;             // for which the goal is set
    double mostTimes = 0;  // as long as the yardstick takes; 0 = no such goal, as below
    double mostMicroseconds = 0;
    double mostMegabytes = 0;
    long growthFrom = 0;  // from this size on the module may not fall behind the yardstick
};

constexpr Goal goals[] = {
    {.work = "load",
     .what = "load a catalogue of so many records",
     .size = 1000000,
     .mostTimes = 1.5,
     .mostMegabytes = 250},
    {.work = "save", .what = "save it", .size = 1000000, .mostTimes = 3},
    {.work = "order", .what = "order so many rows", .size = 100000, .mostTimes = 1},
    {.work = "sort", .what = "against ready keys", .size = 1000000, .growthFrom = 100000},
    {.work = "merge", .what = "merge so many items into as many", .size = 100000, .mostTimes = 1},
    {.work = "open", .what = "a project of so many designs", .size = 100000, .mostTimes = 3},
    {.work = "store", .what = "a design into a library", .size = 100000, .mostTimes = 3},
    {.work = "flush", .what = "what the disk takes of that", .size = 100000},
    {.work = "store_ram", .what = "where the disk takes nothing", .size = 100000, .mostTimes = 3},
    {.work = "draw", .what = "section of so many layers", .size = 20, .mostMicroseconds = 50},
    {.work = "layout", .what = "with levels, availability", .size = 20, .mostMicroseconds = 20},
    {.work = "draw_huge", .what = "section of so many layers", .size = 100000},
    {.work = "huge", .what = "layout for so many bends", .size = 100000, .mostMicroseconds = 1e6},
    {.work = "forget", .what = "a remembered value", .size = 100000, .mostMicroseconds = 1e6},
    // Six times the file and 64 MB.
    {.work = "m_catalogue", .what = "memory for so many MB", .size = 60, .mostMegabytes = 424},
    {.work = "m_heads", .what = "library of tiny designs", .size = 60, .mostMegabytes = 424},
    {.work = "m_tags", .what = "library of torn designs", .size = 60, .mostMegabytes = 424},
    {.work = "m_projects", .what = "projects", .size = 60, .mostMegabytes = 424},
    {.work = "m_layers", .what = "hand-over of tiny layers", .size = 60, .mostMegabytes = 424},
    {.work = "m_bends", .what = "hand-over of bends", .size = 60, .mostMegabytes = 424},
    {.work = "m_history", .what = "remembered values", .size = 60, .mostMegabytes = 424},
    {.work = "m_rules", .what = "index of the rules", .size = 60, .mostMegabytes = 424},
};

const char* verdict(bool met) {
    return met ? "met" : "MISSED";
}

class TableReporter : public benchmark::ConsoleReporter {
public:
    TableReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            const bool isMedian = run.aggregate_name == "median";
            if (run.error_occurred || (run.repetitions > 1 && !isMedian)) continue;
            const long size = std::stol("0" + run.run_name.args);
            const double seconds =
                run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
            Measured& measured = m_measured[{run.run_name.function_name, size}];
            measured.microseconds = seconds * 1e6;
            const auto peak = run.counters.find("peak MB");
            if (peak != run.counters.end()) measured.megabytes = peak->second;
        }
    }

    void printGoals() const {
        std::printf("\n%-9s %-34s %8s %12s %12s %6s  goal\n", "work", "", "size", "module us",
                    "yardstick us", "times");
        for (const Goal& goal : goals) {
            for (const auto& [key, measured] : m_measured) {
                if (key.first == std::string(goal.work) + "/module") {
                    printRow(goal, key.second, measured);
                }
            }
        }
    }

private:
    struct Measured {
        double microseconds = 0;
        double megabytes = 0;
    };

    // As long as the yardstick takes; 0 when one of them was not measured.
    double times(const Goal& goal, long size) const {
        const auto module = m_measured.find({std::string(goal.work) + "/module", size});
        const auto yardstick = m_measured.find({std::string(goal.work) + "/yardstick", size});
        if (module == m_measured.end() || yardstick == m_measured.end()) return 0;
        return module->second.microseconds / yardstick->second.microseconds;
    }

    void printRow(const Goal& goal, long size, const Measured& measured) const {
        const double ratio = times(goal, size);
        std::printf("%-9s %-34s %8ld %12.2f", goal.work, goal.what, size, measured.microseconds);
        if (ratio > 0)
            std::printf(" %12.2f %6.2f", measured.microseconds / ratio, ratio);
        else
            std::printf(" %12s %6s", "", "");
        if (size == goal.size) printGoal(goal, measured, ratio);
        std::printf("\n");
    }

    void printGoal(const Goal& goal, const Measured& measured, double ratio) const {
        if (goal.mostTimes > 0 && ratio > 0) {
            std::printf("  %.1f times: %s", goal.mostTimes, verdict(ratio <= goal.mostTimes));
        }
        if (goal.mostMicroseconds > 0) {
            const bool met = measured.microseconds <= goal.mostMicroseconds;
            std::printf("  %.0f us: %s", goal.mostMicroseconds, verdict(met));
        }
        if (goal.mostMegabytes > 0) {
            const bool met = measured.megabytes <= goal.mostMegabytes;
            std::printf("  %.0f MB: %.0f, %s", goal.mostMegabytes, measured.megabytes,
                        verdict(met));
        }
        if (goal.growthFrom > 0) {
            const double before = times(goal, goal.growthFrom);
            std::printf("  grows no faster: %s", verdict(ratio <= before));
        }
    }

    std::map<std::pair<std::string, long>, Measured> m_measured;  // by name and size
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.printGoals();
    return 0;
}
