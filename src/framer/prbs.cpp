// The PRBS test engines: the mapper engine and the timeslot engine, their error insertion, alarms and
// counters, and CES timeslots marked for PRBS test.
#include "framer/framer_internal.h"
#include "framer/timeslot.h"
#include "framer/ts_regs.h"

extern "C" {
VQ6192_API uint32_t g_uiPrbsFlag[VQ6192_CHIP_RECORD_NUM];
}

namespace {

using namespace vq::framer;

constexpr uint32_t kErrRefused = 5;
constexpr uint32_t kErrChannel = 6;
constexpr uint32_t kHighOrderPathNum = 12;
constexpr uint32_t kMapperE1PathMax = 251;  // path type 0
constexpr uint32_t kTsHighOrderBase = 336;  // timeslot engine: E3/T3 and VC-4 path + 336

bool highOrder(uint32_t pathType) {
    return pathType >= 2;
}

void writeField(uint32_t chip, uint32_t reg, uint32_t start, uint32_t width, uint32_t value) {
    VQ6192_WriteRegField(chip, reg, value, start, width);
}

uint32_t readField(uint32_t chip, uint32_t reg, uint32_t start, uint32_t width) {
    return VQ6192_ReadRegField(chip, reg, start, width);
}

// The mapper engine stores an E1/T1 path of TUG-3 t, register channel r as 32 * t + r.
uint32_t mapperPath(uint32_t e1) {
    return 32 * (e1 / 21) + e1 % 21;
}

bool tsPattern(uint32_t pattern) {
    return pattern == 0 || pattern == 1 || pattern == 6;
}

// Error insertion of either engine. Mode 1 sets the rate and then the enable; mode 0 clears both,
// writes the enable and triggers one single error (trigger 0, then 1).
struct ErrInsert {
    uint32_t reg;
    uint32_t rateStart, rateWidth, rateMax, enableBit, triggerBit;
};

constexpr ErrInsert kMapperErrInsert{kPrbsErrInsReg, 0, 4, 10, 5, 4};
constexpr ErrInsert kTsErrInsert{kTsPrbsGenReg, 3, 4, 9, 8, 7};

uint32_t setErrInsert(uint32_t chip, const ErrInsert &e, uint32_t mode, uint32_t rate, uint32_t enable) {
    if (mode > 1 || rate > e.rateMax || enable > 1) {
        return paraErr(chip);
    }
    if (mode == 1) {
        writeField(chip, e.reg, e.rateStart, e.rateWidth, rate);
        writeField(chip, e.reg, e.enableBit, 1, enable);
        return 0;
    }
    writeField(chip, e.reg, e.enableBit, 1, 0);
    writeField(chip, e.reg, e.rateStart, e.rateWidth, 0);
    writeField(chip, e.reg, e.enableBit, 1, enable);
    writeField(chip, e.reg, e.triggerBit, 1, 0);
    writeField(chip, e.reg, e.triggerBit, 1, 1);
    return 0;
}

uint32_t getErrInsert(uint32_t chip, const ErrInsert &e, uint32_t *rate, uint8_t *enable) {
    if (rate == nullptr || enable == nullptr) {
        return paraErr(chip);
    }
    *rate = readField(chip, e.reg, e.rateStart, e.rateWidth);
    *enable = static_cast<uint8_t>(readField(chip, e.reg, e.enableBit, 1));
    return 0;
}

// Alarm flags of an engine: `count` bits from the highest down, one per output.
uint32_t readAlarms(uint32_t chip, uint32_t reg, uint32_t count, uint16_t *alarms) {
    if (alarms == nullptr) {
        return paraErr(chip);
    }
    const uint32_t value = VQ6192_ReadReg(chip, reg);
    for (uint32_t i = 0; i < count; ++i) {
        alarms[i] = static_cast<uint16_t>((value >> (count - 1 - i)) & 1u);
    }
    return 0;
}

uint32_t readCounter(uint32_t chip, uint32_t reg, uint16_t *count) {
    if (count == nullptr) {
        return paraErr(chip);
    }
    *count = static_cast<uint16_t>(VQ6192_ReadReg(chip, reg));
    return 0;
}

// Reads an E1/T1 timeslot entry for a direction; both directions must agree.
uint32_t readCesEntry(uint32_t chip, uint32_t dir, uint32_t source, uint32_t ts, uint32_t *entry) {
    uint32_t ingress = 0;
    uint32_t egress = 0;
    if (dir != VQ6192_BASE_SRV_DIRECT_EGRESS &&
        ts::readEntry(chip, ts::Kind::E1, source, ts, 0, &ingress) != 0) {
        return status(chip, kErrSubOp);
    }
    if (dir != VQ6192_BASE_SRV_DIRECT_INGRESS &&
        ts::readEntry(chip, ts::Kind::E1, source, ts, 1, &egress) != 0) {
        return status(chip, kErrSubOp);
    }
    if (dir == VQ6192_BASE_SRV_DIRECT_BOTH && ingress != egress) {
        VQ6192_FRM_TRACE(
            chip, "Err. VQ6192_Framer_GetTsCesPrbsCfg(%u,%u,%u).aulIngData(%#x)!=aulEgData(%#x) not equal\n",
            chip, source, ts, ingress, egress);
        return status(chip, kErrState);
    }
    *entry = dir == VQ6192_BASE_SRV_DIRECT_INGRESS ? ingress : egress;
    return 0;
}

bool enabledCes(uint32_t entry) {
    return vq::getField(&entry, ts::kEn) == 1 && vq::getField(&entry, ts::kModuleind) == ts::kModuleCes;
}

// The CES marking addresses the E1/T1 tables by the channel number it is given; for path types 2 and
// 3 that number is only bounded to 0..11.
bool validCesSource(uint32_t pathType, uint32_t dir, uint32_t e1) {
    return pathType <= 3 && dir <= VQ6192_BASE_SRV_DIRECT_BOTH &&
           e1 < (highOrder(pathType) ? kHighOrderPathNum : VQ6192_FRM_E1_NUM);
}

}  // namespace

extern "C" {

// ---- Mapper engine -------------------------------------------------------------------------------

// The chip's PRBS flag and the run bit change before the path checks, as on the chip's own sequence:
// a request refused there has already stopped the generator when it asked to stop it.
VQ6192_API uint32_t VQ6192_Framer_SetPRBSInsAttr(uint32_t chip, uint32_t pathType,
                                                 const VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint32_t enable) {
    if (!vq::validChip(chip) || pathType > 3 || gen == nullptr || gen->ulSel > 1 || gen->ulMode > 3 ||
        gen->ulFlag > 1 || gen->ulPattern > 6 || gen->ucEnFlag > 1 || enable > 1) {
        return paraErr(chip);
    }
    if (enable == 0) {
        writeField(chip, kPrbsGenReg, 0, 1, 0);
    }
    g_uiPrbsFlag[chip] = enable;
    if (highOrder(pathType)) {
        if (gen->usPath >= kHighOrderPathNum || gen->ulMode < 2) {
            return paraErr(chip);
        }
        writeField(chip, kPrbsGenPathReg, 9, 4, gen->usPath);
        writeField(chip, kPrbsChkReg, 9, 1, gen->ucEnFlag);
        writeField(chip, kPrbsGenReg, 9, 1, gen->ulSel);
    } else {
        const uint32_t maxPath = pathType == 0 ? kMapperE1PathMax : VQ6192_FRM_E1_NUM - 1;
        if (gen->usPath > maxPath || gen->ulMode > 1) {
            return paraErr(chip);
        }
        writeField(chip, kPrbsGenPathReg, 0, 9, pathType == 0 ? mapperPath(gen->usPath) : gen->usPath);
        writeField(chip, kPrbsChkReg, 8, 1, gen->ucEnFlag);
    }
    writeField(chip, kPrbsGenReg, 6, 2, gen->ulMode);
    writeField(chip, kPrbsGenReg, 5, 1, gen->ulFlag);
    writeField(chip, kPrbsGenReg, 2, 3, gen->ulPattern);
    writeField(chip, kPrbsGenReg, 0, 1, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetPRBSInsAttrNew(uint32_t chip, uint32_t pathType,
                                                    const VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint32_t enable) {
    return VQ6192_Framer_SetPRBSInsAttr(chip, pathType, gen, enable);
}

// E1/T1 paths come back as stored (32 * TUG-3 + channel for path type 0).
VQ6192_API uint32_t VQ6192_Framer_GetPRBSInsAttr(uint32_t chip, uint32_t pathType,
                                                 VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint8_t *enable) {
    if (!vq::validChip(chip) || pathType > 3 || gen == nullptr || enable == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kPrbsGenReg);
    if (highOrder(pathType)) {
        gen->usPath = static_cast<uint16_t>(readField(chip, kPrbsGenPathReg, 9, 4));
        gen->ucEnFlag = static_cast<uint8_t>(readField(chip, kPrbsChkReg, 9, 1));
        gen->ulSel = (reg >> 9) & 1u;
    } else {
        gen->usPath = static_cast<uint16_t>(readField(chip, kPrbsGenPathReg, 0, 9));
        gen->ucEnFlag = static_cast<uint8_t>(readField(chip, kPrbsChkReg, 8, 1));
        gen->ulSel = 0;
    }
    gen->ulMode = (reg >> 6) & 3u;
    gen->ulFlag = (reg >> 5) & 1u;
    gen->ulPattern = (reg >> 2) & 7u;
    *enable = static_cast<uint8_t>(reg & 1u);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetPRBSChkAttr(uint32_t chip, const VQ6192_FRM_PRBS_CHK_ATTR_S *chk,
                                                 uint32_t enable) {
    if (!vq::validChip(chip) || chk == nullptr || chk->ulMode > 3 || chk->ulFlag > 1 || chk->ulPattern > 6 ||
        chk->usET3Path >= kHighOrderPathNum || chk->usPath >= VQ6192_FRM_E1_NUM || enable > 1) {
        return paraErr(chip);
    }
    if (enable == 0) {
        writeField(chip, kPrbsChkReg, 0, 1, 0);
    }
    writeField(chip, kPrbsChkReg, 6, 2, chk->ulMode);
    writeField(chip, kPrbsChkReg, 5, 1, chk->ulFlag);
    writeField(chip, kPrbsChkReg, 2, 3, chk->ulPattern);
    writeField(chip, kPrbsChkPathReg, 9, 4, chk->usET3Path);
    writeField(chip, kPrbsChkPathReg, 0, 9, mapperPath(chk->usPath));
    writeField(chip, kPrbsChkReg, 0, 1, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetPRBSChkAttrNew(uint32_t chip, const VQ6192_FRM_PRBS_CHK_ATTR_S *chk,
                                                    uint32_t enable) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return VQ6192_Framer_SetPRBSChkAttr(chip, chk, enable);
}

VQ6192_API uint32_t VQ6192_Framer_GetPRBSChkAttr(uint32_t chip, VQ6192_FRM_PRBS_CHK_ATTR_S *chk,
                                                 uint8_t *enable) {
    if (!vq::validChip(chip) || chk == nullptr || enable == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kPrbsChkReg);
    const uint32_t path = VQ6192_ReadReg(chip, kPrbsChkPathReg);
    chk->ulMode = (reg >> 6) & 3u;
    chk->ulFlag = (reg >> 5) & 1u;
    chk->ulPattern = (reg >> 2) & 7u;
    chk->usET3Path = static_cast<uint16_t>((path >> 9) & 0xFu);
    chk->usPath = static_cast<uint16_t>(path & 0x1FFu);
    *enable = static_cast<uint8_t>(reg & 1u);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetPrbsErrInsert(uint32_t chip, uint32_t mode, uint32_t rate,
                                                   uint32_t enable) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return setErrInsert(chip, kMapperErrInsert, mode, rate, enable);
}

VQ6192_API uint32_t VQ6192_Framer_GetPrbsErrInsert(uint32_t chip, uint32_t *rate, uint8_t *enable) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return getErrInsert(chip, kMapperErrInsert, rate, enable);
}

VQ6192_API uint32_t VQ6192_Framer_GetPRBSAlm(uint32_t chip, uint16_t alarms[4]) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return readAlarms(chip, kPrbsAlarmReg, 4, alarms);
}

VQ6192_API uint32_t VQ6192_Framer_GetPRBSErrCnt(uint32_t chip, uint16_t *count) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return readCounter(chip, kPrbsErrCntReg, count);
}

// ---- Timeslot engine -------------------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_Framer_SetTsPRBSInsAttr(uint32_t chip, uint32_t pathType,
                                                   const VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint32_t enable) {
    if (!vq::validChip(chip) || pathType > 3 || gen == nullptr || gen->ulSel != 0 || gen->ulMode > 3 ||
        gen->ulFlag > 1 || !tsPattern(gen->ulPattern) || gen->ucEnFlag > 1 || enable > 1) {
        return paraErr(chip);
    }
    // E3/T3 and VC-4 paths only check: modes 0 and 2 would insert towards the line.
    if (highOrder(pathType) && (gen->ulMode == 0 || gen->ulMode == 2)) {
        const uint32_t rc = status(chip, kErrRefused);
        VQ6192_FRM_TRACE(
            chip,
            "Err. VQ6192_Framer_SetTsPRBSInsAttr.Can't Insert Egress PRBS(%u,%u,%u)      ErrCode[%#x]\r\n",
            chip, pathType, gen->ulMode, rc);
        return rc;
    }
    const uint32_t run = enable & gen->ucEnFlag;
    if (run == 0) {
        writeField(chip, kTsPrbsGenReg, 0, 1, 0);
    }
    g_uiPrbsFlag[chip] = run;
    writeField(chip, kTsPrbsGenReg, 10, 1, gen->ulMode == 0 || gen->ulMode == 2 ? 1 : 0);
    writeField(chip, kTsPrbsGenReg, 2, 1, gen->ulFlag);
    writeField(chip, kTsPrbsGenReg, 1, 1, gen->ulPattern == 6 ? 1 : gen->ulPattern);
    writeField(chip, kTsPrbsGenReg, 9, 1, gen->ulPattern == 6 ? 1 : 0);
    writeField(chip, kTsPrbsGenPathReg, 0, 9, gen->usPath + (highOrder(pathType) ? kTsHighOrderBase : 0));
    writeField(chip, kTsPrbsGenReg, 0, 1, run);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSInsAttr(uint32_t chip, uint32_t pathType,
                                                   VQ6192_FRM_PRBS_INS_ATTR_S *gen, uint8_t *enable) {
    if (!vq::validChip(chip) || pathType > 3 || gen == nullptr || enable == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kTsPrbsGenReg);
    const uint32_t path = readField(chip, kTsPrbsGenPathReg, 0, 9);
    if ((path >= kTsHighOrderBase) != highOrder(pathType)) {
        const uint32_t rc = status(chip, kErrSubOp);
        VQ6192_FRM_TRACE(
            chip,
            "Err. VQ6192_Framer_SetTsPRBSInsAttr(%u,%u).psAttr->usPath >= DRV_VQ6192_MAX_ET1LINK     "
            "ErrCode[%#x]\r\n",
            chip, pathType, rc);
        return rc;
    }
    const bool insertMode = (reg >> 10 & 1u) != 0;
    gen->ulSel = 0;
    gen->ulMode = highOrder(pathType) ? (insertMode ? 2 : 3) : (insertMode ? 0 : 1);
    gen->ulFlag = (reg >> 2) & 1u;
    gen->ulPattern = ((reg >> 1 & 1u) != 0 && (reg >> 9 & 1u) != 0) ? 6 : (reg >> 1) & 1u;
    gen->usPath = static_cast<uint16_t>(path - (highOrder(pathType) ? kTsHighOrderBase : 0));
    gen->ucEnFlag = static_cast<uint8_t>(reg & 1u);
    *enable = static_cast<uint8_t>(reg & 1u);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetTsPRBSChkAttr(uint32_t chip, uint32_t pathType,
                                                   const VQ6192_FRM_PRBS_CHK_ATTR_S *chk, uint32_t enable) {
    if (!vq::validChip(chip) || chk == nullptr || pathType > 3 || chk->ulMode > 3 || chk->ulFlag > 1 ||
        !tsPattern(chk->ulPattern) || enable > 1 ||
        (!highOrder(pathType) && chk->usPath >= VQ6192_FRM_E1_NUM) ||
        (highOrder(pathType) && chk->usET3Path >= kHighOrderPathNum)) {
        return paraErr(chip);
    }
    if (enable == 0) {
        writeField(chip, kTsPrbsChkReg, 0, 1, 0);
    }
    writeField(chip, kTsPrbsChkReg, 4, 1, chk->ulMode == 1 || chk->ulMode == 3 ? 1 : 0);
    writeField(chip, kTsPrbsChkReg, 2, 1, chk->ulFlag);
    writeField(chip, kTsPrbsChkReg, 1, 1, chk->ulPattern == 6 ? 1 : chk->ulPattern);
    writeField(chip, kTsPrbsChkReg, 3, 1, chk->ulPattern == 6 ? 1 : 0);
    writeField(chip, kTsPrbsChkPathReg, 0, 9,
               highOrder(pathType) ? chk->usET3Path + kTsHighOrderBase : chk->usPath);
    writeField(chip, kTsPrbsChkReg, 0, 1, enable);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSChkAttr(uint32_t chip, uint32_t pathType,
                                                   VQ6192_FRM_PRBS_CHK_ATTR_S *chk, uint8_t *enable) {
    if (!vq::validChip(chip) || pathType > 3 || chk == nullptr || enable == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kTsPrbsChkReg);
    const uint32_t path = readField(chip, kTsPrbsChkPathReg, 0, 9);
    const bool checkMode = (reg >> 4 & 1u) != 0;
    chk->ulMode = highOrder(pathType) ? (checkMode ? 3 : 2) : (checkMode ? 1 : 0);
    chk->ulFlag = (reg >> 2) & 1u;
    chk->ulPattern = ((reg >> 1 & 1u) != 0 && (reg >> 3 & 1u) != 0) ? 6 : (reg >> 1) & 1u;
    if (highOrder(pathType)) {
        chk->usET3Path = static_cast<uint16_t>(path - kTsHighOrderBase);
        chk->usPath = 0xFFFF;
    } else {
        chk->usPath = static_cast<uint16_t>(path);
        chk->usET3Path = 0xFFFF;
    }
    *enable = static_cast<uint8_t>(reg & 1u);
    return 0;
}

VQ6192_API uint32_t VQ6192_Framer_SetTsPRBSIns(uint32_t chip, uint32_t mode, uint32_t rate, uint32_t enable) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return setErrInsert(chip, kTsErrInsert, mode, rate, enable);
}

VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSIns(uint32_t chip, uint32_t *reInsRate, uint8_t *reInsEnable) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return getErrInsert(chip, kTsErrInsert, reInsRate, reInsEnable);
}

VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSAlm(uint32_t chip, uint16_t alarms[3]) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return readAlarms(chip, kTsPrbsAlarmReg, 3, alarms);
}

VQ6192_API uint32_t VQ6192_Framer_GetTsPRBSErrCnt(uint32_t chip, uint16_t *count) {
    if (!vq::validChip(chip)) {
        return paraErr(chip);
    }
    return readCounter(chip, kTsPrbsErrCntReg, count);
}

// ---- CES timeslots under PRBS test -----------------------------------------------------------------

// Marks (bit 9 of the channel field) or unmarks the enabled CES entries of the channel, timeslot by
// timeslot as the mask says. An entry already marked does not carry the bare channel number and is
// left alone.
VQ6192_API uint32_t VQ6192_Framer_SetTsCesPrbsCfg(uint32_t chip, uint32_t pathType, uint32_t dir, uint32_t e1,
                                                  uint32_t tsMask, uint32_t cesChnl) {
    if (!vq::validChip(chip) || !validCesSource(pathType, dir, e1) || cesChnl > 347) {
        return paraErr(chip);
    }
    for (uint32_t i = 0; i < ts::kTimeslots; ++i) {
        uint32_t entry = 0;
        const uint32_t rc = readCesEntry(chip, dir, e1, i, &entry);
        if (rc != 0) {
            return rc;
        }
        if (!enabledCes(entry) || vq::getField(&entry, ts::kChnum) != cesChnl) {
            continue;
        }
        vq::setField(&entry, ts::kChnum, cesChnl | ((tsMask >> i & 1u) << 9));
        if (ts::writeEntry(chip, ts::Kind::E1, e1, i, dir, entry) != 0) {
            return status(chip, kErrSubOp);
        }
    }
    return 0;
}

// Collects the marked timeslots and their channel. The channels found are ORed together; a second
// channel that adds bits is reported as error 6.
VQ6192_API uint32_t VQ6192_Framer_GetTsCesPrbsCfg(uint32_t chip, uint32_t pathType, uint32_t dir, uint32_t e1,
                                                  uint32_t *tsBitmap, uint16_t *cesChnl) {
    if (!vq::validChip(chip) || !validCesSource(pathType, dir, e1) || tsBitmap == nullptr ||
        cesChnl == nullptr) {
        return paraErr(chip);
    }
    *tsBitmap = 0;
    *cesChnl = 0;
    for (uint32_t i = 0; i < ts::kTimeslots; ++i) {
        uint32_t entry = 0;
        const uint32_t rc = readCesEntry(chip, dir, e1, i, &entry);
        if (rc != 0) {
            return rc;
        }
        const uint32_t field = vq::getField(&entry, ts::kChnum);
        if (!enabledCes(entry) || (field & ts::kCesPrbsBit) == 0) {
            continue;
        }
        const uint16_t channel = static_cast<uint16_t>(field & ~ts::kCesPrbsBit);
        const bool first = *tsBitmap == 0;
        *tsBitmap |= 1u << i;
        if (!first && (*cesChnl | channel) != *cesChnl) {
            VQ6192_FRM_TRACE(
                chip,
                "Err. VQ6192_Framer_GetTsCesPrbsCfg(%u,%u,%u).usChnlID(%u) and *pusChnlDstID not equal\n",
                chip, e1, i, static_cast<uint32_t>(channel));
            return status(chip, kErrChannel);
        }
        *cesChnl = static_cast<uint16_t>(*cesChnl | channel);
    }
    return 0;
}

}  // extern "C"
