// Register access: the three ways of reaching the chip (host functions, memory-mapped, indirect), the
// chip lock around plain accesses, and field access.
#include "core/chip_lock.h"
#include "core/reg_field.h"
#include "core/status.h"
#include "platform/osal.h"

namespace vq {
namespace {

// The scaled address of the memory-mapped fall-back: addr times the multiplier (0 means 1).
uint32_t scaledAddr(const VQ6192_CHIP_RECORD &rec, uint32_t addr) {
    return rec.ulAddrMultiple == 0 ? addr : addr * rec.ulAddrMultiple;
}

// A chip without a register window (base address 0: never installed, or installed for host functions
// only) has nothing to map; its memory-mapped accesses read 0 and write nothing instead of touching
// the host's address 0.
volatile uint16_t *mappedReg(uint32_t chip, uint32_t addr) {
    if (g_vq6192[chip].ulBaseAddr == 0) {
        return nullptr;
    }
    return reinterpret_cast<volatile uint16_t *>(VQ6192_Calc_AbsAddr(chip, addr));
}

uint16_t loadMapped(uint32_t chip, uint32_t addr) {
    volatile uint16_t *reg = mappedReg(chip, addr);
    return reg != nullptr ? *reg : 0;
}

void storeMapped(uint32_t chip, uint32_t addr, uint32_t value) {
    if (volatile uint16_t *reg = mappedReg(chip, addr)) {
        *reg = static_cast<uint16_t>(value);
    }
}

int asInt(uint32_t v) {
    return static_cast<int>(v);
}

}  // namespace

LockState lockForAccess(uint32_t chip, uint32_t addr, uint32_t value, uint32_t *status) {
    VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    uint32_t rc = VQ6192_SemP(chip, addr, value);
    if (rc == 0 && rec.pfnGetArbitrate != nullptr && rec.pfnGetArbitrate(chip) != 0) {
        PIC_DbgLog(2, "chip %d pwe3 write reg get attrb fail,addr 0x%x,val 0x%x", asInt(chip), addr, value);
        rec.aulRegFailInfo[VQ6192_FAIL_ARBITRATE]++;
        VQ6192_SemV(chip, addr, value);
        rc = 0x00010007u;
    }
    if (status != nullptr) {
        *status = rc;
    }
    if (rc != 0) {
        return LockState::Failed;
    }
    // A card found absent gives the lock back at once. The lock step still reports success; register
    // accesses then skip the bus cycle (a read yields 0) instead of touching a card that is gone.
    if (rec.pfnCardPresent != nullptr && rec.pfnCardPresent(chip) == 0) {
        VQ6192_GiveArbitrateFunc(chip, addr, value);
        return LockState::CardAbsent;
    }
    return LockState::Held;
}

}  // namespace vq

using vq::asInt;
using vq::LockState;

extern "C" {

// ---- Lock steps -----------------------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_SemP(uint32_t chip, uint32_t addr, uint32_t value) {
    if (!vq::recordIndex(chip)) {
        return VQ6192_ERR_LOCK;
    }
    VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    if (rec.pSem != nullptr && vq::iof_sema_timewait(rec.pSem, vq::kSemTimeout) != 0) {
        rec.aulRegFailInfo[VQ6192_FAIL_SEM_TAKE]++;
        vq::PIC_DbgLog(2, "chip %d pwe3 write reg get sem fail,addr 0x%x,val 0x%x", asInt(chip), addr, value);
        return VQ6192_ERR_LOCK;
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_SemV(uint32_t chip, uint32_t addr, uint32_t value) {
    if (!vq::recordIndex(chip)) {
        return VQ6192_ERR_LOCK;
    }
    VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    if (rec.pSem != nullptr && vq::iof_sema_post(rec.pSem) != 0) {
        vq::PIC_DbgLog(2, "chip %d pwe3 write reg give sem fail,addr 0x%x,val 0x%x", asInt(chip), addr,
                       value);
        rec.aulRegFailInfo[VQ6192_FAIL_SEM_GIVE]++;
        return VQ6192_ERR_LOCK;
    }
    return 0;
}

VQ6192_API uint32_t VQ6192_GetArbitrateFunc(uint32_t chip, uint32_t addr, uint32_t value) {
    if (!vq::recordIndex(chip)) {
        return VQ6192_ERR_LOCK;
    }
    uint32_t status = 0;
    vq::lockForAccess(chip, addr, value, &status);
    return status;
}

VQ6192_API uint32_t VQ6192_GiveArbitrateFunc(uint32_t chip, uint32_t addr, uint32_t value) {
    if (!vq::recordIndex(chip)) {
        return VQ6192_ERR_LOCK;
    }
    VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    if (rec.pfnGiveArbitrate != nullptr) {
        rec.pfnGiveArbitrate(chip);
    }
    return VQ6192_SemV(chip, addr, value);
}

VQ6192_API void VQ6192_Get_RegFailInfo(uint32_t chip, uint32_t out[4]) {
    if (out == nullptr || !vq::recordIndex(chip)) {
        return;
    }
    for (uint32_t i = 0; i < 4; ++i) {
        out[i] = g_vq6192[chip].aulRegFailInfo[i];
    }
}

// ---- Addresses and the indirect path ------------------------------------------------------------

VQ6192_API uintptr_t VQ6192_Calc_AbsAddr(uint32_t chip, uint32_t addr) {
    if (!vq::recordIndex(chip)) {
        return 0;
    }
    const VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    uintptr_t offset = vq::scaledAddr(rec, addr);
    if (rec.ulSupportProductFlag == 1) {
        offset *= 2;
    }
    return rec.ulBaseAddr + offset;
}

VQ6192_API uint32_t VQ6192_Indirect_ReadReg16(uint32_t chip, uintptr_t absAddr, uint16_t *value) {
    if (!vq::recordIndex(chip)) {
        return 0;
    }
    const VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    if (rec.pfnIndirectRead16 == nullptr) {
        return 0;
    }
    return rec.pfnIndirectRead16(rec.ulIndirectHandle,
                                 static_cast<uint32_t>(absAddr - rec.ulIndirectBaseAddr), value);
}

VQ6192_API uint32_t VQ6192_Indirect_WriteReg16(uint32_t chip, uintptr_t absAddr, uint16_t value) {
    if (!vq::recordIndex(chip)) {
        return 0;
    }
    const VQ6192_CHIP_RECORD &rec = g_vq6192[chip];
    if (rec.pfnIndirectWrite16 == nullptr) {
        return 0;
    }
    return rec.pfnIndirectWrite16(rec.ulIndirectHandle,
                                  static_cast<uint32_t>(absAddr - rec.ulIndirectBaseAddr), value);
}

// ---- Plain locked accesses ------------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_WriteRegDirect(uint32_t chip, uint32_t addr, uint32_t value) {
    if (!vq::validChip(chip)) {
        return 0;
    }
    LockState lock = vq::lockForAccess(chip, addr, value);
    if (lock == LockState::Failed) {
        vq::PIC_DbgLog(2, "WriteRegIndirect chip %d pwe3 write reg get sem fail,addr 0x%x,val 0x%x",
                       asInt(chip), addr, value);
        return 0;
    }
    if (lock == LockState::CardAbsent) {
        return 0;
    }
    if (g_p6192WriteRegPtr[chip] != nullptr) {
        g_p6192WriteRegPtr[chip](chip, addr, value);
    } else {
        vq::storeMapped(chip, addr, value);
    }
    return VQ6192_GiveArbitrateFunc(chip, addr, value);
}

VQ6192_API uint32_t VQ6192_ReadRegDirect(uint32_t chip, uint32_t addr) {
    if (!vq::validChip(chip)) {
        return 0;
    }
    LockState lock = vq::lockForAccess(chip, addr, 0);
    if (lock == LockState::Failed) {
        vq::PIC_DbgLog(
            2, "ReadRegdirect GetArbitrateFunc chip %d pwe3 write reg get sem fail,addr 0x%x,val 0x%x",
            asInt(chip), addr, 0u);
        return 0;
    }
    if (lock == LockState::CardAbsent) {
        return 0;
    }
    if (g_p6192ReadRegPtr[chip] != nullptr) {
        uint32_t value = g_p6192ReadRegPtr[chip](chip, addr);
        VQ6192_GiveArbitrateFunc(chip, addr, value);
        return value;
    }
    uint32_t value = vq::loadMapped(chip, addr);
    if (VQ6192_GiveArbitrateFunc(chip, addr, value) != 0) {
        vq::PIC_DbgLog(
            2, "ReadRegdirect  GiveArbitrateFunc chip %d pwe3 write reg get sem fail,addr 0x%x,val 0x%x",
            asInt(chip), vq::scaledAddr(g_vq6192[chip], addr), value);
        return 0;
    }
    return value;
}

VQ6192_API uint32_t VQ6192_WriteRegIndirect(uint32_t chip, uint32_t addr, uint32_t value) {
    if (!vq::validChip(chip)) {
        return 0;
    }
    LockState lock = vq::lockForAccess(chip, addr, value);
    if (lock == LockState::Failed) {
        vq::PIC_DbgLog(2, "WriteRegIndirect chip %d pwe3 write reg get sem fail,addr 0x%x,val 0x%x",
                       asInt(chip), addr, value);
        return 0;
    }
    if (lock == LockState::CardAbsent) {
        return 0;
    }
    VQ6192_Indirect_WriteReg16(chip, VQ6192_Calc_AbsAddr(chip, addr), static_cast<uint16_t>(value));
    return VQ6192_GiveArbitrateFunc(chip, addr, value);
}

VQ6192_API uint32_t VQ6192_ReadRegIndirect(uint32_t chip, uint32_t addr) {
    if (!vq::validChip(chip)) {
        return 0;
    }
    LockState lock = vq::lockForAccess(chip, addr, 0);
    if (lock == LockState::Failed) {
        vq::PIC_DbgLog(
            2, "ReadRegIndirect GetArbitrateFunc chip %d pwe3 write reg get sem fail,addr 0x%x,val 0x%x",
            asInt(chip), addr, 0u);
        return 0;
    }
    if (lock == LockState::CardAbsent) {
        return 0;
    }
    uint16_t value = 0;
    VQ6192_Indirect_ReadReg16(chip, VQ6192_Calc_AbsAddr(chip, addr), &value);
    if (VQ6192_GiveArbitrateFunc(chip, addr, value) != 0) {
        vq::PIC_DbgLog(
            2, "ReadRegIndirect  GiveArbitrateFunc chip %d pwe3 write reg get sem fail,addr 0x%x,val 0x%x",
            asInt(chip), addr, static_cast<uint32_t>(value));
        return 0;
    }
    return value;
}

VQ6192_API void VQ6192_WriteReg(uint32_t chip, uint32_t addr, uint32_t value) {
    if (VQ6192_GetRegIndirectFlag(chip) != 0) {
        VQ6192_WriteRegIndirect(chip, addr, value);
    } else {
        VQ6192_WriteRegDirect(chip, addr, value);
    }
}

VQ6192_API uint32_t VQ6192_ReadReg(uint32_t chip, uint32_t addr) {
    return VQ6192_GetRegIndirectFlag(chip) != 0 ? VQ6192_ReadRegIndirect(chip, addr)
                                                : VQ6192_ReadRegDirect(chip, addr);
}

// Read and write lock separately: the pair is not atomic against another thread writing the same
// register.
VQ6192_API void VQ6192_WriteRegField(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit,
                                     uint32_t width) {
    if (!vq::validChip(chip)) {
        return;
    }
    uint32_t old = VQ6192_ReadReg(chip, addr);
    VQ6192_WriteReg(chip, addr, vq::fieldMerge(old, value, startBit, width));
}

VQ6192_API uint32_t VQ6192_ReadRegField(uint32_t chip, uint32_t addr, uint32_t startBit, uint32_t width) {
    if (!vq::validChip(chip)) {
        return 0;
    }
    return vq::fieldGet(VQ6192_ReadReg(chip, addr), startBit, width);
}

// ---- Unlocked field accesses ---------------------------------------------------------------------

VQ6192_API void VQ6192_WriteRegFieldBDirect(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit,
                                            uint32_t width) {
    if (!vq::validChip(chip)) {
        return;
    }
    if (g_p6192WriteRegFieldBDirecr[chip] != nullptr) {
        g_p6192WriteRegFieldBDirecr[chip](chip, addr, value, startBit, width);
        return;
    }
    vq::storeMapped(chip, addr, vq::fieldMerge(vq::loadMapped(chip, addr), value, startBit, width));
}

VQ6192_API uint32_t VQ6192_ReadRegFieldBDirect(uint32_t chip, uint32_t addr, uint32_t startBit,
                                               uint32_t width) {
    if (!vq::validChip(chip)) {
        return 0;
    }
    if (g_p6192ReadRegFieldBDirect[chip] != nullptr) {
        return g_p6192ReadRegFieldBDirect[chip](chip, addr, startBit, width);
    }
    return vq::fieldGet(vq::loadMapped(chip, addr), startBit, width);
}

VQ6192_API void VQ6192_WriteRegFieldBIndirect(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit,
                                              uint32_t width) {
    if (!vq::validChip(chip)) {
        return;
    }
    uintptr_t abs = VQ6192_Calc_AbsAddr(chip, addr);
    uint16_t old = 0;
    VQ6192_Indirect_ReadReg16(chip, abs, &old);
    VQ6192_Indirect_WriteReg16(chip, abs, static_cast<uint16_t>(vq::fieldMerge(old, value, startBit, width)));
}

VQ6192_API uint32_t VQ6192_ReadRegFieldBIndirect(uint32_t chip, uint32_t addr, uint32_t startBit,
                                                 uint32_t width) {
    if (!vq::validChip(chip)) {
        return 0;
    }
    uint16_t value = 0;
    VQ6192_Indirect_ReadReg16(chip, VQ6192_Calc_AbsAddr(chip, addr), &value);
    return vq::fieldGet(value, startBit, width);
}

VQ6192_API void VQ6192_WriteRegFieldB(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit,
                                      uint32_t width) {
    if (VQ6192_GetRegIndirectFlag(chip) != 0) {
        VQ6192_WriteRegFieldBIndirect(chip, addr, value, startBit, width);
    } else {
        VQ6192_WriteRegFieldBDirect(chip, addr, value, startBit, width);
    }
}

VQ6192_API uint32_t VQ6192_ReadRegFieldB(uint32_t chip, uint32_t addr, uint32_t startBit, uint32_t width) {
    return VQ6192_GetRegIndirectFlag(chip) != 0 ? VQ6192_ReadRegFieldBIndirect(chip, addr, startBit, width)
                                                : VQ6192_ReadRegFieldBDirect(chip, addr, startBit, width);
}

// ---- Register-number interface ---------------------------------------------------------------------

VQ6192_API uint32_t VQ6192_Base_ReadReg(uint32_t chip, uint32_t regNo, uint32_t startBit, uint32_t width,
                                        uint16_t *out) {
    if (out == nullptr || static_cast<int32_t>(startBit + width) > 16) {
        return vq::paraErr(chip, VQ6192_MODULE_BASE);
    }
    *out = static_cast<uint16_t>(VQ6192_ReadRegField(chip, regNo * 2, startBit, width));
    return 0;
}

VQ6192_API uint32_t VQ6192_Base_WriteReg(uint32_t chip, uint32_t regNo, uint32_t value, uint32_t startBit,
                                         uint32_t width) {
    if (static_cast<int32_t>(startBit + width) > 16) {
        return vq::paraErr(chip, VQ6192_MODULE_BASE);
    }
    VQ6192_WriteRegField(chip, regNo * 2, value, startBit, width);
    return 0;
}

}  // extern "C"
