// The telecom bus: resets, output byte phase, clock edges, B2 insertion and counting, interrupt masks,
// and the 77 MHz frame-pulse and per-port alarms. Status codes of the SDH module.
#include "core/status.h"
#include "sdh/telecom_regs.h"
#include "vq6192/core.h"
#include "vq6192/sdh.h"

namespace vq::sdh::tele {
namespace {

uint32_t paraErr(uint32_t chip) {
    return vq::paraErr(chip, VQ6192_MODULE_SDH);
}

uint32_t setBit(uint32_t chip, uint32_t addr, uint32_t bit, uint32_t value) {
    if (!validChip(chip) || value > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, addr, value, bit, 1);
    return 0;
}

template <typename T>
uint32_t getBit(uint32_t chip, uint32_t addr, uint32_t bit, T *value) {
    if (!validChip(chip) || value == nullptr) {
        return paraErr(chip);
    }
    *value = static_cast<T>(VQ6192_ReadRegField(chip, addr, bit, 1));
    return 0;
}

uint32_t readAlarms(uint32_t chip, uint32_t addr, uint8_t *jitter, uint8_t *los, uint8_t *fifoErr,
                    uint8_t *clkLoc) {
    if (!validChip(chip) || jitter == nullptr || los == nullptr || fifoErr == nullptr || clkLoc == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, addr);
    *jitter = static_cast<uint8_t>((reg >> 3) & 1u);
    *los = static_cast<uint8_t>((reg >> 2) & 1u);
    *fifoErr = static_cast<uint8_t>((reg >> 1) & 1u);
    *clkLoc = static_cast<uint8_t>(reg & 1u);
    return 0;
}

// A port above 3 is refused with the parameter error code but without a trace line.
uint32_t readPortErrors(uint32_t chip, uint32_t addr, uint32_t port, uint8_t *fifoErr, uint8_t *b2Of,
                        uint8_t *c1Err, uint8_t *c1j1Spe) {
    if (!validChip(chip) || port >= kPortNum) {
        return makeStatus(chip, VQ6192_MODULE_SDH, 1);
    }
    if (fifoErr == nullptr || b2Of == nullptr || c1Err == nullptr || c1j1Spe == nullptr) {
        return paraErr(chip);
    }
    const uint32_t reg = VQ6192_ReadReg(chip, addr);
    *fifoErr = static_cast<uint8_t>((reg >> (kFifoErrBit + port)) & 1u);
    *b2Of = static_cast<uint8_t>((reg >> (kB2OfBit + port)) & 1u);
    *c1Err = static_cast<uint8_t>((reg >> (kC1ErrBit + port)) & 1u);
    *c1j1Spe = port < kC1j1SpePorts ? static_cast<uint8_t>((reg >> (kC1j1SpeBit + port)) & 1u) : 0;
    return 0;
}

uint32_t setPortMask(uint32_t chip, uint32_t port, uint32_t msk, uint32_t base, uint32_t ports) {
    if (!validChip(chip) || port >= ports || msk > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kPortMsk, msk, base + port, 1);
    return 0;
}

uint32_t getPortMask(uint32_t chip, uint32_t port, uint8_t *msk, uint32_t base, uint32_t ports) {
    if (!validChip(chip) || port >= ports || msk == nullptr) {
        return paraErr(chip);
    }
    *msk = static_cast<uint8_t>(VQ6192_ReadRegField(chip, kPortMsk, base + port, 1));
    return 0;
}

// Edge type 0 (the receive clock) is bit 2, type 1 bit 1, type 2 bit 0.
constexpr uint32_t edgeBit(uint32_t edgeType) {
    return 2 - edgeType;
}

}  // namespace
}  // namespace vq::sdh::tele

using namespace vq::sdh::tele;

extern "C" {

// Takes any value and writes its bit 0.
VQ6192_API uint32_t VQ6192_Telecom_SetTeleRst(uint32_t chip, uint32_t value) {
    VQ6192_WriteRegField(chip, kRst, value & 1u, 0, 1);
    return 0;
}

VQ6192_API uint32_t VQ6192_Telecom_GetTeleRst(uint32_t chip, uint8_t *value) {
    return getBit(chip, kRst, 0, value);
}

VQ6192_API uint32_t VQ6192_Telecom_SetFpFifoRead(uint32_t chip, uint32_t phase) {
    if (!vq::validChip(chip) || phase > kFpPhaseMax) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kFpFifoRead, phase, 0, 4);
    return 0;
}

VQ6192_API uint32_t VQ6192_Telecom_GetFpFifoRead(uint32_t chip, uint16_t *phase) {
    if (!vq::validChip(chip) || phase == nullptr) {
        return paraErr(chip);
    }
    *phase = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kFpFifoRead, 0, 4));
    return 0;
}

VQ6192_API uint32_t VQ6192_Telecom_SetFpJitterMsk(uint32_t chip, uint32_t msk) {
    return setBit(chip, kAlmMsk, 3, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_GetFpJitterMsk(uint32_t chip, uint16_t *msk) {
    return getBit(chip, kAlmMsk, 3, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_SetFpLosMsk(uint32_t chip, uint32_t msk) {
    return setBit(chip, kAlmMsk, 2, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_GetFpLosMsk(uint32_t chip, uint16_t *msk) {
    return getBit(chip, kAlmMsk, 2, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_SetFpErrMsk(uint32_t chip, uint32_t msk) {
    return setBit(chip, kAlmMsk, 1, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_GetFpErrMsk(uint32_t chip, uint16_t *msk) {
    return getBit(chip, kAlmMsk, 1, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_SetClkLocMsk(uint32_t chip, uint32_t msk) {
    return setBit(chip, kAlmMsk, 0, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_GetClkLocMsk(uint32_t chip, uint16_t *msk) {
    return getBit(chip, kAlmMsk, 0, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_SetIntGlbMsk(uint32_t chip, uint32_t msk) {
    return setBit(chip, kIntMsk, 1, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_GetIntGlbMsk(uint32_t chip, uint16_t *msk) {
    return getBit(chip, kIntMsk, 1, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_SetIntPortMsk(uint32_t chip, uint32_t msk) {
    return setBit(chip, kIntMsk, 0, msk);
}
VQ6192_API uint32_t VQ6192_Telecom_GetIntPortMsk(uint32_t chip, uint16_t *msk) {
    return getBit(chip, kIntMsk, 0, msk);
}

VQ6192_API uint32_t VQ6192_Telecom_SetTeleClkEdge(uint32_t chip, uint32_t edgeType, uint32_t edge) {
    if (edgeType >= kEdgeTypeNum) {
        return paraErr(chip);
    }
    return setBit(chip, kClkEdge, edgeBit(edgeType), edge);
}

VQ6192_API uint32_t VQ6192_Telecom_GetTeleClkEdge(uint32_t chip, uint32_t edgeType, uint16_t *edge) {
    if (edgeType >= kEdgeTypeNum) {
        return paraErr(chip);
    }
    return getBit(chip, kClkEdge, edgeBit(edgeType), edge);
}

VQ6192_API uint32_t VQ6192_Telecom_SetRstPort(uint32_t chip, uint32_t rst) {
    return setBit(chip, kRstPort, 0, rst);
}
VQ6192_API uint32_t VQ6192_Telecom_GetRstPort(uint32_t chip, uint16_t *rst) {
    return getBit(chip, kRstPort, 0, rst);
}
VQ6192_API uint32_t VQ6192_Telecom_SetTeleTxB2Ins(uint32_t chip, uint32_t en) {
    return setBit(chip, kB2Cfg, 1, en);
}
VQ6192_API uint32_t VQ6192_Telecom_GetTeleTxB2Ins(uint32_t chip, uint16_t *en) {
    return getBit(chip, kB2Cfg, 1, en);
}
VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxB2Mod(uint32_t chip, uint32_t mode) {
    return setBit(chip, kB2Cfg, 0, mode);
}
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxB2Mod(uint32_t chip, uint16_t *mode) {
    return getBit(chip, kB2Cfg, 0, mode);
}

VQ6192_API uint32_t VQ6192_Telecom_GetTeleFpLos(uint32_t chip, uint8_t *jitter, uint8_t *los,
                                                uint8_t *fifoErr, uint8_t *clkLoc) {
    return readAlarms(chip, kFpAlm, jitter, los, fifoErr, clkLoc);
}

VQ6192_API uint32_t VQ6192_Telecom_GetTeleFpLosHis(uint32_t chip, uint8_t *jitter, uint8_t *los,
                                                   uint8_t *fifoErr, uint8_t *clkLoc) {
    return readAlarms(chip, kFpAlmHis, jitter, los, fifoErr, clkLoc);
}

VQ6192_API uint32_t VQ6192_Telecom_GetTeleFpDisvalue(uint32_t chip, uint16_t *value) {
    if (!vq::validChip(chip) || value == nullptr) {
        return paraErr(chip);
    }
    *value = static_cast<uint16_t>(VQ6192_ReadRegField(chip, kFpDisvalue, 0, 6));
    return 0;
}

VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxFifoErrMsk(uint32_t chip, uint32_t port, uint32_t msk) {
    return setPortMask(chip, port, msk, kFifoErrBit, kPortNum);
}
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxFifoErrMsk(uint32_t chip, uint32_t port, uint8_t *msk) {
    return getPortMask(chip, port, msk, kFifoErrBit, kPortNum);
}

// Only one port's B2 overflow interrupt can be unmasked: the other three are masked first.
VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxB2OFMsk(uint32_t chip, uint32_t port, uint32_t msk) {
    if (!vq::validChip(chip) || port >= kPortNum || msk > 1) {
        return paraErr(chip);
    }
    VQ6192_WriteRegField(chip, kPortMsk, 0, kB2OfBit, kPortNum);
    VQ6192_WriteRegField(chip, kPortMsk, msk, kB2OfBit + port, 1);
    return 0;
}
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxB2OFMsk(uint32_t chip, uint32_t port, uint8_t *msk) {
    return getPortMask(chip, port, msk, kB2OfBit, kPortNum);
}

VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxC1ErrMsk(uint32_t chip, uint32_t port, uint32_t msk) {
    return setPortMask(chip, port, msk, kC1ErrBit, kPortNum);
}
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxC1ErrMsk(uint32_t chip, uint32_t port, uint8_t *msk) {
    return getPortMask(chip, port, msk, kC1ErrBit, kPortNum);
}

VQ6192_API uint32_t VQ6192_Telecom_SetTeleRxC1J1AllMsk(uint32_t chip, uint32_t pair, uint32_t msk) {
    return setPortMask(chip, pair, msk, kC1j1SpeBit, kC1j1SpePorts);
}
VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxC1J1AllMsk(uint32_t chip, uint32_t pair, uint8_t *msk) {
    return getPortMask(chip, pair, msk, kC1j1SpeBit, kC1j1SpePorts);
}

VQ6192_API uint32_t VQ6192_Telecom_GetB2C1j1speErr(uint32_t chip, uint32_t port, uint8_t *fifoErr,
                                                   uint8_t *b2Of, uint8_t *c1Err, uint8_t *c1j1Spe) {
    return readPortErrors(chip, kPortErr, port, fifoErr, b2Of, c1Err, c1j1Spe);
}

VQ6192_API uint32_t VQ6192_Telecom_GetB2C1j1speErrHis(uint32_t chip, uint32_t port, uint8_t *fifoErr,
                                                      uint8_t *b2Of, uint8_t *c1Err, uint8_t *c1j1Spe) {
    return readPortErrors(chip, kPortErrHis, port, fifoErr, b2Of, c1Err, c1j1Spe);
}

VQ6192_API uint32_t VQ6192_Telecom_GetTeleRxB2Cnt(uint32_t chip, uint32_t port, uint16_t *count) {
    if (!vq::validChip(chip) || port >= kPortNum || count == nullptr) {
        return paraErr(chip);
    }
    *count = static_cast<uint16_t>(VQ6192_ReadReg(chip, kB2Cnt + 2 * port));
    return 0;
}

}  // extern "C"
