// The chip model's register file, behaviours, stuck bits, trace, counters and hooks.
#include "support/test_support.h"

namespace {

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;
using vq6192::sim::ChipModel;

TEST(ChipModel, SparseRegisterFileBehavioursStuckBitsTraceAndCounters) {
    ChipModel m;
    const uint32_t addrs[] = {0x0u, 0x2u, 0xDC000u, 0xDC0FEu, 0x20090u, 0x1FFFFEu, 0xFFFFFFFEu};
    for (uint32_t addr : addrs) {
        EXPECT_EQ(m.peek(addr), 0) << std::hex << addr;
        m.poke(addr, static_cast<uint16_t>(addr ^ 0x5A5A));
    }
    for (uint32_t addr : addrs) {
        EXPECT_EQ(m.peek(addr), static_cast<uint16_t>(addr ^ 0x5A5A)) << std::hex << addr;
    }
    EXPECT_EQ(m.peek(0xDC002), 0) << "neighbours untouched";
    m.reset();
    EXPECT_EQ(m.peek(0xDC000), 0);

    m.setTrace(true);
    // Write-1-to-clear register, a read behaviour that counts reads, bit 15 stuck at 1 and bit 0 at 0.
    m.poke(0x40, 0x00FF);
    m.onWrite(0x40,
              [](uint32_t, uint16_t written, uint16_t old) { return static_cast<uint16_t>(old & ~written); });
    int reads = 0;
    m.onRead(0x42, [&reads](uint32_t, uint16_t stored) { return static_cast<uint16_t>(stored + ++reads); });
    m.stickBits(0x44, 0x8001, 0x8000);
    m.busWrite(0x40, 0x000F);
    EXPECT_EQ(m.peek(0x40), 0x00F0);
    EXPECT_EQ(m.busRead(0x42), 1);
    EXPECT_EQ(m.busReadField(0x42, 0, 4), 2u);
    m.busWrite(0x44, 0x0001);
    EXPECT_EQ(m.busRead(0x44), 0x8000);
    m.busWriteField(0x44, 0x3, 0, 2);
    EXPECT_EQ(m.peek(0x44), 0x8002);
    const std::vector<BusAccess> trace = {
        {BusOp::Write, 0x40, 0x000F, 0, 16}, {BusOp::Read, 0x42, 1, 0, 16},
        {BusOp::FieldRead, 0x42, 2, 0, 4},   {BusOp::Write, 0x44, 0x0001, 0, 16},
        {BusOp::Read, 0x44, 0x8000, 0, 16},  {BusOp::FieldWrite, 0x44, 0x3, 0, 2},
    };
    EXPECT_EQ(m.trace(), trace);
    const auto &n = m.counters();
    EXPECT_EQ((std::vector<uint64_t>{n.reads, n.writes, n.fieldReads, n.fieldWrites, n.total()}),
              (std::vector<uint64_t>{2, 2, 1, 1, 6}));
    m.clearStuckBits();
    m.busWrite(0x44, 0x0001);
    EXPECT_EQ(m.peek(0x44), 0x0001);
}

TEST(ChipModel, AttachHostFunctionsAndHookFaults) {
    {
        ChipModel m;
        m.attach(12);
        EXPECT_EQ(ChipModel::attached(12), &m);
        EXPECT_NE(g_p6192ReadRegFieldBDirect[12], nullptr);
        g_p6192WriteRegPtr[12](12, 0x10, 0x77);
        EXPECT_EQ(m.peek(0x10), 0x77);
        m.attach(13);  // moving detaches from 12
        EXPECT_EQ(ChipModel::attached(12), nullptr);
        EXPECT_EQ(g_p6192WriteRegPtr[12], nullptr);
    }
    EXPECT_EQ(ChipModel::attached(13), nullptr) << "destruction detaches";
    EXPECT_EQ(g_p6192ReadRegPtr[13], nullptr);

    ChipModel m;
    m.attach(14);
    m.refuseArbitration(2);
    EXPECT_EQ((std::vector<uint32_t>{ChipModel::hookGetArbitrate(14), ChipModel::hookGetArbitrate(14),
                                     ChipModel::hookGetArbitrate(14)}),
              (std::vector<uint32_t>{1, 1, 0}));
    EXPECT_EQ(m.arbitrationsTaken(), 1u);
    EXPECT_EQ(ChipModel::hookCardPresent(14), 1u);
    m.setCardPresent(false);
    EXPECT_EQ(ChipModel::hookCardPresent(14), 0u);
    EXPECT_EQ(m.cardPresentAsked(), 2u);
    VQ6192_INSTALL_PARA p = m.installPara(14, true);
    EXPECT_EQ(p.ulIndirectHandle, reinterpret_cast<uintptr_t>(&m));
    uint16_t v = 0;
    EXPECT_EQ(p.pfnIndirectWrite16(p.ulIndirectHandle, 0x66, 0x1234), 0u);
    EXPECT_EQ(p.pfnIndirectRead16(p.ulIndirectHandle, 0x66, &v), 0u);
    EXPECT_EQ(v, 0x1234);
}

}  // namespace
