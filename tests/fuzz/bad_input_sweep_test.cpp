// Bad input over the exported configuration operations, one table per module: each row is one call
// whose argument is out of range or whose output pointer is null. Every row must return the parameter
// error of its module for the installed chip and write no register. Rows with valid arguments are
// called with chip id 264 (whose status carries the chip bits 264 & 0xF = 8), which must be refused,
// and with an uninstalled chip, which must not reach the installed chip's registers.
//
// A module's table is a function returning its rows; a new module adds one table to kTables.
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "support/test_support.h"
#include "vq6192/vq6192.h"

namespace {

constexpr uint32_t kInstalled = 3;  // the test fixture's chip on the model
constexpr uint32_t kBadChip = 264;
constexpr uint32_t kUninstalled = 200;

// ((chip << 24) & 0x0F000000) + (module << 16) + error 1
constexpr uint32_t paraErr(uint32_t chip, uint32_t module) {
    return ((chip << 24) & 0x0F000000u) + (module << 16) + 1;
}

constexpr uint32_t kBase = 1, kCes = 3, kPpp = 4, kEth = 5, kMac = 6, kSdh = 8, kInt = 10, kFramer = 14;

struct Row {
    const char *what;  // operation and the bad argument
    uint32_t module;   // module field of the status
    std::function<uint32_t(uint32_t chip)> call;
    // Valid arguments: refused for chip 264 alone, and for an uninstalled chip not reaching the
    // installed one.
    bool validCall = false;
};

constexpr bool kValid = true;

// Operations of the chip itself: bring-up helpers, health and interrupts.
std::vector<Row> chipRows() {
    static uint16_t cfg[5];
    return {
        {"Base_GetPLLPowerDown pll 4", kBase,
         [](uint32_t c) { return VQ6192_Base_GetPLLPowerDown(c, 4, cfg); }},
        {"Base_GetPLLPowerDown null", kBase,
         [](uint32_t c) { return VQ6192_Base_GetPLLPowerDown(c, 0, nullptr); }},
        {"Base_SetSrvPowerDownEn srv 4", kBase,
         [](uint32_t c) { return VQ6192_Base_SetSrvPowerDownEn(c, 4, 0); }},
        {"Base_SetSrvPowerDownEn enable 2", kBase,
         [](uint32_t c) { return VQ6192_Base_SetSrvPowerDownEn(c, 2, 2); }},
        {"INT_SetIntActiveMode a 2", kInt, [](uint32_t c) { return VQ6192_INT_SetIntActiveMode(c, 2, 0); },
         true},
        {"INT_SetIntActiveMode b 2", kInt, [](uint32_t c) { return VQ6192_INT_SetIntActiveMode(c, 0, 2); }},
        {"INT_SetIntEnable id 257", kInt, [](uint32_t c) { return VQ6192_INT_SetIntEnable(c, 257, 1); },
         true},
        {"INT_SetIntEnable enable 2", kInt, [](uint32_t c) { return VQ6192_INT_SetIntEnable(c, 0, 2); }},
        {"Base_SetSrvPowerDownEn", kBase, [](uint32_t c) { return VQ6192_Base_SetSrvPowerDownEn(c, 2, 1); },
         kValid},
        {"INT_SetIntActiveMode", kInt, [](uint32_t c) { return VQ6192_INT_SetIntActiveMode(c, 1, 0); },
         kValid},
    };
}

std::vector<Row> sdhRows() {
    return {
        {"SDH_SetSDHSonetMode mode 2", kSdh, [](uint32_t c) { return VQ6192_SDH_SetSDHSonetMode(c, 2); },
         true},
        {"SDH_SetSDHMap vc4 4", kSdh, [](uint32_t c) { return VQ6192_SDH_SetSDHMap(c, 4, 0, 6); }},
        {"SDH_SetSDHMap au3 3", kSdh, [](uint32_t c) { return VQ6192_SDH_SetSDHMap(c, 0, 3, 6); }},
        {"SDH_SetSDHMap mapType 14", kSdh, [](uint32_t c) { return VQ6192_SDH_SetSDHMap(c, 0, 0, 14); }},
        {"SDH_SetDS3RxFifoRst vc4 4", kSdh, [](uint32_t c) { return VQ6192_SDH_SetDS3RxFifoRst(c, 4, 0); },
         true},
        {"SDH_SetDS3RxFifoRst enable 2", kSdh,
         [](uint32_t c) { return VQ6192_SDH_SetDS3RxFifoRst(c, 0, 2); }},
        {"SDH_SetTxHpByte byteType 8", kSdh, [](uint32_t c) { return VQ6192_SDH_SetTxHpByte(c, 0, 8, 0, 0); },
         true},
        {"SDH_SetTxHpB3Err mode 3", kSdh, [](uint32_t c) { return VQ6192_SDH_SetTxHpB3Err(c, 0, 0, 3); },
         true},
    };
}

std::vector<Row> framerRows() {
    return {
        {"Framer_SetFrmTDMMode mode 2", kFramer,
         [](uint32_t c) { return VQ6192_Framer_SetFrmTDMMode(c, 2); }},
        {"Framer_GetFrmTDMMode null", kFramer,
         [](uint32_t c) { return VQ6192_Framer_GetFrmTDMMode(c, nullptr); }},
        {"Framer_SetFrmMode e1 336", kFramer,
         [](uint32_t c) { return VQ6192_Framer_SetFrmMode(c, 336, 0, 1); }},
        {"Framer_SetFrmMode dir 3", kFramer, [](uint32_t c) { return VQ6192_Framer_SetFrmMode(c, 0, 3, 1); }},
        {"Framer_SetFrmMode frmMode 4", kFramer,
         [](uint32_t c) { return VQ6192_Framer_SetFrmMode(c, 0, 0, 4); }},
        {"Framer_SetFrmMode egress frmMode 2", kFramer,
         [](uint32_t c) { return VQ6192_Framer_SetFrmMode(c, 0, 1, 2); }},
        {"Framer_ReSetFrmChnl reset 2", kFramer,
         [](uint32_t c) { return VQ6192_Framer_ReSetFrmChnl(c, 0, 0, 2); }},
        {"Framer_SetET1OhInsMode ohType 3", kFramer,
         [](uint32_t c) { return VQ6192_Framer_SetET1OhInsMode(c, 0, 3, 0, 0, 0); }},
        {"Framer_SetE1MapClkGate gate 24", kFramer,
         [](uint32_t c) { return VQ6192_Framer_SetE1MapClkGate(c, 24, 0); }},
        {"Framer_SetTSPayLoad vc4 4", kFramer,
         [](uint32_t c) { return VQ6192_Framer_SetTSPayLoad(c, 4, 0); }},
    };
}

std::vector<Row> pppRows() {
    return {
        {"PPP_SetPppChanEnable ch 512", kPpp,
         [](uint32_t c) { return VQ6192_PPP_SetPppChanEnable(c, 512, 1, 2); }},
        {"PPP_SetPppChanEnable enable 2", kPpp,
         [](uint32_t c) { return VQ6192_PPP_SetPppChanEnable(c, 0, 2, 2); }},
        {"PPP_SetPppMRU mru 2037", kPpp, [](uint32_t c) { return VQ6192_PPP_SetPppMRU(c, 0, 2037); }},
        {"PPP_SetPppMRU ch 512", kPpp, [](uint32_t c) { return VQ6192_PPP_SetPppMRU(c, 512, 1500); }},
        {"PPP_SetPppMRU", kPpp, [](uint32_t c) { return VQ6192_PPP_SetPppMRU(c, 0, 1500); }, kValid},
    };
}

std::vector<Row> cesRows() {
    static uint32_t out;
    return {
        {"CES_SetCesChanEnable ch 352", kCes,
         [](uint32_t c) { return VQ6192_CES_SetCesChanEnable(c, 352, 1); }},
        {"CES_GetCesChanEnable null", kCes,
         [](uint32_t c) { return VQ6192_CES_GetCesChanEnable(c, 0, nullptr); }},
        {"CES_SetCesIdleCode ch 336", kCes,
         [](uint32_t c) { return VQ6192_CES_SetCesIdleCode(c, 336, 0xFF); }},
        {"CES_SetCesFramNum n 64", kCes, [](uint32_t c) { return VQ6192_CES_SetCesFramNum(c, 0, 64); }},
        {"CES_SetCesFramNum E3 n 40", kCes, [](uint32_t c) { return VQ6192_CES_SetCesFramNum(c, 336, 40); }},
        {"CES_SetCesJtrBuf depth 0x5400", kCes,
         [](uint32_t c) { return VQ6192_CES_SetCesJtrBuf(c, 0, 0x5400, 8); }},
        {"CES_SetCesJtrBuf delay 0x5400", kCes,
         [](uint32_t c) { return VQ6192_CES_SetCesJtrBuf(c, 0, 8, 0x5400); }},
        {"CES_SetCesJtrBuf ch 352", kCes, [](uint32_t c) { return VQ6192_CES_SetCesJtrBuf(c, 352, 8, 8); }},
        {"CES_SetCesVc4UnLoadMod vc4 4", kCes,
         [](uint32_t c) { return VQ6192_CES_SetCesVc4UnLoadMod(c, 4, 0); }},
        {"CES_SetCesVc4UnLoadMod mode 3", kCes,
         [](uint32_t c) { return VQ6192_CES_SetCesVc4UnLoadMod(c, 0, 3); }},
        {"CES_SetCesClkSel sel 256", kCes, [](uint32_t c) { return VQ6192_CES_SetCesClkSel(c, 0, 256); },
         true},
        {"CES_GetCesClkSel ch 352", kCes, [](uint32_t c) { return VQ6192_CES_GetCesClkSel(c, 352, &out); }},
        {"CES_SetCesChanEnable", kCes, [](uint32_t c) { return VQ6192_CES_SetCesChanEnable(c, 0, 1); },
         kValid},
        {"CES_SetCesJtrBuf", kCes, [](uint32_t c) { return VQ6192_CES_SetCesJtrBuf(c, 0, 64, 32); }, kValid},
    };
}

std::vector<Row> ethRows() {
    static const uint16_t addr[3] = {1, 2, 3};
    static VQ6192_ETH_MAC_ATTR_S attr;
    static uint8_t head[64];
    return {
        {"ETH_SetSerDesMACAddr mac 3", kEth,
         [](uint32_t c) { return VQ6192_ETH_SetSerDesMACAddr(c, 3, addr); }},
        {"ETH_SetSerDesMACAddr mac 0", kEth,
         [](uint32_t c) { return VQ6192_ETH_SetSerDesMACAddr(c, 0, addr); }},
        {"ETH_SetMACAttr null", kEth, [](uint32_t c) { return VQ6192_ETH_SetMACAttr(c, 1, nullptr, &attr); },
         true},
        {"ETH_SetMACLoop mode 4", kEth, [](uint32_t c) { return VQ6192_ETH_SetMACLoop(c, 1, 4); }},
        {"ETH_SetSerdesLoop lane 3", kEth, [](uint32_t c) { return VQ6192_ETH_SetSerdesLoop(c, 3, 0, 1); },
         true},
        {"ETH_SetSerdesLoop point 4", kEth, [](uint32_t c) { return VQ6192_ETH_SetSerdesLoop(c, 1, 4, 1); }},
        {"ETH_SetSerdesLoop en 2", kEth, [](uint32_t c) { return VQ6192_ETH_SetSerdesLoop(c, 1, 0, 2); }},
        {"ETH_SetETH1WRRWeight cls 4", kEth, [](uint32_t c) { return VQ6192_ETH_SetETH1WRRWeight(c, 4, 1); },
         true},
        {"ETH_SetSelfTestGlbCtl dir 2", kEth,
         [](uint32_t c) { return VQ6192_ETH_SetSelfTestGlbCtl(c, 2, 1, 0, 64); }},
        {"ETH_SetSelfTestGlbCtl mac 3", kEth,
         [](uint32_t c) { return VQ6192_ETH_SetSelfTestGlbCtl(c, 0, 3, 0, 64); }},
        {"ETH_SetSelfTestPRBS ch 64", kEth, [](uint32_t c) { return VQ6192_ETH_SetSelfTestPRBS(c, 64, 1); },
         true},
        {"ETH_SetSelfTestTxHeadData idx 64", kEth,
         [](uint32_t c) { return VQ6192_ETH_SetSelfTestTxHeadData(c, 64, head, 10); }},
        {"ETH_SetSelfTestTxHeadData len 127", kEth,
         [](uint32_t c) { return VQ6192_ETH_SetSelfTestTxHeadData(c, 0, head, 127); }},
        {"ETH_InsertPppProtocolPkt len 4096", kEth,
         [](uint32_t c) { return VQ6192_ETH_InsertPppProtocolPkt(c, head, 4096); }},
        {"ETH_SetMACLoop", kEth, [](uint32_t c) { return VQ6192_ETH_SetMACLoop(c, 1, 1); }, kValid},
        {"ETH_SetETH1WRRWeight", kEth, [](uint32_t c) { return VQ6192_ETH_SetETH1WRRWeight(c, 1, 3); },
         kValid},
    };
}

std::vector<Row> macRows() {
    return {
        {"MAC_SetPortTxEn port 3", kMac, [](uint32_t c) { return VQ6192_MAC_SetPortTxEn(c, 3, 1); }},
        {"MAC_SetPortTxEn enable 2", kMac, [](uint32_t c) { return VQ6192_MAC_SetPortTxEn(c, 1, 2); }},
        {"MAC_SetPortMaxPktLenCfg length 16384", kMac,
         [](uint32_t c) { return VQ6192_MAC_SetPortMaxPktLenCfg(c, 1, 16384); }},
        {"MAC_SetPortPauseMode mode 4", kMac, [](uint32_t c) { return VQ6192_MAC_SetPortPauseMode(c, 1, 4); },
         true},
        {"MAC_SetPortLoopbackEn enable 2", kMac,
         [](uint32_t c) { return VQ6192_MAC_SetPortLoopbackEn(c, 1, 1, 2); }},
        {"MAC_SetPortTxEn", kMac, [](uint32_t c) { return VQ6192_MAC_SetPortTxEn(c, 1, 1); }, kValid},
    };
}

struct Table {
    const char *module;
    std::vector<Row> (*rows)();
};

const Table kTables[] = {
    {"chip", chipRows}, {"SDH", sdhRows}, {"framer", framerRows}, {"PPP", pppRows},
    {"CES", cesRows},   {"ETH", ethRows}, {"MAC", macRows},
};

void PrintTo(const Table &table, std::ostream *os) {
    *os << table.module;
}

class BadInputSweep : public vqtest::ChipTest, public ::testing::WithParamInterface<Table> {};

TEST_P(BadInputSweep, RefusedWithoutTouchingTheChip) {
    model.setTrace(true);
    ASSERT_EQ(kChip, kInstalled);
    for (const Row &row : GetParam().rows()) {
        SCOPED_TRACE(row.what);
        model.clearTrace();
        if (row.validCall) {
            EXPECT_EQ(row.call(kBadChip), paraErr(kBadChip, row.module)) << "chip 264";
            row.call(kUninstalled);
            EXPECT_TRUE(model.trace().empty());
            continue;
        }
        EXPECT_EQ(row.call(kChip), paraErr(kChip, row.module));
        // A check may follow a read of the chip's mode (an egress frame mode 2); nothing is written.
        EXPECT_TRUE(vqtest::writes(model.trace()).empty())
            << vqtest::writes(model.trace()).size() << " writes";
    }
}

INSTANTIATE_TEST_SUITE_P(Modules, BadInputSweep, ::testing::ValuesIn(kTables),
                         [](const ::testing::TestParamInfo<Table> &info) {
                             return std::string(info.param.module);
                         });

}  // namespace
