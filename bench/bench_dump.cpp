// A full default dump of one chip on the chip model, through the indirect path (the model answers the
// table commands): time per dump, bus accesses per dump and the size of the file.
#include <benchmark/benchmark.h>

#include "bench_support.h"

namespace {

using vqbench::kChip;

// File functions behind the library's own dump hooks that only count what is written.
struct ByteCounter {
    uint64_t bytes = 0;
    uint64_t writes = 0;
    uint64_t opens = 0;
};

VQ6192_PLATFORM_FILE_HOOKS countingHooks(ByteCounter &c) {
    VQ6192_PLATFORM_FILE_HOOKS h{};
    h.ctx = &c;
    h.pfnOpen = [](void *ctx, const char *, const char *, uintptr_t *handle) {
        static_cast<ByteCounter *>(ctx)->opens++;
        *handle = 1;
        return 0u;
    };
    h.pfnWrite = [](void *ctx, const void *, uint32_t size, uint32_t count, uintptr_t) {
        auto *c = static_cast<ByteCounter *>(ctx);
        c->bytes += uint64_t{size} * count;
        c->writes++;
        return 0u;
    };
    h.pfnClose = [](void *, uintptr_t *) { return 0u; };
    return h;
}

void FullDefaultDump(benchmark::State &state) {
    vq6192::sim::ChipModel model;
    model.attach(kChip);
    const VQ6192_INSTALL_PARA p = model.installPara(kChip, true);
    VQ6192_Install_SDK(&p);
    ByteCounter files;
    const VQ6192_PLATFORM_FILE_HOOKS hooks = countingHooks(files);
    VQ6192_Platform_SetFileHooks(&hooks);
    uint32_t rc = 0;
    for (auto _ : state) {
        rc |= VQ6192_DUMP_F(kChip, VQ6192_DUMP_ALL_GROUPS);
    }
    VQ6192_Platform_SetFileHooks(nullptr);
    const double n = static_cast<double>(state.iterations());
    state.counters["status"] = rc;
    state.counters["bus/dump"] = static_cast<double>(model.counters().total()) / n;
    state.counters["fileBytes"] = static_cast<double>(files.bytes) / n;
    state.counters["flushes"] = static_cast<double>(files.writes) / n;
    VQ6192_UnInstall_SDK(kChip);
    model.detach();
}

BENCHMARK(FullDefaultDump)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
