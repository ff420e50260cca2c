// Framer initialisation: its whole register effect for E1 and T1 in SDH and SONET and its waits; and the
// service-to-channel lookup over the timeslot tables.
#include "framer/framer_test.h"
#include "vq6192/ppp.h"
#include "vq6192/sdh.h"

namespace framertest {
namespace {

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
        ASSERT_EQ(VQ6192_Framer_SetFrmTDMMode(kChip, c.tdm), 0u);
        VQ6192_Platform_ResetVirtualTime();
        ASSERT_EQ(VQ6192_Framer_FrmInit(kChip, 1, c.line), 0u);
        // The waits of the twelve maps: the payload-type pulse each, and the settling after VC-4 3.
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 12u * 1 + 3u * 510);

        // E1: overhead and RAI insertion on, RAI select off, overhead type 2 on in mode 0.
        for (uint32_t e1 = 0; e1 < VQ6192_FRM_E1_NUM; ++e1) {
            EXPECT_EQ(ints(ingress(e1), egress(e1), egress(e1, Framers::kEgOverhead)),
                      ints(1, 1, c.tdm == 0 ? 0x4024 : 0))
                << "e1 " << e1;
        }
        EXPECT_EQ(ints(model.peek(0x2034), model.peek(0x20800), model.peek(0x20802), model.peek(0x22002),
                       model.peek(0x2A000), model.peek(0x20006)),
                  ints(0x00F0, c.delay0, c.delay1, 0x00F0, 0x1000, c.line));
        for (uint32_t slot = 0; slot < 12; ++slot) {
            uint8_t type = 0;
            EXPECT_EQ((Ints{VQ6192_SDH_GetSDHMap(kChip, slot / 3, slot % 3, &type), type}),
                      ints(0, c.mapType))
                << slot;
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
