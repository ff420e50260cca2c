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
    uint32_t base = 0;
    EXPECT_EQ(VQ6192_ETH_GetEgMplsBase(kChip, 0, &base), 0u);
    EXPECT_EQ(base, 0xABCDEu);
    ASSERT_EQ(VQ6192_ETH_SetEgMplsBase(kChip, 0, 1000), 0u);

    struct Case {
        uint32_t ch, type, inLabel, sel, en, rc, entry, key;
    };
    const Case cases[] = {{5, 3, 5095, 0, 1, 0, 4095, 0x405},
                          {2047, 2, 1000, 0, 1, 0, 0, 0xFFF},
                          {351, 3, 2010, 1, 1, 0, 4106, 0x55F},
                          {300, 2, 6095, 1, 1, 0, 8191, 0x92C},
                          {300, 2, 6095, 1, 0, 0, 8191, 0}};
    for (const Case &c : cases) {
        setWord(kMpls2Key, c.entry, 0xFFFFFFFF);
        EXPECT_EQ(VQ6192_ETH_SetAtmCesEgMpls2Chnl(kChip, c.ch, c.type, c.inLabel, c.sel, c.en), c.rc);
        EXPECT_EQ(bits(kMpls2Key, c.entry, 0, 12), c.key) << c.inLabel;
        uint32_t type = 9, ch = 9, valid = 9;
        EXPECT_EQ(VQ6192_ETH_GetAtmCesEgChnl2Mpls(kChip, c.sel, c.inLabel, &type, &ch, &valid), 0u);
        EXPECT_EQ(valid, c.en);
        if (c.en == 1) {
            EXPECT_EQ((U32s{type, ch}), (U32s{c.type, c.ch}));
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
    struct Case {
        uint32_t ch, type, inLabel, sel, found;
        uint64_t reads;
    };
    const Case cases[] = {
        {17, 2, 0x20000 + 300, 0, 1, 301}, {17, 3, 5000 + 6000 - 4096, 1, 1, 6001}, {18, 2, 0, 2, 0, 8192}};
    VQ6192_Set_Printf_Flag(kChip, VQ6192_MODULE_ETH, VQ6192_PRINT_ALL);
    for (const Case &c : cases) {
        capture.clear();
        const uint64_t before = model.tables().readsExecuted(kBlock);
        uint32_t inLabel = 9, sel = 9, found = 9;
        EXPECT_EQ(VQ6192_ETH_GetAtmCesEgMpls2Chnl(kChip, c.ch, c.type, &inLabel, &sel, &found), 0u);
        EXPECT_EQ((U32s{inLabel, sel, found}), (U32s{c.inLabel, c.sel, c.found}));
        EXPECT_EQ(model.tables().readsExecuted(kBlock) - before, c.reads);
        if (c.found == 0) {
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
    struct Case {
        uint32_t vlan, type, ch, stored;
    };
    const Case cases[] = {{10, 1, 77, 0}, {11, 7, 77, 77}, {12, 6, 600, 88}, {4095, 4, 255, 255}};
    for (const Case &c : cases) {
        setWord(kVlan, c.vlan, 0xFFFFFFFF);
        EXPECT_EQ(VQ6192_ETH_SetEgVlanID2Chnl(kChip, c.vlan, c.type, c.ch), 0u);
        EXPECT_EQ(word(kVlan, c.vlan), 0xFFFFF000u | c.type << 9 | c.stored);
        uint32_t type = 0, ch = 0;
        EXPECT_EQ(VQ6192_ETH_GetEgVlanID2Chnl(kChip, c.vlan, &type, &ch), 0u);
        EXPECT_EQ((U32s{type, ch}), (U32s{c.type, c.stored}));
    }
    ETH_REFUSED(VQ6192_ETH_SetEgVlanID2Chnl(kChip, 4096, 1, 1));
    ETH_REFUSED(VQ6192_ETH_SetEgVlanID2Chnl(kChip, 1, 8, 1));
    ETH_REFUSED(VQ6192_ETH_SetEgVlanID2Chnl(kChip, 1, 1, 2048));
}

TEST_F(Maps, ChannelToCpuPid) {
    for (const auto &[ch, kind, entry] : Rows<3>{{3, 0, 3}, {511, 1, 1023}, {255, 2, 1279}, {7, 3, 1287}}) {
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
    ETH_REFUSED(VQ6192_ETH_SetIngPPPMP2PID(kChip, 1, 0, 4096, 1));
}

TEST_F(Maps, CpuPidToChannel) {
    struct Case {
        uint32_t pid, ch, kind, en, stored, gotCh, gotKind, gotEn;
    };
    const Case cases[] = {{0, 511, 0, 1, 0x3FF, 511, 0, 1},
                          {1, 255, 1, 1, 0x1FF, 255, 1, 1},
                          {2, 300, 0, 0, 0x02C, 512, 2, 0},
                          {2047, 9, 1, 0, 0x009, 512, 2, 0}};
    for (const Case &c : cases) {
        setWord(kPid2No, c.pid, 0xFFFFFFFF);
        EXPECT_EQ(VQ6192_ETH_SetEgPID2PPPMP(kChip, c.pid, c.ch, c.kind, c.en), 0u);
        EXPECT_EQ(bits(kPid2No, c.pid, 0, 10), c.stored);
        uint32_t ch = 0, kind = 0, en = 0;
        EXPECT_EQ(VQ6192_ETH_GetEgPID2PPPMP(kChip, c.pid, &ch, &kind, &en), 0u);
        EXPECT_EQ((U32s{ch, kind, en}), (U32s{c.gotCh, c.gotKind, c.gotEn}));
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
