// Framer initialisation: its whole register effect for E1 and T1 in SDH and SONET, its waits and
// speed; and the service-to-channel lookup over the timeslot tables.
#include <chrono>
#include <set>

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
        model.setTrace(true);
        model.clearTrace();
        const auto start = std::chrono::steady_clock::now();
        ASSERT_EQ(VQ6192_Framer_FrmInit(kChip, 1, c.line), 0u);
        const auto elapsed = std::chrono::steady_clock::now() - start;
        EXPECT_LT(elapsed, std::chrono::seconds(1));
        // The waits of the twelve maps: the payload-type pulse each, and the settling after VC-4 3.
        EXPECT_EQ(VQ6192_Platform_GetVirtualTimeUs(), 12u * 1 + 3u * 510);

        std::set<uint32_t> written;
        for (const auto &a : model.trace()) {
            if (a.op == BusOp::Write) {
                written.insert(a.addr);
            }
        }
        std::set<uint32_t> accounted;
        for (uint32_t e1 = 0; e1 < VQ6192_FRM_E1_NUM; ++e1) {
            const uint32_t in = Framers::ingressAddr(e1, Framers::kIngMode);
            const uint32_t eg = Framers::egressAddr(e1, Framers::kEgMode);
            const uint32_t oh = Framers::egressAddr(e1, Framers::kEgOverhead);
            EXPECT_EQ(model.peek(in), 1) << "e1 " << e1;
            EXPECT_EQ(model.peek(eg), 1) << "e1 " << e1;
            // E1: overhead and RAI insertion on, RAI select off, overhead type 2 on in mode 0.
            EXPECT_EQ(model.peek(oh), c.tdm == 0 ? 0x4024 : 0) << "e1 " << e1;
            accounted.insert({in, eg});
            if (c.tdm == 0) {
                accounted.insert(oh);
            }
        }
        EXPECT_EQ(ints(model.peek(0x2034), model.peek(0x20800), model.peek(0x20802), model.peek(0x22002),
                       model.peek(0x2A000), model.peek(0x20006)),
                  ints(0x00F0, c.delay0, c.delay1, 0x00F0, 0x1000, c.line));
        accounted.insert({0x2034, 0x20800, 0x20802, 0x22002, 0x2A000, 0x20006});
        for (uint32_t slot = 0; slot < 12; ++slot) {
            uint8_t type = 0;
            ASSERT_EQ(VQ6192_SDH_GetSDHMap(kChip, slot / 3, slot % 3, &type), 0u);
            EXPECT_EQ(type, c.mapType) << "slot " << slot;
        }
        // Everything else written belongs to the mapper (or to the T1 channel resets, back at 0).
        for (uint32_t addr : written) {
            if (accounted.count(addr) == 0) {
                const bool mapper = (addr >= 0x24000 && addr < 0x24010) ||
                                    (addr >= 0x2C000 && addr < 0x2D000) || addr == 0x2080E ||
                                    addr == 0x202A || (addr >= 0x202C && addr < 0x2034) || addr == 0x2A020 ||
                                    addr == 0x29282 || (addr >= 0x2B602 && addr < 0x2B602 + 12 * 0x20);
                const bool t1Reset = c.tdm == 1 && ((addr >= 0x24010 && addr < 0x26000));
                EXPECT_TRUE(mapper || t1Reset) << std::hex << addr;
                if (t1Reset) {
                    EXPECT_EQ(model.peek(addr) & 8, 0) << std::hex << addr;
                }
            }
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
    uint16_t e1 = 0;
    ASSERT_EQ(VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 1, 1, 3, &e1), 0u);
    EXPECT_EQ(e1, 200);
    // Ingress table has nothing.
    EXPECT_EQ(VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 0, 1, 3, &e1), 0xE0003u);
    EXPECT_EQ(e1, 2047);
    // A table access that times out ends the scan the same way.
    model.tables().holdBusy(0x10ab, vq6192::sim::TableEngine::kForever);
    EXPECT_EQ(VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 1, 1, 3, &e1), 0xE0003u);
    EXPECT_EQ(e1, 2047);
    EXPECT_EQ(VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 2, 1, 3, &e1), 0x030E0001u);
    EXPECT_EQ(VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 0, 4, 3, &e1), 0x030E0001u);
    EXPECT_EQ(VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 0, 1, 5, &e1), 0x030E0001u);
    EXPECT_EQ(VQ6192_Framer_GetE1FromSvrNo(kChip, 1, 0, 1, 3, nullptr), 0x030E0001u);
}

}  // namespace
}  // namespace framertest
