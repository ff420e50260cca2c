// PPP module initialisation, and argument refusals across the module: the condition traced, the
// status returned and nothing written.
#include <functional>

#include "ppp_fixture.h"

namespace {

using namespace ppptest;

TEST_F(PppTest, InitOtherThanMode1DoesNothing) {
    model.setTrace(true);
    EXPECT_EQ(VQ6192_PPP_InitPppModule(kChip, 2), 0u);
    EXPECT_EQ(VQ6192_PPP_InitPppModule(kChip, 0), 0u);
    EXPECT_TRUE(model.trace().empty());
}

TEST_F(PppTest, InitWritesTheModuleDefaults) {
    model.poke(0x1220C, 0xFFFF);
    model.poke(0x11010, 0xFC00);
    model.poke(0x11200 + 2 * 84, 0);
    ASSERT_EQ(VQ6192_PPP_InitPppModule(kChip, 1), 0u);

    struct Reg {
        uint32_t addr;
        uint16_t value;
    };
    const Reg regs[] = {
        {0x1004A, 0x0001},           // MP mode 1
        {0x12000, 0x0002},           // PPP scheduling 0, MP scheduling 3 (low bit 1)
        {kVc4Enable, 0x0000},        // every VC-4 channel disabled again
        {0x1220A, 255},              //
        {0x1220C, 0xFFF0},           // bits 0..3 cleared
        {0x13004, 2},                // unidentified-protocol mode 2
        {0x13400, 1},                // test frame reception
        {0x13402, 9},                // test frame timeslot
        {0x11010, 0xFC00 | 636},     //
        {0x11200, 2 << 1},           // COBC mode 2 for channels 0..83
        {0x11200 + 2 * 83, 2 << 1},  //
        {0x11200 + 2 * 84, 0},       //
    };
    for (const Reg &r : regs) {
        EXPECT_EQ(model.peek(r.addr), r.value) << std::hex << r.addr;
    }
    // VC-4 channel 1 while enabled: watermarks 0, ACFC and PFC on at its inner number.
    EXPECT_EQ(entry(kHdfccfg, 0x200), 0u);
    EXPECT_EQ(entry(kLinkcfg, 0x200), 0xC00u);
    struct Chan {
        uint32_t ch;
        uint64_t link, skyeye;
    };
    // Channels below 256 also carry the test enable of the test frame reception.
    const Chan chans[] = {
        {0, 0x1C00, 0x20}, {40, 0x1C00, 0x28}, {255, 0x1C00, 0x3F}, {256, 0xC00, 0x20}, {511, 0xC00, 0x3F}};
    for (const Chan &c : chans) {
        SCOPED_TRACE(c.ch);
        EXPECT_EQ(entry(kHdfccfg, c.ch), 1200ull << 40 | 1000ull << 20 | 800u);
        EXPECT_EQ(entry(kLinkcfg, c.ch), c.link);
        EXPECT_EQ(entry(kMpskyeyecfg, c.ch), c.skyeye);
    }
    for (uint32_t b : {0u, 9u, 255u}) {
        SCOPED_TRACE(b);
        EXPECT_EQ(entry(kMprxmmpcfg1, b), 1024ull << 18 | 512u);
        for (uint32_t q = 0; q < 8; ++q) {
            const bool deep = q == 2 || q == 7;
            const uint64_t l = deep ? 256 : 64, h = deep ? 512 : 128, d = deep ? 768 : 192;
            EXPECT_EQ(entry(kMcfccfg, 8 * b + q), d << 40 | h << 20 | l) << q;
        }
        EXPECT_EQ(entry(kFragcfg, b), 0x40u);  // PFC on, long sequence numbers
        EXPECT_EQ(entry(kMprgrpcfg, b), 511u);
        EXPECT_EQ(entry(kMpwgtcfg, b), 0u);
    }
}

TEST_F(PppTest, RefusalsTraceTheConditionAndTouchNothing) {
    struct Case {
        std::function<uint32_t()> op;
        const char *condition;
    };
    const uint32_t c = kChip;
    uint32_t u = 0;
    uint16_t u16 = 0;
    uint8_t buf[64] = {};
    uint32_t next = 0;
    const VQ6192_PPP_CHAN_S speed5{5, 1, 0x2, 5}, port512{512, 1, 0x2, 3}, chan512{5, 512, 0x2, 3};
    const VQ6192_PPP_CHAN_S vc4Port{4, 1, 0, 0}, vc4Chan{1, 4, 0, 0};
    const Case cases[] = {
        {[&] { return VQ6192_PPP_CreatePppChan(c, &speed5); }, "rstPppChan->ucSpeed < VQ6192_TS_SPEED_MAX"},
        {[&] { return VQ6192_PPP_CreatePppChan(c, &port512); },
         "rstPppChan->ulPhyPort < VQ6192_NONE_SCH_PPP_MAX"},
        {[&] { return VQ6192_PPP_CreatePppChan(c, &chan512); },
         "rstPppChan->ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX"},
        {[&] { return VQ6192_PPP_CreateVC4PppChan(c, &vc4Port); },
         "pstPppChan->ulPhyPort < VQ6192_SCH_C4_PPP_MAX"},
        {[&] { return VQ6192_PPP_CreateVC4PppChan(c, &vc4Chan); },
         "pstPppChan->ulPppChanNo < VQ6192_SCH_C4_PPP_MAX"},
        {[&] { return VQ6192_PPP_SetLinkToPpp(c, 512, 1); }, "ulLinkNo < VQ6192_NONE_SCH_PPP_MAX"},
        {[&] { return VQ6192_PPP_SetLinkToPpp(c, 1, 2); }, "ulEnable <= VQ6192_PPP_ENABLE"},
        {[&] { return VQ6192_PPP_SetPppMRU(c, 1, 2037); }, "ulMRU <= VQ6192_MAX_PPP_MRU"},
        {[&] { return VQ6192_PPP_SetPppLoopEnable(c, 1, 1, 1); },
         "ucPppDirect < VQ6192_BASE_SRV_DIRECT_EGRESS"},
        {[&] { return VQ6192_PPP_SetPppLoopEnable(c, 1, 2, 1); },
         "ucPppDirect < VQ6192_BASE_SRV_DIRECT_EGRESS"},
        {[&] { return VQ6192_PPP_SetPppDFifoWaterMark(c, 100, 0); }, "ulWaterMarkL > VQ6192_PPP_DISABLE"},
        {[&] { return VQ6192_PPP_SetPppDFifoWaterMark(c, 100, 100); }, "ulWaterMarkL < ulWaterMarkH"},
        {[&] { return VQ6192_PPP_SetPppDFifoWaterMark(c, 4096, 10); },
         "ulWaterMarkH < VQ6192_MAX_DFIFO_ALM_LC"},
        {[&] { return VQ6192_PPP_SetPppMpSchMode(c, 2, 3); }, "ePppSchMode < VQ6192_PPPMP_SCH_MC"},
        {[&] { return VQ6192_PPP_SetPppMpSchMode(c, 0, 1); },
         "(eMpSchMode < VQ6192_PPPMP_SCH_MODE_BUTT) && (eMpSchMode > VQ6192_PPPMP_SCH_PPP)"},
        {[&] { return VQ6192_PPP_SetMpAbortThld(c, 255); }, "usThld < VQ6192_MP_ABORT_THLD"},
        {[&] { return VQ6192_PPP_SetPppCsptEnable(c, 1, 2, 1); }, "enChanType < VQ6192_PPP_CHNTYPE_BUTT"},
        {[&] { return VQ6192_PPP_SetPppCsptEnable(c, 256, 0, 1); }, "ulChanNo < VQ6192_SCH_MP_MAX"},
        {[&] { return VQ6192_PPP_SetMpVc4En(c, 4, 1); }, "ulVc4PppChanNo < VQ6192_SCH_C4_PPP_MAX"},
        {[&] { return VQ6192_PPP_SetPppPpuCfg(c, 1, nullptr, nullptr); }, "rstPpuCfg != NULL"},
        {[&] { return VQ6192_PPP_SetPPPQmEnable(c, 1, 2, 1); }, "ulType < VQ6192_PPP_CHNTYPE_BUTT"},
        {[&] { return VQ6192_PPP_AddPppChanToMp(c, 1, 256, 2); }, "ulMpChanNo < VQ6192_SCH_MP_MAX"},
        {[&] { return VQ6192_PPP_AddPppChanToMp(c, 1, 2, 3); }, "ucDirect < VQ6192_BASE_SRV_DIRECT_MAX"},
        {[&] { return VQ6192_PPP_RemovePppChanFromMp(c, 512, 2, 2); },
         "ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX"},
        {[&] { return VQ6192_PPP_SetMpBundleEnable(c, 2, 1, 3); }, "ucDirect < 3"},
        {[&] { return VQ6192_PPP_SetMpBundleEnable(c, 2, 2, 0); }, "ulEnable <= VQ6192_PPP_ENABLE"},
        {[&] { return VQ6192_PPP_SetMpFragSize(c, 2, 17); }, "enFragSize < VQ6192_MP_FRAG_SIZE_BUTT"},
        {[&] { return VQ6192_PPP_SetMpTimeout(c, 2, 512); }, "ulTimeout < VQ6192_MAX_MP_RGRP_TIMEOUT"},
        {[&] { return VQ6192_PPP_SetMpMrru(c, 2, 4096); }, "ulMRRU < VQ6192_MAX_MP_MRRU"},
        {[&] { return VQ6192_PPP_SetMpSnFormat(c, 2, 2, 0); }, "enSnFormatUp < VQ6192_MP_SN_BUTT"},
        {[&] { return VQ6192_PPP_SetMpSnFormat(c, 2, 0, 2); }, "enSnFormatDown < VQ6192_MP_SN_BUTT"},
        {[&] { return VQ6192_PPP_SetMpSnCtrl(c, 2, 1, 128, 0); }, "ulMpCtrlNum < VQ6192_MAX_MP_CTRL_NUM"},
        {[&] { return VQ6192_PPP_SetMpSnCtrl(c, 2, 1, 1, 8); }, "ulMcNum < VQ6192_MAX_MC_QUE_NUM"},
        {[&] { return VQ6192_PPP_SetMpMaxFragNum(c, 128); }, "ulMaxFragNum < VQ6192_MAX_MP_FRAG_NUM"},
        {[&] { return VQ6192_PPP_SetMpQueWeight(c, 2, 8, 1); }, "ulMcQueNo < VQ6192_MAX_MC_QUE_NUM"},
        {[&] { return VQ6192_PPP_SetMpQueWeight(c, 2, 1, 128); }, "ulQueWeight < VQ6192_MAX_MP_QUE_WEIGHT"},
        {[&] { return VQ6192_PPP_SetMpRxWaterMark(c, 2, 0x3FFC0, 1); },
         "ulWaterMarkH < VQ6192_MAX_RXM_MP_TH"},
        {[&] { return VQ6192_PPP_SetMpRxWaterMark(c, 2, 5, 5); }, "ulWaterMarkL < ulWaterMarkH"},
        {[&] { return VQ6192_PPP_StartPppDdrCapPkt(c, 1, 8192); }, "usSkyEyeMax <= VQ6192_MAX_SKY_EYE"},
        {[&] { return VQ6192_PPP_StartPppDdrCapPkt(c, 2, 1); }, "ulDirect <= VQ6192_BASE_SRV_DIRECT_EGRESS"},
        {[&] { return VQ6192_PPP_GetPppDdrCapPkt(c, 32, 0, 0, buf, &u16, &next); },
         "ulSlot < VQ6192_DDR_CAP_MAX"},
        {[&] { return VQ6192_PPP_GetPppDdrCapPkt(c, 1, 0, 2, buf, &u16, &next); },
         "ulDirect < VQ6192_BASE_SRV_DIRECT_BOTH"},
        {[&] { return VQ6192_PPP_GetPppDdrCapPkt(c, 1, 0, 0, buf, nullptr, &next); }, "pusLen != NULL"},
        {[&] { return VQ6192_PPP_CapturePppFifoPkt(c, 300, 1, buf, &u); }, "ulChanNo < VQ6192_SCH_MP_MAX"},
        {[&] { return VQ6192_PPP_StartCobcCap(c, 4096); }, "usHdlcChnl < VQ6192_HDLC_MAX"},
        {[&] { return VQ6192_PPP_GetPppMRU(c, 1, nullptr); }, "pulMRU != NULL"},
        {[&] { return VQ6192_PPP_GetPppCRCMode(c, 1, 2, &u); }, "ucDirect < VQ6192_BASE_SRV_DIRECT_BOTH"},
    };
    model.setTrace(true);
    for (const Case &k : cases) {
        SCOPED_TRACE(k.condition);
        capture.clear();
        model.clearTrace();
        EXPECT_EQ(k.op(), kParaErr);
        EXPECT_TRUE(busWrites().empty());
        EXPECT_EQ(paraErrs(), std::vector<std::string>{std::string("ParaErr. [ ") + k.condition + " ]\r\n"});
    }
}

}  // namespace
