// Global header attributes, packet-engine controls and the Ethernet side's initialisation.
#include "eth_fixture.h"

namespace {

using namespace ethtest;
using Pmu = EthFixture;

TEST_F(Pmu, IpGreAndUdpAttributesKeepTheNeighbouringBits) {
    poke({{0x8126, 0xFF00}, {0x812A, 0x0000}, {0x812C, 0xFFF8}});
    VQ6192_ETH_PMU_IP_GLB_ATTR_S ip{4, 5, 0xBEEF, 2, 0x1ABC, 0xC0A80001};
    EXPECT_EQ(VQ6192_ETH_SetPMUIpGlbAttr(kChip, &ip), 0u);
    EXPECT_EQ(peek({0x8126, 0x8128, 0x812A, 0x810A, 0x810C}), (U32s{0xFF45, 0xBEEF, 0x5ABC, 0xC0A8, 0x0001}));
    VQ6192_ETH_PMU_IP_GLB_ATTR_S back{};
    EXPECT_EQ(VQ6192_ETH_GetPMUIpGlbAttr(kChip, &back), 0u);
    EXPECT_EQ((U32s{back.wIdentification, back.wFrmOffset, back.dwEgIpDaChkAddr}),
              (U32s{0xBEEF, 0x1ABC, 0xC0A80001}));
    const VQ6192_ETH_PMU_IP_GLB_ATTR_S bad[] = {
        {16, 5, 0, 0, 0, 0}, {4, 16, 0, 0, 0, 0}, {4, 5, 0, 8, 0, 0}, {4, 5, 0, 0, 8192, 0}};
    for (const auto &b : bad) {
        ETH_REFUSED(VQ6192_ETH_SetPMUIpGlbAttr(kChip, &b));
    }
    VQ6192_ETH_PMU_GRE_GLB_ATTR_S gre{5, 0x6558, 0x880B};
    EXPECT_EQ(VQ6192_ETH_SetPMUGreGlbAttr(kChip, &gre), 0u);
    EXPECT_EQ(peek({0x812C, 0x8112, 0x8114}), (U32s{0xFFFD, 0x6558, 0x880B}));
    gre.byVer = 8;
    ETH_REFUSED(VQ6192_ETH_SetPMUGreGlbAttr(kChip, &gre));
    EXPECT_EQ(VQ6192_ETH_SetPMUUdpSPort(kChip, 0xC000), 0u);
    EXPECT_EQ(model.peek(0x8124), 0xC000);
    ETH_REFUSED(VQ6192_ETH_SetPMUUdpSPort(kChip, 0x10000));
}

TEST_F(Pmu, PatternControlWritesTheSelectedBits) {
    VQ6192_ETH_PMU_PTN_S sel{}, val{};
    sel.byPtnLenLocSel = 1;  // bit 14
    val.byPtnLenLocSel = 1;
    sel.byGreCheckEn = 1;  // bit 7
    val.byGreCheckEn = 1;
    sel.byToCpuEn = 1;      // bit 0, cleared
    val.byVlanDisable = 1;  // not selected
    model.poke(0x8100, 0x8001);
    EXPECT_EQ(VQ6192_ETH_SetPmuPtnCtrl(kChip, &sel, &val), 0u);
    EXPECT_EQ(model.peek(0x8100), 0xC080);
    VQ6192_ETH_PMU_PTN_S back{};
    EXPECT_EQ(VQ6192_ETH_GetPmuPtnCtrl(kChip, &back), 0u);
    EXPECT_EQ((U32s{back.byPtnLenLocSel, back.byGreCheckEn, back.byToCpuEn}), (U32s{1, 1, 0}));
    val.byToCpuEn = 2;
    ETH_REFUSED(VQ6192_ETH_SetPmuPtnCtrl(kChip, &sel, &val));
}

TEST_F(Pmu, FlagsOfTheControlRegister) {
    struct Case {
        const char *name;
        std::function<uint32_t()> op;
        uint16_t before, after;
    };
    const Case cases[] = {
        {"VLAN disable", [] { return VQ6192_ETH_SetVLANDisable(kChip, 1); }, 0x0000, 0x0004},
        {"CPU insert", [] { return VQ6192_ETH_SetPppCpuInsertEnable(kChip, 1, 0); }, 0x0001, 0x0002},
        {"bundle pause", [] { return VQ6192_ETH_SetMpPppPauseEn(kChip, 0, 1); }, 0x0000, 0x0300},
        {"PPP pause", [] { return VQ6192_ETH_SetMpPppPauseEn(kChip, 1, 1); }, 0x0200, 0x0100},
        {"pause DA", [] { return VQ6192_ETH_SetEthPausePara(kChip, 1, 1, 2, 3, 4); }, 0x0000, 0x0400},
        {"protocol mode", [] { return VQ6192_ETH_SetPppProtocolType(kChip, 1, 0xFFF, 0x021); }, 0x0000,
         0x0008}};
    for (const Case &c : cases) {
        model.poke(0x8100, c.before);
        EXPECT_EQ(c.op(), 0u) << c.name;
        EXPECT_EQ(model.peek(0x8100), c.after) << c.name;
    }
    EXPECT_EQ(peek({0x8116, 0x811C, 0x810E, 0x8110}), (U32s{1, 4, 0xFFF, 0x021}));
    EXPECT_EQ(VQ6192_ETH_SetPppProtocolType(kChip, 0, 0xFFFF, 0), 0u);
    ETH_REFUSED(VQ6192_ETH_SetPppProtocolType(kChip, 1, 0x1000, 0));
    model.poke(0x812E, 0xFF80);
    EXPECT_EQ(VQ6192_ETH_SetPppCpuHead(kChip, 1, 20, 0xAA, 0x55), 0u);
    EXPECT_EQ(peek({0x812E, 0x8130}), (U32s{0xFFD4, 0x55AA}));
    ETH_REFUSED(VQ6192_ETH_SetPppCpuHead(kChip, 1, 65, 0, 0));
    ETH_REFUSED(VQ6192_ETH_SetPppCpuHead(kChip, 1, 1, 257, 0));
    model.poke(0x8122, 0xFFFE);
    EXPECT_EQ(VQ6192_ETH_SetIngPMUPWS(kChip, 1), 0u);
    EXPECT_EQ(model.peek(0x8122), 0xFFFF);
    ETH_REFUSED(VQ6192_ETH_SetMpPppPauseEn(kChip, 4, 1));
}

TEST_F(Pmu, InitialisationSetsTheMacsAndTheFourProtocolPairs) {
    for (uint32_t m : {1u, 2u}) {
        setMac(m, {{15, 0xFFFFFFFF}, {24, 0xFFFFFFFF}, {120, 0}, {20, 0xFFFFFFE0}});
    }
    EXPECT_EQ(VQ6192_ETH_ETHInit(kChip, 1), 0u);
    EXPECT_EQ(model.peek(0x80B8) & 1, 1);
    for (uint32_t m : {1u, 2u}) {
        EXPECT_EQ(macRegs(m, {15, 24, 120, 20}), (U32s{0xFFFFC000u | 2036, 0xFFFFFF7F, 0x18, 0xFFFFFFF0}));
    }
    const uint32_t ppp[4] = {0x0021, 0x0281, 0x0023, 0x0057};
    const uint32_t type[4] = {0x0800, 0x8847, 0x8000, 0x86DD};
    for (uint32_t i = 0; i < 4; ++i) {
        EXPECT_EQ(peek({0x8180 + 2 * i, 0x81C0 + 2 * i}), (U32s{ppp[i], type[i]}));
        EXPECT_EQ((U32s{word(kUpType, i), word(kDownPro, i)}), (U32s{type[i], ppp[i]}));
    }
    EXPECT_EQ(peek({0x8146, 0x814A}), (U32s{0xF, 0xF}));
    EXPECT_EQ(traced([] { EXPECT_EQ(VQ6192_ETH_ETHInit(kChip, 2), 0u); }).size(), 0u);
    ETH_REFUSED(VQ6192_ETH_ETHInit(kChip, 0));
}

}  // namespace
