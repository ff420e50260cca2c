#include "support/test_support.h"

namespace vqtest {
namespace {

void logSink(void *ctx, uint32_t mask, const char *text) {
    static_cast<PlatformCapture *>(ctx)->logs.push_back({mask, text});
}

void traceSink(void *ctx, uint32_t chip, uint32_t module, uint32_t level, const char *text) {
    static_cast<PlatformCapture *>(ctx)->traces.push_back({chip, module, level, text});
}

}  // namespace

PlatformCapture::PlatformCapture() {
    VQ6192_PLATFORM_HOOKS hooks{};
    hooks.ctx = this;
    hooks.pfnLog = logSink;
    hooks.pfnTrace = traceSink;
    VQ6192_Platform_SetHooks(&hooks);
    VQ6192_Platform_SetVirtualClock(1);
    VQ6192_Platform_ResetVirtualTime();
}

PlatformCapture::~PlatformCapture() {
    VQ6192_Platform_FailAllocs(0, 0);
    VQ6192_Platform_FailSemCreates(0, 0);
    VQ6192_Platform_FailSemTakes(0, 0);
    VQ6192_Platform_FailSemGives(0, 0);
    VQ6192_Platform_SetHooks(nullptr);
}

std::vector<std::string> PlatformCapture::logTexts() const {
    std::vector<std::string> out;
    for (const auto &l : logs) {
        out.push_back(l.text);
    }
    return out;
}

std::vector<std::string> PlatformCapture::traceTexts() const {
    std::vector<std::string> out;
    for (const auto &t : traces) {
        out.push_back(t.text);
    }
    return out;
}

void PlatformCapture::clear() {
    logs.clear();
    traces.clear();
}

uint64_t outstandingAllocations() {
    VQ6192_MEM_STATS stats{};
    VQ6192_Platform_GetMemStats(nullptr, &stats);
    return stats.ullOutstanding;
}

std::vector<vq6192::sim::BusAccess> writes(const std::vector<vq6192::sim::BusAccess> &trace) {
    std::vector<vq6192::sim::BusAccess> out;
    for (const auto &a : trace) {
        if (a.op == vq6192::sim::BusOp::Write || a.op == vq6192::sim::BusOp::FieldWrite) {
            out.push_back(a);
        }
    }
    return out;
}

void ChipTest::SetUp() {
    baseline_ = outstandingAllocations();
    model.attach(kChip);
    para = model.installPara(kChip);
    ASSERT_EQ(VQ6192_Install_SDK(&para), 0u);
}

void ChipTest::reinstall(const VQ6192_INSTALL_PARA &p) {
    VQ6192_UnInstall_SDK(kChip);
    para = p;
    ASSERT_EQ(VQ6192_Install_SDK(&para), 0u);
}

std::vector<uint32_t> ChipTest::failCounters() const {
    uint32_t c[4] = {};
    VQ6192_Get_RegFailInfo(kChip, c);
    return {c[0], c[1], c[2], c[3]};
}

void ChipTest::poke(std::initializer_list<std::pair<uint32_t, uint32_t>> regs) {
    for (const auto &[addr, value] : regs) {
        model.poke(addr, static_cast<uint16_t>(value));
    }
}

std::vector<uint32_t> ChipTest::peek(std::initializer_list<uint32_t> addrs) const {
    std::vector<uint32_t> v;
    for (uint32_t a : addrs) {
        v.push_back(model.peek(a));
    }
    return v;
}

std::vector<vq6192::sim::BusAccess> ChipTest::traced(const std::function<void()> &op) {
    model.clearTrace();
    model.setTrace(true);
    op();
    model.setTrace(false);
    return model.trace();
}

void ChipTest::TearDown() {
    EXPECT_EQ(model.oddAccesses(), 0u) << "register accesses at an odd address";
    EXPECT_EQ(VQ6192_UnInstall_SDK(kChip), 0u);
    model.detach();
    EXPECT_EQ(outstandingAllocations(), baseline_) << "allocations not given back";
}

}  // namespace vqtest
