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
    uint16_t reg = 0;
    uint16_t e1 = 0;
    const auto t = traced([&] {
        reg = VQ6192_DUMP_ReadDumpReg(kChip, 0x1002);
        e1 = VQ6192_DUMP_ReadDumpReg(kChip, 0x1F409);
    });
    EXPECT_EQ(reg, 0xBEEF);
    EXPECT_EQ(e1, 0x1357);
    EXPECT_TRUE(t.empty()) << "the direct form must not use the host register functions";
    EXPECT_EQ(model.arbitrationsTaken(), 0u);
}

TEST_F(AccessTest, InitialisationReplacesTheBaseOfTheDirectForm) {
    useWindow();
    window().set(0x100 + 0x20, 0x4242);
    ASSERT_EQ(init(g_VQ6192_ChipDump_DirectReg, 1, g_VQ6192_ChipDump_InDirectReg, 1, window().base() + 0x100),
              0u);
    EXPECT_EQ(VQ6192_DUMP_ReadDumpReg(kChip, 0x10), 0x4242);
}

TEST_F(AccessTest, IndirectReadAddsTheBaseAndTakesNoLock) {
    // Absolute address 2 x regNo + 0x1300, handed over minus the indirect base 0x1000.
    useIndirect(0x1300, 0x1000);
    model.poke(0x300 + 0x20, 0xA5C3);
    uint16_t v = 0;
    const auto t = traced([&] { v = VQ6192_DUMP_ReadDumpReg(kChip, 0x10); });
    EXPECT_EQ(v, 0xA5C3);
    EXPECT_EQ(t, (std::vector<BusAccess>{rd(0x320, 0xA5C3)}));
    EXPECT_EQ(model.arbitrationsTaken(), 0u);
    EXPECT_EQ(model.cardPresentAsked(), 0u);
    EXPECT_EQ(failCounters(), (std::vector<uint32_t>{0, 0, 0, 0}));
}

TEST_F(AccessTest, FieldReadsAndWritesOnBothPaths) {
    struct Case {
        uint16_t before;
        uint32_t startBit, width, value;
        uint16_t read, after;
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
        auto reg = [&]() { return indirect ? model.peek(0x40) : window().at(0x40); };
        for (const Case &c : cases) {
            SCOPED_TRACE(testing::Message()
                         << (indirect ? "indirect " : "direct ") << c.startBit << "/" << c.width);
            indirect ? model.poke(0x40, c.before) : window().set(0x40, c.before);
            uint16_t out = 0xEEEE;
            EXPECT_EQ(VQ6192_DUMP_ReadReg(kChip, 0x20, c.startBit, c.width, &out), 0u);
            EXPECT_EQ(out, c.read);
            EXPECT_EQ(VQ6192_DUMP_WriteReg(kChip, 0x20, c.startBit, c.width, c.value), 0u);
            EXPECT_EQ(reg(), c.after);
        }
    }
}

TEST_F(AccessTest, BadFieldArgumentsAreRefusedWithoutBusAccess) {
    useIndirect();
    struct Case {
        uint32_t chip, startBit, width;
        uint32_t status;
    } cases[] = {
        // clang-format off
        {kChip, 16, 1, kPara}, {kChip, 0, 0, kPara}, {kChip, 0, 17, kPara}, {kChip, 8, 9, kPara}, {kChip, 15, 2, kPara},
        {264, 0, 16, 0x080B0001}, {7, 0, 16, 0x070B0001},  // chip 7 never installed: no dump context
        // clang-format on
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << c.chip << " " << c.startBit << "/" << c.width);
        uint16_t out = 0;
        capture.clear();
        const auto t = traced([&] {
            EXPECT_EQ(VQ6192_DUMP_ReadReg(c.chip, 0x20, c.startBit, c.width, &out), c.status);
            EXPECT_EQ(VQ6192_DUMP_WriteReg(c.chip, 0x20, c.startBit, c.width, 1), c.status);
            EXPECT_EQ(VQ6192_DUMP_ReadRegDirect(c.chip, 0x20, c.startBit, c.width, &out), c.status);
            EXPECT_EQ(VQ6192_DUMP_WriteRegIndirect(c.chip, 0x20, c.startBit, c.width, 1), c.status);
        });
        EXPECT_TRUE(t.empty());
        if (c.chip == kChip) {
            EXPECT_EQ(capture.traceTexts(), Lines(4, "ParaErr.\r\n"));
        }
    }
    EXPECT_EQ(VQ6192_DUMP_ReadReg(kChip, 0x20, 0, 16, nullptr), kPara);
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
    model.poke(0xA000, 0xFFC0);  // select [0..5]
    model.poke(0xA004, 0xFFFC);  // command [0..1]
    model.tables().setEntry(
        0x5000, 38, 0x2345,
        halves({0x1111, 0x2222, 0x3333, 0x4444, 0x5555, 0x6666, 0x7777, 0x8888, 0x9999, 0xAAAA}));
    uint32_t entry[5] = {};
    uint32_t rc = 1;
    const auto t = traced([&] { rc = VQ6192_DUMP_ReadDumpTbl(kChip, kAtmGroup, kPriTab, 0x12345, entry); });
    EXPECT_EQ(rc, 0u);
    EXPECT_EQ(vqtest::writes(t),
              (std::vector<BusAccess>{wr(0xA000, 0xFFE6), wr(0xA002, 0x2345), wr(0xA004, 0xFFFC),
                                      wr(0xA004, 0xFFFF), wr(0xA004, 0xFFFC)}));
    EXPECT_EQ(entry[0], 0x22221111u);
    EXPECT_EQ(entry[4], 0xAAAA9999u);
    // Busy polled once before and once after the command; ten data registers from 0x5020.
    size_t busy = 0;
    std::vector<uint32_t> data;
    for (const BusAccess &a : t) {
        busy += a.op == BusOp::Read && a.addr == 0xA006;
        if (a.op == BusOp::Read && a.addr >= 0xA040 && a.addr < 0xA060) {
            data.push_back(a.addr);
        }
    }
    EXPECT_EQ(busy, 2u);
    EXPECT_EQ(data, (std::vector<uint32_t>{0xA040, 0xA042, 0xA044, 0xA046, 0xA048, 0xA04A, 0xA04C, 0xA04E,
                                           0xA050, 0xA052}));
    EXPECT_EQ(model.arbitrationsTaken(), 0u);
    EXPECT_EQ(model.cardPresentAsked(), 0u);
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
        uint32_t holdPolls;     // busy before the command
        uint32_t commandPolls;  // busy after the command
        uint32_t status;
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
        if (c.holdPolls != 0) {
            EXPECT_TRUE(vqtest::writes(t).empty());
        }
        model.tables().holdBusy(0x5000, 0);
        model.tables().setCommandBusy(0x5000, 0);
    }
    EXPECT_EQ(failCounters(), (std::vector<uint32_t>{0, 0, 0, 0})) << "the dump counts no table time-outs";
}

TEST_F(TableReadTest, ParameterErrorsTouchNoRegister) {
    struct Case {
        const char *what;
        uint32_t chip, group, table;
        bool buffer;
        uint32_t status;
    } cases[] = {
        {"null entry", kChip, 0, 0, false, kPara},
        {"group past the list", kChip, 7, 0, true, kPara},
        {"table past the group", kChip, kTsGroup, 4, true, kPara},
        {"chip 264", 264, 0, 0, true, 0x080B0001},
        {"chip never installed", 9, 0, 0, true, 0x090B0001},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        uint32_t entry[16] = {};
        const auto t = traced([&] {
            EXPECT_EQ(VQ6192_DUMP_ReadDumpTbl(c.chip, c.group, c.table, 0, c.buffer ? entry : nullptr),
                      c.status);
        });
        EXPECT_TRUE(t.empty());
    }
}

}  // namespace
}  // namespace dumptest
