// The SAM block on the 336 E1 channels: Sa-bit insertion and extraction, TU-AIS forwarding, HDLC
// source selection, and the per-channel counters, AIS warnings and SRAM soft errors. Status codes and
// trace lines of the SAM module.
#include "core/entry_field.h"
#include "core/status.h"
#include "platform/osal.h"
#include "vq6192/core.h"
#include "vq6192/sdh.h"
#include "vq6192/table.h"

namespace vq::sdh::sam {
namespace {

// Per-channel register S(e1) = 0x6200 + 2 * e1.
constexpr uint32_t kChanBase = 0x6200;
constexpr uint32_t kTuAisBit = 6;
constexpr uint32_t kFthModeBit = 5;
constexpr uint32_t kFthEnABit = 4;
constexpr uint32_t kFthSaEnBit = 3;  // mpi_fth_sa_en
constexpr uint32_t kInsModeBit = 2;
constexpr uint32_t kInsEnABit = 1;
constexpr uint32_t kInsSaEnBit = 0;  // mpi_ins_sa_en

constexpr uint32_t kReadyReg = 0x6000;  // bit 7: the block is ready to be initialised
constexpr uint32_t kReadyBit = 7;
constexpr uint32_t kGlbReg = 0x6060;  // bit 3 global TU-AIS, bits 2..0 HDLC source
constexpr uint32_t kGlbTuAisBit = 3;
constexpr uint32_t kHdlcSelMax = 4;
constexpr uint32_t kResetReg = 0x000C;  // bit 2 SAM block reset
constexpr uint32_t kResetBit = 1u << 2;
constexpr uint32_t kResetPulseUs = 10;

// Four counters per channel, 16 registers apart; the addresses advance one register per channel.
constexpr uint32_t kCntBase[4] = {0x6600, 0x6620, 0x6640, 0x6660};
constexpr uint32_t kAisWarnBase = 0x6800;  // + 2 * e1: bit 1, bit 0
constexpr uint32_t kSoftErrReg = 0x6688;   // bits 12..0
constexpr uint32_t kSoftErrNum = 13;

constexpr uint32_t kErrNotReady = 7;
constexpr uint32_t kBitPosNum = 4;

// Sa8..Sa4 of message bit 0..3.
constexpr EntryField kInsBits[kBitPosNum] = {
    entryField("Saminssbt", "Sabit0"), entryField("Saminssbt", "Sabit1"), entryField("Saminssbt", "Sabit2"),
    entryField("Saminssbt", "Sabit3")};
constexpr EntryField kFthBits[kBitPosNum] = {
    entryField("Samfthsbt", "Rxsabit0"), entryField("Samfthsbt", "Rxsabit1"),
    entryField("Samfthsbt", "Rxsabit2"), entryField("Samfthsbt", "Rxsabit3")};
constexpr uint32_t kInsTable = tableId("Saminssbt");
constexpr uint32_t kFthTable = tableId("Samfthsbt");
// Room for every data register a table block moves (up to 32 halves), not just the entry's 20 bits.
constexpr uint32_t kEntryWords = 16;

constexpr uint32_t chanReg(uint32_t e1) {
    return kChanBase + 2 * e1;
}

uint32_t paraErr(uint32_t chip) {
    return vq::paraErr(chip, VQ6192_MODULE_SAM);
}

// The parameter error code without a trace line.
uint32_t quietParaErr(uint32_t chip) {
    return makeStatus(chip, VQ6192_MODULE_SAM, 1);
}

bool badChan(uint32_t chip, uint32_t e1) {
    return !validChip(chip) || e1 >= VQ6192_SDH_E1_NUM;
}

void writeBit(uint32_t chip, uint32_t e1, uint32_t bit, uint32_t value) {
    VQ6192_WriteRegField(chip, chanReg(e1), value, bit, 1);
}

}  // namespace
}  // namespace vq::sdh::sam

using namespace vq::sdh::sam;

extern "C" {

// Types 0 and 2 leave the chip alone; type 1 puts every channel in fetch and insertion mode 1.
VQ6192_API uint32_t VQ6192_SAM_InitSam(uint32_t chip, uint32_t initType) {
    if (!vq::validChip(chip) || initType > 2) {
        return paraErr(chip);
    }
    if (initType != 1) {
        return 0;
    }
    if (VQ6192_ReadRegField(chip, kReadyReg, kReadyBit, 1) == 0) {
        return vq::makeStatus(chip, VQ6192_MODULE_SAM, kErrNotReady);
    }
    for (uint32_t e1 = 0; e1 < VQ6192_SDH_E1_NUM; ++e1) {
        writeBit(chip, e1, kFthModeBit, 1);
        writeBit(chip, e1, kInsModeBit, 1);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_ResetSam(uint32_t chip) {
    const uint32_t value = VQ6192_ReadReg(chip, kResetReg);
    VQ6192_WriteReg(chip, kResetReg, value | kResetBit);
    vq::DrvDelayUs(kResetPulseUs);
    VQ6192_WriteReg(chip, kResetReg, value & ~kResetBit);
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_SetSamGlbTuaisEn(uint32_t chip, uint32_t en) {
    if (!vq::validChip(chip) || en > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kGlbReg, en, kGlbTuAisBit, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_SetSamChnTuaisEn(uint32_t chip, uint32_t e1, uint32_t en) {
    if (badChan(chip, e1) || en > 1) {
        return paraErr(chip);
    }
    writeBit(chip, e1, kTuAisBit, en);
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_SetSamHdlcSel(uint32_t chip, uint32_t sel) {
    if (!vq::validChip(chip) || sel > kHdlcSelMax) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kGlbReg, sel, 0, 3);
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_SetSamFthEn(uint32_t chip, uint32_t e1, uint32_t enA, uint32_t saEn) {
    if (badChan(chip, e1) || enA > 1 || saEn > 1) {
        return paraErr(chip);
    }
    writeBit(chip, e1, kFthEnABit, enA);
    writeBit(chip, e1, kFthSaEnBit, saEn);
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_SetSamFthMod(uint32_t chip, uint32_t e1, uint32_t mode) {
    if (badChan(chip, e1) || mode > 1) {
        return paraErr(chip);
    }
    writeBit(chip, e1, kFthModeBit, mode);
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_SetSamInsEn(uint32_t chip, uint32_t e1, uint32_t enA, uint32_t saEn) {
    if (badChan(chip, e1) || enA > 1 || saEn > 1) {
        return paraErr(chip);
    }
    writeBit(chip, e1, kInsEnABit, enA);
    writeBit(chip, e1, kInsSaEnBit, saEn);
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_SetSamInsMod(uint32_t chip, uint32_t e1, uint32_t mode) {
    if (badChan(chip, e1) || mode > 1) {
        return paraErr(chip);
    }
    writeBit(chip, e1, kInsModeBit, mode);
    return 0;
}

// Table read and write failures are not reported: the entry goes back as read.
VQ6192_API uint32_t VQ6192_SAM_SetSaBitInsert(uint32_t chip, uint32_t e1, uint32_t bitPos, uint32_t saBits,
                                              uint32_t insEn) {
    if (badChan(chip, e1)) {
        return paraErr(chip);
    }
    uint32_t entry[kEntryWords] = {};
    (void)VQ6192_Read_Table(chip, kInsTable, e1, entry);
    if (bitPos >= kBitPosNum) {
        return quietParaErr(chip);
    }
    vq::setField(entry, kInsBits[bitPos], saBits & 0x1Fu);
    (void)VQ6192_Write_Table(chip, kInsTable, e1, entry);
    writeBit(chip, e1, kInsSaEnBit, insEn);
    return 0;
}

// Every read also sets the extraction enable, before the bit position is checked.
VQ6192_API uint32_t VQ6192_SAM_GetSaBitValue(uint32_t chip, uint32_t e1, uint32_t bitPos, uint32_t *saBits,
                                             uint32_t fthEn) {
    if (badChan(chip, e1) || saBits == nullptr) {
        return paraErr(chip);
    }
    writeBit(chip, e1, kFthSaEnBit, fthEn);
    uint32_t entry[kEntryWords] = {};
    (void)VQ6192_Read_Table(chip, kFthTable, e1, entry);
    if (bitPos >= kBitPosNum) {
        return quietParaErr(chip);
    }
    *saBits = vq::getField(entry, kFthBits[bitPos]);
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_GetSamCnt(uint32_t chip, uint32_t e1, uint32_t *cnt0, uint32_t *cnt1,
                                         uint32_t *cnt2, uint32_t *cnt3) {
    if (badChan(chip, e1) || cnt0 == nullptr || cnt1 == nullptr || cnt2 == nullptr || cnt3 == nullptr) {
        return paraErr(chip);
    }
    uint32_t *out[4] = {cnt0, cnt1, cnt2, cnt3};
    for (uint32_t i = 0; i < 4; ++i) {
        *out[i] = VQ6192_ReadRegField(chip, kCntBase[i] + 2 * e1, 0, 8);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_GetSamMpiAisWarn(uint32_t chip, uint32_t e1, uint32_t *warn1,
                                                uint32_t *warn0) {
    if (badChan(chip, e1) || warn1 == nullptr || warn0 == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kAisWarnBase + 2 * e1);
    *warn1 = (reg >> 1) & 1u;
    *warn0 = reg & 1u;
    return 0;
}

VQ6192_API uint32_t VQ6192_SAM_GetSamSramSoftErr(uint32_t chip, uint32_t *flags) {
    if (!vq::validChip(chip) || flags == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, kSoftErrReg);
    for (uint32_t i = 0; i < kSoftErrNum; ++i) {
        flags[i] = (reg >> (12 - i)) & 1u;
    }
    return 0;
}

}  // extern "C"
