// Line mode and the mapping of the AU-3/TUG-3 slots: a map type is programmed from one row of the map
// configuration table, column by column, and read back by finding the row the registers match.
#include <array>

#include "core/status.h"
#include "framer/framer_internal.h"
#include "platform/osal.h"
#include "sdh/sdh_regs.h"
#include "vq6192/core.h"
#include "vq6192/sdh.h"

namespace vq::sdh {
namespace {

constexpr uint16_t kNone = 0xFFFF;
constexpr uint32_t kErrNoMap = 6;

// Where a column's field lies: chip-wide, or the bit of this VC-4 or of this AU-3 slot, or a field of
// a per-VC-4 register.
enum class Scope { Chip, Vc4Bit, Au3Bit };

struct Column {
    uint32_t reg;
    uint32_t startBit;  // for Vc4Bit / Au3Bit: the bit of slot 0
    uint32_t width;
    Scope scope;
    uint32_t vc4Stride;  // per-VC-4 register: address step per VC-4
    uint32_t au3Stride;  // per-AU-3 register: address step per AU-3 index
    bool check;          // must equal the register instead of being written
};

// clang-format off
constexpr std::array<Column, VQ6192_SDH_MAP_CFG_COLUMNS> kColumns = {{
    //  register  bit width scope          vc4 step au3 step check
    {0x24000,   8, 1, Scope::Chip,   0,    0,    false},  //  0
    {0x24000,   0, 1, Scope::Vc4Bit, 0,    0,    false},  //  1 bit VC-4 of bits 3..0
    {0x24002,  13, 1, Scope::Chip,   0,    0,    false},  //  2
    {0x24006,  14, 1, Scope::Chip,   0,    0,    false},  //  3
    {0x2080E,   0, 1, Scope::Au3Bit, 0,    0,    false},  //  4 bit AU-3 index of bits 11..0
    {0x2C002,   4, 1, Scope::Vc4Bit, 0,    0,    false},  //  5 bit 4 + VC-4
    {0x2C002,   0, 1, Scope::Vc4Bit, 0,    0,    false},  //  6 bit VC-4
    {0x20006,   0, 1, Scope::Chip,   0,    0,    true},   //  7 line mode
    {0x2C380,   0, 2, Scope::Chip,   0,    0,    false},  //  8 bits 2v+1..2v (see fieldOf)
    {0x2C040,   0, 2, Scope::Chip,   0x40, 0,    false},  //  9 VT/TU type, three receive blocks
    {0x2C000,   1, 1, Scope::Chip,   0,    0,    false},  // 10 SONET B3 check off
    {0x202C,    0, 2, Scope::Chip,   2,    0,    false},  // 11 VC-4 payload type, pulsed
    {0x2A020,   5, 3, Scope::Chip,   0,    0,    false},  // 12 bits 7..5
    {0x202A,    0, 1, Scope::Chip,   0,    0,    false},  // 13
    {0x2400C,   0, 2, Scope::Chip,   0,    0,    false},  // 14 bits 1..0
    {0x2400C,   2, 2, Scope::Chip,   0,    0,    false},  // 15 bits 3..2
    {0x000E,    2, 1, Scope::Chip,   0,    0,    true},   // 16 E3/DS3 mode
    {0x000E,    1, 1, Scope::Chip,   0,    0,    true},   // 17 E1/T1 mode
    {0x29282,   0, 1, Scope::Au3Bit, 0,    0,    false},  // 18 bit AU-3 index of bits 11..0
    {0x2B602,   0, 1, Scope::Chip,   0,    0x20, false},  // 19 per AU-3 register, bit 0
}};
// clang-format on

constexpr uint32_t kVttuColumn = 9;
constexpr uint32_t kPayloadColumn = 11;
constexpr uint32_t kVc4PairColumn = 8;

// Order in which the written columns are programmed.
constexpr uint32_t kWriteOrder[] = {0, 1, 2, 3, 4, 5, 6, 8, 9, 10, 11, 12, 13, 14, 15, 18, 19};

struct Field {
    uint32_t addr;
    uint32_t startBit;
    uint32_t width;
};

Field fieldOf(uint32_t col, uint32_t vc4, uint32_t au3) {
    const Column &c = kColumns[col];
    const uint32_t au3Index = 3 * vc4 + au3;
    Field f{c.reg + c.vc4Stride * vc4 + c.au3Stride * au3Index, c.startBit, c.width};
    if (c.scope == Scope::Vc4Bit) {
        f.startBit += vc4;
    } else if (c.scope == Scope::Au3Bit) {
        f.startBit += au3Index;
    }
    if (col == kVc4PairColumn) {
        f.startBit = 2 * vc4;
    }
    return f;
}

uint32_t readField(uint32_t chip, const Field &f) {
    return VQ6192_ReadRegField(chip, f.addr, f.startBit, f.width);
}

void writeField(uint32_t chip, const Field &f, uint32_t value) {
    VQ6192_WriteRegField(chip, f.addr, value, f.startBit, f.width);
}

const uint16_t (&rowOf(uint32_t vc4, uint32_t mapType))[VQ6192_SDH_MAP_CFG_COLUMNS] {
    return vc4 == 0 ? g_aausVQ6192SDHMapCfg0[mapType] : g_aausVQ6192SDHMapCfg123[mapType];
}

// The VT/TU type of a VC-4 goes to its three receive high-order blocks.
uint32_t vttuAddr(uint32_t vc4, uint32_t block) {
    return kRxHoBlock[block] + kRxHoVc4Stride * vc4;
}

// After a T1 structure the framer channels of the slot restart: every register channel 0..27 of the
// AU-3 (TUG-2 0..6 of TU 0..3) gets its ingress reset pulsed.
void pulseT1ChannelResets(uint32_t chip, uint32_t vc4, uint32_t au3) {
    for (uint32_t reg = 0; reg < 28; ++reg) {
        framer::writeIngressReset(chip, vc4, au3, reg, 1);
        framer::writeIngressReset(chip, vc4, au3, reg, 0);
    }
}

uint32_t mapErr(uint32_t chip) {
    return makeStatus(chip, VQ6192_MODULE_SDH, kErrNoMap);
}

}  // namespace
}  // namespace vq::sdh

extern "C" {

VQ6192_API uint32_t VQ6192_SDH_SetSDHSonetMode(uint32_t chip, uint32_t mode) {
    using namespace vq::sdh;
    if (!vq::validChip(chip) || mode > VQ6192_SDH_MODE_SONET) {
        return vq::paraErr(chip, VQ6192_MODULE_SDH);
    }
    // Written whole: bits 15..1 kept, bit 0 the mode.
    const uint32_t value = VQ6192_ReadReg(chip, kLineModeReg);
    VQ6192_WriteReg(chip, kLineModeReg, (value & 0xFFFEu) | mode);
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetSDHSonetMode(uint32_t chip, uint8_t *mode) {
    using namespace vq::sdh;
    if (!vq::validChip(chip) || mode == nullptr) {
        return vq::paraErr(chip, VQ6192_MODULE_SDH);
    }
    *mode = static_cast<uint8_t>(VQ6192_ReadRegField(chip, kLineModeReg, 0, 1));
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_SetSDHMap(uint32_t chip, uint32_t vc4, uint32_t au3, uint32_t mapType) {
    using namespace vq::sdh;
    if (!vq::validChip(chip) || vc4 >= VQ6192_SDH_VC4_NUM || au3 >= VQ6192_SDH_AU3_NUM ||
        mapType >= VQ6192_SDH_MAP_TYPE_NUM ||
        (vc4 != 0 && (mapType == CKD_FE_SDHSONET_MAP_HTB_E1 || mapType == CKD_FE_SDHSONET_MAP_HTB_T1))) {
        return vq::paraErr(chip, VQ6192_MODULE_SDH);
    }
    const auto &row = rowOf(vc4, mapType);
    // The check columns make the map type follow the chip's line and TDM modes; nothing is written
    // unless they all agree.
    for (uint32_t col = 0; col < VQ6192_SDH_MAP_CFG_COLUMNS; ++col) {
        if (kColumns[col].check && row[col] != kNone && readField(chip, fieldOf(col, vc4, au3)) != row[col]) {
            return vq::paraErr(chip, VQ6192_MODULE_SDH);
        }
    }
    for (uint32_t col : kWriteOrder) {
        const uint16_t value = row[col];
        if (value == kNone) {
            continue;
        }
        const Field f = fieldOf(col, vc4, au3);
        if (col == kVttuColumn) {
            for (uint32_t block = 0; block < 3; ++block) {
                writeField(chip, {vttuAddr(vc4, block), f.startBit, f.width}, value);
            }
            if (vc4 == 3) {
                vq::DrvDelayUs(kVc4Slot3SettleUs);
            }
        } else if (col == kPayloadColumn) {
            writeField(chip, f, kPayloadPulseValue);
            vq::DrvDelayUs(kPayloadPulseUs);
            writeField(chip, f, value);
        } else {
            writeField(chip, f, value);
        }
    }
    if (mapType == CKD_FE_SDHSONET_MAP_HTB_T1 || mapType == CKD_FE_SDHSONET_MAP_DS1_VT15_STS1) {
        pulseT1ChannelResets(chip, vc4, au3);
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SDH_GetSDHMap(uint32_t chip, uint32_t vc4, uint32_t au3, uint8_t *mapType) {
    using namespace vq::sdh;
    if (!vq::validChip(chip) || vc4 >= VQ6192_SDH_VC4_NUM || au3 >= VQ6192_SDH_AU3_NUM ||
        mapType == nullptr) {
        return vq::paraErr(chip, VQ6192_MODULE_SDH);
    }
    *mapType = NULL_MAP_PATH;
    const Field vttu = fieldOf(kVttuColumn, vc4, au3);
    uint32_t vttuType[3];
    for (uint32_t block = 0; block < 3; ++block) {
        vttuType[block] = readField(chip, {vttuAddr(vc4, block), vttu.startBit, vttu.width});
    }
    if (vttuType[0] != vttuType[1] || vttuType[0] != vttuType[2]) {
        const uint32_t status = mapErr(chip);
        VQ6192_Printf(
            chip, VQ6192_MODULE_SDH, VQ6192_PRINT_EXCEPTION1_INFO,
            "Err. VQ6192_SDH_GetSDHMap.VQ6192_MAP_STRUC1_ReadVttuType(%u,%u)       ErrCode[%#x]\r\n", vc4,
            au3, status);
        return status;
    }
    std::array<uint32_t, VQ6192_SDH_MAP_CFG_COLUMNS> current{};
    for (uint32_t col = 0; col < VQ6192_SDH_MAP_CFG_COLUMNS; ++col) {
        current[col] = col == kVttuColumn ? vttuType[0] : readField(chip, fieldOf(col, vc4, au3));
    }
    // From type 13 down: where two rows match, the higher type wins. Column 8 is not compared.
    for (uint32_t type = VQ6192_SDH_MAP_TYPE_NUM; type-- > 0;) {
        const auto &row = rowOf(vc4, type);
        bool match = true;
        for (uint32_t col = 0; col < VQ6192_SDH_MAP_CFG_COLUMNS && match; ++col) {
            match = col == kVc4PairColumn || row[col] == kNone || row[col] == current[col];
        }
        if (match) {
            *mapType = static_cast<uint8_t>(type);
            return 0;
        }
    }
    const uint32_t status = mapErr(chip);
    VQ6192_Printf(chip, VQ6192_MODULE_SDH, VQ6192_PRINT_EXCEPTION1_INFO,
                  "Err. VQ6192_SDH_GetSDHMap.reSdhMap(%u)       ErrCode[%#x]\r\n",
                  static_cast<uint32_t>(NULL_MAP_PATH), status);
    return status;
}

}  // extern "C"
