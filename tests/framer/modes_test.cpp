// Framer initialisation (its whole register effect for E1 and T1 in SDH and SONET and its waits), TDM
// mode, frame modes with the multiframe search, reframe and channel resets, and the service-to-channel
// lookup over the timeslot tables.
#include <set>

#include "framer/framer_test.h"
#include "vq6192/ppp.h"
#include "vq6192/sdh.h"

namespace framertest {
namespace {

// The TDM mode sets bits 2 and 1 of 0x000E and is read from bit 1.
TEST_F(FramerTest, TdmModeSetsBothBitsAndReadsBit1) {
    model.poke(0x000E, 0xFFF9);
    uint32_t mode = 9;
    EXPECT_EQ((Ints{VQ6192_Framer_SetFrmTDMMode(kChip, 1), model.peek(0x000E),
                    VQ6192_Framer_SetFrmTDMMode(kChip, 0), model.peek(0x000E)}),
              ints(0, 0xFFFF, 0, 0xFFF9));
    model.poke(0x000E, 0x0002);
    EXPECT_EQ((Ints{VQ6192_Framer_GetFrmTDMMode(kChip, &mode), mode}), ints(0, 1));
}

TEST_F(FramerTest, FrameModeFieldsPerDirection) {
    tdm(0);
    struct Case {
        uint32_t dir, mode;
        int ingressField, egressField;  // -1: untouched (stays 3)
    };
    const Case cases[] = {
        {0, 0, 0, -1}, {0, 1, 1, -1}, {0, 3, 3, -1}, {1, 0, -1, 0}, {1, 1, -1, 1},
        {1, 3, -1, 2}, {2, 0, 0, 0},  {2, 1, 1, 1},  {2, 3, 3, 2},
    };
    for (const Case &c : cases) {
        model.poke(Framers::ingressAddr(200, Framers::kIngMode), 0xFFF3);
        model.poke(Framers::egressAddr(200, Framers::kEgMode), 0xFFF3);
        uint32_t got = 99;
        EXPECT_EQ((Ints{VQ6192_Framer_SetFrmMode(kChip, 200, c.dir, c.mode), ingress(200), egress(200),
                        VQ6192_Framer_GetFrmMode(kChip, 200, c.dir == 1 ? 1 : 0, &got), got}),
                  ints(0, 0xFFF0 | (c.ingressField < 0 ? 3 : c.ingressField),
                       0xFFF0 | (c.egressField < 0 ? 3 : c.egressField), 0, c.mode))
            << "dir " << c.dir << " mode " << c.mode;
    }
    // Egress field 3 reads as mode 4; ingress 3 with egress 2 reads as 3 for both directions.
    model.poke(Framers::egressAddr(5, Framers::kEgMode), 3);
    uint32_t got = 0, both = 0;
    EXPECT_EQ(
        (Ints{VQ6192_Framer_GetFrmMode(kChip, 5, 1, &got), got, VQ6192_Framer_SetFrmMode(kChip, 6, 2, 3),
              VQ6192_Framer_GetFrmMode(kChip, 6, 2, &both), both, VQ6192_Framer_SetFrmMode(kChip, 6, 1, 1)}),
        ints(0, 4, 0, 0, 3, 0));
    EXPECT_EQ(VQ6192_Framer_GetFrmMode(kChip, 6, 2, &got), 0xE0007u);
    EXPECT_EQ(
        capture.traceTexts().back(),
        "Err. VQ6192_Framer_GetFrmMode(6) ucFramerDirect == VQ6192_BASE_SRV_DIRECT_BOTH && usEgFrmMode != "
        "usIngFrmMode     ErrCode[0xe0007]\r\n");
}

TEST_F(FramerTest, MultiframeSearchSetsEgressFromWhatTheReceiverFound) {
    tdm(0);
    for (bool found : {false, true}) {
        for (uint32_t dir : {0u, 2u}) {
            const uint32_t before = framers().reframes(77);
            framers().setMultiframeFound(77, found);
            EXPECT_EQ((Ints{VQ6192_Framer_SetFrmMode(kChip, 77, dir, 2), ingress(77) & 3,
                            framers().reframes(77), egress(77) & 3}),
                      ints(0, 2, before + 1, found ? 0 : 1))
                << "found " << found << " dir " << dir;
        }
    }
    // Egress alone cannot search; T1 has no multiframe mode (refused without chip bits).
    model.setTrace(true);
    EXPECT_EQ(VQ6192_Framer_SetFrmMode(kChip, 77, 1, 2), kParaErr);
    tdm(1);
    model.clearTrace();
    EXPECT_EQ(VQ6192_Framer_SetFrmMode(kChip, 77, 0, 2), 0xE0001u);
    EXPECT_EQ(VQ6192_Framer_SetFrmMode(kChip, 77, 1, 2), 0xE0001u);
    EXPECT_FALSE(wrote());
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_SetFrmMode.enTDMMode(1) eFramerMode(2)       ErrCode[0xe0001]\r\n");
}

TEST_F(FramerTest, ReframePulseSequence) {
    // e1 100: VC-4 1, TUG-3 1, TUG-2 2, TU 2 -> register channel 16; the reframe bit is bit 2.
    const uint32_t addr = 0x24010 + 0x800 + 0x200 + 0x10 * 16;
    model.poke(addr, 0x0011);
    EXPECT_EQ(traced([&] { ASSERT_EQ(VQ6192_Framer_ReFrmFrame(kChip, 100), 0u); }),
              (std::vector<BusAccess>{
                  {BusOp::Read, addr, 0x0011, 0, 16},
                  {BusOp::Write, addr, 0x0011, 0, 16},  // := 0
                  {BusOp::Read, addr, 0x0011, 0, 16},
                  {BusOp::Write, addr, 0x0015, 0, 16},  // := 1
                  {BusOp::Read, addr, 0x0015, 0, 16},   // read once
                  {BusOp::Read, addr, 0x0015, 0, 16},
                  {BusOp::Write, addr, 0x0011, 0, 16},  // := 0
              }));
}

// Ingress reset is bit 3 of the ingress mode word, egress reset bit 2 of the egress one.
TEST_F(FramerTest, ChannelResets) {
    EXPECT_EQ((Ints{VQ6192_Framer_ReSetFrmChnl(kChip, 335, 2, 1), ingress(335), egress(335),
                    VQ6192_Framer_ReSetFrmChnl(kChip, 335, 1, 0), ingress(335), egress(335)}),
              ints(0, 0x8, 0x4, 0, 0x8, 0));
    EXPECT_TRUE(traced([&] { EXPECT_EQ(VQ6192_Framer_ReSetFrmChnl(kChip, 335, 3, 0), 0u); }).empty())
        << "direction 3: nothing, success";
    // Standard coordinates, register channel TUG-2 + 7 * TU (a T1 channel of TU 3 here).
    EXPECT_EQ((Ints{VQ6192_Framer_ReSetFrmChnlStd(kChip, 77, 2, 1, 6, 3, 0, 1),
                    model.peek(Framers::ingressAddr(2, 1, 6, 3, Framers::kIngMode)),
                    VQ6192_Framer_CalcTug12ToTu12Chnl(kChip, 6, 3)}),
              ints(0, 0x8, 27));
    uint8_t untouched = 0x5A;
    uint16_t v = 0, k = 0, l = 0, m = 0;
    EXPECT_EQ(
        (Ints{VQ6192_Framer_RvCaclMapChnl(kChip, 62, &untouched, &v, &k, &l, &m), v, k, l, m, untouched}),
        ints(0, 0, 2, 6, 2, 0x5A));
}

TEST_F(FramerTest, OutOfRangeArgumentsTouchNothing) {
    uint32_t out = 0;
    beginRefusals();
    expectRefusals(VQ6192_Framer_SetFrmMode(3, 336, 0, 0), VQ6192_Framer_SetFrmMode(3, 0, 3, 0),
                   VQ6192_Framer_SetFrmMode(3, 0, 0, 4), VQ6192_Framer_GetFrmMode(3, 336, 0, &out),
                   VQ6192_Framer_GetFrmMode(3, 0, 3, &out), VQ6192_Framer_SetFrmTDMMode(3, 2),
                   VQ6192_Framer_ReFrmFrame(3, 336), VQ6192_Framer_ReSetFrmChnl(3, 336, 0, 1),
                   VQ6192_Framer_ReSetFrmChnl(3, 0, 0, 2),
                   VQ6192_Framer_ReSetFrmChnlStd(3, 0, 0, 0, 0, 336, 0, 1));
}

using FramerInit = FramerTest;

TEST_F(FramerInit, WholeRegisterEffectForEachModeAndLineType) {
    struct Case {
        uint32_t tdm, line, product;
        uint8_t mapType;
        uint16_t delay0, delay1;
    };
    const Case cases[] = {
        {0, 0, 0, CKD_FE_SDHSONET_MAP_E1_VC12TU12TUG3_AU4, 0x0260, 0},
        {1, 0, 1, CKD_FE_SDHSONET_MAP_DS1_VC11VC12TU12TUG3_AU4, 0x27C0, 0},
        {0, 1, 0, CKD_FE_SDHSONET_MAP_E1_VT3_STS1, 0x2780, 0x25C0},
        {1, 1, 0, CKD_FE_SDHSONET_MAP_DS1_VT15_STS1, 0x2780, 0x25C0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(testing::Message() << "tdm " << c.tdm << " line " << c.line << " product " << c.product);
        VQ6192_INSTALL_PARA p = model.installPara(kChip);
        p.ulSupportProductFlag = c.product;
        reinstall(p);
        model.reset();
        model.poke(0x2034, 0x00FF);
        model.poke(0x22002, 0x00FF);
        model.poke(0x20800, 0x8000);  // bit 15 lies outside the 15-bit delay field
        model.poke(0x2A000, 0x2000);  // bit 13 beside the one-bit field at 12
        ASSERT_EQ(VQ6192_Framer_SetFrmTDMMode(kChip, c.tdm), 0u);
        VQ6192_Platform_ResetVirtualTime();
        const auto written =
            vqtest::writes(traced([&] { ASSERT_EQ(VQ6192_Framer_FrmInit(kChip, 1, c.line), 0u); }));
        // The waits of the twelve maps: the payload-type pulse each, and the settling after VC-4 3.
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 12u * 1 + 3u * 510);

        // E1: overhead and RAI insertion on, RAI select off, overhead type 2 on in mode 0.
        std::set<uint32_t> framer = {0x2034, 0x20800, 0x20802, 0x22002, 0x2A000, 0x20006};
        for (uint32_t e1 = 0; e1 < VQ6192_FRM_E1_NUM; ++e1) {
            framer.insert({Framers::ingressAddr(e1, Framers::kIngMode),
                           Framers::egressAddr(e1, Framers::kEgMode),
                           Framers::egressAddr(e1, Framers::kEgOverhead)});
            EXPECT_EQ(ints(ingress(e1), egress(e1), egress(e1, Framers::kEgOverhead)),
                      ints(1, 1, c.tdm == 0 ? 0x4024 : 0))
                << "e1 " << e1;
        }
        EXPECT_EQ(ints(model.peek(0x2034), model.peek(0x20800), model.peek(0x20802), model.peek(0x22002),
                       model.peek(0x2A000), model.peek(0x20006)),
                  ints(0x00F0, 0x8000 | c.delay0, c.delay1, 0x00F0, 0x3000, c.line));
        for (uint32_t slot = 0; slot < 12; ++slot) {
            uint8_t type = 0;
            EXPECT_EQ((Ints{VQ6192_SDH_GetSDHMap(kChip, slot / 3, slot % 3, &type), type}),
                      ints(0, c.mapType))
                << slot;
        }
        // Nothing else but the mapper is written (and, for T1, the channel resets, back at 0).
        for (const auto &w : written) {
            const uint32_t a = w.addr;
            const bool mapper = (a >= 0x24000 && a < 0x24010) || (a >= 0x2C000 && a < 0x2D000) ||
                                a == 0x2080E || a == 0x202A || (a >= 0x202C && a < 0x2034) || a == 0x2A020 ||
                                a == 0x29282 || (a >= 0x2B602 && a < 0x2B602 + 12 * 0x20);
            const bool t1Reset = c.tdm == 1 && a >= 0x24010 && a < 0x26000 && (model.peek(a) & 8) == 0;
            EXPECT_TRUE(framer.count(a) != 0 || mapper || t1Reset) << std::hex << a;
        }
    }
}

TEST_F(FramerInit, RestoreModeAndRefusals) {
    model.setTrace(true);
    EXPECT_EQ(VQ6192_Framer_FrmInit(kChip, 2, 0), 0u);
    EXPECT_TRUE(model.trace().empty()) << "restore leaves the framers alone";
    EXPECT_EQ(VQ6192_Framer_FrmInit(kChip, 0, 0), 0x030E0001u);
    EXPECT_EQ(VQ6192_Framer_FrmInit(kChip, 3, 0), 0x030E0001u);
    EXPECT_EQ(VQ6192_Framer_FrmInit(kChip, 1, 2), 0x030E0001u);
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(FramerInit, AMapTheModesRefuseStopsTheInitialisation) {
    // The line mode register's bit 0 is stuck at 1: SONET is read back whatever SDH was asked for,
    // so the SDH maps are refused.
    model.stickBits(0x20006, 0x0001, 0x0001);
    ASSERT_EQ(VQ6192_Framer_SetFrmTDMMode(kChip, 0), 0u);
    EXPECT_EQ(VQ6192_Framer_FrmInit(kChip, 1, 0), 0x030E0004u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_Framer_FrmInit.VQ6192_SDH_SetSDHMap(3,0,0,6)       ErrCode[0x3080001]\r\n");
}

using ServiceLookup = FramerTest;

TEST_F(ServiceLookup, FindsTheFirstChannelCarryingTheService) {
    // Egress E1/T1 table, channel 200 timeslot 7: PPP channel 1 (a VC-4 PPP channel: inner 0x200),
    // 64 kbit/s interface speed 3.
    model.poke(0x10048, 0x2);
    const uint32_t key = 0x8000 | (1u << 13) | ((3u << 11) & 0x7800) | 0x200;
    vq6192::sim::TableEngine::Entry entry{};
    entry[0] = static_cast<uint16_t>(key);
    model.tables().setEntry(0x10ab, 1, (200 << 5) | 7, entry);
    model.tables().setEntry(0x10ab, 1, (250 << 5) | 0, entry);
    // The ingress table has nothing; a table access that times out ends the scan the same way.
    uint16_t e1 = 0, none = 0, busy = 0;
    EXPECT_EQ((Ints{VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 1, 1, 3, &e1), e1,
                    VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 0, 1, 3, &none), none}),
              ints(0, 200, 0xE0003, 2047));
    model.tables().holdBusy(0x10ab, vq6192::sim::TableEngine::kForever);
    EXPECT_EQ((Ints{VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 1, 1, 3, &busy), busy,
                    VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 2, 1, 3, &e1),
                    VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 0, 4, 3, &e1),
                    VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 0, 1, 5, &e1)}),
              ints(0xE0003, 2047, kParaErr, kParaErr, kParaErr));
}

}  // namespace
}  // namespace framertest
