// The dump's own register access and table reader: no chip lock, no host register functions, the
// direct form on the register window and the indirect form through the indirect functions.
#include "chip/dump_fixture.h"

namespace dumptest {
namespace {

using AccessTest = DumpTest;

TEST_F(AccessTest, DirectReadIgnoresMultiplierProductFlagAndHostFunctions) {
    VQ6192_INSTALL_PARA p = model.installPara(kChip, false);
    p.ulBaseAddr = window().base();
    p.ulAddrMultiple = 4;
    p.ulSupportProductFlag = 1;
    reinstall(p);
    window().set(0x2004, 0xBEEF);   // register 0x1002
    window().set(0x3E812, 0x1357);  // register 0x1F409, the last E1 map register
    window().set(0x100 + 0x20, 0x4242);
    U16s v;
    const auto t = traced([&] {
        v = {VQ6192_DUMP_ReadDumpReg(kChip, 0x1002), VQ6192_DUMP_ReadDumpReg(kChip, 0x1F409)};
    });
    EXPECT_TRUE(t.empty()) << "the direct form must not use the host register functions";
    EXPECT_EQ(model.arbitrationsTaken(), 0u);
    // Initialisation replaces the base of the direct form.
    ASSERT_EQ(init(g_VQ6192_ChipDump_DirectReg, 1, g_VQ6192_ChipDump_InDirectReg, 1, window().base() + 0x100),
              0u);
    v.push_back(VQ6192_DUMP_ReadDumpReg(kChip, 0x10));
    EXPECT_EQ(v, (U16s{0xBEEF, 0x1357, 0x4242}));
}

TEST_F(AccessTest, IndirectReadAddsTheBaseAndTakesNoLock) {
    // Absolute address 2 x regNo + 0x1300, handed over minus the indirect base 0x1000.
    useIndirect(0x1300, 0x1000);
    model.poke(0x300 + 0x20, 0xA5C3);
    uint16_t v = 0;
    const auto t = traced([&] { v = VQ6192_DUMP_ReadDumpReg(kChip, 0x10); });
    EXPECT_EQ(v, 0xA5C3);
    EXPECT_EQ(t, (Accesses{rd(0x320, 0xA5C3)}));
    EXPECT_EQ((U32s{uint32_t(model.arbitrationsTaken()), uint32_t(model.cardPresentAsked())}), (U32s{0, 0}));
}

TEST_F(AccessTest, FieldReadsAndWritesOnBothPaths) {
    struct Case {
        uint32_t before, startBit, width, value, read, after;
    } cases[] = {
        {0xA5C3, 0, 16, 0x1234, 0xA5C3, 0x1234},
        {0xA5C3, 4, 4, 0, 0xC, 0xA503},
        {0xFFFF, 4, 2, 0, 3, 0xFFCF},
        {0x0000, 8, 8, 0x1FF, 0, 0xFF00},  // value bits beyond the width are dropped
        {0x7FFF, 15, 1, 1, 0, 0xFFFF},
        {0xA5C3, 12, 4, 0xF, 0xA, 0xF5C3},
    };
    for (bool indirect : {false, true}) {
        indirect ? useIndirect() : useWindow();
        for (const Case &c : cases) {
            SCOPED_TRACE(testing::Message() << indirect << " " << c.startBit << "/" << c.width);
            indirect ? model.poke(0x40, uint16_t(c.before)) : window().set(0x40, uint16_t(c.before));
            uint16_t out = 0xEEEE;
            EXPECT_EQ((U32s{VQ6192_DUMP_ReadReg(kChip, 0x20, c.startBit, c.width, &out),
                            VQ6192_DUMP_WriteReg(kChip, 0x20, c.startBit, c.width, c.value)}),
                      U32s(2, 0));
            EXPECT_EQ((U32s{out, indirect ? model.peek(0x40) : window().at(0x40)}), (U32s{c.read, c.after}));
        }
    }
}

TEST_F(AccessTest, BadFieldArgumentsAreRefusedWithoutBusAccess) {
    useIndirect();
    for (const auto &[startBit, width] : {std::pair{16u, 1u}, {0u, 0u}, {0u, 17u}, {8u, 9u}, {15u, 2u}}) {
        SCOPED_TRACE(testing::Message() << startBit << "/" << width);
        uint16_t out = 0;
        capture.clear();
        const auto t = traced([&] {
            EXPECT_EQ((U32s{VQ6192_DUMP_ReadReg(kChip, 0x20, startBit, width, &out),
                            VQ6192_DUMP_WriteReg(kChip, 0x20, startBit, width, 1),
                            VQ6192_DUMP_ReadRegDirect(kChip, 0x20, startBit, width, &out),
                            VQ6192_DUMP_WriteRegIndirect(kChip, 0x20, startBit, width, 1)}),
                      U32s(4, kPara));
        });
        EXPECT_TRUE(t.empty());
        EXPECT_EQ(capture.traceTexts(), Lines(4, "ParaErr.\r\n"));
    }
}

// ---- The table reader ------------------------------------------------------------------------------

class TableReadTest : public DumpTest {
  protected:
    void SetUp() override {
        DumpTest::SetUp();
        useIndirect();
        ASSERT_EQ(init(g_VQ6192_ChipDump_DirectReg, g_VQ6192_ChipDump_DirectReg_Cnt,
                       g_VQ6192_ChipDump_InDirectReg, g_VQ6192_ChipDump_InDirectReg_Cnt),
                  0u);
    }
    static constexpr uint32_t kAtmGroup = 2;  // third default group
    static constexpr uint32_t kPriTab = 1;    // ATMPWE3_PRI_TAB, select 38
    static constexpr uint32_t kTsGroup = 6;
};

TEST_F(TableReadTest, ReadsAnEntryWithTheRecordsProtocol) {
    // Registers of the 0x5000 block with their other bits set.
    poke({{0xA000, 0xFFC0}, {0xA004, 0xFFFC}});  // select [0..5], command [0..1]
    model.tables().setEntry(
        0x5000, 38, 0x2345,
        halves({0x1111, 0x2222, 0x3333, 0x4444, 0x5555, 0x6666, 0x7777, 0x8888, 0x9999, 0xAAAA}));
    uint32_t entry[5] = {};
    uint32_t rc = 1;
    const auto t = traced([&] { rc = VQ6192_DUMP_ReadDumpTbl(kChip, kAtmGroup, kPriTab, 0x12345, entry); });
    EXPECT_EQ(rc, 0u);
    EXPECT_EQ(writes(t), (Accesses{wr(0xA000, 0xFFE6), wr(0xA002, 0x2345), wr(0xA004, 0xFFFC),
                                   wr(0xA004, 0xFFFF), wr(0xA004, 0xFFFC)}));
    EXPECT_EQ((U32s{entry[0], entry[4]}), (U32s{0x22221111u, 0xAAAA9999u}));
    // Busy polled once before and once after the command; ten data registers from 0x5020.
    U32s reads;
    for (const BusAccess &a : t) {
        if (a.op == BusOp::Read && (a.addr == 0xA006 || (a.addr >= 0xA040 && a.addr < 0xA060))) {
            reads.push_back(a.addr);
        }
    }
    EXPECT_EQ(reads, (U32s{0xA006, 0xA006, 0xA040, 0xA042, 0xA044, 0xA046, 0xA048, 0xA04A, 0xA04C, 0xA04E,
                           0xA050, 0xA052}));
    EXPECT_EQ((U32s{uint32_t(model.arbitrationsTaken()), uint32_t(model.cardPresentAsked())}), (U32s{0, 0}));
}

TEST_F(TableReadTest, OddDataRegisterCountKeepsTheHighHalf) {
    model.tables().setEntry(0x10ab, 1, 7, halves({0x1234}));
    uint32_t entry[1] = {0xDEAD0000u};
    EXPECT_EQ(VQ6192_DUMP_ReadDumpTbl(kChip, kTsGroup, 0, 7, entry), 0u);  // TS_DL_ET1_TAB
    EXPECT_EQ(entry[0], 0xDEAD1234u);
}

TEST_F(TableReadTest, BusyTimeOuts) {
    struct Case {
        const char *what;
        uint32_t holdPolls, commandPolls, status;  // busy before and after the command
        size_t busyReads;
        bool dataRead;
    } cases[] = {
        {"stuck before the command", TableEngine::kForever, 0, kTimeout, 100, false},
        {"99 polls after the command", 0, 99, 0, 101, true},
        {"100 polls after the command", 0, 100, kTimeout, 101, false},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        model.tables().holdBusy(0x5000, c.holdPolls);
        model.tables().setCommandBusy(0x5000, c.commandPolls);
        uint32_t entry[5] = {};
        uint32_t rc = 1;
        const auto t = traced([&] { rc = VQ6192_DUMP_ReadDumpTbl(kChip, kAtmGroup, kPriTab, 0, entry); });
        EXPECT_EQ(rc, c.status);
        size_t busy = 0;
        bool data = false;
        for (const BusAccess &a : t) {
            busy += a.op == BusOp::Read && a.addr == 0xA006;
            data |= a.op == BusOp::Read && a.addr == 0xA040;
        }
        EXPECT_EQ(busy, c.busyReads);
        EXPECT_EQ(data, c.dataRead);
        EXPECT_EQ(writes(t).empty(), c.holdPolls != 0);
        model.tables().holdBusy(0x5000, 0);
        model.tables().setCommandBusy(0x5000, 0);
    }
    EXPECT_EQ(failCounters(), (std::vector<uint32_t>{0, 0, 0, 0})) << "the dump counts no table time-outs";
}

TEST_F(TableReadTest, ParameterErrorsTouchNoRegister) {
    uint32_t entry[16] = {};
    expectRefused(
        {{"group past the list", kPara, [&] { return VQ6192_DUMP_ReadDumpTbl(kChip, 7, 0, 0, entry); }},
         {"table past the group", kPara,
          [&] { return VQ6192_DUMP_ReadDumpTbl(kChip, kTsGroup, 4, 0, entry); }}});
}

}  // namespace
}  // namespace dumptest
