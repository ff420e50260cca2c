// Register access over the three paths, field arithmetic and the register-number interface.
#include <array>
#include <vector>

#include "core/reg_field.h"
#include "support/test_support.h"

namespace {

using vq6192::sim::BusAccess;
using vq6192::sim::BusOp;
using vqtest::ChipTest;
using vqtest::PlatformCapture;

// ---- Memory-mapped path over a plain array ------------------------------------------------------

class MappedTest : public ::testing::Test {
  protected:
    static constexpr uint32_t kChip = 9;
    PlatformCapture capture;
    std::vector<uint16_t> space = std::vector<uint16_t>(0x1000, 0);

    void install(uint32_t multiple, uint32_t product) {
        VQ6192_INSTALL_PARA p{};
        p.ulChipId = kChip;
        p.ulBaseAddr = reinterpret_cast<uintptr_t>(space.data());
        p.ulAddrMultiple = multiple;
        p.ulSupportProductFlag = product;
        ASSERT_EQ(VQ6192_Install_SDK(&p), 0u);
    }
    void TearDown() override { VQ6192_UnInstall_SDK(kChip); }
};

TEST_F(MappedTest, AddressScalingForEveryMultiplierAndProductFlag) {
    struct Case {
        uint32_t multiple, product;
        uintptr_t hostOffset;  // of register address 0x208
    };
    const Case cases[] = {
        {0, 0, 0x208}, {1, 0, 0x208}, {2, 0, 0x410}, {3, 0, 0x618}, {0, 1, 0x410}, {1, 1, 0x410},
        {2, 1, 0x820}, {3, 1, 0xC30}, {0, 2, 0x208}, {2, 2, 0x410},  // any product flag but 1: two host bytes
                                                                     // per register
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "multiple " << c.multiple << " product " << c.product);
        std::fill(space.begin(), space.end(), 0);
        install(c.multiple, c.product);
        uintptr_t base = reinterpret_cast<uintptr_t>(space.data());
        EXPECT_EQ(VQ6192_Calc_AbsAddr(kChip, 0x208), base + c.hostOffset);

        VQ6192_WriteReg(kChip, 0x208, 0x12345);  // cut to 16 bits
        EXPECT_EQ(space[c.hostOffset / 2], 0x2345);
        EXPECT_EQ(std::count(space.begin(), space.end(), 0), static_cast<long>(space.size() - 1));
        EXPECT_EQ(VQ6192_ReadReg(kChip, 0x208), 0x2345u);

        VQ6192_WriteRegFieldB(kChip, 0x208, 0xF, 12, 4);
        EXPECT_EQ(space[c.hostOffset / 2], 0xF345);
        EXPECT_EQ(VQ6192_ReadRegFieldB(kChip, 0x208, 8, 8), 0xF3u);
        VQ6192_WriteRegField(kChip, 0x208, 5, 4, 2);  // value bits beyond the width are dropped
        EXPECT_EQ(space[c.hostOffset / 2], 0xF355);
        EXPECT_EQ(VQ6192_ReadRegField(kChip, 0x208, 4, 2), 1u);
        VQ6192_UnInstall_SDK(kChip);
    }
}

TEST_F(MappedTest, ChipWithoutARegisterWindowReadsZeroAndWritesNothing) {
    // Installed without a base address and without host functions: the accesses are dropped instead of
    // reaching the host's address 0.
    VQ6192_INSTALL_PARA p{};
    p.ulChipId = kChip;
    ASSERT_EQ(VQ6192_Install_SDK(&p), 0u);
    VQ6192_WriteReg(kChip, 0x10, 1);
    VQ6192_WriteRegFieldB(kChip, 0x10, 1, 0, 1);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x10), 0u);
    EXPECT_EQ(VQ6192_ReadRegFieldB(kChip, 0x10, 0, 16), 0u);
}

// ---- Field arithmetic at the edges ----------------------------------------------------------------

TEST(FieldArithmetic, MasksReadsAndMergesAtTheEdges) {
    struct Case {
        uint32_t start, width;
        uint32_t mask;
        uint32_t readOf0xA5C3;
        uint32_t mergeAllOnesInto0;
    };
    const Case cases[] = {
        {0, 0, 0x0, 0x0, 0x0},            // width 0: empty
        {0, 16, 0xFFFF, 0xA5C3, 0xFFFF},  // whole register
        {0, 32, 0xFFFFFFFF, 0xA5C3, 0xFFFF},
        {0, 33, 0x0, 0x0, 0x0},  // beyond 32: empty
        {15, 1, 0x8000, 0x1, 0x8000},
        {15, 2, 0x18000, 0x1, 0x8000},  // the bit above the register is cut off
        {31, 1, 0x80000000, 0x0, 0x0},
        {31, 32, 0x80000000, 0x0, 0x0},
        {32, 1, 0x0, 0x0, 0x0},  // start bit 32: empty mask, zero value
        {4, 2, 0x30, 0x0, 0x30},
        {8, 8, 0xFF00, 0xA5, 0xFF00},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "start " << c.start << " width " << c.width);
        EXPECT_EQ(vq::fieldMask(c.start, c.width), c.mask);
        EXPECT_EQ(vq::fieldGet(0xA5C3, c.start, c.width), c.readOf0xA5C3);
        EXPECT_EQ(vq::fieldMerge(0, 0xFFFFFFFF, c.start, c.width), c.mergeAllOnesInto0);
        EXPECT_EQ(vq::fieldMerge(0xA5C3, 0, c.start, c.width), 0xA5C3u & ~c.mask & 0xFFFFu);
    }
    EXPECT_EQ(vq::fieldMerge(0xFFFF, 5, 4, 2), 0xFFDFu) << "value bits beyond the width are dropped";
}

// ---- Host functions over the chip model ---------------------------------------------------------------

using HostPathTest = ChipTest;

TEST_F(HostPathTest, PlainAndFieldAccessesReachTheModelUnscaled) {
    VQ6192_INSTALL_PARA p = model.installPara(kChip);
    p.ulAddrMultiple = 4;  // only the memory-mapped fall-back scales
    p.ulSupportProductFlag = 1;
    reinstall(p);
    model.setTrace(true);

    VQ6192_WriteReg(kChip, 0xDC010, 0xBEEF);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0xDC010), 0xBEEFu);
    VQ6192_WriteRegField(kChip, 0xDC010, 0x3, 0, 4);
    EXPECT_EQ(VQ6192_ReadRegField(kChip, 0xDC010, 4, 12), 0xBEEu);
    VQ6192_WriteRegFieldB(kChip, 0x20090, 0x5, 1, 3);
    EXPECT_EQ(VQ6192_ReadRegFieldB(kChip, 0x20090, 1, 3), 0x5u);

    const std::vector<BusAccess> expected = {
        {BusOp::Write, 0xDC010, 0xBEEF, 0, 16}, {BusOp::Read, 0xDC010, 0xBEEF, 0, 16},
        {BusOp::Read, 0xDC010, 0xBEEF, 0, 16},  {BusOp::Write, 0xDC010, 0xBEE3, 0, 16},
        {BusOp::Read, 0xDC010, 0xBEE3, 0, 16},  {BusOp::FieldWrite, 0x20090, 0x5, 1, 3},
        {BusOp::FieldRead, 0x20090, 0x5, 1, 3},
    };
    EXPECT_EQ(model.trace(), expected);
    EXPECT_EQ(model.peek(0x20090), 0xA);
    EXPECT_EQ(model.arbitrationsTaken(), 5u) << "one lock per plain access, none for FieldB";
    EXPECT_EQ(model.arbitrationsGiven(), 5u);
}

TEST_F(HostPathTest, WidthZeroStillReadsAndWrites) {
    model.poke(0x300, 0x1234);
    model.setTrace(true);
    VQ6192_WriteRegField(kChip, 0x300, 0xFFFF, 3, 0);
    EXPECT_EQ(model.peek(0x300), 0x1234);
    const std::vector<BusAccess> expected = {{BusOp::Read, 0x300, 0x1234, 0, 16},
                                             {BusOp::Write, 0x300, 0x1234, 0, 16}};
    EXPECT_EQ(model.trace(), expected);
}

TEST_F(HostPathTest, RegisterNumberInterfaceChecksTheFieldAndTouchesNothingOnError) {
    model.poke(0x208, 0xFFFF);
    model.setTrace(true);
    uint16_t out = 0x5555;
    EXPECT_EQ(VQ6192_Base_WriteReg(kChip, 0x104, 0, 10, 7), 0x03010001u);
    EXPECT_EQ(VQ6192_Base_ReadReg(kChip, 0x104, 10, 7, &out), 0x03010001u);
    EXPECT_EQ(VQ6192_Base_ReadReg(kChip, 0x104, 0, 1, nullptr), 0x03010001u);
    EXPECT_EQ(out, 0x5555);
    EXPECT_TRUE(model.trace().empty());
    EXPECT_EQ(capture.traceTexts(), std::vector<std::string>(3, "ParaErr.\r\n"));

    EXPECT_EQ(VQ6192_Base_WriteReg(kChip, 0x104, 0, 10, 6), 0u);
    EXPECT_EQ(model.peek(0x208), 0x03FF);
    EXPECT_EQ(VQ6192_Base_ReadReg(kChip, 0x104, 0, 16, &out), 0u);
    EXPECT_EQ(out, 0x03FF);
    // The sum is compared as signed: a huge start bit wraps below 16, is accepted and reads nothing.
    EXPECT_EQ(VQ6192_Base_ReadReg(kChip, 0x104, 0xFFFFFFFFu, 2, &out), 0u);
    EXPECT_EQ(out, 0);
}

// ---- Indirect path ------------------------------------------------------------------------------------

TEST_F(HostPathTest, IndirectPathHandsHandleAndOffset) {
    VQ6192_INSTALL_PARA p = model.installPara(kChip, true);
    p.ulBaseAddr = 0x40000;
    p.ulIndirectBaseAddr = 0x30000;
    p.ulAddrMultiple = 2;
    reinstall(p);
    model.setTrace(true);

    // offset = base + addr * 2 - indirect base
    VQ6192_WriteReg(kChip, 0x208, 0x1357);
    EXPECT_EQ(model.peek(0x10410), 0x1357);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x208), 0x1357u);
    VQ6192_WriteRegFieldB(kChip, 0x208, 0xA, 12, 4);
    EXPECT_EQ(VQ6192_ReadRegFieldB(kChip, 0x208, 12, 4), 0xAu);
    const std::vector<BusAccess> expected = {
        {BusOp::Write, 0x10410, 0x1357, 0, 16}, {BusOp::Read, 0x10410, 0x1357, 0, 16},
        {BusOp::Read, 0x10410, 0x1357, 0, 16},  {BusOp::Write, 0x10410, 0xA357, 0, 16},
        {BusOp::Read, 0x10410, 0xA357, 0, 16},
    };
    EXPECT_EQ(model.trace(), expected);
    EXPECT_EQ(VQ6192_GetRegIndirectFlag(kChip), 1u);
}

TEST_F(HostPathTest, IndirectPathWithoutFunctionsDoesNothing) {
    VQ6192_INSTALL_PARA p = model.installPara(kChip, true);
    p.pfnIndirectRead16 = nullptr;
    p.pfnIndirectWrite16 = nullptr;
    reinstall(p);
    model.poke(0x20, 0x77);
    model.setTrace(true);
    VQ6192_WriteReg(kChip, 0x20, 1);
    EXPECT_EQ(VQ6192_ReadReg(kChip, 0x20), 0u);
    uint16_t v = 0x99;
    EXPECT_EQ(VQ6192_Indirect_ReadReg16(kChip, 0x20, &v), 0u);
    EXPECT_EQ(v, 0x99);
    EXPECT_EQ(VQ6192_Indirect_ReadReg16(100000, 0x20, &v), 0u) << "no such chip: 0";
    EXPECT_EQ(v, 0x99);
    EXPECT_TRUE(model.trace().empty());
    EXPECT_EQ(model.peek(0x20), 0x77);
}

}  // namespace
