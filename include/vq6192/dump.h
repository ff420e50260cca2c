/* VQ6192 driver SDK: chip dump for fault analysis. C-compatible.
 *
 * A dump reads a chip's register blocks and internal tables, without the chip lock, into a 4096-byte
 * buffer and writes them to a file through three host file hooks (the library never opens a file
 * itself). The file is big-endian:
 *   header   48 bytes: 0x7E, "DUMP", output file name, chip name (no separators), zero padded
 *   block    0xF0, name (17 bytes), group id (u32), range count (u8), kind (u8); with kind 2 each range
 *            follows as {base, first, last} (u16 each) and last - first + 1 register values (u16)
 *   group    0xF1, name (17 bytes), group id (u32), table count (u8), kind (u8); with kind 2 each table
 *            follows as name (18 bytes), depth (u32), entry size S (u16) and depth entries of S bytes,
 *            each entry as 32-bit words, most significant byte first
 * The hook record and the dump context are declared in vq6192/core.h. */
#ifndef VQ6192_DUMP_H
#define VQ6192_DUMP_H

#include "vq6192/core.h"
#include "vq6192/platform.h"
#include "vq6192/table.h"
#include "vq6192/types.h"

VQ6192_EXTERN_C_BEGIN

#define VQ6192_DUMP_BUF_SIZE 4096u     /* bytes collected before each flush */
#define VQ6192_DUMP_HEAD_SIZE 48u      /* file header */
#define VQ6192_DUMP_REC_HEAD_SIZE 24u  /* block, group and table headers */
#define VQ6192_DUMP_RANGE_HEAD_SIZE 6u /* register range header */
#define VQ6192_DUMP_RANGE_MAX 8u       /* ranges of a register block */
#define VQ6192_DUMP_GROUP_TBL_MAX 60u  /* tables of a table group */
#define VQ6192_DUMP_CHIP_NAME_MAX 21u  /* characters of the chip name */
#define VQ6192_DUMP_FILE_NAME_MAX 20u  /* characters of the output file name */
#define VQ6192_DUMP_BLOCK_NAME_MAX 18u /* characters of a register block name */
#define VQ6192_DUMP_ALL_GROUPS (-1)    /* group filter: every block and group */
#define VQ6192_DUMP_KIND_RANGES 2u     /* kind of a block or group whose records follow */
#define VQ6192_DUMP_MARK_HEAD 0x7Eu
#define VQ6192_DUMP_MARK_BLOCK 0xF0u
#define VQ6192_DUMP_MARK_GROUP 0xF1u

/* Registers base + first .. base + last (register numbers; register number x 2 = register address). */
typedef struct {
    uint16_t usBase;
    uint16_t usFirst;
    uint16_t usLast;
} VQ6192_DUMP_REG_RANGE_S;

typedef struct {
    const char *pszName; /* at most 18 characters (17 reach the file) */
    uint32_t ulGroupId;  /* the group filter key */
    uint8_t ucVersion;   /* 3 */
    uint8_t ucRangeNum;  /* 0..8 */
    uint8_t ucKind;      /* VQ6192_DUMP_KIND_RANGES */
    uint8_t ucReserved;
    VQ6192_DUMP_REG_RANGE_S astRange[VQ6192_DUMP_RANGE_MAX];
} VQ6192_DUMP_REG_BLOCK_S;

/* A dumped table: its name in the file and its own copy of the table's access record. */
typedef struct {
    const char *pszName; /* 18 characters reach the file */
    uint32_t ulFlags;    /* 0x03000000 in the default lists; not read */
    VQ6192_CHIP_TABLE_INFO_S stTbl;
} VQ6192_DUMP_TBL_S;

typedef struct {
    const char *pszName;
    uint32_t ulGroupId;
    uint8_t ucTblNum; /* 0..60 */
    uint8_t ucKind;   /* VQ6192_DUMP_KIND_RANGES */
    uint8_t aucReserved[2];
    VQ6192_DUMP_TBL_S astTbl[VQ6192_DUMP_GROUP_TBL_MAX];
} VQ6192_DUMP_TBL_GROUP_S;

/* Default lists of VQ6192_DUMP_F. */
VQ6192_API extern const VQ6192_DUMP_REG_BLOCK_S g_VQ6192_ChipDump_DirectReg[];
VQ6192_API extern const uint32_t g_VQ6192_ChipDump_DirectReg_Cnt;
VQ6192_API extern const VQ6192_DUMP_TBL_GROUP_S g_VQ6192_ChipDump_InDirectReg[];
VQ6192_API extern const uint32_t g_VQ6192_ChipDump_InDirectReg_Cnt;

/* Set-up and the dump. Status errors are in module DUMP (11). */
VQ6192_API uint32_t VQ6192_DUMP_RegFileFunc(uint32_t chip, VQ6192_DUMP_OPEN_FN pfnOpen,
                                            VQ6192_DUMP_WRITE_FN pfnWrite, VQ6192_DUMP_CLOSE_FN pfnClose);
VQ6192_API uint32_t VQ6192_DUMP_InitializeDump(uint32_t chip, const char *chipName, uintptr_t baseAddr,
                                               const VQ6192_DUMP_REG_BLOCK_S *regList, uint32_t regCount,
                                               const VQ6192_DUMP_TBL_GROUP_S *tblList, uint32_t tblCount,
                                               const char *outFile);
VQ6192_API uint32_t VQ6192_DUMP_Initialize(uint32_t chip, const char *chipName, const char *outFile);
VQ6192_API uint32_t VQ6192_DUMP_Dump(uint32_t chip, int32_t groupFilter);
VQ6192_API uint32_t VQ6192_DUMP_DumpReg(uint32_t chip, int32_t groupFilter);
VQ6192_API uint32_t VQ6192_DUMP_DumpTbl(uint32_t chip, int32_t groupFilter);
VQ6192_API uint32_t VQ6192_DUMP_F(uint32_t chip, int32_t groupFilter);
VQ6192_API void VQ6192_DUMP_ChipDumpEnd(uint32_t chip);

/* Buffering and file output. */
VQ6192_API uint32_t VQ6192_DUMP_WriteBuffer(uint32_t chip, const void *data, uint32_t length);
VQ6192_API uint32_t VQ6192_DUMP_WriteFile(uint32_t chip);
VQ6192_API uint32_t VQ6192_DUMP_WriteFileHead(uint32_t chip);

/* The dump's own register access: register numbers, no chip lock, no host register functions. */
VQ6192_API uint16_t VQ6192_DUMP_ReadDumpReg(uint32_t chip, uint32_t regNo);
VQ6192_API uint16_t VQ6192_DUMP_ReadDumpRegDirect(uint32_t chip, uint32_t regNo);
VQ6192_API uint16_t VQ6192_DUMP_ReadDumpRegIndirect(uint32_t chip, uint32_t regNo);
VQ6192_API uint32_t VQ6192_DUMP_ReadReg(uint32_t chip, uint32_t regNo, uint32_t startBit, uint32_t width,
                                        uint16_t *out);
VQ6192_API uint32_t VQ6192_DUMP_ReadRegDirect(uint32_t chip, uint32_t regNo, uint32_t startBit,
                                              uint32_t width, uint16_t *out);
VQ6192_API uint32_t VQ6192_DUMP_ReadRegIndirect(uint32_t chip, uint32_t regNo, uint32_t startBit,
                                                uint32_t width, uint16_t *out);
VQ6192_API uint32_t VQ6192_DUMP_WriteReg(uint32_t chip, uint32_t regNo, uint32_t startBit, uint32_t width,
                                         uint32_t value);
VQ6192_API uint32_t VQ6192_DUMP_WriteRegDirect(uint32_t chip, uint32_t regNo, uint32_t startBit,
                                               uint32_t width, uint32_t value);
VQ6192_API uint32_t VQ6192_DUMP_WriteRegIndirect(uint32_t chip, uint32_t regNo, uint32_t startBit,
                                                 uint32_t width, uint32_t value);
VQ6192_API uint32_t VQ6192_DUMP_ReadDumpTbl(uint32_t chip, uint32_t groupIndex, uint32_t tableIndex,
                                            uint32_t entryIndex, uint32_t *entry);

/* The library's own file hooks vq6192_fileopen_func, vq6192_filewrite_func and vq6192_fileclose_func,
 * installed by VQ6192_DUMP_F, are declared in vq6192/platform.h. */

VQ6192_EXTERN_C_END

#endif /* VQ6192_DUMP_H */
