// RAM built-in self-test of the chip's internal memory blocks. The test runs on a slowed-down clock:
// the BIST clock selection is changed and PLL2 restarted around each run.
#include "chip/chip_util.h"
#include "platform/osal.h"
#include "vq6192/chip.h"

using namespace vq::chip;

namespace {

const char *const kBlockNames[VQ6192_RAM_BIST_BLOCK_NUM] = {"ATM  ", "MPTX  ", "MPRX  ", "CES  ", "ETH  ",
                                                            "SAM  ", "FRM  ",  "OHP  ",  "DDR2C"};

void restartPll2(uint32_t chip) {
    VQ6192_WriteRegField(chip, kPll2CtrlReg, 1, kPll2HoldBit, 1);
    VQ6192_WriteRegField(chip, kPll2CtrlReg, 1, kPll2ResetBit, 1);
    vq::DrvDelayUs(kPllStepUs);
    VQ6192_WriteRegField(chip, kPll2CtrlReg, 0, kPll2ResetBit, 1);
    vq::DrvDelayUs(kPllStepUs);
    VQ6192_WriteRegField(chip, kPll2CtrlReg, 0, kPll2HoldBit, 1);
    vq::DrvDelayUs(kPllStepUs);
}

// Clears PLL2's latched loss-of-lock alarm and watches it for three reads, 1 us apart.
// Choice: bit 2 of reg 0x100 is PLL2's loss-of-lock alarm, as for PLL programming and the clock
// check, so the check passes as soon as the bit reads 0 and fails when all three reads give 1.
// Returns the check number that passed (1..3) or 0, and the last bit read.
uint32_t checkPll2(uint32_t chip, uint32_t &stat) {
    set(chip, kLocalAlarms, 1u << kPll2AlarmBit);
    for (uint32_t check = 1; check <= kBistPllChecks; ++check) {
        vq::DrvDelayUs(kPllStepUs);
        stat = VQ6192_ReadRegField(chip, kLocalAlarmReg, kPll2AlarmBit, 1);
        if (stat == 0) {
            return check;
        }
    }
    return 0;
}

}  // namespace

extern "C" {

// Blocks are 0..8 (the nine blocks the start and done registers know).
VQ6192_API uint32_t VQ6192_Base_RamBistTest(uint32_t chip, uint32_t block, uint8_t *failed) {
    if (!vq::validChip(chip) || block >= VQ6192_RAM_BIST_BLOCK_NUM || failed == nullptr) {
        return baseParaErr(chip);
    }
    const uint32_t timeout = baseStatus(chip, kErrTimeout);
    const uint32_t blockBit = 1u << block;
    uint32_t result = 0;
    *failed = 1;

    const uint32_t savedClock = get(chip, kBistClockSel);
    set(chip, kBistClockSel, kBistClockSelValue);
    restartPll2(chip);
    uint32_t stat = 0;
    if (checkPll2(chip, stat) == 0) {
        result = timeout;
        VQ6192_Printf(
            chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_Base_RamBistTest.  Fst eMdl[%#x], ChkTime[%#x], PLL Stat[%#x], ErrCode[%#x]\r\n",
            block, kBistPllChecks, stat, timeout);
    }

    VQ6192_WriteReg(chip, kBistEnableReg, blockBit);
    vq::DrvDelayUs(kBistRunUs);
    VQ6192_WriteReg(chip, kBistStartReg, blockBit);
    vq::DrvDelayUs(kBistStartUs);
    bool done = false;
    for (uint32_t poll = 0; poll < kBistDonePolls && !done; ++poll) {
        done = bit(VQ6192_ReadReg(chip, kBistDoneReg), block) != 0;
        if (!done) {
            vq::DrvDelayUs(kBistPollUs);
        }
    }
    if (!done) {
        VQ6192_WriteReg(chip, kBistEnableReg, 0);
        VQ6192_WriteReg(chip, kBistStartReg, 0);
        VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "Err. VQ6192_Base_RamBistTest.  RamBistTest can't finish. ErrCode[%#x]\r\n", timeout);
        return result | timeout;
    }
    *failed = static_cast<uint8_t>(bit(VQ6192_ReadReg(chip, kBistFailReg), block));
    VQ6192_WriteReg(chip, kBistEnableReg, 0);
    VQ6192_WriteReg(chip, kBistStartReg, 0);

    set(chip, kBistClockSel, savedClock);
    restartPll2(chip);
    if (checkPll2(chip, stat) == 0) {
        VQ6192_Printf(
            chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_Base_RamBistTest.  Sec eMdl[%#x], ChkTime[%#x], PLL Stat[%#x] ErrCode[%#x]\r\n",
            block, kBistPllChecks, stat, timeout);
        return result | timeout;
    }
    return result;
}

// Returns the mask of failed blocks. A bad chip id tests nothing and reports every block failed.
VQ6192_API uint32_t VQ6192_Base_RamBist(uint32_t chip) {
    constexpr uint32_t kAllBlocks = (1u << VQ6192_RAM_BIST_BLOCK_NUM) - 1;
    if (!vq::validChip(chip)) {
        vq::paraErr(chip, VQ6192_MODULE_BASE);
        return kAllBlocks;
    }
    set(chip, kBistModuleClocks, kBistModuleClocksOn);
    uint8_t failed[VQ6192_RAM_BIST_BLOCK_NUM] = {};
    uint32_t mask = 0;
    for (uint32_t b = 0; b < VQ6192_RAM_BIST_BLOCK_NUM; ++b) {
        VQ6192_Base_RamBistTest(chip, b, &failed[b]);
        mask |= static_cast<uint32_t>(failed[b] != 0) << b;
    }
    if (mask != 0) {
        VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "-------------------------------------MBIST ulChipID(%u):\n", chip);
        VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO,
                      "  MDL       Result(0-ok, 1-fail)\n");
        for (uint32_t b = 0; b < VQ6192_RAM_BIST_BLOCK_NUM; ++b) {
            VQ6192_Printf(chip, VQ6192_MODULE_BASE, VQ6192_PRINT_EXCEPTION1_INFO, "  %s        %d\n",
                          kBlockNames[b], static_cast<int>(failed[b]));
        }
    }
    return mask;
}

}  // extern "C"
