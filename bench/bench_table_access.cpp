// Cost of one table entry write and read through the host-function path on the chip model: bus
// accesses per operation (from the model's counters) and time per operation.
#include <benchmark/benchmark.h>

#include "bench_support.h"

namespace {

using vqbench::kChip;
using vqbench::ModelChip;

void report(benchmark::State &state, const vq6192::sim::BusCounters &c) {
    const double n = static_cast<double>(state.iterations());
    state.counters["bus/op"] = static_cast<double>(c.total()) / n;
    state.counters["fieldWr/op"] = static_cast<double>(c.fieldWrites) / n;
    state.counters["fieldRd/op"] = static_cast<double>(c.fieldReads) / n;
}

// Arguments: table id (1: Atmpwe3pritab, 10 data registers; 117: a timeslot table, 1; 125:
// Psnheader, 32).
void TableWrite(benchmark::State &state) {
    ModelChip chip;
    const auto table = static_cast<uint32_t>(state.range(0));
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {0x12345678, 0x9ABCDEF0};
    uint32_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(VQ6192_Write_Table(kChip, table, index++ & 0x1F, entry));
    }
    report(state, chip.model.counters());
}

void TableRead(benchmark::State &state) {
    ModelChip chip;
    const auto table = static_cast<uint32_t>(state.range(0));
    uint32_t entry[VQ6192_TBL_MAX_WORDS] = {};
    uint32_t index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(VQ6192_Read_Table(kChip, table, index++ & 0x1F, entry));
    }
    report(state, chip.model.counters());
}

BENCHMARK(TableWrite)->Arg(1)->Arg(117)->Arg(125);
BENCHMARK(TableRead)->Arg(1)->Arg(117)->Arg(125);

}  // namespace

BENCHMARK_MAIN();
