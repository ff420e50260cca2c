// The IMA block start and a full group lifecycle (create, add links up to eight, read the group and link
// state, delete) on the chip model with the virtual clock: real time per pass, mailbox commands and the
// virtual time the chip's waits add up to.
#include <benchmark/benchmark.h>

#include <cstring>

#include "bench_support.h"
#include "vq6192/sim/ima_processor.h"

namespace {

using vqbench::kChip;
using vqbench::ModelChip;

constexpr uint32_t kGroup = 12;
constexpr uint32_t kLinks = 8;

IMA_GRP_CFG groupCfg(uint32_t links) {
    IMA_GRP_CFG c{};
    c.byImaVersion = 1;
    c.byImaOamLabel = 3;
    c.wTxVphy = kGroup;
    c.wRxVphy = kGroup;
    c.byRxM = 1;
    c.byPRx = 1;
    c.byPTx = 1;
    c.wMaxDelay = 100;
    c.byStuffAdvMd = 1;
    c.wTxTrlPhy = 100;
    c.wNumRxLinks = static_cast<uint16_t>(links);
    c.wNumTxLinks = static_cast<uint16_t>(links);
    uint16_t rx[32] = {};
    IMA_TX_LINK tx[32] = {};
    for (uint32_t i = 0; i < links; ++i) {
        rx[i] = static_cast<uint16_t>(100 + i);
        tx[i] = {static_cast<uint8_t>(i), static_cast<uint8_t>(i), static_cast<uint16_t>(100 + i)};
    }
    std::memcpy(reinterpret_cast<uint8_t *>(&c) + offsetof(IMA_GRP_CFG, pusRxLinks), rx, sizeof rx);
    std::memcpy(reinterpret_cast<uint8_t *>(&c) + offsetof(IMA_GRP_CFG, pstTxLinks), tx, sizeof tx);
    return c;
}

void InitIma(benchmark::State &state) {
    ModelChip chip;
    VQ6192_Platform_SetVirtualClock(1);
    VQ6192_Platform_ResetVirtualTime();
    uint64_t bus = 0;
    for (auto _ : state) {
        const uint64_t start = chip.model.counters().total();
        benchmark::DoNotOptimize(VQ6192_IMA_InitIma(kChip, 1));
        bus += chip.model.counters().total() - start;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["virtual s"] = static_cast<double>(VQ6192_Platform_GetVirtualTimeUs()) / 1e6 / n;
    state.counters["bus/pass"] = static_cast<double>(bus) / n;
    VQ6192_Platform_SetVirtualClock(0);
}

void GroupLifecycle(benchmark::State &state) {
    ModelChip chip;
    auto &proc = chip.model.block<vq6192::sim::ImaProcessor>();
    VQ6192_Platform_SetVirtualClock(1);
    VQ6192_Platform_ResetVirtualTime();
    const IMA_GRP_CFG first = groupCfg(1);
    const IMA_GRP_CFG all = groupCfg(kLinks);
    uint16_t rx[kLinks];
    IMA_TX_LINK tx[kLinks];
    std::memcpy(rx, reinterpret_cast<const uint8_t *>(&all) + offsetof(IMA_GRP_CFG, pusRxLinks), sizeof rx);
    std::memcpy(tx, reinterpret_cast<const uint8_t *>(&all) + offsetof(IMA_GRP_CFG, pstTxLinks), sizeof tx);
    uint64_t bus = 0;
    for (auto _ : state) {
        const uint64_t start = chip.model.counters().total();
        VQ6192_IMA_AddImaGrp(kChip, kGroup, &first);
        VQ6192_IMA_AddImaLink(kChip, 1, kGroup, kLinks - 1, kLinks - 1, rx + 1, tx + 1, &all);
        IMA_GRP_STATUS gs{};
        benchmark::DoNotOptimize(VQ6192_IMA_GetImaGrpStatus(kChip, kGroup, &gs));
        for (uint32_t i = 0; i < kLinks; ++i) {
            IMA_LINK_STATUS ls{};
            benchmark::DoNotOptimize(VQ6192_IMA_GetImaLinkStatus(kChip, rx[i], &ls, 3));
        }
        VQ6192_IMA_DelImaLink(kChip, kGroup, kLinks, kLinks, rx, tx, 0);
        VQ6192_IMA_DelImaGrp(kChip, kGroup);
        bus += chip.model.counters().total() - start;
    }
    const double n = static_cast<double>(state.iterations());
    state.counters["mailbox cmds/pass"] = static_cast<double>(proc.commands().size()) / n;
    state.counters["bus/pass"] = static_cast<double>(bus) / n;
    state.counters["virtual ms"] = static_cast<double>(VQ6192_Platform_GetVirtualTimeUs()) / 1e3 / n;
    VQ6192_Platform_SetVirtualClock(0);
}

}  // namespace

BENCHMARK(InitIma)->Unit(benchmark::kMillisecond);
BENCHMARK(GroupLifecycle)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
