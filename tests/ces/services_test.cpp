// CES pseudowire services end to end: the channel, its packet settings and its packet-network header,
// in-label and VLAN maps, created and removed in one call.
#include "ces_fixture.h"
#include "vq6192/eth.h"

namespace {

using namespace cestest;

using Services = CesTest;

VQ6192_CES_PW_S service(uint32_t ch) {
    VQ6192_CES_PW_S pw = {};
    pw.ulPhyPort = 7, pw.ulCesChanNo = ch, pw.ulTsMap = 0xFFFFFFFE, pw.ucMode = 0, pw.ulTsCompress = 0x3;
    pw.usJbDepth = 200, pw.usJbDelay = 100, pw.ucIdleCode = 0x55, pw.ucFramNum = 8, pw.ucEmptyCode = 0x7F;
    pw.stRtpCfg = {1, 0, 96, 0x1111, 0x2222, 1};
    pw.ulVlanId = 100, pw.ulPwLabel = 0x12345, pw.ulInLabel = 0x500, pw.ucPwCos = 5, pw.ucPwTtl = 64;
    return pw;
}

TEST_F(Services, CreateBindsChannelHeaderAndLabelsAndDeleteUndoesThem) {
    const uint32_t ch = 20;
    const VQ6192_CES_PW_S pw = service(ch);
    ASSERT_EQ(VQ6192_CES_CreateCesPwSrv(kChip, &pw), 0u);
    // Enabled at the end; 8 frames; depth 200, delay 100; empty code 0x7F.
    EXPECT_EQ((U32s{model.peek(0x15000 + 2 * ch) & 1u, model.peek(0x15800 + 2 * ch) & 0x3Fu,
                    model.peek(0x15C00 + 2 * ch), model.peek(0x15400 + 2 * ch), model.peek(0x1402E) & 0xFFu}),
              (U32s{1, 8, 200, 100, 0x7F}));
    // Idle code; the service's compression replaces the channel's; payload type 96 at 6..12.
    EXPECT_EQ((U64s{bits(kIdle, ch, 0, 8), bits(kTxTsMask, ch, 0, 32), bits(kTxCw, ch, 6, 7)}),
              (U64s{0x55, 3, 96}));

    VQ6192_ETH_PSN_INFO_S info = {};
    ASSERT_EQ(VQ6192_ETH_GetPSNEthInfo(kChip, ch, VQ6192_ETH_SRV_CES, &info), 0u);
    EXPECT_EQ((U32s{info.dwLblVlanId, info.dwLblPwCos, info.dwLblPwTtl, info.dwLblPwLable}),
              (U32s{100, 5, 64, 0x12345}));
    uint32_t label = 0, sel = 9, found = 0;
    ASSERT_EQ(VQ6192_ETH_GetAtmCesEgMpls2Chnl(kChip, ch, VQ6192_ETH_SRV_CES, &label, &sel, &found), 0u);
    EXPECT_EQ((U32s{label, sel, found}), (U32s{0x500, 0, 1}));
    uint32_t lblType = 0, vlanCh = 9;
    ASSERT_EQ(VQ6192_ETH_GetEgVlanID2Chnl(kChip, 100, &lblType, &vlanCh), 0u);
    EXPECT_EQ((U32s{lblType, vlanCh}), (U32s{1, 0}));

    ASSERT_EQ(VQ6192_CES_DelCesPwSrv(kChip, ch, 7, 0xFFFFFFFE), 0u);
    EXPECT_EQ((U64s{model.peek(0x15000 + 2 * ch) & 1u, bits(kIdle, ch, 0, 8)}), (U64s{0, 0xDF}));
    ASSERT_EQ(VQ6192_ETH_GetAtmCesEgMpls2Chnl(kChip, ch, VQ6192_ETH_SRV_CES, &label, &sel, &found), 0u);
    EXPECT_EQ(found, 0u) << "in-label map entry cleared";
}

// The first step that fails stops the service: the channel stays created and disabled.
TEST_F(Services, FailedPacketSideStepLeavesTheChannelDisabled) {
    const VQ6192_CES_PW_S first = service(20);
    const uint64_t before = model.tables().writesExecuted(0x4000) + model.tables().readsExecuted(0x4000);
    ASSERT_EQ(VQ6192_CES_CreateCesPwSrv(kChip, &first), 0u);
    const uint64_t ethCommands =
        model.tables().writesExecuted(0x4000) + model.tables().readsExecuted(0x4000) - before;

    VQ6192_CES_PW_S second = service(21);
    second.ulPhyPort = 8;
    second.ulVlanId = 101;
    model.tables().failCommand(0x4000, static_cast<uint32_t>(ethCommands));  // the VLAN map write
    capture.clear();
    EXPECT_EQ(VQ6192_CES_CreateCesPwSrv(kChip, &second), kCesStep);
    EXPECT_EQ(
        capture.traceTexts().back(),
        "Err. VQ6192_CES_CreateCesPwSrv.VQ6192_ETH_SetEgVlanID2Chnl(3,101,1,0)       ErrCode[0x30c0003]\r\n");
    EXPECT_EQ(model.peek(0x15000 + 2 * 21) & 1, 0) << "created, still disabled";
    EXPECT_EQ(bits(kIdle, 21, 0, 8), 0x55u) << "earlier steps kept";
    model.tables().holdBusy(0x4000, 0);
}

TEST_F(Services, RefusalsTouchNothing) {
    const std::vector<std::pair<std::string, void (*)(VQ6192_CES_PW_S &)>> bad = {
        {"channel 336", [](VQ6192_CES_PW_S &p) { p.ulCesChanNo = 336; }},
        {"port 336", [](VQ6192_CES_PW_S &p) { p.ulPhyPort = 336; }},
        {"64 frames", [](VQ6192_CES_PW_S &p) { p.ucFramNum = 64; }},
        {"jitter depth 21504", [](VQ6192_CES_PW_S &p) { p.usJbDepth = 21504; }},
        {"PT 128", [](VQ6192_CES_PW_S &p) { p.stRtpCfg.dwPayloadType = 128; }},
        {"SN mode 4", [](VQ6192_CES_PW_S &p) { p.stRtpCfg.dwTxSnGenmode = 4; }},
        {"VLAN 4096", [](VQ6192_CES_PW_S &p) { p.ulVlanId = 4096; }},
        {"PW label above 20 bits", [](VQ6192_CES_PW_S &p) { p.ulPwLabel = 0x100000; }},
        {"in-label above 20 bits", [](VQ6192_CES_PW_S &p) { p.ulInLabel = 0x100000; }}};
    for (const auto &[what, change] : bad) {
        VQ6192_CES_PW_S pw = service(20);
        change(pw);
        expectRefused(what, [&] { return VQ6192_CES_CreateCesPwSrv(kChip, &pw); });
    }
    CES_REFUSED(VQ6192_CES_DelCesPwSrv(kChip, 352, 0, 0));
}

}  // namespace
