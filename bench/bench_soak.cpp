// The concurrency soak's operation mix (configuration, status and diagnostic operations of SDH, framer,
// timeslot, ATM, PPP, CES, Ethernet and interrupts) on 264 chips on the chip model, from 1 thread and
// from 8 threads (thread t drives chips t, t + 8, ...). Operations per second, wall time.
#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <thread>
#include <vector>

#include "soak/soak_mix.h"
#include "vq6192/sim.h"
#include "vq6192/vq6192.h"

namespace {

constexpr uint32_t kOpsPerChip = 50;  // per chip and iteration

void SoakMix264Chips(benchmark::State &state) {
    const auto threads = static_cast<uint32_t>(state.range(0));
    VQ6192_Platform_SetVirtualClock(1);
    std::vector<std::unique_ptr<vq6192::sim::ChipModel>> models(VQ6192_CHIP_NUM);
    std::vector<std::mt19937> rngs;
    for (uint32_t c = 0; c < VQ6192_CHIP_NUM; ++c) {
        models[c] = std::make_unique<vq6192::sim::ChipModel>();
        models[c]->attach(c);
        VQ6192_INSTALL_PARA p = models[c]->installPara(c);
        VQ6192_Install_SDK(&p);
        rngs.push_back(vqsoak::chipRng(1, c));
    }
    std::vector<std::vector<char>> bufs(threads, std::vector<char>(vqsoak::kDiagBufSize));
    uint64_t ops = 0;
    for (auto _ : state) {
        std::vector<std::thread> pool;
        for (uint32_t t = 0; t < threads; ++t) {
            pool.emplace_back([&, t] {
                for (uint32_t n = 0; n < kOpsPerChip; ++n) {
                    for (uint32_t c = t; c < VQ6192_CHIP_NUM; c += threads) {
                        benchmark::DoNotOptimize(vqsoak::runOne(c, rngs[c], bufs[t].data()));
                    }
                }
            });
        }
        for (auto &th : pool) {
            th.join();
        }
        ops += static_cast<uint64_t>(kOpsPerChip) * VQ6192_CHIP_NUM;
    }
    for (uint32_t c = 0; c < VQ6192_CHIP_NUM; ++c) {
        VQ6192_UnInstall_SDK(c);
        models[c].reset();
    }
    VQ6192_Platform_SetVirtualClock(0);
    state.SetItemsProcessed(static_cast<int64_t>(ops));
}

}  // namespace

BENCHMARK(SoakMix264Chips)->Arg(1)->Arg(8)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2.0);

BENCHMARK_MAIN();
