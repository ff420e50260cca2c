// ATM connections: every kind laid into the switching tables, the legality check's refusals, a step
// failing midway, paired connections, deletion with its queue drain and flush, and reading back.
#include <tuple>

#include "atm/atm_fixture.h"
#include "vq6192/platform.h"

namespace {

using namespace atmtest;
using vq6192::sim::AtmBlock;

ATM_SRV_CONN conn(uint16_t vcx, uint16_t tag, uint16_t cType, uint16_t srcPort, uint16_t dstPort) {
    // Stype 3, UpcNpc 1, policer 8191, weight 77, Clpt 1, Fd 0, Pfd 1, Red 0, idx 63.
    return {vcx, tag, cType, srcPort, 0xABC, 0x1234, dstPort, 0x5A7, 0xFEDC, 3, 1, 8191, 77, 1, 0, 1, 0, 63};
}

class ConnTest : public AtmTest {
  protected:
    // The entries a connection touches, with every bit set beforehand.
    void prefill(const ATM_SRV_CONN &c) {
        fillEntry(kVct, c.Vcx, 69);
        fillEntry(kTcam, c.Vcx, 96);
        fillEntry(kLinkQm, c.Vcx, 46);
        fillEntry(kBmPvc, c.Vcx, 10);
        fillEntry(kLpct, c.Tag == 1 ? c.DstPort : c.SrcPort, 15);
        fillEntry(c.Tag == 2 ? kLpct : kSpct, c.Tag == 1 ? c.SrcPort : c.DstPort, c.Tag == 2 ? 15 : 12);
        setBits(kVct, c.Vcx, 0, 1, 0);  // a free VCX
    }
    // Step k of laying a connection fails at table command `failAt`: the operation's code and text.
    void failAt(uint32_t command) {
        model.tables().clear();
        model.tables().holdBusy(kAtmBlock, 0);
        capture.clear();
        model.tables().failCommand(kAtmBlock, command);
    }
};

TEST_F(ConnTest, EveryKindLaysItsEntries) {
    ATM_SRV_CONN cbr = conn(8191, 1, 0, 2047, 335);
    cbr.Stype = 1, cbr.Qid = 15;
    ATM_SRV_CONN local = conn(4000, 2, 1, 7, 300);
    local.Stype = 5, local.Qid = 8190;
    const std::tuple<const char *, ATM_SRV_CONN, uint64_t, uint64_t, uint32_t, bool> cases[] = {
        {"ingress VCC", conn(100, 0, 1, 335, 2047), 335, 0xFFFFFFFF, 0, false},
        {"ingress VPC", conn(0, 0, 0, 0, 0), 0, 0xFFFF0000, 0, false},
        {"egress VPC CBR", cbr, 2048 + 2047, 0xFFFF0000, 1, true},
        {"egress VCC", conn(5, 1, 1, 0, 17), 2048, 0xFFFFFFFF, 1, true},
        {"local VCC", local, 7, 0xFFFFFFFF, 1, true},
    };
    for (const auto &[name, c, keyPort, maskl, dir, queue] : cases) {
        SCOPED_TRACE(name);
        model.tables().clear();
        prefill(c);
        ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), 0u);
        // TCAM: key VCI 0..15, VPI 16..27, port 28..39, mask 40..79, valid 80.
        EXPECT_EQ((fields(kTcam, c.Vcx, {{0, 16}, {16, 12}, {28, 12}, {40, 32}, {72, 8}, {80, 1}})),
                  (V{0x1234, 0xABC, keyPort, maskl, 0xFF, 1}));
        // Connection information; the OAM flags 42..51 are kept.
        EXPECT_EQ(
            fields(
                kVct, c.Vcx,
                {{0, 1}, {1, 16}, {17, 8}, {25, 4}, {29, 11}, {40, 1}, {41, 1}, {42, 10}, {52, 14}, {66, 3}}),
            (V{1, 0xFEDC, 0xA7, 0x5, c.DstPort, dir, c.cType, 0x3FF, 8191u << 1 | 1, c.Stype}));
        // Queue bound, not deleted, busy bit and length kept; buffers Clpt 1, Fd 0, Pfd 1, Red 0, idx 63.
        EXPECT_EQ((fields(kLinkQm, c.Vcx, {{0, 13}, {13, 3}, {16, 9}, {25, 1}, {26, 20}})),
                  (queue ? V{c.Qid, c.Stype, c.DstPort, 0, 0xFFFFF} : V{0x1FFF, 7, 0x1FF, 1, 0xFFFFF}));
        EXPECT_EQ(bits(kBmPvc, c.Vcx, 0, 10), queue ? 0x2BFu : 0x3FFu);
        // Line ports: enabled, not transparent, not looped; attribute and PW index kept.
        EXPECT_EQ(bits(kLpct, c.Tag == 1 ? c.DstPort : c.SrcPort, 0, 15), 0x7FFCu);
        if (c.Tag == 2) {
            EXPECT_EQ(bits(kLpct, c.DstPort, 0, 15), 0x7FFCu);
        } else {
            EXPECT_EQ(bits(kSpct, c.Tag == 0 ? c.DstPort : c.SrcPort, 0, 12), 0xFFEu);
        }
    }
}

TEST_F(ConnTest, IllegalRecordsAreRefusedUntouched) {
    auto with = [](ATM_SRV_CONN c, auto change) {
        change(c);
        return c;
    };
    const ATM_SRV_CONN eg = conn(1, 1, 1, 2047, 335);
    const ATM_SRV_CONN in = conn(1, 0, 1, 335, 2047);
    const std::pair<const char *, ATM_SRV_CONN> cases[] = {
        {"cType 2", with(eg, [](auto &c) { c.cType = 2; })},
        {"Tag 3", with(eg, [](auto &c) { c.Tag = 3; })},
        {"UpcNpc 2", with(eg, [](auto &c) { c.UpcNpc = 2; })},
        {"PolicingId 8192", with(eg, [](auto &c) { c.PolicingId = 8192; })},
        {"Stype 6", with(eg, [](auto &c) { c.Stype = 6; })},
        {"Vcx 8192", with(eg, [](auto &c) { c.Vcx = 8192; })},
        {"egress source 2048", with(eg, [](auto &c) { c.SrcPort = 2048; })},
        {"ingress source 336", with(in, [](auto &c) { c.SrcPort = 336; })},
        {"ingress destination 2048", with(in, [](auto &c) { c.DstPort = 2048; })},
        {"egress destination 336", with(eg, [](auto &c) { c.DstPort = 336; })},
        {"CBR class 16", with(eg, [](auto &c) { c.Stype = 1, c.Qid = 16; })},
        {"rt-VBR weight 0", with(eg, [](auto &c) { c.Stype = 2, c.Qid = 0; })},
        {"rt-VBR weight 8191", with(eg, [](auto &c) { c.Stype = 2, c.Qid = 8191; })},
        {"Clpt 2", with(eg, [](auto &c) { c.Clpt = 2; })},
        {"Fd 2", with(eg, [](auto &c) { c.Fd = 2; })},
        {"Pfd 2", with(eg, [](auto &c) { c.Pfd = 2; })},
        {"Red 2", with(eg, [](auto &c) { c.Red = 2; })},
        {"idx 64", with(eg, [](auto &c) { c.idx = 64; })},
        {"local source 336", with(eg, [](auto &c) { c.Tag = 2, c.SrcPort = 336; })},
    };
    for (const auto &[name, c] : cases) {
        SCOPED_TRACE(name);
        capture.clear();
        model.clearTrace();
        EXPECT_EQ(VQ6192_ATM_IsConnParasLegal(kChip, &c), kPara);
        EXPECT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), kPara);
        EXPECT_TRUE(model.trace().empty());
        EXPECT_EQ(capture.traceTexts(),
                  (std::vector<std::string>{
                      "ParaErr. \r\n", "ParaErr. \r\n",
                      "Err. VQ6192_ATM_AddAtmSrvConn: IsConnParasLegal parameter error! ChipID: 0x3\r\n"}));
    }
    // An ingress record does not look at the queue and buffer fields.
    const ATM_SRV_CONN loose = with(in, [](auto &c) { c.Qid = 0, c.idx = 200, c.Clpt = 9; });
    EXPECT_EQ(VQ6192_ATM_IsConnParasLegal(kChip, &loose), 0u);
}

TEST_F(ConnTest, AStepFailingMidwayLeavesTheEarlierSteps) {
    // Each step is one read-modify-write (two table commands); step k fails at command 2k - 1.
    const char *egress[] = {"VCS", "TCAM Reg", "VCT", "BM", "QM", "VCX", "LPCT", "SPCT"};
    const ATM_SRV_CONN c = conn(42, 1, 1, 1000, 30);
    for (uint32_t step = 1; step <= 8; ++step) {
        SCOPED_TRACE(step);
        failAt(2 * step - 1);
        EXPECT_EQ(VQ6192_ATM_AddAtmBwdConn(kChip, &c), kPara);
        const std::string table = step == 2 ? "TCAM Reg" : std::string(egress[step - 1]) + " Table";
        EXPECT_TRUE(traced("Err. VQ6192_ATM_AddAtmBwdConn: Set " + table + " Error! ChipID: 0x3\r\n"));
        // Connection information, TCAM row, policer, buffers, queue, valid, line port, system port.
        EXPECT_EQ((V{bits(kVct, 42, 1, 16), bits(kTcam, 42, 80, 1), bits(kVct, 42, 53, 13),
                     bits(kBmPvc, 42, 0, 10), bits(kLinkQm, 42, 0, 13), bits(kVct, 42, 0, 1),
                     bits(kLpct, 30, 3, 1), bits(kSpct, 1000, 2, 1)}),
                  (V{step > 1 ? 0xFEDCu : 0u, step > 2, step > 3 ? 8191u : 0u, step > 4 ? 0x2BFu : 0u,
                     step > 5 ? 77u : 0u, step > 6, step > 7, 0}));
    }
    const std::tuple<uint32_t, uint16_t, const char *> others[] = {
        {7, 0, "AddAtmFwdConn: Set VCX"},     {9, 0, "AddAtmFwdConn: Set SPCT"},
        {11, 0, "AddAtmFwdConn: Set LPCT"},   {13, 2, "AddAtmLocalConn: Set LPCT"},
        {15, 2, "AddAtmLocalConn: Set SPCT"},
    };
    for (const auto &[command, tag, message] : others) {
        SCOPED_TRACE(message);
        failAt(command);
        const ATM_SRV_CONN o = conn(3, tag, 1, 4, 5);
        EXPECT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &o), kPara);
        EXPECT_TRUE(traced(std::string("Err. VQ6192_ATM_") + message + " Table Error! ChipID: 0x3\r\n"));
    }
    model.tables().failCommand(kAtmBlock, 0);
}

TEST_F(ConnTest, PairsLayTheEgressLegFirst) {
    ATM_SRV_CONN_BOTH b{4095, 1, 1, 12, 1, 32, 2000, 2, 33, 5, 4, 0, 0, 10, 11, 9, 0, 0, 0, 0, 0};
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), 0u);
    // Egress: VCX 8191, keyed on the system port; ingress: VCX 8190, keyed on the line port.
    EXPECT_EQ((fields(kTcam, 8191, {{28, 12}, {0, 28}})), (V{2048 + 2000, 2u << 16 | 33u}));
    EXPECT_EQ((fields(kVct, 8191, {{29, 11}, {53, 13}, {66, 3}})), (V{12, 11, 4}));
    EXPECT_EQ(bits(kLinkQm, 8191, 0, 25), 12u << 16 | 4u << 13 | 9u);
    EXPECT_EQ((fields(kTcam, 8190, {{28, 12}, {0, 28}})), (V{12, 1u << 16 | 32u}));
    EXPECT_EQ((fields(kVct, 8190, {{29, 11}, {53, 13}, {66, 3}})), (V{2000, 10, 5}));

    // Link 4096 is refused before any access; an illegal egress leg stops the pair.
    model.clearTrace();
    b.wLink = 4096;
    EXPECT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), kPara);
    EXPECT_TRUE(model.trace().empty());
    EXPECT_TRUE(traced("ParaErr. \r\n"));
    b.wLink = 7, b.wEgStype = 2, b.Qid = 0;
    const uint64_t before = tableCommands();
    EXPECT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), kPara);
    EXPECT_EQ(tableCommands(), before) << "ingress leg not tried";
    b.wKind = 3;
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), kPara);
    EXPECT_TRUE(traced("Err. VQ6192_ATM_AddAtmSrvConnBoth: link Dir is error! ChipID: 0x3\r\n"));

    // Kind 2: one local connection on VCX word 0.
    b.wKind = 2, b.wLink = 600, b.wSysPort = 13, b.Qid = 5;
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), 0u);
    EXPECT_EQ((V{bits(kTcam, 600, 28, 12), bits(kVct, 600, 29, 12), bits(kVct, 600, 66, 3)}),
              (V{12, 1u << 11 | 13u, 5}))
        << "ingress service type";

    // Independent legs: ingress 3/4/5 -> 6/7/8 on VCX 4, egress 9/10/11 -> 12/13/14 on VCX 5.
    ATM_SRV_CONN_BOTH_SINGLE s{2,  1, 1, 3, 4, 5,  6,  7,  8, 9, 10, 11, 12, 13,
                               14, 5, 3, 0, 0, 19, 20, 21, 0, 0, 0,  0,  0};
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConnBothAndSingle(kChip, &s), 0u);
    EXPECT_EQ((fields(kTcam, 5, {{0, 40}})), (V{(2048ull + 9) << 28 | 10u << 16 | 11u}));
    EXPECT_EQ((fields(kVct, 5, {{1, 16}, {29, 11}})), (V{14, 12}));
    EXPECT_EQ((fields(kTcam, 4, {{0, 40}})), (V{3ull << 28 | 4u << 16 | 5u}));
    EXPECT_EQ((fields(kVct, 4, {{29, 11}, {53, 13}})), (V{6, 19}));
    s.wKind = 2;
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_AddAtmSrvConnBothAndSingle(kChip, &s), kPara);
    EXPECT_TRUE(traced("Err. VQ6192_ATM_AddAtmSrvConnBoth: link Dir is error! ChipID: 0x3\r\n"));
}

TEST_F(ConnTest, DeletingDrainsAndFlushesTheQueue) {
    const std::tuple<const char *, uint16_t, uint32_t, uint64_t, bool> cases[] = {
        {"ingress: no queue", 0, 0, 0, false},
        {"empty at once", 1, 0, 2, false},
        {"drains after 3 reads", 1, 3, 3 * 200000 + 2, false},
        {"never drains", 1, AtmBlock::kForever, 200ull * 200000 + 2, true},
    };
    for (const auto &[name, tag, drainReads, waitedUs, cycleMessage] : cases) {
        SCOPED_TRACE(name);
        model.tables().clear();
        capture.clear();
        const ATM_SRV_CONN c = conn(77, tag, 1, 4, 5);
        prefill(c);
        ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), 0u);
        if (tag != 0) {
            atm().setQueueLength(77, 40, drainReads);
        }
        VQ6192_Platform_ResetVirtualTime();
        const size_t flushes = atm().deletes().size();
        const uint16_t rec[2] = {77, tag};
        EXPECT_EQ(VQ6192_ATM_DelAtmSrvConn(kChip, rec), 0u);
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), waitedUs) << "drain wait and one 2 us poll";
        EXPECT_EQ(traced("Err. VQ6192_ATM_DelAtmSrvConn: Len has Cell after Cycle 200!  ChipID: 0x3\r\n"),
                  cycleMessage);
        // Switching cleared up to the valid bit, bits past it kept.
        EXPECT_EQ((V{bits(kVct, 77, 0, 69), bits(kTcam, 77, 0, 81), bits(kTcam, 77, 81, 15)}),
                  (V{0, 0, 0x7FFF}));
        // A queue is unbound (busy bit kept) and flushed, its buffers cleared, the command back to idle;
        // an ingress connection has neither.
        EXPECT_EQ((V{bits(kLinkQm, 77, 0, 25), bits(kLinkQm, 77, 26, 1), bits(kBmPvc, 77, 0, 10),
                     atm().deletes().size() - flushes, uint64_t{model.peek(0xA860)} >> 14}),
                  (tag == 0 ? V{0x1FFFFFF, 1, 0x3FF, 0, 0} : V{0, 1, 0, 1, 0}));
        EXPECT_TRUE(tag == 0 || atm().deletes().back() == (AtmBlock::QueueDelete{77, false}));
    }
}

TEST_F(ConnTest, DeletionFailures) {
    const ATM_SRV_CONN c = conn(9, 2, 1, 4, 5);
    prefill(c);
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), 0u);
    atm().setQueueLength(9, 0, 0);
    atm().setDeleteAckPolls(AtmBlock::kForever);
    const uint16_t rec[2] = {9, 2};
    EXPECT_EQ(VQ6192_ATM_DelAtmSrvConn(kChip, rec), kPara);
    EXPECT_TRUE(traced("Err. VQ6192_ATM_DelAtmSrvConn: Delete DelAtmBwdQm Error!  ChipID: 0x3\r\n"));
    EXPECT_EQ((V{bits(kBmPvc, 9, 0, 10), bits(kLinkQm, 9, 0, 13)}), (V{0x2BF, 77})) << "buffers, queue kept";
    const uint16_t pair[2] = {4, 2};  // the local connection 4 was never laid: its flush fails too
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_DelAtmSrvConnBoth(kChip, pair), kPara);
    EXPECT_TRUE(
        traced("Err. VQ6192_ATM_DelAtmSrvConnBoth: Delete DRV_VQ6192_ATM_DIR_LOCAL Error! ChipID: 0x3\r\n"));

    // Table commands of deleting an egress connection with an empty queue: valid bit (1, 2), queue
    // length (3), TCAM (4, 5), connection information (6, 7), queue flush (8, 9), buffers (10, 11).
    atm().setDeleteAckPolls(0);
    const std::pair<uint32_t, const char *> steps[] = {
        {4, "Switch"}, {7, "Switch"}, {8, "DelAtmBwdQm"}, {10, "SetAtmBmPvc"}};
    for (const auto &[command, what] : steps) {
        SCOPED_TRACE(command);
        failAt(command);
        setBits(kVct, 6, 0, 69, ~0ull);
        setBits(kBmPvc, 6, 0, 10, 0x3FF);
        const uint16_t eg[2] = {6, 1};
        EXPECT_EQ(VQ6192_ATM_DelAtmSrvConn(kChip, eg), kPara);
        EXPECT_TRUE(traced(std::string("Err. VQ6192_ATM_DelAtmSrvConn: Delete ") + what +
                           " Error!  ChipID: 0x3\r\n"));
        EXPECT_EQ((V{bits(kVct, 6, 0, 1), bits(kBmPvc, 6, 0, 10)}), (V{0, 0x3FF}))
            << "switching stopped first";
    }
    // Reading back: TCAM (1), connection information (2), port attribute (3).
    for (uint32_t command : {1u, 2u, 3u}) {
        SCOPED_TRACE(command);
        failAt(command);
        setBits(kVct, 6, 0, 1, 1);
        ATM_SRV_CONN out{};
        EXPECT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, 6, &out), kPara);
        EXPECT_EQ(traced("Err. VQ6192_ATM_GetAtmSrvConn: get UNIFlag is error! ChipID: 0x3\r\n"),
                  command > 1);
    }
    model.tables().failCommand(kAtmBlock, 0);
}

TEST_F(ConnTest, DeletingPairsAndRefusals) {
    ATM_SRV_CONN in = conn(10, 0, 1, 4, 5);
    ATM_SRV_CONN eg = conn(11, 1, 1, 5, 4);
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &in), 0u);
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &eg), 0u);
    const uint16_t both[2] = {5, 1};
    ASSERT_EQ(VQ6192_ATM_DelAtmSrvConnBoth(kChip, both), 0u);
    EXPECT_EQ((V{bits(kVct, 10, 0, 69), bits(kVct, 11, 0, 69)}), (V{0, 0}));
    EXPECT_EQ(atm().deletes(), (std::vector<AtmBlock::QueueDelete>{{11, false}}));

    const uint16_t refused[][2] = {{4096, 1}, {8193, 2}, {1, 3}, {1, 0}, {8193, 0}, {1, 3}};
    model.clearTrace();
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(i < 4 ? VQ6192_ATM_DelAtmSrvConnBoth(kChip, refused[i])
                        : VQ6192_ATM_DelAtmSrvConn(kChip, refused[i]),
                  kPara)
            << i;
    }
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(ConnTest, ReadingConnectionsBack) {
    const std::tuple<const char *, ATM_SRV_CONN, bool, uint16_t> cases[] = {
        {"ingress on a UNI system port", conn(20, 0, 1, 4, 1500), false, 0xA7},
        {"ingress on an NNI system port", conn(21, 0, 1, 4, 1501), true, 0x5A7},
        {"local", conn(23, 2, 1, 7, 8), false, 0xA7},
    };
    auto row = [](const ATM_SRV_CONN &o) {
        return V{o.Vcx,     o.Tag,    o.cType,  o.SrcPort, o.SrcVpi, o.SrcVci,
                 o.DstPort, o.DstVpi, o.DstVci, o.Stype,   o.UpcNpc, o.PolicingId,
                 o.Qid,     o.Clpt,   o.Fd,     o.Pfd,     o.Red,    o.idx};
    };
    for (const auto &[name, c, nni, vpi] : cases) {
        SCOPED_TRACE(name);
        ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), 0u);
        ASSERT_EQ(VQ6192_ATM_SetAtmPortType(kChip, c.DstPort, c.Tag == 0 ? 1 : 0, nni ? 1 : 0), 0u);
        ATM_SRV_CONN out{};
        ASSERT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, c.Vcx, &out), 0u);
        const bool q = c.Tag != 0;
        EXPECT_EQ(row(out), (V{c.Vcx, c.Tag, c.cType, c.SrcPort, 0xABC, 0x1234, c.DstPort, vpi, 0xFEDC, 3, 1,
                               8191, q ? 77u : 0u, q, 0, q, 0, q ? 63u : 0u}));
    }
    // An invalid VCX: the connection-information fields only.
    setBits(kVct, 30, 0, 69, 0);
    setFields(kVct, 30, {{29, 11, 44}, {66, 3, 2}});
    setBits(kLinkQm, 30, 0, 13, 99);
    ATM_SRV_CONN out{};
    out.Qid = 1234;
    ASSERT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, 30, &out), 0u);
    EXPECT_EQ((V{out.DstPort, out.Stype, out.Qid, out.Vcx}), (V{44, 2, 0, 0}));
    // Towards the system side but keyed on a system port: no such connection.
    setBits(kVct, 31, 0, 1, 1);
    setBits(kTcam, 31, 28, 12, 2048 + 3);
    EXPECT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, 31, &out), kPara);
    EXPECT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, 8193, &out), kPara);
}

TEST_F(ConnTest, LinksAndPerConnectionAttributes) {
    // VCX = 2 * link for ingress, 2 * link + 1 for egress.
    const uint32_t links[][3] = {{0, 0, 0},       {0, 1, 1},    {4095, 0, 8190},
                                 {4095, 1, 8191}, {4096, 0, 0}, {1, 2, 0}};
    for (const auto &l : links) {
        uint16_t out = 0;
        EXPECT_EQ(VQ6192_ATM_GetAtmVcx(kChip, l[0], l[1], &out), l[0] < 4096 && l[1] < 2 ? 0u : kPara);
        EXPECT_EQ(out, l[2]) << l[0] << "/" << l[1];
    }
    fillEntry(kVct, 50, 69);
    setBits(kVct, 50, 52, 14, 0);
    ASSERT_EQ(VQ6192_ATM_SetAtmPolicingID(kChip, 50, 1, 0x1555), 0u);
    EXPECT_EQ((fields(kVct, 50, {{52, 14}, {0, 52}})), (V{0x1555u << 1 | 1u, (1ull << 52) - 1}));
    ASSERT_EQ(VQ6192_ATM_SetAtmUpcNpcEn(kChip, 50, 0), 0u);
    uint8_t en = 9;
    uint16_t id = 0, type = 0;
    EXPECT_EQ((V32{VQ6192_ATM_GetAtmUpcNpcEnStat(kChip, 50, &en), VQ6192_ATM_GetAtmPolicingID(kChip, 50, &id),
                   VQ6192_ATM_GetLinkType(kChip, 50, &type)}),
              (V32{0, 0, 0}));
    EXPECT_EQ((V{en, id, type}), (V{0, 0x1555, 1}));
    model.clearTrace();
    EXPECT_EQ(
        (V32{VQ6192_ATM_SetAtmPolicingID(kChip, 50, 2, 1), VQ6192_ATM_SetAtmPolicingID(kChip, 50, 1, 8192),
             VQ6192_ATM_SetAtmUpcNpcEn(kChip, 8193, 1), VQ6192_ATM_SetAtmVcxEn(kChip, 1, 2)}),
        V32(4, kPara));
    EXPECT_TRUE(model.trace().empty());
}

}  // namespace
