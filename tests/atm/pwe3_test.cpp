// ATM pseudowires: creation and removal with their table entries and labels, the delete handshake,
// the per-PW fields, counters, FIFO flags and the PW packet capture.
#include <tuple>

#include "atm/atm_fixture.h"
#include "vq6192/eth.h"
#include "vq6192/sim/atm_pwe3.h"

namespace {

using namespace atmtest;
using vq6192::sim::AtmPwe3Block;
using vq6192::sim::BusAccess;

constexpr uint32_t kPwCfg = 32, kPwTxMng = 33, kPwTxSt = 34, kPwRxMng = 35, kPwRxSt = 36, kPktBuf = 37,
                   kPri = 38;
constexpr uint32_t kStep = 0x03020004;  // chip 3, ATM, error 4

using RegWrite = std::pair<uint32_t, uint32_t>;

class Pwe3Test : public AtmTest {
  protected:
    void SetUp() override {
        AtmTest::SetUp();
        model.block<AtmPwe3Block>().setReadClear(true);
    }
    AtmPwe3Block &pwe3() { return model.block<AtmPwe3Block>(); }
    std::vector<RegWrite> regWrites(uint32_t addr) {
        std::vector<RegWrite> out;
        for (const BusAccess &a : vqtest::writes(model.trace())) {
            if (a.addr == addr) {
                out.push_back({a.addr, a.value});
            }
        }
        return out;
    }
    void prefill(uint32_t pw) {
        fillEntry(kPwCfg, pw, 4);
        fillEntry(kPwRxMng, pw, 38);
        fillEntry(kPwTxMng, pw, 30);
    }
};

TEST_F(Pwe3Test, CreateAndRemoveWriteEntriesAndLabels) {
    // Removal waits for the delete handshake; PW 40 never completes it and is cleared all the same.
    const std::tuple<const char *, uint32_t, ATM_PW_CFG, uint64_t, uint32_t> cases[] = {
        {"N:1, VPI and VCI cut", 7, {0xFFFFF, 0x1FFFF, 0x100, 0x345, 0, 1, 0, 0, 1}, 0x3FFFFFFFFFull, 3},
        {"VPC 1:1, VPI 4095", 2047, {4095, 0, 0xFFFFF, 0xFFF, 1, 0, 1, 1, 1}, 0xFFFull << 26 | 0x3FD, 3},
        {"VCC 1:1",
         40,
         {0x12, 0xABCD, 0x55, 0x77, 1, 1, 1, 2, 1},
         0x12ull << 26 | 0xABCDull << 10 | 0x3FF,
         AtmPwe3Block::kForever},
    };
    for (const auto &[name, pw, cfg, rx, polls] : cases) {
        SCOPED_TRACE(name);
        prefill(pw);
        ASSERT_EQ(VQ6192_ATM_CreateAtmPw(kChip, pw, &cfg), 0u);
        // Mode, control word and enable; receive and transmit management; PW label; in-label to ATM (2).
        EXPECT_EQ((V{bits(kPwCfg, pw, 0, 4), bits(kPwRxMng, pw, 0, 38), bits(kPwTxMng, pw, 0, 30)}),
                  (V{cfg.byEncpMode << 2 | cfg.byCwEn << 1 | 1u, rx, 0x3FFFFFFEu | cfg.bySnAddEn}));
        VQ6192_ETH_PSN_INFO_S info{};
        uint32_t srv = 9, ch = 9, valid = 9;
        ASSERT_EQ((V32{VQ6192_ETH_GetPSNEthInfo(kChip, pw, VQ6192_ETH_SRV_ATM, &info),
                       VQ6192_ETH_GetAtmCesEgChnl2Mpls(kChip, 0, cfg.dwInLabel, &srv, &ch, &valid)}),
                  (V32{0, 0}));
        EXPECT_EQ((V{info.dwLblPwLable, valid, srv, ch}), (V{cfg.dwPwLabel, 1, 2, pw}));

        pwe3().setDeletePolls(polls);
        capture.clear();
        EXPECT_EQ(VQ6192_ATM_RemoveAtmPw(kChip, pw, cfg.dwInLabel), polls == 3 ? 0u : kStep);
        // Packet drop and reset range kept; the in-label no longer valid.
        EXPECT_EQ((V{bits(kPwCfg, pw, 0, 4), bits(kPwRxMng, pw, 0, 38), bits(kPwTxMng, pw, 0, 30),
                     VQ6192_ETH_GetAtmCesEgChnl2Mpls(kChip, 0, cfg.dwInLabel, &srv, &ch, &valid), valid}),
                  (V{0, 0x3FD, 0x3FFFFFFE, 0, 0}));
        EXPECT_EQ(
            traced("Err. VQ6192_ATM_RemoveAtmPw -> VQ6192_ATM_SetPwEnable()! ulChipID[0x3], ulPwIdx[0x28], "
                   "ErrCode[0x3020004]\r\n"),
            polls != 3);
    }
    model.clearTrace();
    EXPECT_EQ((V32{VQ6192_ATM_RemoveAtmPw(kChip, 40, 0x100000), VQ6192_ATM_RemoveAtmPw(kChip, 2048, 1)}),
              V32(2, kPara));
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(Pwe3Test, CreateRefusalsTouchNothing) {
    const std::string cw =
        "Err.chipid 3 VQ6192_ATM_CreateAtmPw VPC1:1 or VCC1:1 , CW must be enabled! "
        "EnType[0x2], CWEn[0]      ErrCode[0x3020004]\r\n";
    const std::tuple<const char *, uint32_t, ATM_PW_CFG> cases[] = {
        {"PW 2048", 2048, {0, 0, 1, 1, 1, 0, 0, 0, 1}},
        {"control word 2", 1, {0, 0, 1, 1, 2, 0, 0, 0, 1}},
        {"sequence check 2", 1, {0, 0, 1, 1, 1, 2, 0, 0, 1}},
        {"sequence add 2", 1, {0, 0, 1, 1, 1, 0, 2, 0, 1}},
        {"mode 4", 1, {0, 0, 1, 1, 1, 0, 0, 4, 1}},
        {"VPC VPI 4096", 1, {4096, 0, 1, 1, 1, 0, 0, 1, 1}},
        {"VCC VCI 65536", 1, {0, 65536, 1, 1, 1, 0, 0, 2, 1}},
        {"PW label", 1, {0, 0, 0x100000, 1, 1, 0, 0, 0, 1}},
        {"in-label", 1, {0, 0, 1, 0x100000, 1, 0, 0, 0, 1}},
        {"VCC without control word", 5, {1, 2, 3, 4, 0, 0, 0, 2, 1}},
    };
    for (const auto &[name, pw, cfg] : cases) {
        SCOPED_TRACE(name);
        model.clearTrace();
        capture.clear();
        const bool rule = cfg.byCwEn == 0;  // the control-word rule: error 4 and its own text
        EXPECT_EQ(VQ6192_ATM_CreateAtmPw(kChip, pw, &cfg), rule ? kStep : kPara);
        EXPECT_TRUE(vqtest::writes(model.trace()).empty());
        EXPECT_EQ(capture.traceTexts(), std::vector<std::string>{rule ? cw : "ParaErr. \r\n"});
    }
}

TEST_F(Pwe3Test, DisableRunsTheDeleteHandshake) {
    const std::tuple<const char *, uint32_t, uint32_t, uint32_t, uint64_t> cases[] = {
        {"done at the first poll", 0x7FF, 1, 0, 2},
        {"done at poll 1000", 5, 1000, 0, 2000},
        {"never done", 6, AtmPwe3Block::kForever, kStep, 2000},
    };
    for (const auto &[name, pw, polls, status, waitedUs] : cases) {
        SCOPED_TRACE(name);
        setBits(kPwCfg, pw, 0, 4, 0xF);
        model.poke(0xA740, 0xE000);  // bits above the handshake kept
        pwe3().setDeletePolls(polls);
        model.clearTrace();
        capture.clear();
        VQ6192_Platform_ResetVirtualTime();
        EXPECT_EQ(VQ6192_ATM_SetPwEnable(kChip, pw, 0), status);
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), waitedUs);
        EXPECT_EQ(bits(kPwCfg, pw, 0, 4), 0xEu);
        // The last write puts back what it read: the done bit when the chip raised it.
        const uint32_t done = status == 0 ? 0x1000 : 0;
        const std::vector<RegWrite> expect = {
            {0xA740, 0xE000}, {0xA740, 0xE000 | pw}, {0xA740, 0xE800 | pw}, {0xA740, 0xE000 | done | pw}};
        EXPECT_EQ(regWrites(0xA740), expect);
        EXPECT_GE(g_ulVq6192AtmPwe3EnableCnt, polls == AtmPwe3Block::kForever ? 1000u : polls);
        if (status != 0) {
            EXPECT_TRUE(
                traced("Err. VQ6192_ATM_SetPwEnable ATMPWE3DRV_RemoveAtmPw. Delete don't finish. "
                       "ChipID[0x3],     ErrCode[0x3020004]\r\n"));
        }
    }
    // Disabling a disabled PW, and enabling, are only the table write.
    for (uint32_t v : {0u, 1u}) {
        setBits(kPwCfg, 9, 0, 4, 0xE);
        model.clearTrace();
        EXPECT_EQ(VQ6192_ATM_SetPwEnable(kChip, 9, v), 0u);
        EXPECT_TRUE(regWrites(0xA740).empty());
        EXPECT_EQ(bits(kPwCfg, 9, 0, 4), 0xEu | v);
    }
    // The read of the enable fails.
    model.tables().failCommand(kAtmBlock, 1);
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_SetPwEnable(kChip, 9, 0), kStep);
    EXPECT_TRUE(traced(
        "Err. VQ6192_ATM_SetPwEnable VQ6192_ATM_GetPwEnable error. ChipID[0x3],ErrCode[0x30c0003]\r\n"));
}

TEST_F(Pwe3Test, FieldSettersChangeOnlyTheirField) {
    using Set = uint32_t (*)(uint32_t);
    // The setter, the entry it changes (PW 3, priority template 31, pre-filled with ones), its bits after.
    const std::tuple<Set, uint32_t, uint64_t> cases[] = {
        {[](uint32_t c) { return VQ6192_ATM_SetAtmPwEncpMode(c, 3, 1); }, kPwCfg, 0x7},
        {[](uint32_t c) { return VQ6192_ATM_SetAtmPwCWEn(c, 3, 0); }, kPwCfg, 0xD},  // N:1 mode 3
        {[](uint32_t c) { return VQ6192_ATM_SetPwEgVPIVCI(c, 3, 0x1001, 0x10002); }, kPwRxMng, 0x4000BFF},
        {[](uint32_t c) { return VQ6192_ATM_SetPwSnChkAdd(c, 3, 0, 1); }, kPwRxMng, 0x3FFFFFFFFDull},
        {[](uint32_t c) { return VQ6192_ATM_SetPwPktDropEn(c, 3, 0); }, kPwRxMng, 0x3FFFFFFFFEull},
        {[](uint32_t c) { return VQ6192_ATM_SetPwExpectRange(c, 3, 0x5A); }, kPwRxMng, 0x3FFFFFFD6Bull},
        {[](uint32_t c) { return VQ6192_ATM_SetAtmPwCellConcAttr(c, 3, 31, 0); }, kPwTxMng, 0x3FFFFF81},
        {[](uint32_t c) { return VQ6192_ATM_SetAtmPwCellConcAttr(c, 3, 4, 63); }, kPwTxMng, 0x3E4FFFFF},
        {[](uint32_t c) { return VQ6192_ATM_SetPwPriIndex(c, 3, 2); }, kPwTxMng, 0x05FFFFFF},
        {[](uint32_t c) { return VQ6192_ATM_SetPwPriTemplate(c, 31, 1, 0); }, kPri, 0x0FFF},  // CBR
        {[](uint32_t c) { return VQ6192_ATM_SetPwPriTemplate(c, 31, 2, 2); }, kPri, 0x75FF},
        {[](uint32_t c) { return VQ6192_ATM_SetPwPriTemplate(c, 31, 3, 0); }, kPri, 0x7E3F},
        {[](uint32_t c) { return VQ6192_ATM_SetPwPriTemplate(c, 31, 4, 5); }, kPri, 0x7FEF},
        {[](uint32_t c) { return VQ6192_ATM_SetPwPriTemplate(c, 31, 5, 6); }, kPri, 0x7FFE},  // UBR
    };
    for (const auto &[set, sel, after] : cases) {
        SCOPED_TRACE(testing::Message() << sel << "/" << after);
        const uint32_t index = sel == kPri ? 31 : 3;
        const uint32_t width = sel == kPwCfg ? 4 : sel == kPwRxMng ? 38 : sel == kPwTxMng ? 30 : 15;
        fillEntry(sel, index, width);
        fillEntry(kPwTxMng, 3, 30);
        ASSERT_EQ(set(kChip), 0u);
        EXPECT_EQ(bits(sel, index, 0, width), after);
    }
    uint16_t pri = 99;
    EXPECT_EQ(VQ6192_ATM_GetPwPriTemplate(kChip, 31, 1, &pri), 0u) << "service types 1..5";
}

TEST_F(Pwe3Test, ControlWordRuleOfTheOneToOneModes) {
    // mode in bits 2..3, control word bit 1, enable bit 0
    const std::tuple<uint32_t, uint8_t> cases[] = {
        {0x4 | 0x1, 1}, {0x8 | 0x1, 1}, {0x0 | 0x1, 0}, {0xC | 0x3, 1}, {0xC, 0}};
    for (const auto &[cfg, reported] : cases) {
        SCOPED_TRACE(cfg);
        setBits(kPwCfg, 12, 0, 4, cfg);
        uint8_t cw = 9;
        EXPECT_EQ((V{VQ6192_ATM_GetAtmPwCWEn(kChip, 12, &cw), cw}), (V{0, reported}));
    }
    setBits(kPwCfg, 12, 0, 4, 0x7);  // VPC one-to-one, control word on
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_SetAtmPwCWEn(kChip, 12, 0), kStep);
    EXPECT_EQ(bits(kPwCfg, 12, 0, 4), 0x7u);
    EXPECT_TRUE(
        traced("Err.chipid 3 VQ6192_ATM_SetAtmPwCWEn In VPC1:1 or VCC1:1 Mode, CW must be enabled! "
               "EnType[0x1], CWEn[0]      ErrCode[0x3020004]\r\n"));
}

TEST_F(Pwe3Test, StatisticsRecordAndReadClear) {
    // Transmit entry: sn 0x1234, length 0x1ABCD, relay 0x15, delayed 0x7777, packets 0x89ABCDEF.
    setFields(kPwTxSt, 100,
              {{0, 32, 0x89ABCDEF}, {32, 16, 0x7777}, {48, 5, 0x15}, {53, 17, 0x1ABCD}, {70, 16, 0x1234}});
    // Receive entry: fraction 0x11, disorder 0x22, loss 0x33, packets 0x44556677, error 1, reset 0x88,
    // last 0x99AA, expected 0xBBCC.
    setFields(kPwRxSt, 100, {{0, 16, 0x11}, {16, 16, 0x22}, {32, 16, 0x33}, {48, 32, 0x44556677}});
    setFields(kPwRxSt, 100, {{80, 1, 1}, {81, 8, 0x88}, {89, 16, 0x99AA}, {105, 16, 0xBBCC}});
    poke({{0xA6E0, 0x0102}, {0xA6E2, 0x0304}, {0xA008, 0xFFE0}});
    model.clearTrace();
    uint32_t out[14] = {};
    ASSERT_EQ(VQ6192_ATM_GetAtmPwe3Per(kChip, 100, out), 0u);
    EXPECT_EQ(V32(out, out + 14), (V32{0x1234, 0x1ABCD, 0x15, 0x7777, 0x89ABCDEF, 0x44556677, 0x33, 0x22,
                                       0x11, 0xBBCC, 0x99AA, 0x88, 0x0102, 0x0304}));
    EXPECT_EQ(regWrites(0xA008), (std::vector<RegWrite>{{0xA008, 0xFFEF}, {0xA008, 0xFFFF}}));
    ASSERT_EQ(VQ6192_ATM_GetAtmPwe3Per(kChip, 100, out), 0u);
    EXPECT_EQ((V{out[4], out[5], out[12]}), (V{0, 0, 0})) << "packet counters clear when read";

    model.poke(0xA008, 0xFFE0);
    model.clearTrace();
    uint8_t alarm = 0;
    EXPECT_EQ((V{VQ6192_ATM_GetPwChkErrAlm(kChip, 100, &alarm), alarm}), (V{0, 1}));
    EXPECT_EQ(regWrites(0xA008), (std::vector<RegWrite>{{0xA008, 0xFFF0}, {0xA008, 0xFFFF}}));
}

TEST_F(Pwe3Test, FifoFlagsLoopbacksTimeAndInit) {
    // rx Ethernet: empty 1, full 0; rx switch: empty 0, full 1; 0xA68A 1010 0101; 0xA6A0 0110.
    poke({{0xA680, 0xFFFE}, {0xA682, 0x0001}, {0xA684, 0x0003}, {0xA686, 0x0000}});
    poke({{0xA68A, 0xFFA5}, {0xA6A0, 0xFFF6}, {0xA6C0, 0x0001}, {0xA6C2, 0xFFFE}});
    uint8_t out[22] = {};
    ASSERT_EQ(VQ6192_ATM_GetPw3FIFOStats(kChip, out), 0u);
    EXPECT_EQ(V(out, out + 22), (V{1, 0, 0, 1, 1, 1, 0, 0, 1, 0, 1, 0, 0, 1, 0, 1, 0, 1, 1, 0, 1, 0}));
    const uint16_t bitOf[4] = {0x8, 0x4, 0x2, 0x1};
    for (uint32_t which = 0; which < 4; ++which) {
        model.poke(0xA6A0, 0xFFFF);
        EXPECT_EQ(VQ6192_ATM_SetPw3FIFOStats(kChip, which, 0), 0u);
        EXPECT_EQ(model.peek(0xA6A0), 0xFFFF & ~bitOf[which]);
    }
    for (const uint32_t reg : {0xA760, 0xA762}) {
        const uint32_t which = reg == 0xA760 ? 0 : 1;
        model.poke(reg, 0xFFFE);
        uint16_t v = 0;
        ASSERT_EQ((V32{VQ6192_ATM_SetPWE3Loop(kChip, which, 1), VQ6192_ATM_GetPWE3Loop(kChip, which, &v)}),
                  V32(2, 0));
        EXPECT_EQ((V{model.peek(reg), v}), (V{0xFFFF, 1}));
    }
    uint16_t t = 0;
    ASSERT_EQ((V32{VQ6192_ATM_SetSendPwe3Time(kChip, 0xBEEF), VQ6192_ATM_GetSendPwe3Time(kChip, &t)}),
              V32(2, 0));
    EXPECT_EQ(t, 0xBEEF);
    model.clearTrace();
    // The start of the PW block has nothing to do.
    EXPECT_EQ((V32{VQ6192_ATM_SetPw3FIFOStats(kChip, 4, 0), VQ6192_ATM_SetPw3FIFOStats(kChip, 0, 2),
                   VQ6192_ATM_SetPWE3Loop(kChip, 2, 1), VQ6192_ATM_SetSendPwe3Time(kChip, 0x10000),
                   VQ6192_ATM_AtmPwe3Init(kChip, 1), VQ6192_ATM_AtmPwe3Init(kChip, 2),
                   VQ6192_ATM_AtmPwe3Init(kChip, 0), VQ6192_ATM_AtmPwe3Init(kChip, 3)}),
              (V32{kPara, kPara, kPara, kPara, 0, 0, kPara, kPara}));
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(Pwe3Test, PacketCaptureCopiesTheFirstPacket) {
    std::vector<uint8_t> first(53);
    for (size_t i = 0; i < first.size(); ++i) {
        first[i] = static_cast<uint8_t>(0xA0 + i);
    }
    pwe3().queuePacket(first);
    pwe3().queuePacket({1, 2, 3, 4, 5, 6, 7});
    pwe3().setCapturePolls(4);
    model.poke(0xA720, 0xC000);
    VQ6192_Platform_ResetVirtualTime();
    uint8_t cell[2048] = {};
    uint32_t length = 0;
    ASSERT_EQ(VQ6192_ATM_GetAtmPWE3CapCell(kChip, 0x7FF, 1, cell, &length), 0u);
    EXPECT_EQ(length, 53u);
    EXPECT_EQ(std::vector<uint8_t>(cell, cell + 53), first);
    EXPECT_EQ(cell[53], 0);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 1000 * VQ6192_Platform_GetTickUs() + 4 * 2)
        << "1000 ticks, then four 2 us polls";
    EXPECT_EQ(pwe3().captures(), (std::vector<AtmPwe3Block::PwCommand>{{0x7FF, 1}}));
    EXPECT_EQ(model.peek(0xA720) & 0xC000, 0xC000) << "bits above the handshake kept";

    // The buffer read on its own: ends after 53 and 60 bytes; the closing entry of the second packet
    // holds count 2 and adds three bytes.
    pwe3().queuePacket(first);
    pwe3().queuePacket({1, 2, 3, 4, 5, 6, 7});
    ASSERT_EQ(VQ6192_ATM_SetAtmPWE3Capture(kChip, 1, 0), 0u);
    EXPECT_EQ(bits(kPktBuf, 15, 0, 3), 0x5u) << "count 2, end of packet";
    std::vector<uint8_t> data(2048);
    std::vector<uint16_t> ends(512);
    uint16_t count = 0;
    capture.clear();
    ASSERT_EQ(VQ6192_ATM_GetAtmPWE3CapData(kChip, data.data(), ends.data(), &count), 0u);
    EXPECT_EQ((V{count, ends[0], ends[1], data[57], data[59]}), (V{2, 53, 60, 5, 7}));
    EXPECT_TRUE(traced("Err. VQ6192_ATM_GetAtmPWE3CapData OK! ErrorCode: 0\r\n"));
}

TEST_F(Pwe3Test, PacketCaptureFailures) {
    pwe3().setCapturePolls(AtmPwe3Block::kForever);
    model.poke(0xA720, 0);
    VQ6192_Platform_ResetVirtualTime();
    capture.clear();
    uint8_t cell[2048] = {};
    uint32_t length = 77;
    EXPECT_EQ(VQ6192_ATM_GetAtmPWE3CapCell(kChip, 5, 0, cell, &length), kStep);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 1000 * VQ6192_Platform_GetTickUs() + 1000 * 2);
    EXPECT_EQ(model.peek(0xA720), 0x0005) << "start dropped";
    EXPECT_EQ(length, 77u);
    EXPECT_EQ(capture.traceTexts(),
              (std::vector<std::string>{
                  "Err. VQ6192_ATM_SetAtmPWE3Capture GetPwe3CaptureAck(0x5) WaitFinish Fail. "
                  "checkTime[0x3e8]ErrorCode: "
                  "0x3020004\r\n",
                  "Err. VQ6192_ATM_GetAtmPWE3CapCell VQ6192_ATM_SetAtmPWE3Capture( 3,     5,   0) ErrorCode: "
                  "0x3020004\r\n"}));

    pwe3().setCapturePolls(1);
    model.tables().failCommand(kAtmBlock, 512);
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_GetAtmPWE3CapCell(kChip, 5, 0, cell, &length), kStep);
    EXPECT_TRUE(
        traced("Err. VQ6192_ATM_GetAtmPWE3CapCell VQ6192_ATM_GetAtmPWE3CapData(0x3, 0x5) ErrorCode: "
               "0x30c0003\r\n"));

    // Nothing captured: the buffer has no end mark, the length is 0 and nothing is copied.
    model.tables().failCommand(kAtmBlock, 0);
    model.tables().holdBusy(kAtmBlock, 0);
    cell[0] = 0x5A;
    EXPECT_EQ(VQ6192_ATM_GetAtmPWE3CapCell(kChip, 6, 1, cell, &length), 0u);
    EXPECT_EQ(length, 0u);
    EXPECT_EQ(cell[0], 0x5A);

    model.clearTrace();
    EXPECT_EQ((V32{VQ6192_ATM_GetAtmPWE3CapCell(kChip, 2048, 0, cell, &length),
                   VQ6192_ATM_GetAtmPWE3CapCell(kChip, 1, 2, cell, &length)}),
              V32(2, kPara));
    EXPECT_TRUE(model.trace().empty());
}

}  // namespace
