// Chip bring-up: PLLs, TDM mode, module clocks and reset, register test, DDR start and test, the module
// initialisers, SerDes start, framer channel resets; and the module restore that reruns only the
// initialisers.
#include "chip/bringup.h"

#include <cstddef>

#include "chip/chip_util.h"
#include "chip/init_regs.h"
#include "platform/osal.h"
#include "vq6192/atm.h"
#include "vq6192/ces.h"
#include "vq6192/chip.h"
#include "vq6192/eth.h"
#include "vq6192/framer.h"
#include "vq6192/ima.h"
#include "vq6192/ppp.h"

using namespace vq::chip;

namespace {

constexpr uint32_t kErrStep = 4;       // a bring-up step failed
constexpr uint32_t kErrDdrStart = 12;  // DDR start failed: error 12 with no module id
constexpr uint16_t kDdrTestPattern[4] = {0x5555, 0xAAAA, 0x5555, 0xAAAA};

uint32_t stepFailed(const BringUpRun &r) {
    return baseStatus(r.chip, kErrStep);
}

// A failed call inside a step: traced with the call's name and its own status (the line's wording is
// ours; the chip documentation only asks that the failing call be named).
uint32_t callFailed(const BringUpRun &r, const char *call, uint32_t status) {
    VQ6192_Printf(r.chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                  "Err. VQ6192_Base_Initialize.  %s ErrCode[%#x]\r\n", call, status);
    return stepFailed(r);
}

uint32_t checked(const BringUpRun &r, const char *call, uint32_t status) {
    return status == 0 ? 0 : callFailed(r, call, status);
}

// Short delays between SerDes steps: a busy-wait when the chip record asks for it, else 50 us.
void shortDelay(uint32_t chip) {
    if (g_vq6192[chip].ulDelayMode == 1) {
        volatile uint32_t n = kShortDelaySpins;
        while (n > 0) {
            n = n - 1;
        }
        return;
    }
    vq::DrvDelayUs(kShortDelayUs);
}

// ---- steps --------------------------------------------------------------------------------------

uint32_t settle(const BringUpRun &) {
    vq::DrvDelayUs(g_ulVQ6192DDRWaitTime);
    return 0;
}

uint32_t plls(const BringUpRun &r) {
    const auto &table = r.tdmMode != VQ6192_BASE_TDM_E1 ? g_ausVQ6192T1PLLCfg : g_ausVQ6192E1PLLCfg;
    return VQ6192_Base_SetPLLCfg(r.chip, &table[0][0]) == 0 ? 0 : stepFailed(r);
}

uint32_t tdmMode(const BringUpRun &r) {
    return checked(r, "VQ6192_Framer_SetFrmTDMMode", VQ6192_Framer_SetFrmTDMMode(r.chip, r.tdmMode));
}

// The MAC attribute record as the chip documentation numbers its bytes: byte 0 the port enable,
// bytes 52..54 the three preamble lengths.
static_assert(offsetof(VQ6192_ETH_MAC_ATTR_S, byPortEn) == 0);
static_assert(offsetof(VQ6192_ETH_MAC_ATTR_S, byNoRmiiPreamble) == 52);
static_assert(offsetof(VQ6192_ETH_MAC_ATTR_S, byNoMiiPreamble) == 53);
static_assert(offsetof(VQ6192_ETH_MAC_ATTR_S, byNoGmiiPreamble) == 54);
constexpr uint32_t kMacPorts[] = {1, 2};
constexpr uint8_t kMacPreamble = 3;

// Before the clocks come on: both MAC ports disabled with preamble lengths of 3.
uint32_t macAttributes(const BringUpRun &r) {
    VQ6192_ETH_MAC_ATTR_S value{};
    value.byNoRmiiPreamble = kMacPreamble;
    value.byNoMiiPreamble = kMacPreamble;
    value.byNoGmiiPreamble = kMacPreamble;
    VQ6192_ETH_MAC_ATTR_S select{};
    select.byPortEn = 1;
    select.byNoRmiiPreamble = 1;
    select.byNoMiiPreamble = 1;
    select.byNoGmiiPreamble = 1;
    for (uint32_t port : kMacPorts) {
        if (const uint32_t rc = VQ6192_ETH_SetMACAttr(r.chip, port, &value, &select); rc != 0) {
            return callFailed(r, "VQ6192_ETH_SetMACAttr", rc);
        }
    }
    return 0;
}

// Last step: both MAC ports enabled. Port 2 failing is told apart from every earlier failure.
uint32_t macPorts(const BringUpRun &r) {
    VQ6192_ETH_MAC_ATTR_S value{};
    value.byPortEn = 1;
    VQ6192_ETH_MAC_ATTR_S select{};
    select.byPortEn = 1;
    for (uint32_t port : kMacPorts) {
        if (const uint32_t rc = VQ6192_ETH_SetMACAttr(r.chip, port, &value, &select); rc != 0) {
            callFailed(r, "VQ6192_ETH_SetMACAttr", rc);
            return port == 1 ? stepFailed(r) : baseStatus(r.chip, kErrFailed);
        }
    }
    return 0;
}

uint32_t moduleClocks(const BringUpRun &r) {
    const uint32_t keep = VQ6192_ReadReg(r.chip, kModuleClockReg) & kClockKeepMask;
    VQ6192_WriteReg(r.chip, kModuleClockReg, keep | kClocksOnButFive);
    set(r.chip, kModuleClocks2, 0);
    return 0;
}

uint32_t chipReset(const BringUpRun &r) {
    vq::DrvDelayUs(g_ulVQ6192DDRWaitTime);
    const uint32_t rc = VQ6192_Base_ResetChip(r.chip, 1);
    vq::DrvDelayUs(g_ulVQ6192DDRWaitTime);
    return checked(r, "VQ6192_Base_ResetChip", rc);
}

uint32_t registerTest(const BringUpRun &r) {
    uint8_t failed = 1;
    uint16_t readVal = 0;
    uint16_t writeVal = 0;
    uint32_t rc = VQ6192_Base_GetChipStatus(r.chip, &failed, &readVal, &writeVal);
    if (rc == 0 && failed != 0) {
        rc = baseStatus(r.chip, kErrFailed);
    }
    return checked(r, "VQ6192_Base_GetChipStatus", rc);
}

uint32_t ddrStart(const BringUpRun &r) {
    uint8_t failed = 1;
    const uint32_t rc = VQ6192_Base_InitDDR(r.chip, &failed, r.ddrOption);
    return rc != 0 || failed == 1 ? vq::chipBits(r.chip) + kErrDdrStart : 0;
}

uint32_t ddrTest(const BringUpRun &r) {
    uint8_t failed = 1;
    uint32_t rc = VQ6192_Base_DDR9StepTest(r.chip, kDdrTestPattern, &failed);
    if (rc == 0 && failed != 0) {
        rc = baseStatus(r.chip, kErrFailed);
    }
    return checked(r, "VQ6192_Base_DDR9StepTest", rc);
}

uint32_t atmPwe3Init(const BringUpRun &r) {
    return checked(r, "VQ6192_ATM_AtmPwe3Init", VQ6192_ATM_AtmPwe3Init(r.chip, r.mode));
}

uint32_t atmInit(const BringUpRun &r) {
    return checked(r, "VQ6192_ATM_InitAtm", VQ6192_ATM_InitAtm(r.chip, r.mode));
}

uint32_t pppInit(const BringUpRun &r) {
    return checked(r, "VQ6192_PPP_InitPppModule", VQ6192_PPP_InitPppModule(r.chip, r.mode));
}

uint32_t imaInit(const BringUpRun &r) {
    return checked(r, "VQ6192_IMA_InitIma", VQ6192_IMA_InitIma(r.chip, r.mode));
}

uint32_t cesInit(const BringUpRun &r) {
    return checked(r, "VQ6192_CES_InitCesModule", VQ6192_CES_InitCesModule(r.chip, r.mode));
}

uint32_t framerInit(const BringUpRun &r) {
    return checked(r, "VQ6192_Framer_FrmInit", VQ6192_Framer_FrmInit(r.chip, r.mode, r.frmOption & 0xFFu));
}

uint32_t ethInit(const BringUpRun &r) {
    return checked(r, "VQ6192_ETH_ETHInit", VQ6192_ETH_ETHInit(r.chip, r.mode));
}

// SerDes start: hold both lanes in reset, configure them, calibrate, release, then wait (at most three
// short delays) for the four lock bits. Not reaching lock is not a bring-up failure.
uint32_t serdesStart(const BringUpRun &r) {
    const uint32_t chip = r.chip;
    VQ6192_WriteReg(chip, kSoftResetReg, VQ6192_ReadReg(chip, kSoftResetReg) | kSerdesResets);
    set(chip, kSerdesCfgLock, 1);
    set(chip, kSerdesSysclkSel, g_usTestSysclkSel);
    set(chip, kSerdesEnable, 1);
    set(chip, kLaneCfg[0], kLaneCfgValue);
    set(chip, kLaneRate[0], 0);
    set(chip, kLaneCfg[1], kLaneCfgValue);
    set(chip, kLaneRate[1], 0);
    set(chip, kLanePower[0], 0);
    set(chip, kLanePower[1], 0);
    set(chip, kSerdesCfgLock, 0);
    vq::DrvDelayUs(kSerdesCfgSettleUs);

    set(chip, kSerdesAllReset, 1);
    shortDelay(chip);
    set(chip, kSerdesAllReset, 0);
    set(chip, kSerdesBit3, 0);
    set(chip, kLaneBit4[0], 0);
    set(chip, kLaneBit4[1], 0);
    set(chip, kLaneHold[0], 1);
    set(chip, kLaneHold[1], 1);
    shortDelay(chip);
    set(chip, kSerdesCalibrate, 1);
    shortDelay(chip);
    set(chip, kSerdesCalibrate, 0);
    shortDelay(chip);
    set(chip, kLaneHold[0], 0);
    set(chip, kLaneHold[1], 0);
    set(chip, kLanePower[0], 0);
    set(chip, kLanePower[1], 0);
    set(chip, kLaneReset[0], 1);
    set(chip, kLaneReset[1], 1);
    shortDelay(chip);
    set(chip, kLaneReset[0], 0);
    set(chip, kLaneReset[1], 0);
    shortDelay(chip);

    for (uint32_t poll = 0; poll < kSerdesLockPolls; ++poll) {
        shortDelay(chip);
        if ((VQ6192_ReadReg(chip, kSerdesLock.addr) & kSerdesLocked) == kSerdesLocked) {
            break;
        }
    }
    VQ6192_WriteReg(chip, kSoftResetReg, VQ6192_ReadReg(chip, kSoftResetReg) & (0xFFFFu & ~kSerdesResets));
    return 0;
}

uint32_t framerChannels(const BringUpRun &r) {
    uint32_t rc = 0;
    for (uint32_t c = 0; c < VQ6192_FRM_E1_NUM; ++c) {
        rc |= VQ6192_Framer_ReSetFrmChnl(r.chip, c, VQ6192_BASE_SRV_DIRECT_BOTH, 0);
    }
    return checked(r, "VQ6192_Framer_ReSetFrmChnl", rc);
}

// The bring-up sequence.
// clang-format off
constexpr BringUpStep kSteps[] = {
    // name              restore  DDR test only  body
    {"settle",           false,   false,         settle},
    {"PLLs",             false,   false,         plls},
    {"TDM mode",         false,   false,         tdmMode},
    {"MAC attributes",   false,   false,         macAttributes},
    {"module clocks",    false,   false,         moduleClocks},
    {"chip reset",       false,   false,         chipReset},
    {"register test",    false,   false,         registerTest},
    {"DDR start",        false,   false,         ddrStart},
    {"DDR test",         false,   true,          ddrTest},
    {"ATM pseudowires",  true,    false,         atmPwe3Init},
    {"ATM",              true,    false,         atmInit},
    {"PPP",              true,    false,         pppInit},
    {"IMA",              true,    false,         imaInit},
    {"CES",              true,    false,         cesInit},
    {"framers",          true,    false,         framerInit},
    {"Ethernet",         true,    false,         ethInit},
    {"SerDes",           false,   false,         serdesStart},
    {"framer channels",  false,   false,         framerChannels},
    {"MAC ports",        false,   false,         macPorts},
};
// clang-format on

}  // namespace

namespace vq::chip {

std::span<const BringUpStep> bringUpSteps() {
    return kSteps;
}

uint32_t checkBringUp(const BringUpRun &run) {
    if (!vq::validChip(run.chip) ||
        (run.mode != VQ6192_BASE_INIT_FULL && run.mode != VQ6192_BASE_INIT_RESTORE) || run.ddrTest > 1) {
        return baseParaErr(run.chip);
    }
    return 0;
}

}  // namespace vq::chip

extern "C" {

VQ6192_API uint32_t VQ6192_Base_Initialize(uint32_t chip, uint32_t mode, uint32_t tdmMode, uint32_t ddrTest,
                                           uint32_t frmOption, const void *ddrOption) {
    const BringUpRun run{chip, mode, tdmMode, ddrTest, frmOption, ddrOption};
    if (const uint32_t rc = checkBringUp(run); rc != 0) {
        return rc;
    }
    for (const BringUpStep &step : kSteps) {
        if (!stepRuns(step, run)) {
            continue;
        }
        if (const uint32_t rc = step.run(run); rc != 0) {
            return rc;
        }
    }
    return 0;
}

}  // extern "C"
