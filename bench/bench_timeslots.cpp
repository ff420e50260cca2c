// Routing every timeslot of all 336 E1/T1 tributaries in one direction and reading them back, on the
// chip model through the host-function path: time per full pass and bus accesses per routed timeslot.
#include <benchmark/benchmark.h>

#include "bench_support.h"

namespace {

using vqbench::kChip;
using vqbench::ModelChip;

constexpr uint32_t kTributaries = 336;
constexpr uint32_t kTimeslots = 32;

void RouteAllTimeslots(benchmark::State &state) {
    ModelChip chip;
    uint64_t routeAccesses = 0;
    uint64_t readAccesses = 0;
    for (auto _ : state) {
        const uint64_t start = chip.model.counters().total();
        for (uint32_t e1 = 0; e1 < kTributaries; ++e1) {
            VQ6192_Framer_SelectSrcE1(kChip, 1, e1, e1, 3, 0xFFFFFFFFu, 3);
        }
        const uint64_t routed = chip.model.counters().total();
        for (uint32_t e1 = 0; e1 < kTributaries; ++e1) {
            for (uint32_t ts = 0; ts < kTimeslots; ++ts) {
                uint16_t chnl = 0;
                uint8_t type = 0, en = 0;
                uint32_t speed = 0;
                benchmark::DoNotOptimize(VQ6192_Framer_GetTsCfg(kChip, 1, e1, ts, &chnl, &type, &speed, &en));
            }
        }
        routeAccesses += routed - start;
        readAccesses += chip.model.counters().total() - routed;
    }
    const double timeslots = static_cast<double>(state.iterations()) * kTributaries * kTimeslots;
    state.counters["route bus/ts"] = static_cast<double>(routeAccesses) / timeslots;
    state.counters["read bus/ts"] = static_cast<double>(readAccesses) / timeslots;
}

BENCHMARK(RouteAllTimeslots)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
