// Label, VLAN, PID and protocol maps in both directions, with the reverse label search and its bound.
#include "eth_fixture.h"

namespace {

using namespace ethtest;
using Maps = EthFixture;

TEST_F(Maps, InLabelWindowOfTheMplsAndUdpBases) {
    model.poke(0x8200, 0xFFF0);  // bits 4..15 are not the base's
    ASSERT_EQ(VQ6192_ETH_SetEgMplsBase(kChip, 0, 1000), 0u);
    ASSERT_EQ(VQ6192_ETH_SetEgMplsBase(kChip, 1, 2000), 0u);
    EXPECT_EQ(peek({0x8200, 0x8202, 0x8204}), (U32s{0xFFF0, 1000, 2000}));
    ASSERT_EQ(VQ6192_ETH_SetEgMplsBase(kChip, 0, 0xABCDE), 0u);
    EXPECT_EQ(peek({0x8200, 0x8202}), (U32s{0xFFFA, 0xBCDE}));
    ASSERT_EQ(VQ6192_ETH_SetEgMplsBase(kChip, 0, 1000), 0u);

    // Channel, kind, in-label, MPLS (0) or UDP (1) base, enable; Mpls2key entry and its 12-bit key.
    for (const auto &[ch, type, inLabel, sel, en, entry, key] : Rows<7>{{5, 3, 5095, 0, 1, 4095, 0x405},
                                                                        {2047, 2, 1000, 0, 1, 0, 0xFFF},
                                                                        {351, 3, 2010, 1, 1, 4106, 0x55F},
                                                                        {300, 2, 6095, 1, 1, 8191, 0x92C},
                                                                        {300, 2, 6095, 1, 0, 8191, 0}}) {
        setWord(kMpls2Key, entry, 0xFFFFFFFF);
        EXPECT_EQ(VQ6192_ETH_SetAtmCesEgMpls2Chnl(kChip, ch, type, inLabel, sel, en), 0u);
        EXPECT_EQ(bits(kMpls2Key, entry, 0, 12), key) << inLabel;
        uint32_t gotType = 9, gotCh = 9, valid = 9;
        EXPECT_EQ(VQ6192_ETH_GetAtmCesEgChnl2Mpls(kChip, sel, inLabel, &gotType, &gotCh, &valid), 0u);
        EXPECT_EQ(valid, en);
        if (en == 1) {
            EXPECT_EQ((U32s{gotType, gotCh}), (U32s{type, ch}));
        }
    }
    for (const auto &[bad, text] : {std::pair{999u, "0x3e7"}, std::pair{5096u, "0x13e8"}}) {
        capture.clear();
        EXPECT_EQ(VQ6192_ETH_SetAtmCesEgMpls2Chnl(kChip, 1, 3, bad, 0, 1), kEthPara);
        EXPECT_EQ(capture.traceTexts()[0], "VQ6192_ETH_SetAtmCesEgMpls2Chnl 3rd Para[" + std::string(text) +
                                               "] Error. MPLSBase[0x3e8]  \n");
    }
    ETH_REFUSED(VQ6192_ETH_SetAtmCesEgMpls2Chnl(kChip, 352, 3, 1000, 0, 1));
    ETH_REFUSED(VQ6192_ETH_SetAtmCesEgMpls2Chnl(kChip, 2048, 2, 1000, 0, 1));
    ETH_REFUSED(VQ6192_ETH_SetAtmCesEgMpls2Chnl(kChip, 1, 1, 1000, 0, 1));
    ETH_REFUSED(VQ6192_ETH_SetAtmCesEgMpls2Chnl(kChip, 1, 2, 1000, 2, 1));
    ETH_REFUSED(VQ6192_ETH_SetEgMplsBase(kChip, 0, 1u << 20));
    ETH_REFUSED(VQ6192_ETH_SetEgMplsBase(kChip, 1, 1u << 16));
}

TEST_F(Maps, ReverseSearchFindsTheFirstEntryOfAChannel) {
    ASSERT_EQ(VQ6192_ETH_SetEgMplsBase(kChip, 0, 0x20000), 0u);
    ASSERT_EQ(VQ6192_ETH_SetEgMplsBase(kChip, 1, 5000), 0u);
    setWord(kMpls2Key, 300, 0x800 | 17);          // ATM 17 by MPLS label
    setWord(kMpls2Key, 5000, 0x800 | 17);         // and by UDP port, later
    setWord(kMpls2Key, 6000, 0x400 | 17);         // CES 17 by UDP port only
    setWord(kMpls2Key, 100, 0x400 | 0x200 | 17);  // bit 9 set: not the CES channel's value
    VQ6192_Set_Printf_Flag(kChip, VQ6192_MODULE_ETH, VQ6192_PRINT_ALL);
    // Channel and kind; in-label, base and found reported; entries read.
    for (const auto &[ch, type, inLabel, sel, found, reads] : Rows<6>{{17, 2, 0x20000 + 300, 0, 1, 301},
                                                                      {17, 3, 5000 + 6000 - 4096, 1, 1, 6001},
                                                                      {18, 2, 0, 2, 0, 8192}}) {
        capture.clear();
        const uint64_t before = model.tables().readsExecuted(kBlock);
        uint32_t l = 9, s = 9, f = 9;
        EXPECT_EQ(VQ6192_ETH_GetAtmCesEgMpls2Chnl(kChip, ch, type, &l, &s, &f), 0u);
        EXPECT_EQ((U32s{l, s, f}), (U32s{inLabel, sel, found}));
        EXPECT_EQ(model.tables().readsExecuted(kBlock) - before, reads);
        if (found == 0) {
            EXPECT_EQ(
                capture.traceTexts(),
                std::vector<std::string>{
                    "VQ6192_ETH_GetAtmCesEgMpls2Chnl(0x3,0x12,0x2,0,0x2). return [0] Not found data. \n"});
        }
    }
    uint32_t a, b, c;
    ETH_REFUSED(VQ6192_ETH_GetAtmCesEgMpls2Chnl(kChip, 512, 2, &a, &b, &c));
    ETH_REFUSED(VQ6192_ETH_GetAtmCesEgMpls2Chnl(kChip, 1, 4, &a, &b, &c));
}

TEST_F(Maps, VlanToChannel) {
    // VLAN, kind, channel; the entry (kind 9..11, channel 0..8, the rest kept) and the channel stored.
    for (const auto &[vlan, type, ch, word0, stored] : Rows<5>{{10, 1, 77, 0xFFFFF200, 0},
                                                               {11, 7, 77, 0xFFFFFE4D, 77},
                                                               {12, 6, 600, 0xFFFFFC58, 88},
                                                               {13, 6, 300, 0xFFFFFD2C, 300},
                                                               {4095, 4, 255, 0xFFFFF8FF, 255}}) {
        setWord(kVlan, vlan, 0xFFFFFFFF);
        EXPECT_EQ(VQ6192_ETH_SetEgVlanID2Chnl(kChip, vlan, type, ch), 0u);
        EXPECT_EQ(word(kVlan, vlan), word0);
        uint32_t t = 0, c = 0;
        EXPECT_EQ(VQ6192_ETH_GetEgVlanID2Chnl(kChip, vlan, &t, &c), 0u);
        EXPECT_EQ((U32s{t, c}), (U32s{type, stored}));
    }
    ETH_REFUSED(VQ6192_ETH_SetEgVlanID2Chnl(kChip, 4096, 1, 1));
    ETH_REFUSED(VQ6192_ETH_SetEgVlanID2Chnl(kChip, 1, 8, 1));
    ETH_REFUSED(VQ6192_ETH_SetEgVlanID2Chnl(kChip, 1, 1, 2048));
}

TEST_F(Maps, ChannelToCpuPid) {
    for (const auto &[ch, kind, entry] :
         Rows<3>{{3, 0, 3}, {511, 1, 1023}, {255, 2, 1279}, {7, 3, 1287}, {255, 3, 1535}}) {
        EXPECT_EQ(VQ6192_ETH_SetIngPPPMP2PID(kChip, ch, kind, 0xABC, 1), 0u);
        EXPECT_EQ(bits(kNo2Pid, entry, 0, 13), 0x1ABCu);
        uint32_t pid = 0, valid = 0;
        EXPECT_EQ(VQ6192_ETH_GetIngPPPMP2PID(kChip, ch, kind, &pid, &valid), 0u);
        EXPECT_EQ((U32s{pid, valid}), (U32s{0xABC, 1}));
    }
    EXPECT_EQ(VQ6192_ETH_SetIngPPPMP2PID(kChip, 3, 0, 0x123, 0), 0u);
    EXPECT_EQ(bits(kNo2Pid, 3, 0, 13), 0x123u);
    EXPECT_EQ(traced([] { EXPECT_EQ(VQ6192_ETH_SetIngPPPMP2PID(kChip, 3, 4, 1, 1), kEthKind); }).size(), 0u);
    ETH_REFUSED(VQ6192_ETH_SetIngPPPMP2PID(kChip, 256, 2, 1, 1));
    // The index conversion itself: 512 PPP channels of each kind, 256 bundles of each kind.
    uint32_t index = 0;
    for (const auto &[ch, kind] : Rows<2>{{512, 0}, {512, 1}, {256, 2}, {256, 3}}) {
        ETH_REFUSED(VQ6192_ETH_ConvertPPPChnlPktType(kChip, ch, kind, &index));
        EXPECT_EQ(VQ6192_ETH_ConvertPPPChnlPktType(kChip, ch - 1, kind, &index), 0u);
    }
    ETH_REFUSED(VQ6192_ETH_SetIngPPPMP2PID(kChip, 1, 0, 4096, 1));
}

TEST_F(Maps, CpuPidToChannel) {
    // PID, channel, kind, enable; the stored 10 bits; what the getter reports.
    for (const auto &[pid, ch, kind, en, stored, gotCh, gotKind, gotEn] :
         Rows<8>{{0, 511, 0, 1, 0x3FF, 511, 0, 1},
                 {1, 255, 1, 1, 0x1FF, 255, 1, 1},
                 {2, 300, 0, 0, 0x02C, 512, 2, 0},
                 {2047, 9, 1, 0, 0x009, 512, 2, 0}}) {
        setWord(kPid2No, pid, 0xFFFFFFFF);
        EXPECT_EQ(VQ6192_ETH_SetEgPID2PPPMP(kChip, pid, ch, kind, en), 0u);
        EXPECT_EQ(bits(kPid2No, pid, 0, 10), stored);
        uint32_t c = 0, k = 0, e = 0;
        EXPECT_EQ(VQ6192_ETH_GetEgPID2PPPMP(kChip, pid, &c, &k, &e), 0u);
        EXPECT_EQ((U32s{c, k, e}), (U32s{gotCh, gotKind, gotEn}));
    }
    uint32_t ch, kind, en;
    EXPECT_EQ(VQ6192_ETH_GetEgPID2PPPMP(kChip, 2048, &ch, &kind, &en), 0u);
    ETH_REFUSED(VQ6192_ETH_SetEgPID2PPPMP(kChip, 2048, 1, 0, 1));
    ETH_REFUSED(VQ6192_ETH_SetEgPID2PPPMP(kChip, 1, 256, 1, 1));
    ETH_REFUSED(VQ6192_ETH_GetEgPID2PPPMP(kChip, 2049, &ch, &kind, &en));
}

TEST_F(Maps, ProtocolPairsInEachDirection) {
    poke({{0x8146, 0xAAAA}, {0x8148, 0x5555}, {0x814A, 0x0F0F}, {0x814C, 0xF0F0}});
    for (const auto &[idx, dir, up0, up1, down0, down1, upReg, downReg] :
         Rows<8>{{0, 0, 0xAAAB, 0x5555, 0x0F0F, 0xF0F0, true, false},
                 {17, 1, 0xAAAB, 0x5555, 0x0F0F, 0xF0F2, false, true},
                 {2, 2, 0xAAAF, 0x5555, 0x0F0F, 0xF0F2, true, true}}) {
        EXPECT_EQ(VQ6192_ETH_SetSrvPPPPro2EthType(kChip, idx, dir, 0x0021, 0x0800, 1), 0u);
        EXPECT_EQ(peek({0x8146, 0x8148, 0x814A, 0x814C, 0x8180 + 2 * idx, 0x81C0 + 2 * idx}),
                  (U32s{up0, up1, down0, down1, upReg ? 0x0021u : 0, downReg ? 0x0800u : 0}));
        EXPECT_EQ((U32s{word(kUpType, idx), word(kDownPro, idx)}),
                  (U32s{upReg ? 0x0800u : 0, downReg ? 0x0021u : 0}));
    }
    uint32_t ppp = 0, type = 0, active = 0;
    EXPECT_EQ(VQ6192_ETH_GetSrvPPPPro2EthType(kChip, 17, 1, &ppp, &type, &active), 0u);
    EXPECT_EQ((U32s{ppp, type, active}), (U32s{0x0021, 0x0800, 1}));
    ETH_REFUSED(VQ6192_ETH_GetSrvPPPPro2EthType(kChip, 1, 2, &ppp, &type, &active));
    ETH_REFUSED(VQ6192_ETH_GetSrvPPPPro2EthType(kChip, 32, 0, &ppp, &type, &active));
    ETH_REFUSED(VQ6192_ETH_SetSrvPPPPro2EthType(kChip, 32, 0, 1, 1, 1));
    ETH_REFUSED(VQ6192_ETH_SetSrvPPPPro2EthType(kChip, 1, 3, 1, 1, 1));
}

TEST_F(Maps, CpuProtocolEntries) {
    model.poke(0x8206, 0x00FF);
    EXPECT_EQ(VQ6192_ETH_SetPPPPro2EthPro(kChip, 15, 0xC021, 0x7E, 1), 0u);
    EXPECT_EQ(VQ6192_ETH_SetPPPPro2EthPro(kChip, 0, 0x8021, 0x01, 0), 0u);
    EXPECT_EQ(peek({0x8206, 0x8220 + 30}), (U32s{0x80FE, 0xC021}));
    EXPECT_EQ(bits(kCpuProto, 15, 0, 8), 0x7Eu);
    uint32_t ppp = 0, cpu = 0, active = 0;
    EXPECT_EQ(VQ6192_ETH_GetPPPPro2EthPro(kChip, 15, &ppp, &cpu, &active), 0u);
    EXPECT_EQ((U32s{ppp, cpu, active}), (U32s{0xC021, 0x7E, 1}));
    ETH_REFUSED(VQ6192_ETH_SetPPPPro2EthPro(kChip, 16, 1, 1, 1));
    ETH_REFUSED(VQ6192_ETH_SetPPPPro2EthPro(kChip, 1, 1, 1, 2));
}

}  // namespace
