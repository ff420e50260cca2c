// ATM pseudowires: per-PW encapsulation, sequencing, concatenation and priority entries of the PWE3
// block, PW creation and removal with the delete handshake, loopbacks and the cell-to-PWE3 time.
#include <atomic>

#include "atm/atm_internal.h"
#include "platform/osal.h"
#include "vq6192/eth.h"

uint32_t g_ulVq6192AtmPwe3EnableCnt = 0;

namespace {

using namespace vq::atm;

constexpr uint32_t kErrStep = 4;  // control-word rule, handshake and capture time-outs
constexpr uint32_t kLabelLimit = 0x100000;
constexpr uint32_t kDeletePolls = 1000;
constexpr uint32_t kDeletePollUs = 2;

uint32_t stepCode(uint32_t chip) {
    return vq::makeStatus(chip, kModule, kErrStep);
}

bool validPw(uint32_t chip, uint32_t pw) {
    return vq::validChip(chip) && pw < VQ6192_ATM_SYS_PORT_NUM;
}

// One-to-one modes (VPC 1, VCC 2) carry the control word always.
bool oneToOne(uint32_t mode) {
    return mode == 1 || mode == 2;
}

uint32_t setOne(uint32_t chip, uint32_t table, uint32_t index, vq::EntryField f, uint32_t v) {
    return modifyEntry(chip, table, index, [&](Entry &e) { e.set(f, v); });
}

template <typename T>
uint32_t getOne(uint32_t chip, uint32_t table, uint32_t index, vq::EntryField f, T *out) {
    Entry e;
    const uint32_t rc = readEntry(chip, table, index, e);
    *out = static_cast<T>(e.get(f));
    return rc;
}

// Priority field of a service type 1..5 (CBR, rt-VBR, nrt-VBR, UBR+, UBR).
constexpr vq::EntryField kPriByService[5] = {kPriCbr, kPriRtVbr, kPriNrtVbr, kPriUbrPlus, kPriUbr};

// Starts the chip's delete of a PW and waits for its done bit; the start bit is dropped either way.
uint32_t deleteHandshake(uint32_t chip, uint32_t pw) {
    VQ6192_WriteRegField(chip, kPwDelReg, 0, kPwDelStartBit, 1);
    VQ6192_WriteRegField(chip, kPwDelReg, pw, 0, kPwBits);
    VQ6192_WriteRegField(chip, kPwDelReg, 1, kPwDelStartBit, 1);
    bool done = false;
    for (uint32_t poll = 1; poll <= kDeletePolls && !done; ++poll) {
        vq::DrvDelayUs(kDeletePollUs);
        done = VQ6192_ReadRegField(chip, kPwDelReg, kPwDelDoneBit, 1) == 1;
        // One record for all chips, whose handshakes may run on several threads at once: raise it
        // atomically so that concurrent handshakes neither race nor lose the larger count.
        std::atomic_ref<uint32_t> most(g_ulVq6192AtmPwe3EnableCnt);
        uint32_t seen = most.load(std::memory_order_relaxed);
        while (poll > seen && !most.compare_exchange_weak(seen, poll, std::memory_order_relaxed)) {
        }
    }
    VQ6192_WriteRegField(chip, kPwDelReg, 0, kPwDelStartBit, 1);
    if (!done) {
        const uint32_t code = stepCode(chip);
        VQ6192_ATM_TRACE(chip,
                         "Err. VQ6192_ATM_SetPwEnable ATMPWE3DRV_RemoveAtmPw. Delete don't finish. "
                         "ChipID[%#x],     ErrCode[%#x]\r\n",
                         chip, code);
        return code;
    }
    return 0;
}

}  // namespace

extern "C" {

VQ6192_API uint32_t VQ6192_ATM_AtmPwe3Init(uint32_t chip, uint32_t mode) {
    if (!vq::validChip(chip) || (mode != 1 && mode != 2)) {
        return paraErr(chip);
    }
    return 0;  // the PWE3 block needs nothing at start; its cell-to-PWE3 time is set by the ATM start
}

VQ6192_API uint32_t VQ6192_ATM_GetPwEnable(uint32_t chip, uint32_t pw, uint8_t *byPwEnable) {
    if (!validPw(chip, pw) || byPwEnable == nullptr) {
        return paraErr(chip);
    }
    return getOne(chip, kPwCfg, pw, kPwEn, byPwEnable);
}

VQ6192_API uint32_t VQ6192_ATM_GetPwEnable_Pro(uint32_t chip, uint32_t pw, uint8_t *byPwEnable) {
    if (!validPw(chip, pw) || byPwEnable == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = VQ6192_Read_Table_Pro(chip, kPwCfg, pw, e.w);
    *byPwEnable = static_cast<uint8_t>(e.get(kPwEn));
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetPwEnable(uint32_t chip, uint32_t pw, uint32_t enable) {
    if (!validPw(chip, pw) || enable > 1) {
        return paraErr(chip);
    }
    uint8_t was = 0;
    const uint32_t rd = VQ6192_ATM_GetPwEnable(chip, pw, &was);
    if (rd != 0) {
        const uint32_t code = stepCode(chip);
        VQ6192_ATM_TRACE(
            chip, "Err. VQ6192_ATM_SetPwEnable VQ6192_ATM_GetPwEnable error. ChipID[%#x],ErrCode[%#x]\r\n",
            chip, rd);
        return code;
    }
    const uint32_t rc = setOne(chip, kPwCfg, pw, kPwEn, enable);
    if (was == 1 && enable == 0) {
        return rc | deleteHandshake(chip, pw);
    }
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPwEncpMode(uint32_t chip, uint32_t pw, uint32_t mode) {
    if (!validPw(chip, pw) || mode > 3) {
        return paraErr(chip);
    }
    return setOne(chip, kPwCfg, pw, kPwType, mode);
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPwEncpMode(uint32_t chip, uint32_t pw, uint32_t *renPwEnMode) {
    if (!validPw(chip, pw) || renPwEnMode == nullptr) {
        return paraErr(chip);
    }
    return getOne(chip, kPwCfg, pw, kPwType, renPwEnMode);
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPwCWEn(uint32_t chip, uint32_t pw, uint32_t enable) {
    if (!validPw(chip, pw) || enable > 1) {
        return paraErr(chip);
    }
    uint32_t mode = 0;
    if (VQ6192_ATM_GetAtmPwEncpMode(chip, pw, &mode) != 0) {
        return stepCode(chip);
    }
    if (enable == 0 && oneToOne(mode)) {
        const uint32_t code = stepCode(chip);
        VQ6192_ATM_TRACE(
            chip,
            "Err.chipid %d VQ6192_ATM_SetAtmPwCWEn In VPC1:1 or VCC1:1 Mode, CW must be enabled! "
            "EnType[%#x], CWEn[%#x]      ErrCode[%#x]\r\n",
            chip, mode, enable, code);
        return code;
    }
    return setOne(chip, kPwCfg, pw, kPwCwEn, enable);
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPwCWEn(uint32_t chip, uint32_t pw, uint8_t *rbyEnable) {
    if (!validPw(chip, pw) || rbyEnable == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kPwCfg, pw, e);
    *rbyEnable = e.get(kPwCwEn) == 1 || oneToOne(e.get(kPwType)) ? 1 : 0;
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetPwEgVPIVCI(uint32_t chip, uint32_t pw, uint32_t vpi, uint32_t vci) {
    if (!validPw(chip, pw)) {
        return paraErr(chip);
    }
    // No range check: the fields keep the low 12 (VPI) and 16 (VCI) bits.
    return modifyEntry(chip, kPwRxManage, pw, [&](Entry &e) {
        e.set(kPwVpi, vpi);
        e.set(kPwVci, vci);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetPwEgVPIVCI(uint32_t chip, uint32_t pw, uint32_t *rdwVpi, uint32_t *rdwVci) {
    if (!validPw(chip, pw) || rdwVpi == nullptr || rdwVci == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kPwRxManage, pw, e);
    *rdwVpi = e.get(kPwVpi);
    *rdwVci = e.get(kPwVci);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPwCellConcAttr(uint32_t chip, uint32_t pw, uint32_t cells,
                                                    uint32_t maxTime) {
    if (!validPw(chip, pw) || cells > 31 || maxTime > 63) {
        return paraErr(chip);
    }
    return modifyEntry(chip, kPwTxManage, pw, [&](Entry &e) {
        e.set(kPwMaxCells, cells);
        e.set(kPwMaxPeriod, maxTime);
    });
}

VQ6192_API uint32_t VQ6192_ATM_GetAtmPwCellConcAttr(uint32_t chip, uint32_t pw, uint32_t *rdwCellNum,
                                                    uint32_t *rdwMaxEncpTime) {
    if (!validPw(chip, pw) || rdwCellNum == nullptr || rdwMaxEncpTime == nullptr) {
        return paraErr(chip);
    }
    Entry e;
    const uint32_t rc = readEntry(chip, kPwTxManage, pw, e);
    *rdwCellNum = e.get(kPwMaxCells);
    *rdwMaxEncpTime = e.get(kPwMaxPeriod);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_SetPwSnChkAdd(uint32_t chip, uint32_t pw, uint32_t check, uint32_t add) {
    if (!validPw(chip, pw) || check > 1 || add > 1) {
        return paraErr(chip);
    }
    const uint32_t rc = setOne(chip, kPwRxManage, pw, kPwSnChkEn, check);
    return rc | setOne(chip, kPwTxManage, pw, kPwSnAddEn, add);
}

VQ6192_API uint32_t VQ6192_ATM_GetPwSnChkAdd(uint32_t chip, uint32_t pw, uint16_t *rwSnChkEn,
                                             uint16_t *rwSnAddEn) {
    if (!validPw(chip, pw) || rwSnChkEn == nullptr || rwSnAddEn == nullptr) {
        return paraErr(chip);
    }
    const uint32_t rc = getOne(chip, kPwRxManage, pw, kPwSnChkEn, rwSnChkEn);
    return rc | getOne(chip, kPwTxManage, pw, kPwSnAddEn, rwSnAddEn);
}

VQ6192_API uint32_t VQ6192_ATM_SetPwPktDropEn(uint32_t chip, uint32_t pw, uint32_t enable) {
    if (!validPw(chip, pw) || enable > 1) {
        return paraErr(chip);
    }
    return setOne(chip, kPwRxManage, pw, kPwPktDropEn, enable);
}

VQ6192_API uint32_t VQ6192_ATM_GetPwPktDropEn(uint32_t chip, uint32_t pw, uint16_t *rwDropEn) {
    if (!validPw(chip, pw) || rwDropEn == nullptr) {
        return paraErr(chip);
    }
    return getOne(chip, kPwRxManage, pw, kPwPktDropEn, rwDropEn);
}

VQ6192_API uint32_t VQ6192_ATM_SetPwExpectRange(uint32_t chip, uint32_t pw, uint32_t range) {
    if (!validPw(chip, pw) || range > 255) {
        return paraErr(chip);
    }
    return setOne(chip, kPwRxManage, pw, kPwExpectRange, range);
}

VQ6192_API uint32_t VQ6192_ATM_GetPwExpectRange(uint32_t chip, uint32_t pw, uint16_t *rwRange) {
    if (!validPw(chip, pw) || rwRange == nullptr) {
        return paraErr(chip);
    }
    return getOne(chip, kPwRxManage, pw, kPwExpectRange, rwRange);
}

VQ6192_API uint32_t VQ6192_ATM_SetPwPriIndex(uint32_t chip, uint32_t pw, uint32_t index) {
    if (!validPw(chip, pw) || index > 31) {
        return paraErr(chip);
    }
    return setOne(chip, kPwTxManage, pw, kPwPriIndex, index);
}

VQ6192_API uint32_t VQ6192_ATM_GetPwPriIndex(uint32_t chip, uint32_t pw, uint16_t *wPwPriIndex) {
    if (!validPw(chip, pw) || wPwPriIndex == nullptr) {
        return paraErr(chip);
    }
    return getOne(chip, kPwTxManage, pw, kPwPriIndex, wPwPriIndex);
}

VQ6192_API uint32_t VQ6192_ATM_SetPwPriTemplate(uint32_t chip, uint32_t tmpl, uint32_t serviceType,
                                                uint32_t priority) {
    if (!vq::validChip(chip) || tmpl > 31 || serviceType < 1 || serviceType > 5 || priority > 7) {
        return paraErr(chip);
    }
    return setOne(chip, kPwPri, tmpl, kPriByService[serviceType - 1], priority);
}

VQ6192_API uint32_t VQ6192_ATM_GetPwPriTemplate(uint32_t chip, uint32_t tmpl, uint32_t serviceType,
                                                uint16_t *rwPriority) {
    if (!vq::validChip(chip) || tmpl > 31 || serviceType < 1 || serviceType > 5 || rwPriority == nullptr) {
        return paraErr(chip);
    }
    return getOne(chip, kPwPri, tmpl, kPriByService[serviceType - 1], rwPriority);
}

VQ6192_API uint32_t VQ6192_ATM_SetAtmPwLabelCos(uint32_t chip, uint32_t pw, uint32_t label, uint32_t cos) {
    if (!validPw(chip, pw)) {
        return paraErr(chip);
    }
    VQ6192_ETH_PSN_INFO_S mask{};
    VQ6192_ETH_PSN_INFO_S values{};
    mask.dwLblPwLable = 1;
    mask.dwLblPwCos = 1;
    values.dwLblPwLable = label;
    values.dwLblPwCos = cos;
    return VQ6192_ETH_ModifyPSNEthInfo(chip, pw, VQ6192_ETH_SRV_ATM, &mask, &values);
}

VQ6192_API uint32_t VQ6192_ATM_SetPWE3Loop(uint32_t chip, uint32_t which, uint32_t enable) {
    if (!vq::validChip(chip) || which > 1 || enable > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kPwe3LoopReg[which], enable, 0, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetPWE3Loop(uint32_t chip, uint32_t which, uint16_t *wEnable) {
    if (!vq::validChip(chip) || which > 1 || wEnable == nullptr) {
        return paraErr(chip);
    }
    *wEnable = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kPwe3LoopReg[which], 0, 1));
    return 0;
}

// The value is taken as the chip's 16-bit time field; its unit is not documented beyond the start
// value 32, so any 16-bit value is accepted and wider values are refused.
VQ6192_API uint32_t VQ6192_ATM_SetSendPwe3Time(uint32_t chip, uint32_t value) {
    if (!vq::validChip(chip) || value > 0xFFFF) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kSendPwe3TimeReg, value, 0, 16);
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_GetSendPwe3Time(uint32_t chip, uint16_t *wTime) {
    if (!vq::validChip(chip) || wTime == nullptr) {
        return paraErr(chip);
    }
    *wTime = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kSendPwe3TimeReg, 0, 16));
    return 0;
}

VQ6192_API uint32_t VQ6192_ATM_CreateAtmPw(uint32_t chip, uint32_t pw, const ATM_PW_CFG *cfg) {
    if (!validPw(chip, pw) || cfg == nullptr || cfg->byCwEn > 1 || cfg->bySnChkEn > 1 || cfg->bySnAddEn > 1 ||
        cfg->byEncpMode > 3 || (oneToOne(cfg->byEncpMode) && cfg->dwEgVpi >= 4096) ||
        (cfg->byEncpMode == 2 && cfg->dwEgVci >= 65536) || cfg->dwPwLabel >= kLabelLimit ||
        cfg->dwInLabel >= kLabelLimit) {
        return paraErr(chip);
    }
    if (cfg->byCwEn == 0 && oneToOne(cfg->byEncpMode)) {
        const uint32_t code = stepCode(chip);
        VQ6192_ATM_TRACE(chip,
                         "Err.chipid %d VQ6192_ATM_CreateAtmPw VPC1:1 or VCC1:1 , CW must be enabled! "
                         "EnType[%#x], CWEn[%#x]      ErrCode[%#x]\r\n",
                         chip, cfg->byEncpMode, cfg->byCwEn, code);
        return code;
    }
    uint32_t rc = VQ6192_ATM_SetAtmPwEncpMode(chip, pw, cfg->byEncpMode);
    rc |= VQ6192_ATM_SetAtmPwCWEn(chip, pw, cfg->byCwEn);
    rc |= modifyEntry(chip, kPwRxManage, pw, [&](Entry &e) {
        e.set(kPwVpi, cfg->dwEgVpi);
        e.set(kPwVci, cfg->dwEgVci);
        e.set(kPwSnChkEn, cfg->bySnChkEn);
    });
    rc |= setOne(chip, kPwTxManage, pw, kPwSnAddEn, cfg->bySnAddEn);
    rc |= VQ6192_ETH_SetAtmCesPMUEncpLbl(chip, pw, VQ6192_ETH_SRV_ATM, cfg->byPsnEncpType, cfg->dwPwLabel,
                                         cfg->dwInLabel);
    rc |= setOne(chip, kPwCfg, pw, kPwEn, 1);
    return rc;
}

VQ6192_API uint32_t VQ6192_ATM_RemoveAtmPw(uint32_t chip, uint32_t pw, uint32_t inLabel) {
    if (!validPw(chip, pw) || inLabel >= kLabelLimit) {
        return paraErr(chip);
    }
    uint32_t rc = VQ6192_ATM_SetPwEnable(chip, pw, 0);
    if (rc != 0) {
        VQ6192_ATM_TRACE(chip,
                         "Err. VQ6192_ATM_RemoveAtmPw -> VQ6192_ATM_SetPwEnable()! ulChipID[%#x], "
                         "ulPwIdx[%#x], ErrCode[%#x]\r\n",
                         chip, pw, rc);
    }
    rc |= modifyEntry(chip, kPwCfg, pw, [](Entry &e) {
        e.set(kPwCwEn, 0);
        e.set(kPwType, 0);
    });
    rc |= setOne(chip, kPwTxManage, pw, kPwSnAddEn, 0);
    rc |= modifyEntry(chip, kPwRxManage, pw, [](Entry &e) {
        e.set(kPwSnChkEn, 0);
        e.set(kPwVci, 0);
        e.set(kPwVpi, 0);
    });
    rc |= VQ6192_ETH_SetAtmCesPMUEncpLbl(chip, pw, VQ6192_ETH_SRV_ATM, 0, 0, inLabel);
    return rc;
}

}  // extern "C"
