// PPP module initialisation, channel numbering against the VC-4 PPP enable register, and argument
// refusals across the module: the condition traced, the status returned and nothing written.
#include "ppp_fixture.h"

namespace {

using namespace ppptest;

TEST_F(PppTest, InitWritesTheModuleDefaults) {
    EXPECT_TRUE(traced([] {
                    EXPECT_EQ(VQ6192_PPP_InitPppModule(kChip, 2) | VQ6192_PPP_InitPppModule(kChip, 0), 0u);
                }).empty())
        << "modes other than 1 do nothing";
    poke({{0x1220C, 0xFFFF}, {0x11010, 0xFC00}, {0x11200 + 2 * 84, 0}});
    ASSERT_EQ(VQ6192_PPP_InitPppModule(kChip, 1), 0u);
    // MP mode 1; PPP scheduling 0 and MP scheduling 3 (low bit 1); every VC-4 channel disabled again; 255;
    // bits 0..3 cleared; unidentified-protocol mode 2; test frame reception and timeslot 9; 636; COBC
    // mode 2 for channels 0..83.
    EXPECT_EQ(peek({0x1004A, 0x12000, kVc4Enable, 0x1220A, 0x1220C, 0x13004, 0x13400, 0x13402, 0x11010,
                    0x11200, 0x11200 + 2 * 83, 0x11200 + 2 * 84}),
              (U32s{1, 2, 0, 255, 0xFFF0, 2, 1, 9, 0xFC00 | 636, 2 << 1, 2 << 1, 0}));
    // VC-4 channel 1 while enabled: watermarks 0, ACFC and PFC on at its inner number.
    EXPECT_EQ(entries({kHdfccfg, kLinkcfg}, 0x200), (U64s{0, 0xC00}));
    // Channels below 256 also carry the test enable of the test frame reception.
    const uint32_t chans[][3] = {
        {0, 0x1C00, 0x20}, {40, 0x1C00, 0x28}, {255, 0x1C00, 0x3F}, {256, 0xC00, 0x20}, {511, 0xC00, 0x3F}};
    for (const auto &[ch, link, skyeye] : chans) {
        // Watermarks drop 1200 (40..59), high 1000 (20..39), low 800 (0..19).
        EXPECT_EQ(entries({kHdfccfg, kLinkcfg, kMpskyeyecfg}, ch), (U64s{0x4B0003E800320, link, skyeye}))
            << ch;
    }
    for (uint32_t b : {0u, 9u, 255u}) {
        SCOPED_TRACE(b);
        EXPECT_EQ(entry(kMprxmmpcfg1, b), 1024ull << 18 | 512u);
        for (uint32_t q = 0; q < 8; ++q) {
            const bool deep = q == 2 || q == 7;
            const uint64_t l = deep ? 256 : 64, h = deep ? 512 : 128, d = deep ? 768 : 192;
            EXPECT_EQ(entry(kMcfccfg, 8 * b + q), d << 40 | h << 20 | l) << q;
        }
        EXPECT_EQ(entries({kFragcfg, kMprgrpcfg, kMpwgtcfg}, b), (U64s{0x40, 511, 0})) << "PFC on, long SN";
    }
}

TEST_F(PppTest, RefusalsTraceTheConditionAndTouchNothing) {
    const uint32_t c = kChip;
    uint32_t u = 0;
    uint16_t u16 = 0;
    uint8_t buf[64] = {};
    uint32_t next = 0;
    const VQ6192_PPP_CHAN_S speed5{5, 1, 0x2, 5}, port512{512, 1, 0x2, 3}, chan512{5, 512, 0x2, 3};
    const VQ6192_PPP_CHAN_S vc4Port{4, 1, 0, 0}, vc4Chan{1, 4, 0, 0};
    PPP_REFUSED(VQ6192_PPP_CreatePppChan(c, &speed5), "rstPppChan->ucSpeed < VQ6192_TS_SPEED_MAX");
    PPP_REFUSED(VQ6192_PPP_CreatePppChan(c, &port512), "rstPppChan->ulPhyPort < VQ6192_NONE_SCH_PPP_MAX");
    PPP_REFUSED(VQ6192_PPP_CreatePppChan(c, &chan512), "rstPppChan->ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX");
    PPP_REFUSED(VQ6192_PPP_CreateVC4PppChan(c, &vc4Port), "pstPppChan->ulPhyPort < VQ6192_SCH_C4_PPP_MAX");
    PPP_REFUSED(VQ6192_PPP_CreateVC4PppChan(c, &vc4Chan), "pstPppChan->ulPppChanNo < VQ6192_SCH_C4_PPP_MAX");
    PPP_REFUSED(VQ6192_PPP_SetLinkToPpp(c, 512, 1), "ulLinkNo < VQ6192_NONE_SCH_PPP_MAX");
    PPP_REFUSED(VQ6192_PPP_SetLinkToPpp(c, 1, 2), "ulEnable <= VQ6192_PPP_ENABLE");
    PPP_REFUSED(VQ6192_PPP_SetPppMRU(c, 1, 2037), "ulMRU <= VQ6192_MAX_PPP_MRU");
    PPP_REFUSED(VQ6192_PPP_SetPppLoopEnable(c, 1, 1, 1), "ucPppDirect < VQ6192_BASE_SRV_DIRECT_EGRESS");
    PPP_REFUSED(VQ6192_PPP_SetPppDFifoWaterMark(c, 100, 0), "ulWaterMarkL > VQ6192_PPP_DISABLE");
    PPP_REFUSED(VQ6192_PPP_SetPppDFifoWaterMark(c, 100, 100), "ulWaterMarkL < ulWaterMarkH");
    PPP_REFUSED(VQ6192_PPP_SetPppDFifoWaterMark(c, 4096, 10), "ulWaterMarkH < VQ6192_MAX_DFIFO_ALM_LC");
    PPP_REFUSED(VQ6192_PPP_SetPppMpSchMode(c, 2, 3), "ePppSchMode < VQ6192_PPPMP_SCH_MC");
    PPP_REFUSED(VQ6192_PPP_SetPppMpSchMode(c, 0, 1),
                "(eMpSchMode < VQ6192_PPPMP_SCH_MODE_BUTT) && (eMpSchMode > VQ6192_PPPMP_SCH_PPP)");
    PPP_REFUSED(VQ6192_PPP_SetMpAbortThld(c, 255), "usThld < VQ6192_MP_ABORT_THLD");
    PPP_REFUSED(VQ6192_PPP_SetPppCsptEnable(c, 1, 2, 1), "enChanType < VQ6192_PPP_CHNTYPE_BUTT");
    PPP_REFUSED(VQ6192_PPP_SetPppCsptEnable(c, 256, 0, 1), "ulChanNo < VQ6192_SCH_MP_MAX");
    PPP_REFUSED(VQ6192_PPP_SetMpVc4En(c, 4, 1), "ulVc4PppChanNo < VQ6192_SCH_C4_PPP_MAX");
    PPP_REFUSED(VQ6192_PPP_SetPPPQmEnable(c, 1, 2, 1), "ulType < VQ6192_PPP_CHNTYPE_BUTT");
    PPP_REFUSED(VQ6192_PPP_AddPppChanToMp(c, 1, 256, 2), "ulMpChanNo < VQ6192_SCH_MP_MAX");
    PPP_REFUSED(VQ6192_PPP_AddPppChanToMp(c, 1, 2, 3), "ucDirect < VQ6192_BASE_SRV_DIRECT_MAX");
    PPP_REFUSED(VQ6192_PPP_RemovePppChanFromMp(c, 512, 2, 2), "ulPppChanNo < VQ6192_NONE_SCH_PPP_MAX");
    PPP_REFUSED(VQ6192_PPP_SetMpBundleEnable(c, 2, 1, 3), "ucDirect < 3");
    PPP_REFUSED(VQ6192_PPP_SetMpBundleEnable(c, 2, 2, 0), "ulEnable <= VQ6192_PPP_ENABLE");
    PPP_REFUSED(VQ6192_PPP_SetMpFragSize(c, 2, 17), "enFragSize < VQ6192_MP_FRAG_SIZE_BUTT");
    PPP_REFUSED(VQ6192_PPP_SetMpTimeout(c, 2, 512), "ulTimeout < VQ6192_MAX_MP_RGRP_TIMEOUT");
    PPP_REFUSED(VQ6192_PPP_SetMpMrru(c, 2, 4096), "ulMRRU < VQ6192_MAX_MP_MRRU");
    PPP_REFUSED(VQ6192_PPP_SetMpSnFormat(c, 2, 2, 0), "enSnFormatUp < VQ6192_MP_SN_BUTT");
    PPP_REFUSED(VQ6192_PPP_SetMpSnFormat(c, 2, 0, 2), "enSnFormatDown < VQ6192_MP_SN_BUTT");
    PPP_REFUSED(VQ6192_PPP_SetMpSnCtrl(c, 2, 1, 128, 0), "ulMpCtrlNum < VQ6192_MAX_MP_CTRL_NUM");
    PPP_REFUSED(VQ6192_PPP_SetMpSnCtrl(c, 2, 1, 1, 8), "ulMcNum < VQ6192_MAX_MC_QUE_NUM");
    PPP_REFUSED(VQ6192_PPP_SetMpSnCtrl(c, 2, 2, 1, 0), "ulEnable <= VQ6192_PPP_ENABLE");
    PPP_REFUSED(VQ6192_PPP_SetMpMaxFragNum(c, 128), "ulMaxFragNum < VQ6192_MAX_MP_FRAG_NUM");
    PPP_REFUSED(VQ6192_PPP_SetMpQueWeight(c, 2, 8, 1), "ulMcQueNo < VQ6192_MAX_MC_QUE_NUM");
    PPP_REFUSED(VQ6192_PPP_SetMpQueWeight(c, 2, 1, 128), "ulQueWeight < VQ6192_MAX_MP_QUE_WEIGHT");
    PPP_REFUSED(VQ6192_PPP_SetMpRxWaterMark(c, 2, 0x3FFC0, 1), "ulWaterMarkH < VQ6192_MAX_RXM_MP_TH");
    PPP_REFUSED(VQ6192_PPP_SetMpRxWaterMark(c, 2, 5, 5), "ulWaterMarkL < ulWaterMarkH");
    PPP_REFUSED(VQ6192_PPP_StartPppDdrCapPkt(c, 1, 8192), "usSkyEyeMax <= VQ6192_MAX_SKY_EYE");
    PPP_REFUSED(VQ6192_PPP_StartPppDdrCapPkt(c, 2, 1), "ulDirect <= VQ6192_BASE_SRV_DIRECT_EGRESS");
    PPP_REFUSED(VQ6192_PPP_GetPppDdrCapPkt(c, 32, 0, 0, buf, &u16, &next), "ulSlot < VQ6192_DDR_CAP_MAX");
    PPP_REFUSED(VQ6192_PPP_GetPppDdrCapPkt(c, 1, 0, 2, buf, &u16, &next),
                "ulDirect < VQ6192_BASE_SRV_DIRECT_BOTH");
    PPP_REFUSED(VQ6192_PPP_CapturePppFifoPkt(c, 300, 1, buf, &u), "ulChanNo < VQ6192_SCH_MP_MAX");
    PPP_REFUSED(VQ6192_PPP_StartCobcCap(c, 4096), "usHdlcChnl < VQ6192_HDLC_MAX");
    PPP_REFUSED(VQ6192_PPP_GetPppCRCMode(c, 1, 2, &u), "ucDirect < VQ6192_BASE_SRV_DIRECT_BOTH");
    // Null pointers are refused with the text of their condition too.
    PPP_REFUSED(VQ6192_PPP_SetPppPpuCfg(c, 1, nullptr, nullptr), "rstPpuCfg != NULL");
    PPP_REFUSED(VQ6192_PPP_GetPppDdrCapPkt(c, 1, 0, 0, buf, nullptr, &next), "pusLen != NULL");
    PPP_REFUSED(VQ6192_PPP_GetPppFifoCapData(c, buf, nullptr), "pulLen != NULL");
    PPP_REFUSED(VQ6192_PPP_GetPppMRU(c, 1, nullptr), "pulMRU != NULL");
}

TEST_F(PppTest, EnabledVc4ChannelsLiveAtMultiplesOf512) {
    // VC-4 enables, channel, inner number.
    const uint32_t forward[][3] = {{0x2, 1, 0x200}, {0x0, 1, 1},     {0x1, 0, 0},
                                   {0x0, 0, 0},     {0xF, 3, 0x600}, {0xF, 4, 4},
                                   {0xF, 511, 511}, {0xFFF0, 2, 2},  {0x4, 2, 0x400}};
    for (const auto &[enables, channel, inner] : forward) {
        model.poke(kVc4Enable, static_cast<uint16_t>(enables));
        for (uint32_t dir : {0u, 1u, 2u}) {
            EXPECT_EQ(VQ6192_PPP_CalcPppChnl(kChip, channel, dir), inner) << enables << " " << channel;
        }
    }
    // VC-4 enables, inner number, channel.
    const uint32_t inverse[][3] = {{0x2, 0x200, 1},     {0x0, 0x200, 0x200}, {0x8, 0x600, 3},
                                   {0x8, 0x601, 0x601}, {0xF, 0x800, 0x800}, {0xF, 0x100, 0x100},
                                   {0xF, 5, 5},         {0x1, 0, 0}};
    for (const auto &[enables, inner, channel] : inverse) {
        model.poke(kVc4Enable, static_cast<uint16_t>(enables));
        EXPECT_EQ(VQ6192_PPP_ReCalcPppChnl(kChip, inner, 0), channel) << enables << " " << inner;
    }
    // Round trip over the whole channel space with all four VC-4 channels enabled.
    model.poke(kVc4Enable, 0xF);
    for (uint32_t ch = 0; ch < VQ6192_NONE_SCH_PPP_MAX; ++ch) {
        EXPECT_EQ(VQ6192_PPP_ReCalcPppChnl(kChip, VQ6192_PPP_CalcPppChnl(kChip, ch, 0), 0), ch);
    }
    // The enable register is read every time; egress numbers of ordinary channels are traced.
    capture.clear();
    model.poke(kVc4Enable, 0x1);
    const auto t = traced([] {
        VQ6192_PPP_CalcPppChnl(kChip, 0, 1);  // VC-4 channel: no trace
        VQ6192_PPP_CalcPppChnl(kChip, 7, 1);
        VQ6192_PPP_CalcPppChnl(kChip, 7, 0);
        VQ6192_PPP_CalcPppChnl(kChip, 7, 2);  // only direction 1 traces
        VQ6192_PPP_ReCalcPppChnl(kChip, 7, 1);
    });
    ASSERT_EQ(t.size(), 5u);
    for (const auto &a : t) {
        EXPECT_EQ(a.addr, kVc4Enable);
    }
    EXPECT_EQ(capture.traceTexts(),
              (std::vector<std::string>{"VQ6192_PPP_CalcPppChnl bSpecialChnl TRUE!\n",
                                        "VQ6192_PPP_ReCalcPppChnl bSpecialChnl TRUE!\n"}));
}

}  // namespace
