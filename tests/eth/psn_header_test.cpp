// The packet-network header table: entry of each service, field positions, encapsulations.
#include "eth_fixture.h"

namespace {

using namespace ethtest;
using Header = EthFixture;

struct Pos {
    const char *name;
    uint32_t start, width;
};
// Field positions of a header entry, in the order of the information record.
const Pos kPos[18] = {{"dwreserved3", 3, 1},    {"dwLblEthType", 204, 2}, {"dwLblVlanId", 192, 12},
                      {"dwLblEthDah", 176, 16}, {"dwLblEthDal", 144, 32}, {"dwLblGreProType", 128, 16},
                      {"dwLblIpDa", 96, 32},    {"dwLblIpSa", 64, 32},    {"dwLblIpProtcl", 56, 8},
                      {"dwLblIpTtl", 48, 8},    {"dwLblIpTos", 40, 8},    {"dwreserved2", 7, 1},
                      {"dwLblPwLable", 16, 20}, {"dwLblPwTtl", 8, 8},     {"dwreserved1", 36, 4},
                      {"dwLblPwCos", 4, 3},     {"dwreserved0", 206, 2},  {"dwLblHdType", 0, 3}};

uint32_t &at(VQ6192_ETH_PSN_INFO_S &info, int k) {
    return reinterpret_cast<uint32_t *>(&info)[k];
}

TEST_F(Header, EachServiceKindHasItsSliceOfTheTable) {
    for (const auto &[type, ch, entry] : Rows<3>{{2, 0, 0},
                                                 {2, 2047, 2047},
                                                 {1, 0, 2048},
                                                 {1, 511, 2559},
                                                 {0, 0, 2560},
                                                 {0, 255, 2815},
                                                 {3, 5, 2821},
                                                 {3, 351, 3167}}) {
        uint32_t idx = 0;
        EXPECT_EQ(VQ6192_ETH_ConvertSrvChnl2EthChnl(kChip, ch, type, &idx), 0u);
        EXPECT_EQ(idx, entry) << type << "/" << ch;
        VQ6192_ETH_PSN_INFO_S info{};
        info.dwLblIpSa = 0x0A000000u + entry;
        EXPECT_EQ(VQ6192_ETH_SetPSNEthInfo(kChip, ch, type, &info), 0u);
        EXPECT_EQ(bits(kPsn, entry, 64, 32), 0x0A000000u + entry);
    }
    for (const auto &[type, ch] : Rows<2>{{2, 2048}, {1, 512}, {0, 256}, {3, 352}, {4, 0}}) {
        VQ6192_ETH_PSN_INFO_S info{};
        uint32_t idx = 0;
        SCOPED_TRACE(testing::Message() << type << "/" << ch);
        ETH_REFUSED(VQ6192_ETH_ConvertSrvChnl2EthChnl(kChip, ch, type, &idx));
        ETH_REFUSED(VQ6192_ETH_SetPSNEthInfo(kChip, ch, type, &info));
        ETH_REFUSED(VQ6192_ETH_GetPSNEthInfo(kChip, ch, type, &info));
        ETH_REFUSED(VQ6192_ETH_SetPSNEthIPAddr(kChip, ch, type, 1, 2));
    }
}

TEST_F(Header, EveryFieldSitsAtItsBitsAndReadsBack) {
    fillOnes(kPsn, 2821);
    VQ6192_ETH_PSN_INFO_S info{};
    const uint32_t values[18] = {1,    2,    0xABC, 0x0011,  0x22334455, 0x88BE, 0xC0A80102, 0x0A000001, 0x2F,
                                 0x40, 0xB8, 0,     0x12345, 0xFE,       0x9,    5,          2,          6};
    for (int k = 0; k < 18; ++k) {
        at(info, k) = values[k];
    }
    model.tables().setCommandBusy(kBlock, 0);
    const uint64_t readsBefore = model.tables().readsExecuted(kBlock);
    EXPECT_EQ(VQ6192_ETH_SetPSNEthInfo(kChip, 5, VQ6192_ETH_SRV_CES, &info), 0u);
    EXPECT_EQ(model.tables().readsExecuted(kBlock), readsBefore)
        << "the whole entry is written without a read";
    for (int k = 0; k < 18; ++k) {
        EXPECT_EQ(bits(kPsn, 2821, kPos[k].start, kPos[k].width), values[k]) << kPos[k].name;
    }
    VQ6192_ETH_PSN_INFO_S back{};
    EXPECT_EQ(VQ6192_ETH_GetPSNEthInfo(kChip, 5, VQ6192_ETH_SRV_CES, &back), 0u);
    for (int k = 0; k < 18; ++k) {
        EXPECT_EQ(at(back, k), values[k]) << kPos[k].name;
    }
}

TEST_F(Header, ModifyWritesOnlyTheSelectedFields) {
    fillOnes(kPsn, 100);
    VQ6192_ETH_PSN_INFO_S mask{}, info{};
    mask.dwLblVlanId = 1;
    info.dwLblVlanId = 0x123;
    mask.dwLblIpTtl = 1;
    info.dwLblIpTtl = 0x40;
    info.dwLblIpDa = 0;        // not selected
    mask.dwLblGreProType = 2;  // passes the check, writes nothing
    EXPECT_EQ(VQ6192_ETH_ModifyPSNEthInfo(kChip, 100, VQ6192_ETH_SRV_ATM, &mask, &info), 0u);
    EXPECT_EQ(bits(kPsn, 100, 192, 12), 0x123u);
    EXPECT_EQ(bits(kPsn, 100, 0, 64), 0xFF40FFFFFFFFFFFFu);  // IP TTL 48..55
    EXPECT_EQ(bits(kPsn, 100, 64, 64), 0xFFFFFFFFFFFFFFFFu);
    EXPECT_EQ(bits(kPsn, 100, 128, 16), 0xFFFFu);
    // A selector of 2 is refused on every field but the reserved ones and the GRE protocol type.
    for (int k = 0; k < 18; ++k) {
        VQ6192_ETH_PSN_INFO_S m{};
        at(m, k) = 2;
        SCOPED_TRACE(kPos[k].name);
        if (k == 0 || k == 5 || k == 11 || k == 14 || k == 16) {
            EXPECT_EQ(VQ6192_ETH_ModifyPSNEthInfo(kChip, 1, VQ6192_ETH_SRV_ATM, &m, &info), 0u);
        } else {
            ETH_REFUSED(VQ6192_ETH_ModifyPSNEthInfo(kChip, 1, VQ6192_ETH_SRV_ATM, &m, &info));
        }
    }
}

TEST_F(Header, AddressVlanAndDestinationMacChangeTheirFieldsOnly) {
    fillOnes(kPsn, 2048 + 7);
    EXPECT_EQ(VQ6192_ETH_SetPSNEthIPAddr(kChip, 7, VQ6192_ETH_SRV_PPP, 0x01020304, 0x05060708), 0u);
    EXPECT_EQ(VQ6192_ETH_SetIngVlanID(kChip, VQ6192_ETH_SRV_PPP, 7, 0x456), 0u);
    EXPECT_EQ(VQ6192_ETH_SetSrvPktIngDA(kChip, VQ6192_ETH_SRV_PPP, 7, 0x4455, 0x2233, 0x0011), 0u);
    // Source 64..95, destination 96..127, MAC 144..191, VLAN 192..203; the rest stays set.
    EXPECT_EQ((std::vector<uint64_t>{bits(kPsn, 2055, 0, 64), bits(kPsn, 2055, 64, 64),
                                     bits(kPsn, 2055, 128, 64), bits(kPsn, 2055, 192, 16)}),
              (std::vector<uint64_t>{~0ull, 0x0506070801020304, 0x001122334455FFFF, 0xF456}));
    uint32_t vlan = 0;
    EXPECT_EQ(VQ6192_ETH_GetIngVlanID(kChip, VQ6192_ETH_SRV_PPP, 7, &vlan), 0u);
    EXPECT_EQ(vlan, 0x456u);
    ETH_REFUSED(VQ6192_ETH_SetIngVlanID(kChip, 1, 7, 4096));
    ETH_REFUSED(VQ6192_ETH_SetIngVlanID(kChip, 4, 7, 1));
    ETH_REFUSED(VQ6192_ETH_SetSrvPktIngDA(kChip, 3, 352, 1, 2, 3));
}

TEST_F(Header, AtmAndCesEncapsulations) {
    ASSERT_EQ(VQ6192_ETH_SetEgMplsBase(kChip, 0, 0x10000), 0u);
    ASSERT_EQ(VQ6192_ETH_SetEgMplsBase(kChip, 1, 2000), 0u);
    model.poke(0x811E, 0x1133);  // GRE-type protocol 0x33, UDP 0x11
    model.poke(0x8120, 0xAA89);  // MPLS-in-IP 0x89
    struct Case {
        const char *name;
        uint32_t encp, hdType;
        int64_t ethType, ipProto;  // -1: left as it was
        uint32_t inLabel, key;     // Mpls2key entry
    };
    const Case cases[] = {{"remove", 0, 0, -1, -1, 0x10005, 5},
                          {"MPLS unicast", 1, 4, 0, -1, 0x10005, 5},
                          {"MPLS multicast", 2, 4, 1, -1, 0x10005, 5},
                          {"MPLS over IP", 3, 5, 2, 0x89, 0x10005, 5},
                          {"MPLS over GRE", 4, 6, 2, 0x33, 0x10005, 5},
                          {"UDP", 5, 7, 2, 0x11, 2010, 4106},
                          {"MEF", 6, 4, 3, -1, 0x10005, 5}};
    for (uint32_t type : {2u, 3u}) {
        for (const Case &c : cases) {
            SCOPED_TRACE(std::string(c.name) + (type == 2 ? " ATM" : " CES"));
            const uint32_t entry = type == 2 ? 77 : 2816 + 77;
            fillOnes(kPsn, entry);
            setWord(kMpls2Key, c.key, 0xFFF);
            EXPECT_EQ(VQ6192_ETH_SetAtmCesPMUEncpLbl(kChip, 77, type, c.encp, 0xABCDE, c.inLabel), 0u);
            EXPECT_EQ(bits(kPsn, entry, 0, 3), c.hdType);
            EXPECT_EQ(bits(kPsn, entry, 16, 20), c.encp == 0 ? 0xFFFFFu : 0xABCDEu);
            EXPECT_EQ(bits(kPsn, entry, 204, 2), c.ethType < 0 ? 3u : static_cast<uint64_t>(c.ethType));
            EXPECT_EQ(bits(kPsn, entry, 56, 8), c.ipProto < 0 ? 0xFFu : static_cast<uint64_t>(c.ipProto));
            EXPECT_EQ(bits(kPsn, entry, 3, 13), 0x1FFFu);
            EXPECT_EQ(bits(kPsn, entry, 64, 64), 0xFFFFFFFFFFFFFFFFu);
            const uint32_t key = c.encp == 0 ? 0 : (type == 2 ? 0x800u : 0x400u) | 77;
            EXPECT_EQ(bits(kMpls2Key, c.key, 0, 12), key);
        }
    }
    ETH_REFUSED(VQ6192_ETH_SetAtmCesPMUEncpLbl(kChip, 1, 1, 1, 1, 1));
    ETH_REFUSED(VQ6192_ETH_SetAtmCesPMUEncpLbl(kChip, 1, 2, 7, 1, 1));
    ETH_REFUSED(VQ6192_ETH_SetAtmCesPMUEncpLbl(kChip, 1, 2, 1, 0x100000, 0x10005));
}

TEST_F(Header, PppAndBundleEncapsulations) {
    struct Case {
        uint32_t encp;
        uint64_t hdType, label, gre, ethType;
    };
    const Case cases[] = {{0, 7, 0xFFFFF, 0xFFFF, 3}, {7, 2, 0x54321, 0x880B, 3}, {8, 3, 0xFFFFF, 0x880B, 0}};
    for (uint32_t type : {0u, 1u}) {
        for (const Case &c : cases) {
            const uint32_t entry = type == 0 ? 2560 + 9 : 2048 + 9;
            fillOnes(kPsn, entry);
            EXPECT_EQ(VQ6192_ETH_SetPppPMUEncpLbl(kChip, 9, type, c.encp, 0x54321, 0x880B), 0u);
            EXPECT_EQ(bits(kPsn, entry, 0, 3), c.hdType) << c.encp;
            EXPECT_EQ(bits(kPsn, entry, 16, 20), c.label) << c.encp;
            EXPECT_EQ(bits(kPsn, entry, 128, 16), c.gre) << c.encp;
            EXPECT_EQ(bits(kPsn, entry, 204, 2), c.ethType) << c.encp;
        }
    }
    ETH_REFUSED(VQ6192_ETH_SetPppPMUEncpLbl(kChip, 1, 1, 5, 1, 1));
    ETH_REFUSED(VQ6192_ETH_SetPppPMUEncpLbl(kChip, 256, 0, 7, 1, 1));
}

TEST_F(Header, AFailedReadIsOredAndTheModifyStillWrites) {
    fillOnes(kPsn, 1);
    model.tables().holdBusy(kBlock, 500);  // the read times out, the write goes through
    VQ6192_ETH_PSN_INFO_S mask{}, info{};
    mask.dwLblPwTtl = 1;
    info.dwLblPwTtl = 0x33;
    EXPECT_EQ(VQ6192_ETH_ModifyPSNEthInfo(kChip, 1, 2, &mask, &info), 0x030C0003u);
    EXPECT_EQ(bits(kPsn, 1, 8, 8), 0x33u);
    EXPECT_EQ(bits(kPsn, 1, 0, 8), 0u);
}

}  // namespace
