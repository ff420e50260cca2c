// Every MAC attribute at its MAC register and bits, set from registers whose other bits are set, and
// read back; failures of the packet-side paths injected through the model and the platform.
#include "eth_fixture.h"

namespace {

using namespace ethtest;
using MacAttr = EthFixture;

struct AttrCase {
    void (*set)(VQ6192_ETH_MAC_ATTR_S &, uint32_t);
    uint32_t (*get)(const VQ6192_ETH_MAC_ATTR_S &);
    const char *name;
    uint32_t reg, bit, width;
};

template <auto M>
void setField(VQ6192_ETH_MAC_ATTR_S &a, uint32_t v) {
    a.*M = static_cast<std::remove_reference_t<decltype(a.*M)>>(v);
}
template <auto M>
uint32_t getField(const VQ6192_ETH_MAC_ATTR_S &a) {
    return static_cast<uint32_t>(a.*M);
}
#define ATTR(f) setField<&VQ6192_ETH_MAC_ATTR_S::f>, getField<&VQ6192_ETH_MAC_ATTR_S::f>, #f

// MAC register, lowest bit and width of each attribute, as the MAC register map lists them.
// clang-format off
const AttrCase kAttrs[] = {
    {ATTR(byPortEn), 105, 0, 1}, {ATTR(byTxEn), 17, 2, 1}, {ATTR(byRxEn), 17, 1, 1},
    {ATTR(byCfSlientEn), 120, 0, 1}, {ATTR(bySoftRstMII), 28, 2, 1}, {ATTR(bySoftRstRx), 28, 1, 1},
    {ATTR(bySoftRstTx), 28, 0, 1}, {ATTR(wMaxFrmSize), 15, 0, 14}, {ATTR(byPadEnable), 24, 7, 1},
    {ATTR(byStripPadEn), 120, 3, 1}, {ATTR(byRxRuntPktEn), 120, 4, 1}, {ATTR(byShortRuntsThr), 20, 0, 5},
    {ATTR(byCrcAdd), 24, 6, 1}, {ATTR(byStripCRCEn), 108, 0, 1}, {ATTR(byCRCErrPass), 25, 5, 1},
    {ATTR(byIpgTxTimer), 12, 0, 8}, {ATTR(byRxDflSgl), 117, 0, 8}, {ATTR(byCf2DfTwoPartDf1), 120, 2, 1},
    {ATTR(bySerDesOrd), 121, 0, 1}, {ATTR(wVLanType), 122, 0, 16}, {ATTR(byVlanDropEn), 25, 3, 1},
    {ATTR(byBcDropEn), 25, 2, 1}, {ATTR(byMcMatchEn), 25, 1, 1}, {ATTR(byUcMatchEn), 25, 0, 1},
    {ATTR(byTxFdFc), 18, 1, 1}, {ATTR(byRxFdFc), 18, 0, 1}, {ATTR(byAutoEegEnable), 24, 5, 1},
    {ATTR(wFdFcType), 3, 0, 16}, {ATTR(wFcTxTimer), 7, 0, 16}, {ATTR(wPauseThr), 14, 0, 16},
    {ATTR(byDropUnkCtlFrm), 21, 0, 1}, {ATTR(byPauseFrmPass), 25, 4, 1}, {ATTR(byNoRmiiPreamble), 13, 16, 5},
    {ATTR(byNoMiiPreamble), 13, 8, 5}, {ATTR(byNoGmiiPreamble), 13, 0, 5},
};
// clang-format on
#undef ATTR

TEST_F(MacAttr, EachAttributeAtItsRegisterAndBits) {
    for (const AttrCase &c : kAttrs) {
        SCOPED_TRACE(c.name);
        const uint32_t mask = (c.width == 32 ? 0xFFFFFFFFu : (1u << c.width) - 1u) << c.bit;
        const uint32_t max = (1u << c.width) - 1u;
        VQ6192_ETH_MAC_ATTR_S attr{}, sel{};
        c.set(sel, 1);
        // Clearing the field from all ones, then setting it to its largest value from all zeros.
        mac().setReg(1, c.reg, 0xFFFFFFFF);
        c.set(attr, 0);
        EXPECT_EQ(VQ6192_ETH_SetMACAttr(kChip, 1, &attr, &sel), 0u);
        EXPECT_EQ(mac().reg(1, c.reg), ~mask);
        mac().setReg(1, c.reg, 0);
        c.set(attr, max);
        EXPECT_EQ(VQ6192_ETH_SetMACAttr(kChip, 1, &attr, &sel), 0u);
        EXPECT_EQ(mac().reg(1, c.reg), mask);
        VQ6192_ETH_MAC_ATTR_S back{};
        EXPECT_EQ(VQ6192_ETH_GetMACAttr(kChip, 1, &back), 0u);
        EXPECT_EQ(c.get(back), max);
    }
}

TEST_F(MacAttr, InjectedFailures) {
    // A table time-out in a MAC register read is ORed into the result; the write still goes out.
    mac().setReg(2, 17, 0xFFFFFFFF);
    model.tables().holdBusy(kBlock, 500);
    EXPECT_EQ(VQ6192_MAC_SetPortRxEn(kChip, 2, 0), 0x030C0003u);
    EXPECT_EQ(mac().reg(2, 17), 0u) << "written from the zeroed buffer after the failed read";
    // The protocol packet work buffer cannot be taken.
    eth().receive({1, 2});
    VQ6192_Platform_FailAllocs(0, 1);
    uint8_t buf[8] = {};
    uint32_t len = 0;
    EXPECT_EQ(VQ6192_ETH_ReadPppProtocolPkt(kChip, buf, &len), 0x03050002u);
    EXPECT_EQ(eth().waiting(), 1u);
}

}  // namespace
