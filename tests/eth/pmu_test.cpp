// Global header attributes, packet-engine controls and the Ethernet side's initialisation.
#include "eth_fixture.h"

namespace {

using namespace ethtest;
using Pmu = EthFixture;

TEST_F(Pmu, IpGreAndUdpAttributesKeepTheNeighbouringBits) {
    model.poke(0x8126, 0xFF00);
    model.poke(0x812A, 0x0000);
    model.poke(0x812C, 0xFFF8);
    VQ6192_ETH_PMU_IP_GLB_ATTR_S ip{4, 5, 0xBEEF, 2, 0x1ABC, 0xC0A80001};
    EXPECT_EQ(VQ6192_ETH_SetPMUIpGlbAttr(kChip, &ip), 0u);
    EXPECT_EQ(model.peek(0x8126), 0xFF45);
    EXPECT_EQ(model.peek(0x8128), 0xBEEF);
    EXPECT_EQ(model.peek(0x812A), 0x5ABC);
    EXPECT_EQ(model.peek(0x810A), 0xC0A8);
    EXPECT_EQ(model.peek(0x810C), 0x0001);
    VQ6192_ETH_PMU_IP_GLB_ATTR_S back{};
    EXPECT_EQ(VQ6192_ETH_GetPMUIpGlbAttr(kChip, &back), 0u);
    EXPECT_EQ(back.wIdentification, 0xBEEF);
    EXPECT_EQ(back.wFrmOffset, 0x1ABC);
    EXPECT_EQ(back.dwEgIpDaChkAddr, 0xC0A80001u);
    const VQ6192_ETH_PMU_IP_GLB_ATTR_S bad[] = {
        {16, 5, 0, 0, 0, 0}, {4, 16, 0, 0, 0, 0}, {4, 5, 0, 8, 0, 0}, {4, 5, 0, 0, 8192, 0}};
    for (const auto &b : bad) {
        expectRefused("ip", kEthPara, [&] { return VQ6192_ETH_SetPMUIpGlbAttr(kChip, &b); });
    }
    VQ6192_ETH_PMU_GRE_GLB_ATTR_S gre{5, 0x6558, 0x880B};
    EXPECT_EQ(VQ6192_ETH_SetPMUGreGlbAttr(kChip, &gre), 0u);
    EXPECT_EQ(model.peek(0x812C), 0xFFFD);
    EXPECT_EQ(model.peek(0x8112), 0x6558);
    EXPECT_EQ(model.peek(0x8114), 0x880B);
    gre.byVer = 8;
    expectRefused("gre", kEthPara, [&] { return VQ6192_ETH_SetPMUGreGlbAttr(kChip, &gre); });
    EXPECT_EQ(VQ6192_ETH_SetPMUUdpSPort(kChip, 0xC000), 0u);
    EXPECT_EQ(model.peek(0x8124), 0xC000);
    expectRefused("udp", kEthPara, [] { return VQ6192_ETH_SetPMUUdpSPort(kChip, 0x10000); });
}

TEST_F(Pmu, PatternControlWritesTheSelectedBits) {
    model.poke(0x8100, 0x8000);
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
    EXPECT_EQ(back.byPtnLenLocSel, 1);
    EXPECT_EQ(back.byGreCheckEn, 1);
    EXPECT_EQ(back.byToCpuEn, 0);
    val.byToCpuEn = 2;
    expectRefused("value 2", kEthPara, [&] { return VQ6192_ETH_SetPmuPtnCtrl(kChip, &sel, &val); });
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
         0x0008},
    };
    for (const Case &c : cases) {
        model.poke(0x8100, c.before);
        EXPECT_EQ(c.op(), 0u) << c.name;
        EXPECT_EQ(model.peek(0x8100), c.after) << c.name;
    }
    EXPECT_EQ(model.peek(0x8116), 1);
    EXPECT_EQ(model.peek(0x811C), 4);
    EXPECT_EQ(model.peek(0x810E), 0xFFF);
    EXPECT_EQ(model.peek(0x8110), 0x021);
    EXPECT_EQ(VQ6192_ETH_SetPppProtocolType(kChip, 0, 0xFFFF, 0), 0u);
    expectRefused("value above 4095 in mode 1", kEthPara,
                  [] { return VQ6192_ETH_SetPppProtocolType(kChip, 1, 0x1000, 0); });
    model.poke(0x812E, 0xFF80);
    EXPECT_EQ(VQ6192_ETH_SetPppCpuHead(kChip, 1, 20, 0xAA, 0x55), 0u);
    EXPECT_EQ(model.peek(0x812E), 0xFFD4);
    EXPECT_EQ(model.peek(0x8130), 0x55AA);
    expectRefused("head length 65", kEthPara, [] { return VQ6192_ETH_SetPppCpuHead(kChip, 1, 65, 0, 0); });
    expectRefused("head value 257", kEthPara, [] { return VQ6192_ETH_SetPppCpuHead(kChip, 1, 1, 257, 0); });
    model.poke(0x8122, 0xFFFE);
    EXPECT_EQ(VQ6192_ETH_SetIngPMUPWS(kChip, 1), 0u);
    EXPECT_EQ(model.peek(0x8122), 0xFFFF);
    expectRefused("pause service 4", kEthPara, [] { return VQ6192_ETH_SetMpPppPauseEn(kChip, 4, 1); });
}

TEST_F(Pmu, InitialisationSetsTheMacsAndTheFourProtocolPairs) {
    for (uint32_t m : {1u, 2u}) {
        mac().setReg(m, 15, 0xFFFFFFFF);
        mac().setReg(m, 24, 0xFFFFFFFF);
        mac().setReg(m, 120, 0);
        mac().setReg(m, 20, 0xFFFFFFE0);
    }
    EXPECT_EQ(VQ6192_ETH_ETHInit(kChip, 1), 0u);
    EXPECT_EQ(model.peek(0x80B8) & 1, 1);
    for (uint32_t m : {1u, 2u}) {
        EXPECT_EQ(mac().reg(m, 15), 0xFFFFC000u | 2036);
        EXPECT_EQ(mac().reg(m, 24), 0xFFFFFF7Fu);
        EXPECT_EQ(mac().reg(m, 120), 0x18u);
        EXPECT_EQ(mac().reg(m, 20), 0xFFFFFFF0u);
    }
    const uint32_t ppp[4] = {0x0021, 0x0281, 0x0023, 0x0057};
    const uint32_t type[4] = {0x0800, 0x8847, 0x8000, 0x86DD};
    for (uint32_t i = 0; i < 4; ++i) {
        EXPECT_EQ(model.peek(0x8180 + 2 * i), ppp[i]);
        EXPECT_EQ(model.peek(0x81C0 + 2 * i), type[i]);
        EXPECT_EQ(bits(kUpType, i, 0, 16), type[i]);
        EXPECT_EQ(bits(kDownPro, i, 0, 16), ppp[i]);
    }
    EXPECT_EQ(model.peek(0x8146), 0xF);
    EXPECT_EQ(model.peek(0x814A), 0xF);
    EXPECT_EQ(traced([] { EXPECT_EQ(VQ6192_ETH_ETHInit(kChip, 2), 0u); }).size(), 0u);
    expectRefused("mode 0", kEthPara, [] { return VQ6192_ETH_ETHInit(kChip, 0); });
}

}  // namespace
