// MAC port settings (one MAC register each), pause address and mode, and the MIB record with carry.
#include "eth_fixture.h"

namespace {

using namespace ethtest;
using MacPorts = EthFixture;

TEST_F(MacPorts, EachSetterChangesItsBitOnly) {
    struct Case {
        const char *name;
        uint32_t (*op)(uint32_t, uint32_t, uint32_t);
        uint32_t port, value, reg, bit;
        bool inverted;
    };
    const Case cases[] = {{"tx enable", VQ6192_MAC_SetPortTxEn, 0, 1, 17, 2, false},
                          {"rx enable", VQ6192_MAC_SetPortRxEn, 1, 1, 17, 1, false},
                          {"rx FCS", VQ6192_MAC_SetPortRxFcsEn, 2, 1, 108, 0, true},
                          {"tx FCS", VQ6192_MAC_SetPortTxFcsEn, 2, 1, 24, 6, false},
                          {"tx pad", VQ6192_MAC_SetPortTxPadEn, 0, 1, 24, 7, false},
                          {"undersize", VQ6192_MAC_SetPortRxUnderSizePktEn, 1, 1, 120, 4, false},
                          {"pad strip", VQ6192_MAC_SetPortRxPadStripEn, 2, 1, 120, 3, false},
                          {"pause mode 2", VQ6192_MAC_SetPortPauseMode, 2, 2, 18, 0, false}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        const uint32_t m = c.port == 2 ? 2 : 1;
        for (uint32_t start : {0u, 0xFFFFFFFFu}) {
            mac().setReg(m, c.reg, start);
            mac().setReg(3 - m, c.reg, 0x5A5A5A5A);
            const uint32_t on = c.inverted ? 0 : 1;
            EXPECT_EQ(c.op(kChip, c.port, start == 0 ? c.value : 0), 0u);
            const uint32_t bitValue = start == 0 ? on : on ^ 1u;
            EXPECT_EQ(mac().reg(m, c.reg), (start & ~(1u << c.bit)) | bitValue << c.bit);
            EXPECT_EQ(mac().reg(3 - m, c.reg), 0x5A5A5A5Au) << "the other MAC";
        }
        MAC_REFUSED(c.op(kChip, 3, 1));
    }
    mac().setReg(1, 15, 0xFFFFFFFF);
    EXPECT_EQ(VQ6192_MAC_SetPortMaxPktLenCfg(kChip, 1, 1518), 0u);
    EXPECT_EQ(mac().reg(1, 15), 0xFFFFC000u | 1518);
    MAC_REFUSED(VQ6192_MAC_SetPortMaxPktLenCfg(kChip, 1, 16384));
    MAC_REFUSED(VQ6192_MAC_SetPortTxEn(kChip, 1, 2));
}

TEST_F(MacPorts, WorkModeLoopbacksAndLink) {
    mac().setReg(2, 24, 0xFFFFFFFF);
    EXPECT_EQ(VQ6192_MAC_SetPortWorkMode(kChip, 2, 5), 0u);
    EXPECT_EQ(mac().reg(2, 24), 0xFFFFFFDFu);
    uint32_t mode = 9;
    EXPECT_EQ(VQ6192_MAC_GetPortWorkMode(kChip, 2, &mode), 0u);
    EXPECT_EQ(mode, 0u);
    MAC_REFUSED(VQ6192_MAC_SetPortWorkMode(kChip, 1, 0));
    model.tables().holdBusy(kBlock, TableEngine::kForever);
    capture.clear();
    EXPECT_EQ(VQ6192_MAC_SetPortWorkMode(kChip, 2, 1), 0x030C0003u);
    EXPECT_EQ(capture.traceTexts().back(),
              "Err. VQ6192_MAC_SetPortWorkMode.VQ6192_Write_Table(3,131,24)     ErrCode[0x30c0003]\r\n");
    model.tables().holdBusy(kBlock, 0);

    for (const auto &[kind, enable, reg, value] : Rows<4>{{1, 1, 106, 0x1}, {2, 1, 119, 0x4}, {3, 1, 0, 0}}) {
        mac().setReg(1, 106, 0);
        mac().setReg(1, 119, 0);
        const auto t = traced([&] { EXPECT_EQ(VQ6192_MAC_SetPortLoopbackEn(kChip, 0, kind, enable), 0u); });
        if (reg == 0) {
            EXPECT_TRUE(t.empty());
        } else {
            EXPECT_EQ(mac().reg(1, reg), value);
        }
    }
    uint32_t link = 9;
    mac().setReg(1, 22, 0xFFEFFFFF);
    EXPECT_EQ(VQ6192_MAC_GetPortLinkStatus(kChip, 1, 0xDEAD, &link), 0u);
    EXPECT_EQ(link, 0u);
    mac().setLinkUp(1, true);
    EXPECT_EQ(VQ6192_MAC_GetPortLinkStatus(kChip, 0, 0, &link), 0u);
    EXPECT_EQ(link, 1u);
}

TEST_F(MacPorts, PauseAddressAndMode) {
    mac().setReg(1, 9, 0xABCD0000);
    const uint8_t addr[6] = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55};
    EXPECT_EQ(VQ6192_MAC_SetPortPauseAddr(kChip, 1, addr), 0u);
    EXPECT_EQ(macRegs(1, {9, 8}), (U32s{0xABCD0011, 0x22334455}));
    // The getters' decoding of a set address and mode is pinned by the MAC diagnostic reports.
    uint32_t mode = 9;
    EXPECT_EQ(VQ6192_MAC_SetPortPauseMode(kChip, 1, 0), 0u);
    EXPECT_EQ(VQ6192_MAC_GetPortPauseMode(kChip, 1, &mode), 0u);
    EXPECT_EQ(mode, 0u);
    MAC_REFUSED(VQ6192_MAC_SetPortPauseMode(kChip, 1, 4));
}

TEST_F(MacPorts, MibRecordWithSumsAndCarry) {
    for (uint32_t r = 0; r < 128; ++r) {
        mac().setReg(2, r, 0x1000 + r);
    }
    setMac(
        2,
        {{32, 0xFFFFFFFF}, {33, 2}, {49, 0x80000000}, {52, 0x80000001}, {53, 0xFFFFFFFF}, {54, 0xFFFFFFFF}});
    uint32_t rec[132];
    std::fill(std::begin(rec), std::end(rec), 0xEEEEEEEEu);
    EXPECT_EQ(VQ6192_MAC_GetPortMibCnt(kChip, 2, rec), 0u);
    auto slot = [&](int s) { return static_cast<uint64_t>(rec[2 * s]) << 32 | rec[2 * s + 1]; };
    // Slot <- MAC register, as the MIB layout lists them.
    const std::pair<int, uint32_t> single[] = {
        {4, 69},  {5, 70},  {6, 71},  {7, 72},  {8, 73},  {9, 74},  {10, 75}, {17, 37}, {18, 38},  {19, 39},
        {20, 40}, {21, 41}, {22, 42}, {23, 43}, {24, 48}, {28, 66}, {29, 67}, {30, 68}, {31, 85},  {32, 87},
        {34, 34}, {35, 35}, {36, 36}, {37, 45}, {38, 50}, {39, 46}, {41, 44}, {44, 51}, {45, 123}, {46, 77},
        {47, 78}, {48, 79}, {49, 80}, {50, 81}, {56, 64}, {57, 65}, {62, 84}, {63, 86}};
    for (const auto &[s, r] : single) {
        EXPECT_EQ(slot(s), 0x1000u + r) << "slot " << s;
    }
    // Sums with carry into the high word.
    EXPECT_EQ((std::vector<uint64_t>{slot(15), slot(16), slot(26), slot(43), slot(52), slot(53), slot(54),
                                     slot(55), slot(64), slot(65)}),
              (std::vector<uint64_t>{0xFFFFFFFF, 0xFFFFFFFF, 0x1FFFFFFFE, 0x100000001, 0x1040 + 0x1041,
                                     0x100000001, 0xFFFFFFFF, 2, 0x80000001, 0x80000000}));
    for (int s : {0, 1, 2, 3, 11, 12, 13, 14, 25, 27, 33, 40, 42, 51, 58, 59, 60, 61}) {
        EXPECT_EQ(rec[2 * s], 0xEEEEEEEEu) << "slot " << s << " is not filled";
    }
    std::fill(std::begin(rec), std::end(rec), 0u);
    EXPECT_EQ(VQ6192_MAC_GetPortMibCntDfx(kChip, 131, rec), 0u);
    EXPECT_EQ((std::vector<uint64_t>{slot(43), slot(4)}), (std::vector<uint64_t>{0x100000001, 0}));
    MAC_REFUSED(VQ6192_MAC_GetPortMibCnt(kChip, 3, rec));
}

}  // namespace
