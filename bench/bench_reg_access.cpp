// Cost of one plain register access: memory-mapped and through host functions on the chip model,
// beside a raw volatile 16-bit access and an uncontended semaphore take and give, in one run.
#include <benchmark/benchmark.h>

#include "bench_support.h"
#include "platform/osal.h"

namespace {

using vqbench::kChip;
using vqbench::MappedChip;
using vqbench::ModelChip;

void RawVolatileRead(benchmark::State &state) {
    std::vector<uint16_t> space(0x10000, 0x1234);
    volatile uint16_t *reg = space.data() + 0x104;
    for (auto _ : state) {
        benchmark::DoNotOptimize(*reg);
    }
}

void RawVolatileWrite(benchmark::State &state) {
    std::vector<uint16_t> space(0x10000, 0);
    volatile uint16_t *reg = space.data() + 0x104;
    uint16_t v = 0;
    for (auto _ : state) {
        *reg = v++;
    }
}

void SemaphoreTakeGive(benchmark::State &state) {
    alignas(16) unsigned char block[VQ6192_SEM_BLOCK_SIZE] = {};
    vq::DrvSemBCreate(block, 1);
    for (auto _ : state) {
        vq::iof_sema_timewait(block, 600);
        vq::iof_sema_post(block);
    }
    vq::DrvSemDelete(block);
}

void MappedReadReg(benchmark::State &state) {
    MappedChip chip;
    for (auto _ : state) {
        benchmark::DoNotOptimize(VQ6192_ReadReg(kChip, 0x208));
    }
}

void MappedWriteReg(benchmark::State &state) {
    MappedChip chip;
    uint32_t v = 0;
    for (auto _ : state) {
        VQ6192_WriteReg(kChip, 0x208, v++);
    }
}

void HostFunctionReadReg(benchmark::State &state) {
    ModelChip chip;
    for (auto _ : state) {
        benchmark::DoNotOptimize(VQ6192_ReadReg(kChip, 0x208));
    }
    state.counters["bus/op"] = static_cast<double>(chip.model.counters().total()) / state.iterations();
}

void HostFunctionWriteReg(benchmark::State &state) {
    ModelChip chip;
    uint32_t v = 0;
    for (auto _ : state) {
        VQ6192_WriteReg(kChip, 0x208, v++);
    }
    state.counters["bus/op"] = static_cast<double>(chip.model.counters().total()) / state.iterations();
}

BENCHMARK(RawVolatileRead);
BENCHMARK(RawVolatileWrite);
BENCHMARK(SemaphoreTakeGive);
BENCHMARK(MappedReadReg);
BENCHMARK(MappedWriteReg);
BENCHMARK(HostFunctionReadReg);
BENCHMARK(HostFunctionWriteReg);

}  // namespace

BENCHMARK_MAIN();
