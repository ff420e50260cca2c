// Path overhead on the chip model through the host-function path: sending and reading back a 64-byte
// J1 trace on every VC-4, and reading the alarm record of every VC-12 of the four VC-4s. Time per pass
// and bus accesses per trace and per path. The receive-page waits run on the virtual clock.
#include <benchmark/benchmark.h>

#include "bench_support.h"

namespace {

using vqbench::kChip;
using vqbench::ModelChip;

void SendAndReadJ1Traces(benchmark::State &state) {
    ModelChip chip;
    VQ6192_Platform_SetVirtualClock(1);
    uint8_t msg[64] = "VQ6192 BENCH TRACE";
    uint64_t sendAccesses = 0;
    uint64_t readAccesses = 0;
    for (auto _ : state) {
        const uint64_t start = chip.model.counters().total();
        for (uint32_t vc4 = 0; vc4 < 4; ++vc4) {
            VQ6192_SDH_SetTxHpJ1(kChip, vc4, 2, msg, 0);
        }
        const uint64_t sent = chip.model.counters().total();
        for (uint32_t vc4 = 0; vc4 < 4; ++vc4) {
            uint8_t mode = 0, pass = 0;
            uint8_t back[64];
            benchmark::DoNotOptimize(VQ6192_SDH_GetTxHpJ1(kChip, vc4, &mode, back, &pass));
        }
        sendAccesses += sent - start;
        readAccesses += chip.model.counters().total() - sent;
    }
    const double traces = static_cast<double>(state.iterations()) * 4;
    state.counters["send bus/trace"] = static_cast<double>(sendAccesses) / traces;
    state.counters["read bus/trace"] = static_cast<double>(readAccesses) / traces;
    VQ6192_Platform_SetVirtualClock(0);
}

void ReadAllLowOrderAlarms(benchmark::State &state) {
    ModelChip chip;
    uint64_t accesses = 0;
    for (auto _ : state) {
        const uint64_t start = chip.model.counters().total();
        for (uint32_t vc4 = 0; vc4 < 4; ++vc4) {
            for (uint32_t tug3 = 0; tug3 < 3; ++tug3) {
                for (uint32_t tu = 0; tu < 21; ++tu) {
                    uint8_t alarms[13];
                    benchmark::DoNotOptimize(VQ6192_SDH_GetLpAlms(kChip, vc4, tug3, tu, alarms));
                }
            }
        }
        accesses += chip.model.counters().total() - start;
    }
    state.counters["bus/path"] =
        static_cast<double>(accesses) / (static_cast<double>(state.iterations()) * 252);
}

BENCHMARK(SendAndReadJ1Traces)->Unit(benchmark::kMicrosecond);
BENCHMARK(ReadAllLowOrderAlarms)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
