// ATM connections: every kind laid into the switching tables, the legality check's refusals, a step
// failing midway, paired connections, deletion with its queue drain and flush, and reading back.
#include "atm/atm_fixture.h"
#include "vq6192/platform.h"

namespace {

using namespace atmtest;

ATM_SRV_CONN conn(uint16_t vcx, uint16_t tag, uint16_t cType, uint16_t srcPort, uint16_t dstPort) {
    ATM_SRV_CONN c{};
    c.Vcx = vcx;
    c.Tag = tag;
    c.cType = cType;
    c.SrcPort = srcPort;
    c.SrcVpi = 0xABC;
    c.SrcVci = 0x1234;
    c.DstPort = dstPort;
    c.DstVpi = 0x5A7;
    c.DstVci = 0xFEDC;
    c.Stype = 3;
    c.UpcNpc = 1;
    c.PolicingId = 8191;
    c.Qid = 77;
    c.Clpt = 1;
    c.Fd = 0;
    c.Pfd = 1;
    c.Red = 0;
    c.idx = 63;
    return c;
}

class ConnTest : public AtmTest {
  protected:
    // The entries a connection touches, with every bit set beforehand.
    void prefill(const ATM_SRV_CONN &c) {
        fillEntryWide(kVct, c.Vcx, 69);
        fillEntryWide(kTcam, c.Vcx, 96);
        fillEntryWide(kLinkQm, c.Vcx, 46);
        fillEntry(kBmPvc, c.Vcx, 10);
        fillEntry(kLpct, c.Tag == 1 ? c.DstPort : c.SrcPort, 15);
        if (c.Tag == 2) {
            fillEntry(kLpct, c.DstPort, 15);
        } else {
            fillEntry(kSpct, c.Tag == 0 ? c.DstPort : c.SrcPort, 12);
        }
        setBits(kVct, c.Vcx, 0, 1, 0);  // a free VCX
    }
};

TEST_F(ConnTest, EveryKindLaysItsEntries) {
    struct Case {
        const char *name;
        ATM_SRV_CONN c;
        uint64_t keyPort, maskl;
        uint32_t dir;
        bool queue;
    };
    ATM_SRV_CONN cbr = conn(8191, 1, 0, 2047, 335);
    cbr.Stype = 1;
    cbr.Qid = 15;
    ATM_SRV_CONN local = conn(4000, 2, 1, 7, 300);
    local.Stype = 5;
    local.Qid = 8190;
    const Case cases[] = {
        {"ingress VCC", conn(100, 0, 1, 335, 2047), 335, 0xFFFFFFFF, 0, false},
        {"ingress VPC", conn(0, 0, 0, 0, 0), 0, 0xFFFF0000, 0, false},
        {"egress VPC CBR", cbr, 2048 + 2047, 0xFFFF0000, 1, true},
        {"egress VCC", conn(5, 1, 1, 0, 17), 2048, 0xFFFFFFFF, 1, true},
        {"local VCC", local, 7, 0xFFFFFFFF, 1, true},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.name);
        model.tables().clear();
        const ATM_SRV_CONN &c = k.c;
        prefill(c);
        ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), 0u);
        // TCAM: key VCI 0..15, VPI 16..27, port 28..39, mask 40..79, valid 80.
        EXPECT_EQ(bits(kTcam, c.Vcx, 0, 16), 0x1234u);
        EXPECT_EQ(bits(kTcam, c.Vcx, 16, 12), 0xABCu);
        EXPECT_EQ(bits(kTcam, c.Vcx, 28, 12), k.keyPort);
        EXPECT_EQ(bits(kTcam, c.Vcx, 40, 32), k.maskl);
        EXPECT_EQ(bits(kTcam, c.Vcx, 72, 8), 0xFFu);
        EXPECT_EQ(bits(kTcam, c.Vcx, 80, 1), 1u);
        // Connection information.
        EXPECT_EQ(bits(kVct, c.Vcx, 0, 1), 1u);
        EXPECT_EQ(bits(kVct, c.Vcx, 1, 16), 0xFEDCu);
        EXPECT_EQ(bits(kVct, c.Vcx, 17, 8), 0xA7u);
        EXPECT_EQ(bits(kVct, c.Vcx, 25, 4), 0x5u);
        EXPECT_EQ(bits(kVct, c.Vcx, 29, 11), c.DstPort);
        EXPECT_EQ(bits(kVct, c.Vcx, 40, 1), k.dir);
        EXPECT_EQ(bits(kVct, c.Vcx, 41, 1), c.cType);
        EXPECT_EQ(bits(kVct, c.Vcx, 42, 10), 0x3FFu) << "OAM flags kept";
        EXPECT_EQ(bits(kVct, c.Vcx, 52, 1), 1u);
        EXPECT_EQ(bits(kVct, c.Vcx, 53, 13), 8191u);
        EXPECT_EQ(bits(kVct, c.Vcx, 66, 3), c.Stype);
        if (k.queue) {
            EXPECT_EQ(bits(kLinkQm, c.Vcx, 0, 13), c.Qid);
            EXPECT_EQ(bits(kLinkQm, c.Vcx, 13, 3), c.Stype);
            EXPECT_EQ(bits(kLinkQm, c.Vcx, 16, 9), c.DstPort);
            EXPECT_EQ(bits(kLinkQm, c.Vcx, 25, 1), 0u);
            EXPECT_EQ(bits(kLinkQm, c.Vcx, 26, 20), 0xFFFFFu) << "busy bit and length kept";
            EXPECT_EQ(bits(kBmPvc, c.Vcx, 0, 10), 0x2BFu);  // Clpt 1, Fd 0, Pfd 1, Red 0, idx 63
        } else {
            EXPECT_EQ(bits(kLinkQm, c.Vcx, 0, 46), 0x3FFFFFFFFFFFull);
            EXPECT_EQ(bits(kBmPvc, c.Vcx, 0, 10), 0x3FFu);
        }
        // Line ports: enabled, not transparent, not looped; attribute and PW index kept.
        const uint32_t linePorts[2] = {c.Tag == 1 ? c.DstPort : c.SrcPort, c.Tag == 2 ? c.DstPort : 9999u};
        for (uint32_t p : linePorts) {
            if (p == 9999u) {
                continue;
            }
            EXPECT_EQ(bits(kLpct, p, 0, 15), 0x7FFCu) << "line port " << p;
        }
        if (c.Tag != 2) {
            EXPECT_EQ(bits(kSpct, c.Tag == 0 ? c.DstPort : c.SrcPort, 0, 12), 0xFFEu);
        }
    }
}

TEST_F(ConnTest, IllegalRecordsAreRefusedUntouched) {
    struct Case {
        const char *name;
        ATM_SRV_CONN c;
    };
    auto with = [](ATM_SRV_CONN c, auto change) {
        change(c);
        return c;
    };
    const ATM_SRV_CONN eg = conn(1, 1, 1, 2047, 335);
    const ATM_SRV_CONN in = conn(1, 0, 1, 335, 2047);
    const Case cases[] = {
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
    for (const Case &k : cases) {
        SCOPED_TRACE(k.name);
        capture.clear();
        model.clearTrace();
        EXPECT_EQ(VQ6192_ATM_IsConnParasLegal(kChip, &k.c), kPara);
        EXPECT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &k.c), kPara);
        EXPECT_TRUE(model.trace().empty());
        EXPECT_TRUE(traced("ParaErr. \r\n"));
        EXPECT_TRUE(
            traced("Err. VQ6192_ATM_AddAtmSrvConn: IsConnParasLegal parameter error! ChipID: 0x3\r\n"));
    }
    // An ingress record does not look at the queue and buffer fields.
    ATM_SRV_CONN loose = with(in, [](auto &c) { c.Qid = 0, c.idx = 200, c.Clpt = 9; });
    EXPECT_EQ(VQ6192_ATM_IsConnParasLegal(kChip, &loose), 0u);
    EXPECT_EQ(VQ6192_ATM_IsConnParasLegal(kChip, nullptr), kPara);
    EXPECT_EQ(VQ6192_ATM_IsConnParasLegal(264, &loose), 0x08020001u);
}

TEST_F(ConnTest, AStepFailingMidwayLeavesTheEarlierSteps) {
    // Each step is one read-modify-write (two table commands); step k fails at command 2k - 1.
    struct Case {
        uint32_t step;
        const char *message;
    };
    const Case egress[] = {
        {1, "Err. VQ6192_ATM_AddAtmBwdConn: Set VCS Table Error! ChipID: 0x3\r\n"},
        {2, "Err. VQ6192_ATM_AddAtmBwdConn: Set TCAM Reg Error! ChipID: 0x3\r\n"},
        {3, "Err. VQ6192_ATM_AddAtmBwdConn: Set VCT Table Error! ChipID: 0x3\r\n"},
        {4, "Err. VQ6192_ATM_AddAtmBwdConn: Set BM Table Error! ChipID: 0x3\r\n"},
        {5, "Err. VQ6192_ATM_AddAtmBwdConn: Set QM Table Error! ChipID: 0x3\r\n"},
        {6, "Err. VQ6192_ATM_AddAtmBwdConn: Set VCX Table Error! ChipID: 0x3\r\n"},
        {7, "Err. VQ6192_ATM_AddAtmBwdConn: Set LPCT Table Error! ChipID: 0x3\r\n"},
        {8, "Err. VQ6192_ATM_AddAtmBwdConn: Set SPCT Table Error! ChipID: 0x3\r\n"},
    };
    const ATM_SRV_CONN c = conn(42, 1, 1, 1000, 30);
    for (const Case &k : egress) {
        SCOPED_TRACE(k.step);
        model.tables().clear();
        model.tables().holdBusy(kAtmBlock, 0);
        capture.clear();
        model.tables().failCommand(kAtmBlock, 2 * k.step - 1);
        EXPECT_EQ(VQ6192_ATM_AddAtmBwdConn(kChip, &c), kPara);
        EXPECT_TRUE(traced(k.message));
        EXPECT_EQ(bits(kVct, 42, 1, 16), k.step > 1 ? 0xFEDCu : 0u) << "connection information";
        EXPECT_EQ(bits(kTcam, 42, 80, 1), k.step > 2 ? 1u : 0u) << "TCAM row";
        EXPECT_EQ(bits(kVct, 42, 53, 13), k.step > 3 ? 8191u : 0u) << "policer";
        EXPECT_EQ(bits(kBmPvc, 42, 0, 10), k.step > 4 ? 0x2BFu : 0u) << "buffer management";
        EXPECT_EQ(bits(kLinkQm, 42, 0, 13), k.step > 5 ? 77u : 0u) << "queue";
        EXPECT_EQ(bits(kVct, 42, 0, 1), k.step > 6 ? 1u : 0u) << "valid";
        EXPECT_EQ(bits(kLpct, 30, 3, 1), k.step > 7 ? 1u : 0u) << "line port";
        EXPECT_EQ(bits(kSpct, 1000, 2, 1), 0u) << "system port";
        model.tables().failCommand(kAtmBlock, 0);
    }
}

TEST_F(ConnTest, IngressAndLocalStepsReportTheirOwnTexts) {
    struct Case {
        ATM_SRV_CONN c;
        uint32_t failAt;
        const char *message;
    };
    const Case cases[] = {
        {conn(3, 0, 1, 4, 5), 7, "Err. VQ6192_ATM_AddAtmFwdConn: Set VCX Table Error! ChipID: 0x3\r\n"},
        {conn(3, 0, 1, 4, 5), 9, "Err. VQ6192_ATM_AddAtmFwdConn: Set SPCT Table Error! ChipID: 0x3\r\n"},
        {conn(3, 0, 1, 4, 5), 11, "Err. VQ6192_ATM_AddAtmFwdConn: Set LPCT Table Error! ChipID: 0x3\r\n"},
        {conn(3, 2, 1, 4, 5), 13, "Err. VQ6192_ATM_AddAtmLocalConn: Set LPCT Table Error! ChipID: 0x3\r\n"},
        {conn(3, 2, 1, 4, 5), 15, "Err. VQ6192_ATM_AddAtmLocalConn: Set SPCT Table Error! ChipID: 0x3\r\n"},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.message);
        model.tables().clear();
        model.tables().holdBusy(kAtmBlock, 0);
        capture.clear();
        model.tables().failCommand(kAtmBlock, k.failAt);
        EXPECT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &k.c), kPara);
        EXPECT_TRUE(traced(k.message));
        model.tables().failCommand(kAtmBlock, 0);
    }
}

TEST_F(ConnTest, PairsLayTheEgressLegFirst) {
    ATM_SRV_CONN_BOTH b{};
    b.wLink = 4095;
    b.wKind = 1;
    b.cType = 1;
    b.wLinePort = 12;
    b.wLineVpi = 1;
    b.wLineVci = 32;
    b.wSysPort = 2000;
    b.wSysVpi = 2;
    b.wSysVci = 33;
    b.wInStype = 5;
    b.wEgStype = 4;
    b.wInPolicingId = 10;
    b.wEgPolicingId = 11;
    b.Qid = 9;
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), 0u);
    // Egress: VCX 8191, keyed on the system port.
    EXPECT_EQ(bits(kTcam, 8191, 28, 12), 2048u + 2000u);
    EXPECT_EQ(bits(kTcam, 8191, 0, 28), 2u << 16 | 33u);
    EXPECT_EQ(bits(kVct, 8191, 29, 11), 12u);
    EXPECT_EQ(bits(kVct, 8191, 53, 13), 11u);
    EXPECT_EQ(bits(kVct, 8191, 66, 3), 4u);
    EXPECT_EQ(bits(kLinkQm, 8191, 0, 25), 12u << 16 | 4u << 13 | 9u);
    // Ingress: VCX 8190, keyed on the line port.
    EXPECT_EQ(bits(kTcam, 8190, 28, 12), 12u);
    EXPECT_EQ(bits(kTcam, 8190, 0, 28), 1u << 16 | 32u);
    EXPECT_EQ(bits(kVct, 8190, 29, 11), 2000u);
    EXPECT_EQ(bits(kVct, 8190, 53, 13), 10u);
    EXPECT_EQ(bits(kVct, 8190, 66, 3), 5u);

    // Link 4096 is refused before any access; an illegal egress leg stops the pair.
    model.tables().clear();
    model.clearTrace();
    b.wLink = 4096;
    EXPECT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), kPara);
    EXPECT_TRUE(model.trace().empty());
    EXPECT_TRUE(traced("ParaErr. \r\n"));
    b.wLink = 7;
    b.wEgStype = 2;
    b.Qid = 0;
    const uint64_t before = tableCommands();
    EXPECT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), kPara);
    EXPECT_EQ(tableCommands(), before) << "ingress leg not tried";
    b.wKind = 3;
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), kPara);
    EXPECT_TRUE(traced("Err. VQ6192_ATM_AddAtmSrvConnBoth: link Dir is error! ChipID: 0x3\r\n"));

    // Kind 2: one local connection on VCX word 0.
    b.wKind = 2;
    b.wLink = 600;
    b.wSysPort = 13;
    b.Qid = 5;
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConnBoth(kChip, &b), 0u);
    EXPECT_EQ(bits(kTcam, 600, 28, 12), 12u);
    EXPECT_EQ(bits(kVct, 600, 29, 12), 1u << 11 | 13u);
    EXPECT_EQ(bits(kVct, 600, 66, 3), 5u) << "ingress service type";
}

TEST_F(ConnTest, IndependentLegsOfAPair) {
    ATM_SRV_CONN_BOTH_SINGLE b{};
    b.wLink = 2;
    b.wKind = 1;
    b.cType = 1;
    b.wInSrcPort = 3, b.wInSrcVpi = 4, b.wInSrcVci = 5, b.wInDstPort = 6, b.wInDstVpi = 7, b.wInDstVci = 8;
    b.wEgSrcPort = 9, b.wEgSrcVpi = 10, b.wEgSrcVci = 11, b.wEgDstPort = 12, b.wEgDstVpi = 13,
    b.wEgDstVci = 14;
    b.wInStype = 5, b.wEgStype = 3, b.wInPolicingId = 19, b.wEgPolicingId = 20, b.Qid = 21;
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConnBothAndSingle(kChip, &b), 0u);
    EXPECT_EQ(bits(kTcam, 5, 0, 40), (2048ull + 9) << 28 | 10u << 16 | 11u);
    EXPECT_EQ(bits(kVct, 5, 1, 16), 14u);
    EXPECT_EQ(bits(kVct, 5, 29, 11), 12u);
    EXPECT_EQ(bits(kTcam, 4, 0, 40), 3ull << 28 | 4u << 16 | 5u);
    EXPECT_EQ(bits(kVct, 4, 29, 11), 6u);
    EXPECT_EQ(bits(kVct, 4, 53, 13), 19u);
    b.wKind = 2;
    EXPECT_EQ(VQ6192_ATM_AddAtmSrvConnBothAndSingle(kChip, &b), kPara);
    EXPECT_TRUE(traced("Err. VQ6192_ATM_AddAtmSrvConnBoth: link Dir is error! ChipID: 0x3\r\n"));
}

TEST_F(ConnTest, DeletingAnIngressConnectionLeavesQueueAndBuffersAlone) {
    const ATM_SRV_CONN c = conn(100, 0, 1, 4, 5);
    prefill(c);
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), 0u);
    model.clearTrace();
    VQ6192_Platform_ResetVirtualTime();
    const uint16_t rec[2] = {100, 0};
    ASSERT_EQ(VQ6192_ATM_DelAtmSrvConn(kChip, rec), 0u);
    EXPECT_EQ(bits(kTcam, 100, 0, 81), 0u);
    EXPECT_EQ(bits(kTcam, 100, 81, 15), 0x7FFFu) << "bits past the valid bit kept";
    EXPECT_EQ(bits(kVct, 100, 0, 69), 0u);
    EXPECT_EQ(bits(kLinkQm, 100, 0, 46), 0x3FFFFFFFFFFFull);
    EXPECT_EQ(bits(kBmPvc, 100, 0, 10), 0x3FFu);
    EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 0u);
    EXPECT_TRUE(atm().deletes().empty());
}

TEST_F(ConnTest, DeletingAQueuedConnectionDrainsAndFlushesItsQueue) {
    struct Case {
        const char *name;
        uint32_t drainReads;
        uint64_t waitedUs;
        bool cycleMessage;
    };
    const Case cases[] = {
        {"empty at once", 0, 0, false},
        {"drains after 3 reads", 3, 3 * 200000, false},
        {"never drains", vq6192::sim::AtmBlock::kForever, 200ull * 200000, true},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.name);
        model.tables().clear();
        capture.clear();
        const ATM_SRV_CONN c = conn(77, 1, 1, 4, 5);
        prefill(c);
        ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), 0u);
        atm().setQueueLength(77, 40, k.drainReads);
        VQ6192_Platform_ResetVirtualTime();
        const uint16_t rec[2] = {77, 1};
        EXPECT_EQ(VQ6192_ATM_DelAtmSrvConn(kChip, rec), 0u);
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs() - 0, k.waitedUs + 2) << "drain wait and one 2 us poll";
        EXPECT_EQ(traced("Err. VQ6192_ATM_DelAtmSrvConn: Len has Cell after Cycle 200!  ChipID: 0x3\r\n"),
                  k.cycleMessage);
        EXPECT_EQ(bits(kVct, 77, 0, 69), 0u);
        EXPECT_EQ(bits(kTcam, 77, 0, 81), 0u);
        EXPECT_EQ(bits(kLinkQm, 77, 0, 25), 0u) << "queue unbound";
        EXPECT_EQ(bits(kLinkQm, 77, 26, 1), 1u) << "busy bit kept";
        EXPECT_EQ(bits(kBmPvc, 77, 0, 10), 0u);
        ASSERT_FALSE(atm().deletes().empty());
        EXPECT_EQ(atm().deletes().back(), (vq6192::sim::AtmBlock::QueueDelete{77, false}));
        EXPECT_EQ(model.peek(0xA860) >> 14, 0u) << "command back to idle";
    }
}

TEST_F(ConnTest, AFlushThatIsNeverAcknowledgedFailsTheDeletion) {
    const ATM_SRV_CONN c = conn(9, 2, 1, 4, 5);
    prefill(c);
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &c), 0u);
    atm().setQueueLength(9, 0, 0);
    atm().setDeleteAckPolls(vq6192::sim::AtmBlock::kForever);
    const uint16_t rec[2] = {9, 2};
    EXPECT_EQ(VQ6192_ATM_DelAtmSrvConn(kChip, rec), kPara);
    EXPECT_TRUE(traced("Err. VQ6192_ATM_DelAtmSrvConn: Delete DelAtmBwdQm Error!  ChipID: 0x3\r\n"));
    EXPECT_EQ(bits(kBmPvc, 9, 0, 10), 0x2BFu) << "buffer management not cleared";
    EXPECT_EQ(bits(kLinkQm, 9, 0, 13), 77u) << "queue entry not rewritten";

    const uint16_t pair[2] = {4, 2};  // the local connection 4 was never laid: its flush fails too
    capture.clear();
    EXPECT_EQ(VQ6192_ATM_DelAtmSrvConnBoth(kChip, pair), kPara);
    EXPECT_TRUE(
        traced("Err. VQ6192_ATM_DelAtmSrvConnBoth: Delete DRV_VQ6192_ATM_DIR_LOCAL Error! ChipID: 0x3\r\n"));
}

TEST_F(ConnTest, DeletingPairsAndRefusals) {
    ATM_SRV_CONN in = conn(10, 0, 1, 4, 5);
    ATM_SRV_CONN eg = conn(11, 1, 1, 5, 4);
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &in), 0u);
    ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &eg), 0u);
    const uint16_t both[2] = {5, 1};
    ASSERT_EQ(VQ6192_ATM_DelAtmSrvConnBoth(kChip, both), 0u);
    EXPECT_EQ(bits(kVct, 10, 0, 69), 0u);
    EXPECT_EQ(bits(kVct, 11, 0, 69), 0u);
    EXPECT_EQ(atm().deletes(), (std::vector<vq6192::sim::AtmBlock::QueueDelete>{{11, false}}));

    const uint16_t refused[][2] = {{4096, 1}, {8193, 2}, {1, 3}, {1, 0}};
    for (const auto &r : refused) {
        model.clearTrace();
        EXPECT_EQ(VQ6192_ATM_DelAtmSrvConnBoth(kChip, r), kPara);
        EXPECT_TRUE(model.trace().empty());
    }
    const uint16_t bad[][2] = {{8193, 0}, {1, 3}};
    for (const auto &r : bad) {
        model.clearTrace();
        EXPECT_EQ(VQ6192_ATM_DelAtmSrvConn(kChip, r), kPara);
        EXPECT_TRUE(model.trace().empty());
    }
    EXPECT_EQ(VQ6192_ATM_DelAtmSrvConn(kChip, nullptr), kPara);
}

TEST_F(ConnTest, ReadingConnectionsBack) {
    struct Case {
        const char *name;
        ATM_SRV_CONN c;
        bool nni;
        uint16_t vpi;
    };
    const Case cases[] = {
        {"ingress on a UNI system port", conn(20, 0, 1, 4, 1500), false, 0xA7},
        {"ingress on an NNI system port", conn(21, 0, 1, 4, 1501), true, 0x5A7},
        {"egress", conn(22, 1, 0, 1502, 6), true, 0x5A7},
        {"local", conn(23, 2, 1, 7, 8), false, 0xA7},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.name);
        ASSERT_EQ(VQ6192_ATM_AddAtmSrvConn(kChip, &k.c), 0u);
        ASSERT_EQ(VQ6192_ATM_SetAtmPortType(kChip, k.c.DstPort, k.c.Tag == 0 ? 1 : 0, k.nni ? 1 : 0), 0u);
        ATM_SRV_CONN out{};
        ASSERT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, k.c.Vcx, &out), 0u);
        EXPECT_EQ(out.Vcx, k.c.Vcx);
        EXPECT_EQ(out.Tag, k.c.Tag);
        EXPECT_EQ(out.cType, k.c.cType);
        EXPECT_EQ(out.SrcPort, k.c.SrcPort);
        EXPECT_EQ(out.SrcVpi, 0xABC);
        EXPECT_EQ(out.SrcVci, 0x1234);
        EXPECT_EQ(out.DstPort, k.c.DstPort);
        EXPECT_EQ(out.DstVpi, k.vpi);
        EXPECT_EQ(out.DstVci, 0xFEDC);
        EXPECT_EQ(out.Stype, 3);
        EXPECT_EQ(out.UpcNpc, 1);
        EXPECT_EQ(out.PolicingId, 8191);
        EXPECT_EQ(out.Qid, k.c.Tag == 0 ? 0 : 77);
        EXPECT_EQ(out.Clpt, k.c.Tag == 0 ? 0 : 1);
        EXPECT_EQ(out.idx, k.c.Tag == 0 ? 0 : 63);
    }
    // An invalid VCX: the connection-information fields only.
    setBits(kVct, 30, 0, 69, 0);
    setBits(kVct, 30, 29, 11, 44);
    setBits(kVct, 30, 66, 3, 2);
    setBits(kLinkQm, 30, 0, 13, 99);
    ATM_SRV_CONN out{};
    out.Qid = 1234;
    ASSERT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, 30, &out), 0u);
    EXPECT_EQ(out.DstPort, 44);
    EXPECT_EQ(out.Stype, 2);
    EXPECT_EQ(out.Qid, 0);
    EXPECT_EQ(out.Vcx, 0);
    // Towards the system side but keyed on a system port: no such connection.
    setBits(kVct, 31, 0, 1, 1);
    setBits(kTcam, 31, 28, 12, 2048 + 3);
    EXPECT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, 31, &out), kPara);
    EXPECT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, 8193, &out), kPara);
}

TEST_F(ConnTest, LinksAndPerConnectionAttributes) {
    struct Vcx {
        uint32_t link, dir;
        uint16_t vcx;
    };
    for (const Vcx &v : {Vcx{0, 0, 0}, Vcx{0, 1, 1}, Vcx{4095, 0, 8190}, Vcx{4095, 1, 8191}}) {
        uint16_t out = 0;
        EXPECT_EQ(VQ6192_ATM_GetAtmVcx(kChip, v.link, v.dir, &out), 0u);
        EXPECT_EQ(out, v.vcx);
    }
    uint16_t out = 0;
    EXPECT_EQ(VQ6192_ATM_GetAtmVcx(kChip, 4096, 0, &out), kPara);
    EXPECT_EQ(VQ6192_ATM_GetAtmVcx(kChip, 1, 2, &out), kPara);

    fillEntryWide(kVct, 50, 69);
    setBits(kVct, 50, 52, 14, 0);
    ASSERT_EQ(VQ6192_ATM_SetAtmPolicingID(kChip, 50, 1, 0x1555), 0u);
    EXPECT_EQ(bits(kVct, 50, 52, 14), 0x1555u << 1 | 1u);
    EXPECT_EQ(bits(kVct, 50, 0, 52), (1ull << 52) - 1);
    ASSERT_EQ(VQ6192_ATM_SetAtmUpcNpcEn(kChip, 50, 0), 0u);
    uint8_t en = 9;
    EXPECT_EQ(VQ6192_ATM_GetAtmUpcNpcEnStat(kChip, 50, &en), 0u);
    EXPECT_EQ(en, 0);
    EXPECT_EQ(VQ6192_ATM_GetAtmPolicingID(kChip, 50, &out), 0u);
    EXPECT_EQ(out, 0x1555);
    EXPECT_EQ(VQ6192_ATM_GetLinkType(kChip, 50, &out), 0u);
    EXPECT_EQ(out, 1);
    model.clearTrace();
    EXPECT_EQ(VQ6192_ATM_SetAtmPolicingID(kChip, 50, 2, 1), kPara);
    EXPECT_EQ(VQ6192_ATM_SetAtmPolicingID(kChip, 50, 1, 8192), kPara);
    EXPECT_EQ(VQ6192_ATM_SetAtmUpcNpcEn(kChip, 8193, 1), kPara);
    EXPECT_EQ(VQ6192_ATM_SetAtmVcxEn(kChip, 1, 2), kPara);
    EXPECT_TRUE(model.trace().empty());
}

}  // namespace

namespace {

using namespace atmtest;

class ConnFailTest : public AtmTest {};

TEST_F(ConnFailTest, DeletionAndReadBackStepFailures) {
    // Table commands of deleting an egress connection with an empty queue: valid bit (1, 2), queue
    // length (3), TCAM (4, 5), connection information (6, 7), queue flush (8, 9), buffers (10, 11).
    struct Case {
        uint32_t failAt;
        const char *message;
    };
    const Case cases[] = {
        {4, "Err. VQ6192_ATM_DelAtmSrvConn: Delete Switch Error!  ChipID: 0x3\r\n"},
        {7, "Err. VQ6192_ATM_DelAtmSrvConn: Delete Switch Error!  ChipID: 0x3\r\n"},
        {8, "Err. VQ6192_ATM_DelAtmSrvConn: Delete DelAtmBwdQm Error!  ChipID: 0x3\r\n"},
        {10, "Err. VQ6192_ATM_DelAtmSrvConn: Delete SetAtmBmPvc Error!  ChipID: 0x3\r\n"},
    };
    for (const Case &k : cases) {
        SCOPED_TRACE(k.failAt);
        model.tables().clear();
        model.tables().holdBusy(kAtmBlock, 0);
        setBits(kVct, 6, 0, 69, ~0ull);
        setBits(kBmPvc, 6, 0, 10, 0x3FF);
        capture.clear();
        model.tables().failCommand(kAtmBlock, k.failAt);
        const uint16_t rec[2] = {6, 1};
        EXPECT_EQ(VQ6192_ATM_DelAtmSrvConn(kChip, rec), kPara);
        EXPECT_TRUE(traced(k.message));
        EXPECT_EQ(bits(kVct, 6, 0, 1), 0u) << "stopped switching first";
        EXPECT_EQ(bits(kBmPvc, 6, 0, 10), 0x3FFu) << "buffers not cleared";
        model.tables().failCommand(kAtmBlock, 0);
    }
    // Reading back: TCAM (1), connection information (2), port attribute (3).
    for (uint32_t failAt : {1u, 2u, 3u}) {
        SCOPED_TRACE(failAt);
        model.tables().clear();
        model.tables().holdBusy(kAtmBlock, 0);
        setBits(kVct, 6, 0, 1, 1);
        capture.clear();
        model.tables().failCommand(kAtmBlock, failAt);
        ATM_SRV_CONN out{};
        EXPECT_EQ(VQ6192_ATM_GetAtmSrvConn(kChip, 6, &out), kPara);
        EXPECT_EQ(traced("Err. VQ6192_ATM_GetAtmSrvConn: get UNIFlag is error! ChipID: 0x3\r\n"), failAt > 1);
        model.tables().failCommand(kAtmBlock, 0);
    }
}

}  // namespace
