// ATM module start and connection churn on the chip model: real time and bus accesses per operation.
#include <benchmark/benchmark.h>

#include "bench_support.h"

namespace {

using vqbench::kChip;
using vqbench::ModelChip;

void InitAtm(benchmark::State &state) {
    ModelChip chip;
    for (auto _ : state) {
        benchmark::DoNotOptimize(VQ6192_ATM_InitAtm(kChip, 1));
    }
    state.counters["bus/op"] =
        static_cast<double>(chip.model.counters().total()) / static_cast<double>(state.iterations());
}

ATM_SRV_CONN egress(uint16_t vcx) {
    ATM_SRV_CONN c{};
    c.Vcx = vcx;
    c.Tag = DRV_VQ6192_ATM_DIR_EGRESS;
    c.cType = 1;
    c.SrcPort = static_cast<uint16_t>(vcx % 2048);
    c.SrcVpi = 1;
    c.SrcVci = static_cast<uint16_t>(32 + vcx);
    c.DstPort = static_cast<uint16_t>(vcx % 336);
    c.DstVpi = 2;
    c.DstVci = static_cast<uint16_t>(64 + vcx);
    c.Stype = 3;
    c.Qid = 8;
    return c;
}

// Each iteration lays 1,000 egress connections and removes them again.
void AddRemove1000(benchmark::State &state) {
    constexpr uint16_t kConns = 1000;
    ModelChip chip;
    uint64_t addBus = 0;
    uint64_t delBus = 0;
    for (auto _ : state) {
        uint64_t before = chip.model.counters().total();
        for (uint16_t v = 0; v < kConns; ++v) {
            const ATM_SRV_CONN c = egress(v);
            benchmark::DoNotOptimize(VQ6192_ATM_AddAtmSrvConn(kChip, &c));
        }
        addBus += chip.model.counters().total() - before;
        before = chip.model.counters().total();
        for (uint16_t v = 0; v < kConns; ++v) {
            const uint16_t rec[2] = {v, DRV_VQ6192_ATM_DIR_EGRESS};
            benchmark::DoNotOptimize(VQ6192_ATM_DelAtmSrvConn(kChip, rec));
        }
        delBus += chip.model.counters().total() - before;
    }
    const double ops = static_cast<double>(state.iterations()) * kConns;
    state.counters["bus/add"] = static_cast<double>(addBus) / ops;
    state.counters["bus/del"] = static_cast<double>(delBus) / ops;
    state.counters["conn/s"] = benchmark::Counter(ops * 2, benchmark::Counter::kIsRate);
}

BENCHMARK(InitAtm);
BENCHMARK(AddRemove1000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
