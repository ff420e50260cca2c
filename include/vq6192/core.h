/* VQ6192 driver SDK: chip registry, installation, print control and register access. C-compatible. */
#ifndef VQ6192_CORE_H
#define VQ6192_CORE_H

#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

/* ---- Host functions ---------------------------------------------------------------------------- */

/* Register functions a host may install per chip (VQ6192_Init_ReadWriFun). Addresses are the chip's
 * even byte addresses, unscaled. */
typedef void (*VQ6192_WRITE_REG_FN)(uint32_t chip, uint32_t addr, uint32_t value);
typedef uint32_t (*VQ6192_READ_REG_FN)(uint32_t chip, uint32_t addr);
typedef void (*VQ6192_WRITE_REG_FIELD_FN)(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit,
                                          uint32_t width);
typedef uint32_t (*VQ6192_READ_REG_FIELD_FN)(uint32_t chip, uint32_t addr, uint32_t startBit, uint32_t width);

/* Indirect register path: offset = absolute host address - ulIndirectBaseAddr. 0 = success. */
typedef uint32_t (*VQ6192_INDIRECT_WRITE16_FN)(uintptr_t handle, uint32_t offset, uint16_t value);
typedef uint32_t (*VQ6192_INDIRECT_READ16_FN)(uintptr_t handle, uint32_t offset, uint16_t *value);

/* Bus arbitration (0 = granted) and card presence (0 = card absent) hooks. */
typedef uint32_t (*VQ6192_CHIP_HOOK_FN)(uint32_t chip);

/* ---- Install record ---------------------------------------------------------------------------- */

typedef struct {
    uint32_t ulChipId;                             /* 0..263 */
    uintptr_t ulBaseAddr;                          /* host address of the memory-mapped registers */
    uintptr_t ulIndirectBaseAddr;                  /* subtracted before the indirect functions */
    VQ6192_CHIP_HOOK_FN pfnGetArbitrate;           /* optional; nonzero = refused */
    VQ6192_CHIP_HOOK_FN pfnGiveArbitrate;          /* optional; result ignored */
    VQ6192_INDIRECT_WRITE16_FN pfnIndirectWrite16; /* optional */
    VQ6192_INDIRECT_READ16_FN pfnIndirectRead16;   /* optional */
    uintptr_t ulIndirectHandle;                    /* handle for the indirect functions */
    VQ6192_CHIP_HOOK_FN pfnCardPresent;            /* optional; 0 = card absent */
    uint32_t ulAddrMultiple;                       /* memory-mapped address multiplier; 0 means 1 */
    uint32_t ulRegIndirectFlag;                    /* nonzero: plain register access goes indirect */
    uint32_t ulDelayMode;                          /* 1: bring-up delays busy-wait instead of sleeping */
    uint32_t ulSupportProductFlag;                 /* 1: each register takes 4 host bytes */
} VQ6192_INSTALL_PARA;

/* ---- Chip dump context (one per chip, allocated at install) -------------------------------------- */

typedef uint32_t (*VQ6192_DUMP_OPEN_FN)(const char *name, const char *mode, uintptr_t *handle);
typedef uint32_t (*VQ6192_DUMP_WRITE_FN)(const void *data, uint32_t size, uint32_t count, uintptr_t handle);
typedef uint32_t (*VQ6192_DUMP_CLOSE_FN)(uintptr_t *handle);

typedef struct {
    const char *pszFileName;       /* 0: output file name */
    uint32_t ulBufLen;             /* 1: bytes waiting in the buffer */
    uint8_t *pucBuf;               /* 2: 4096-byte work buffer, freed at uninstall */
    const char *pszChipName;       /* 3: chip name */
    uint32_t ulHeadWritten;        /* 4: 1 once the file header is out */
    VQ6192_DUMP_OPEN_FN pfnOpen;   /* 5 */
    VQ6192_DUMP_WRITE_FN pfnWrite; /* 6 */
    VQ6192_DUMP_CLOSE_FN pfnClose; /* 7 */
    uintptr_t ulRegBase;           /* 8: register base for the dump's own reads */
    const void *pstRegList;        /* 9: register block list */
    uint32_t ulRegListNum;         /* 10 */
    const void *pstTblList;        /* 11: table group list */
    uint32_t ulTblListNum;         /* 12 */
} VQ6192_DUMP_CTX;

/* ---- Chip record ------------------------------------------------------------------------------- */

#define VQ6192_MP_GROUP_NUM 256u

/* Failure counters of a chip record (aulRegFailInfo). */
#define VQ6192_FAIL_ARBITRATE 0u
#define VQ6192_FAIL_SEM_TAKE 1u
#define VQ6192_FAIL_SEM_GIVE 2u
#define VQ6192_FAIL_TABLE_TIMEOUT 3u

typedef struct {
    uintptr_t ulBaseAddr;
    uintptr_t ulIndirectBaseAddr;
    uint32_t aulPrintFlag[VQ6192_MODULE_NUM];
    void *pSem;
    uint32_t aulMpChanCnt[VQ6192_MP_GROUP_NUM];
    uint32_t ulLinkStatAccum;
    VQ6192_CHIP_HOOK_FN pfnGetArbitrate;
    VQ6192_CHIP_HOOK_FN pfnGiveArbitrate;
    VQ6192_INDIRECT_READ16_FN pfnIndirectRead16;
    VQ6192_INDIRECT_WRITE16_FN pfnIndirectWrite16;
    uintptr_t ulIndirectHandle;
    VQ6192_CHIP_HOOK_FN pfnCardPresent;
    VQ6192_DUMP_CTX *pstDumpCtx;
    uint32_t aulRegFailInfo[4];
    uint32_t ulAddrMultiple;
    uint32_t ulRegIndirectFlag;
    uint32_t ulDelayMode;
    uint32_t ulSupportProductFlag;
} VQ6192_CHIP_RECORD;

/* ---- Exported registry data -------------------------------------------------------------------- */

VQ6192_API extern VQ6192_CHIP_RECORD g_vq6192[VQ6192_CHIP_RECORD_NUM];
VQ6192_API extern const char *const g_pszModule[VQ6192_MODULE_NUM];

VQ6192_API extern VQ6192_WRITE_REG_FN g_p6192WriteRegPtr[VQ6192_CHIP_RECORD_NUM];
VQ6192_API extern VQ6192_READ_REG_FN g_p6192ReadRegPtr[VQ6192_CHIP_RECORD_NUM];
VQ6192_API extern VQ6192_WRITE_REG_FIELD_FN g_p6192WriteRegFieldBDirecr[VQ6192_CHIP_RECORD_NUM];
VQ6192_API extern VQ6192_READ_REG_FIELD_FN g_p6192ReadRegFieldBDirect[VQ6192_CHIP_RECORD_NUM];

/* ---- Installation ------------------------------------------------------------------------------ */

VQ6192_API uint32_t VQ6192_Install_SDK(const VQ6192_INSTALL_PARA *para);
VQ6192_API uint32_t VQ6192_UnInstall_SDK(uint32_t chipId);
VQ6192_API void VQ6192_Init_ReadWriFun(uint32_t chipId, VQ6192_WRITE_REG_FN writeReg,
                                       VQ6192_READ_REG_FN readReg, VQ6192_WRITE_REG_FIELD_FN writeRegFieldB,
                                       VQ6192_READ_REG_FIELD_FN readRegFieldB);
VQ6192_API void VQ6192_Sdk_Install_Dump(uint32_t chipId, const VQ6192_INSTALL_PARA *para);
VQ6192_API uint32_t VQ6192_GetSupportProductFlag(uint32_t chipId);
VQ6192_API uint32_t VQ6192_GetRegIndirectFlag(uint32_t chipId);
VQ6192_API uint32_t VQ6192_Base_GetChipBaseAddr(uint32_t chipId, uintptr_t *out);

/* ---- Print control ----------------------------------------------------------------------------- */

VQ6192_API void VQ6192_Printf(uint32_t chipId, uint32_t moduleId, uint32_t level, const char *format, ...)
#if defined(__GNUC__)
    __attribute__((format(printf, 4, 5)))
#endif
    ;
VQ6192_API uint32_t VQ6192_Show_Printf_Flag(uint32_t chipId, char *buf);
VQ6192_API void VQ6192_Set_Printf_Flag(uint32_t chipId, uint32_t moduleId, uint32_t flag);
VQ6192_API uint32_t VQ6192_Set_Diag_Printf_Flag(uint32_t chipId, uint32_t moduleId, uint32_t flag, char *buf);

/* ---- Register access --------------------------------------------------------------------------- */

/* Plain operations: each takes the chip lock around one access. */
VQ6192_API void VQ6192_WriteReg(uint32_t chip, uint32_t addr, uint32_t value);
VQ6192_API uint32_t VQ6192_ReadReg(uint32_t chip, uint32_t addr);
VQ6192_API void VQ6192_WriteRegField(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit,
                                     uint32_t width);
VQ6192_API uint32_t VQ6192_ReadRegField(uint32_t chip, uint32_t addr, uint32_t startBit, uint32_t width);
VQ6192_API uint32_t VQ6192_WriteRegDirect(uint32_t chip, uint32_t addr, uint32_t value);
VQ6192_API uint32_t VQ6192_ReadRegDirect(uint32_t chip, uint32_t addr);
VQ6192_API uint32_t VQ6192_WriteRegIndirect(uint32_t chip, uint32_t addr, uint32_t value);
VQ6192_API uint32_t VQ6192_ReadRegIndirect(uint32_t chip, uint32_t addr);

/* Unlocked field operations, for sequences that already hold the chip lock. */
VQ6192_API void VQ6192_WriteRegFieldB(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit,
                                      uint32_t width);
VQ6192_API uint32_t VQ6192_ReadRegFieldB(uint32_t chip, uint32_t addr, uint32_t startBit, uint32_t width);
VQ6192_API void VQ6192_WriteRegFieldBDirect(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit,
                                            uint32_t width);
VQ6192_API uint32_t VQ6192_ReadRegFieldBDirect(uint32_t chip, uint32_t addr, uint32_t startBit,
                                               uint32_t width);
VQ6192_API void VQ6192_WriteRegFieldBIndirect(uint32_t chip, uint32_t addr, uint32_t value, uint32_t startBit,
                                              uint32_t width);
VQ6192_API uint32_t VQ6192_ReadRegFieldBIndirect(uint32_t chip, uint32_t addr, uint32_t startBit,
                                                 uint32_t width);

/* Supporting operations. */
VQ6192_API uintptr_t VQ6192_Calc_AbsAddr(uint32_t chip, uint32_t addr);
VQ6192_API uint32_t VQ6192_Indirect_ReadReg16(uint32_t chip, uintptr_t absAddr, uint16_t *value);
VQ6192_API uint32_t VQ6192_Indirect_WriteReg16(uint32_t chip, uintptr_t absAddr, uint16_t value);
VQ6192_API uint32_t VQ6192_SemP(uint32_t chip, uint32_t addr, uint32_t value);
VQ6192_API uint32_t VQ6192_SemV(uint32_t chip, uint32_t addr, uint32_t value);
VQ6192_API uint32_t VQ6192_GetArbitrateFunc(uint32_t chip, uint32_t addr, uint32_t value);
VQ6192_API uint32_t VQ6192_GiveArbitrateFunc(uint32_t chip, uint32_t addr, uint32_t value);
VQ6192_API void VQ6192_Get_RegFailInfo(uint32_t chip, uint32_t out[4]);

/* Public register-number interface: register number regNo is at byte address regNo * 2. */
VQ6192_API uint32_t VQ6192_Base_ReadReg(uint32_t chip, uint32_t regNo, uint32_t startBit, uint32_t width,
                                        uint16_t *out);
VQ6192_API uint32_t VQ6192_Base_WriteReg(uint32_t chip, uint32_t regNo, uint32_t value, uint32_t startBit,
                                         uint32_t width);

VQ6192_EXTERN_C_END

#endif /* VQ6192_CORE_H */
